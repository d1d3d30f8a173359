// QFrame.
#include <qframe.h>

#include "kernel/applicationprivate.h"

#include <qdrawutil.h>
#include <qevent.h>
#include <qpainter.h>

QFrame::QFrame(QWidget* parent, const char* name, WFlags f)
    : QWidget(parent, name, f), fstyle(NoFrame | Plain), lwidth(1), mwidth(0), mgn(0)
{
    zeltk::ensureStyled();
}

void QFrame::setFrameStyle(int style)
{
    fstyle = style;
    changed();
}

void QFrame::setFrameShape(Shape shape)
{
    setFrameStyle((fstyle & MShadow) | shape);
}

void QFrame::setFrameShadow(Shadow shadow)
{
    setFrameStyle((fstyle & MShape) | shadow);
}

void QFrame::setLineWidth(int width)
{
    lwidth = width;
    changed();
}

void QFrame::setMidLineWidth(int width)
{
    mwidth = width;
    changed();
}

void QFrame::setMargin(int margin)
{
    mgn = margin;
    changed();
}

void QFrame::changed()
{
    update();
    frameChanged();
    updateGeometry();
}

void QFrame::frameChanged() {}

int QFrame::frameWidth() const
{
    const bool grooved = frameShadow() == Raised || frameShadow() == Sunken;
    switch (frameShape()) {
    case NoFrame:
        return mgn;
    case Box:
    case HLine:
    case VLine:
        return (grooved ? 2 * lwidth + mwidth : lwidth) + mgn;
    case WinPanel:
        return 2 + mgn;
    default:
        return lwidth + mgn;
    }
}

QRect QFrame::frameRect() const
{
    return frect.isNull() ? rect() : frect;
}

void QFrame::setFrameRect(const QRect& rect)
{
    frect = rect.isValid() ? rect : QRect();
    update();
    frameChanged();
}

QRect QFrame::contentsRect() const
{
    const int width = frameWidth();
    const QRect r = frameRect();
    return QRect(r.x() + width, r.y() + width, r.width() - 2 * width, r.height() - 2 * width);
}

QSize QFrame::sizeHint() const
{
    return QSize();
}

// A frame rectangle that was set keeps its distance from the right and lower edge.
void QFrame::resizeEvent(QResizeEvent* event)
{
    if (!frect.isNull()) {
        const QSize grown = event->size() - event->oldSize();
        frect.setSize(frect.size() + grown);
    }
    frameChanged();
}

void QFrame::paintEvent(QPaintEvent* event)
{
    QPainter p(this);
    const QRegion frame = QRegion(frameRect()) - QRegion(contentsRect());
    if (event->region().contains(frameRect()) && !(event->region() & frame).isEmpty())
        drawFrame(&p);
    if (event->rect().intersects(contentsRect())) {
        p.setClipRegion(event->region() & QRegion(contentsRect()));
        drawContents(&p);
    }
}

void QFrame::drawContents(QPainter*) {}

void QFrame::drawFrame(QPainter* p)
{
    const QRect r = frameRect();
    const QColorGroup& g = colorGroup();
    const bool sunken = frameShadow() == Sunken;
    const bool plain = frameShadow() == Plain;
    const QPoint middle = r.center();
    switch (frameShape()) {
    case NoFrame:
        break;
    case Box:
        if (plain)
            qDrawPlainRect(p, r, g.foreground(), lwidth);
        else
            qDrawShadeRect(p, r, g, sunken, lwidth, mwidth);
        break;
    case WinPanel:
        if (plain)
            qDrawPlainRect(p, r, g.foreground(), 2);
        else
            qDrawWinPanel(p, r, g, sunken);
        break;
    case HLine:
        if (plain)
            p->fillRect(r.x(), middle.y() - lwidth / 2, r.width(), lwidth, g.foreground());
        else
            qDrawShadeLine(p, r.left(), middle.y(), r.right() + 1, middle.y(), g, sunken, lwidth, mwidth);
        break;
    case VLine:
        if (plain)
            p->fillRect(middle.x() - lwidth / 2, r.y(), lwidth, r.height(), g.foreground());
        else
            qDrawShadeLine(p, middle.x(), r.top(), middle.x(), r.bottom() + 1, g, sunken, lwidth, mwidth);
        break;
    case GroupBoxPanel:
        qDrawShadeRect(p, r, g, sunken, lwidth, mwidth);
        break;
    default:
        if (plain)
            qDrawPlainRect(p, r, g.foreground(), lwidth);
        else
            qDrawShadePanel(p, r, g, sunken, lwidth);
        break;
    }
}
