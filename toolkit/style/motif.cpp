// How texts and pictures of controls look.
#include "style/motif.h"

#include <qbitmap.h>
#include <qpainter.h>
#include <qpalette.h>
#include <qwidget.h>

namespace zeltk
{
namespace motif
{

int shortcutOf(const QString& text)
{
    for (int place = text.find('&'); place >= 0 && place + 1 < static_cast<int>(text.length());
         place = text.find('&', place + 2)) {
        const QChar letter = text.at(static_cast<uint>(place) + 1);
        if (letter != '&')
            return Qt::ALT + letter.upper().unicode();
    }
    return 0;
}

QSize labelSize(const QWidget* widget, const QString& text, const QPixmap* pixmap)
{
    return pixmap ? pixmap->size() : widget->fontMetrics().size(Qt::ShowPrefix, text);
}

void drawText(QPainter* p, const QRect& r, int flags, const QColorGroup& g, bool, const QString& text,
              const QColor* color)
{
    p->setPen(color ? *color : g.foreground());
    p->drawText(r, flags, text);
}

void drawPixmap(QPainter* p, const QRect& r, int flags, const QColorGroup& g, bool enabled,
                const QPixmap& pixmap)
{
    QPoint place = r.topLeft();
    if (flags & Qt::AlignRight)
        place.setX(r.right() - pixmap.width() + 1);
    else if (flags & Qt::AlignHCenter)
        place.setX(r.x() + (r.width() - pixmap.width()) / 2);
    if (flags & Qt::AlignBottom)
        place.setY(r.bottom() - pixmap.height() + 1);
    else if (flags & Qt::AlignVCenter)
        place.setY(r.y() + (r.height() - pixmap.height()) / 2);
    p->setPen(g.foreground());
    p->drawPixmap(place, pixmap);
    if (!enabled)
        p->fillRect(QRect(place, pixmap.size()), QBrush(g.background(), Qt::Dense4Pattern));
}

void drawFocusFrame(QPainter* p, const QRect& r, const QColorGroup& g)
{
    p->setPen(g.foreground());
    p->setBrush(Qt::NoBrush);
    p->drawRect(r);
}

} // namespace motif
} // namespace zeltk
