// QComboBox: what one sees.
#include "style/motif.h"
#include "style/motifinputs.h"
#include "widgets/comboboxdata.h"

#include <qapplication.h>
#include <qdesktopwidget.h>
#include <qevent.h>
#include <qguardedptr.h>
#include <qpainter.h>
#include <qpixmap.h>

#include <algorithm>

namespace motif = zeltk::motif;

QSize QComboBox::sizeHint() const
{
    constPolish();
    const QFontMetrics metrics = fontMetrics();
    int width = 18 + (count() ? 0 : 7 * metrics.width('x'));
    int height = std::max(metrics.lineSpacing(), 14) + 2;
    for (int i = 0; i < count(); ++i) {
        const QListBoxItem* item = d->list->item(i);
        width = std::max(width, item->width(d->list));
        height = std::max(height, item->height(d->list));
    }
    return QSize(width + motif::comboBoxArrowRoom, height + 2 * motif::frameWidth);
}

void QComboBox::resizeEvent(QResizeEvent*)
{
    if (d->edit)
        d->edit->setGeometry(motif::comboBoxField(rect()));
    d->list->resize(width(), d->list->height());
}

void QComboBox::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    const QColorGroup& g = colorGroup();
    motif::drawComboBox(&p, rect(), g, d->edit != 0);
    if (hasFocus())
        motif::drawFocusFrame(&p, motif::comboBoxFocusFrame(rect()), g);
    if (d->edit || d->current >= count())
        return;
    const QRect field = motif::comboBoxField(rect());
    p.setClipRect(field);
    p.setPen(isEnabled() ? g.buttonText() : g.foreground());
    const QPixmap* pixmap = d->list->pixmap(d->current);
    int x = field.x() + 2;
    if (pixmap) {
        p.drawPixmap(x, field.y() + (field.height() - pixmap->height()) / 2, *pixmap);
        x += pixmap->width() + 3;
    }
    QRect line(x, field.y(), field.right() + 1 - x, field.height());
    const int missing = fontMetrics().height() - line.height();
    if (missing > 0)
        line = QRect(x, field.y() - (missing + 1) / 2, line.width(), fontMetrics().height());
    motif::drawText(&p, line, AlignLeft | AlignVCenter | SingleLine, g, isEnabled(), text(d->current),
                    &g.buttonText());
}

// Below the combo box; above it if there is no room.
void QComboBox::popup()
{
    if (count() == 0 || d->open)
        return;
    QListBox* list = d->list;
    const int shown = std::min(d->sizeLimit, count());
    int height = 2 * list->frameWidth();
    for (int i = 0; i < shown; ++i)
        height += list->itemHeight(i);
    const int bar = shown < count() ? list->verticalScrollBar()->sizeHint().width() : 0;
    const int width =
        std::max(this->width(), static_cast<int>(list->maxItemWidth()) + bar + 2 * list->frameWidth());
    const QRect screen = QApplication::desktop()->geometry();
    QPoint place = mapToGlobal(QPoint(0, this->height()));
    if (place.y() + height > screen.bottom() + 1 && place.y() - this->height() - height >= screen.y())
        place.setY(place.y() - this->height() - height);
    place.setX(std::max(screen.x(), std::min(place.x(), screen.right() + 1 - width)));
    list->setGeometry(place.x(), place.y(), width, height);
    if (d->current < count()) {
        list->blockSignals(true);
        list->setCurrentItem(d->current);
        list->blockSignals(false);
    }
    d->open = true;
    d->visited = false;
    const QGuardedPtr<QComboBox> alive(this);
    QFocusEvent::setReason(QFocusEvent::Popup);
    list->setFocus();
    QFocusEvent::resetReason();
    if (!alive)
        return;
    list->show();
    list->setTopItem(d->current);
}

// Without a choice the current entry is marked again.
void QComboBox::popDownListBox()
{
    if (!d->open)
        return;
    const QGuardedPtr<QComboBox> alive(this);
    d->open = false;
    d->list->hide();
    if (alive && d->current < count())
        d->list->setCurrentItem(d->current);
}

void QComboBox::hide()
{
    const QGuardedPtr<QComboBox> alive(this);
    QWidget::hide();
    if (alive)
        popDownListBox();
}
