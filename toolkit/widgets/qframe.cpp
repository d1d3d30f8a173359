// QFrame.
#include <qframe.h>

#include "kernel/applicationprivate.h"

#include <qdrawutil.h>
#include <qevent.h>
#include <qpainter.h>

#include <algorithm>

namespace
{

constexpr int lineThickness = 3; // what lines ask for

} // namespace

QFrame::QFrame(QWidget* parent, const char* name, WFlags f)
    : QWidget(parent, name, f), fstyle(NoFrame | Plain), lwidth(1), mwidth(0), mgn(0)
{
    zeltk::ensureStyled();
}

// Lines want no more room across than they need.
void QFrame::setFrameStyle(int style)
{
    fstyle = style;
    if (frameShape() == HLine)
        setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    else if (frameShape() == VLine)
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Minimum);
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
    if (frameShape() == HLine)
        return QSize(-1, lineThickness);
    if (frameShape() == VLine)
        return QSize(lineThickness, -1);
    return QSize();
}

// A frame rectangle that was set keeps its distance from the right and lower edge; when nothing is left of it
// the frame is around the whole widget again.
void QFrame::resizeEvent(QResizeEvent* event)
{
    if (!frect.isNull()) {
        frect.setSize(frect.size() + event->size() - event->oldSize());
        if (!frect.isValid())
            frect = QRect();
    }
    frameChanged();
}

namespace
{

bool reachesFrame(const QRegion& region, const QRect& frame, const QRect& contents)
{
    const QMemArray<QRect> rects = region.rects();
    return std::any_of(rects.data(), rects.data() + rects.size(), [&](const QRect& rect) {
        const QRect part = rect & frame;
        return !part.isEmpty() && (contents.isEmpty() || !contents.contains(part));
    });
}

} // namespace

void QFrame::paintEvent(QPaintEvent* event)
{
    QPainter p(this);
    if (reachesFrame(event->region(), frameRect(), contentsRect()))
        drawFrame(&p);
    if (event->rect().intersects(contentsRect())) {
        p.setClipRegion(event->region() & QRegion(contentsRect()));
        drawContents(&p);
    }
}

void QFrame::drawContents(QPainter*) {}

namespace
{

void drawHorizontalLine(QPainter* p, const QFrame* frame, const QRect& r, const QColorGroup& g)
{
    const int y = r.y() + r.height() / 2;
    const int width = frame->lineWidth();
    if (frame->frameShadow() == QFrame::Plain)
        p->fillRect(r.x(), y - width / 2, r.width(), width, g.foreground());
    else
        qDrawShadeLine(p, r.left(), y, r.right() + 1, y, g, frame->frameShadow() == QFrame::Sunken, width,
                       frame->midLineWidth());
}

void drawVerticalLine(QPainter* p, const QFrame* frame, const QRect& r, const QColorGroup& g)
{
    const int x = r.x() + r.width() / 2;
    const int width = frame->lineWidth();
    if (frame->frameShadow() == QFrame::Plain)
        p->fillRect(x - width / 2, r.y(), width, r.height(), g.foreground());
    else
        qDrawShadeLine(p, x, r.top(), x, r.bottom() + 1, g, frame->frameShadow() == QFrame::Sunken, width,
                       frame->midLineWidth());
}

} // namespace

void QFrame::drawFrame(QPainter* p)
{
    const QRect r = frameRect();
    const QColorGroup& g = colorGroup();
    const bool sunken = frameShadow() == Sunken;
    const bool plain = frameShadow() == Plain;
    switch (frameShape()) {
    case NoFrame:
        break;
    case Box:
    case GroupBoxPanel:
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
        drawHorizontalLine(p, this, r, g);
        break;
    case VLine:
        drawVerticalLine(p, this, r, g);
        break;
    case MenuBarPanel:
    case ToolBarPanel:
        qDrawShadePanel(p, r, g, false, lwidth);
        break;
    case LineEditPanel:
    case TabWidgetPanel:
        qDrawShadePanel(p, r, g, sunken, lwidth);
        break;
    default:
        if (plain)
            qDrawPlainRect(p, r, g.foreground(), lwidth);
        else
            qDrawShadePanel(p, r, g, sunken, lwidth);
        break;
    }
}
