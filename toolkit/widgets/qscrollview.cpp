// QScrollView.
#include <qscrollview.h>

#include "widgets/viewportwidget.h"

#include <qapplication.h>
#include <qevent.h>
#include <qguardedptr.h>
#include <qpainter.h>

namespace zeltk
{

struct ScrollViewData {
    QScrollBar* horizontal;
    QScrollBar* vertical;
    QWidget* viewport;
    QWidget* corner;
    QScrollView::ScrollBarMode horizontalMode = QScrollView::Auto;
    QScrollView::ScrollBarMode verticalMode = QScrollView::Auto;
    int x = 0; // what of the contents stands in the viewport's corner
    int y = 0;
    int width = 0;
    int height = 0;
};

} // namespace zeltk

namespace
{

bool needsBar(QScrollView::ScrollBarMode mode, int contents, int room)
{
    return mode == QScrollView::AlwaysOn || (mode == QScrollView::Auto && contents > room);
}

void adjustBar(QScrollBar* bar, bool shown, int contents, int room, int page)
{
    const QGuardedPtr<QScrollBar> alive(bar);
    bar->setRange(0, QMAX(0, contents - room));
    if (!alive)
        return;
    bar->setSteps(bar->lineStep(), page);
    if (shown)
        bar->show();
    else
        bar->hide();
}

constexpr int scrolledLine = 20;

} // namespace

QScrollView::QScrollView(QWidget* parent, const char* name, WFlags f) : QFrame(parent, name, f)
{
    d = new zeltk::ScrollViewData;
    d->horizontal = new QScrollBar(Horizontal, this, "qt_hbar");
    d->vertical = new QScrollBar(Vertical, this, "qt_vbar");
    d->viewport = new QViewportWidget(this);
    d->corner = new QWidget(this, "qt_default_corner");
    d->horizontal->setLineStep(scrolledLine);
    d->vertical->setLineStep(scrolledLine);
    d->horizontal->hide();
    d->vertical->hide();
    connect(d->horizontal, SIGNAL(valueChanged(int)), this, SLOT(hslide(int)));
    connect(d->vertical, SIGNAL(valueChanged(int)), this, SLOT(vslide(int)));
    d->viewport->installEventFilter(this);
    d->viewport->setBackgroundMode(PaletteDark);
    setFrameStyle(StyledPanel | Sunken);
    setLineWidth(2);
    setSizePolicy(QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding));
}

QScrollView::~QScrollView()
{
    d->viewport->removeEventFilter(this);
    delete d;
    d = 0;
}

QScrollView::ScrollBarMode QScrollView::vScrollBarMode() const
{
    return d->verticalMode;
}

void QScrollView::setVScrollBarMode(ScrollBarMode mode)
{
    d->verticalMode = mode;
    updateScrollBars();
}

QScrollView::ScrollBarMode QScrollView::hScrollBarMode() const
{
    return d->horizontalMode;
}

void QScrollView::setHScrollBarMode(ScrollBarMode mode)
{
    d->horizontalMode = mode;
    updateScrollBars();
}

QScrollBar* QScrollView::horizontalScrollBar() const
{
    return d->horizontal;
}

QScrollBar* QScrollView::verticalScrollBar() const
{
    return d->vertical;
}

QWidget* QScrollView::viewport() const
{
    return d->viewport;
}

int QScrollView::visibleWidth() const
{
    return d->viewport->width();
}

int QScrollView::visibleHeight() const
{
    return d->viewport->height();
}

int QScrollView::contentsWidth() const
{
    return d->width;
}

int QScrollView::contentsHeight() const
{
    return d->height;
}

int QScrollView::contentsX() const
{
    return d->x;
}

int QScrollView::contentsY() const
{
    return d->y;
}

QPoint QScrollView::contentsToViewport(const QPoint& p) const
{
    return QPoint(p.x() - d->x, p.y() - d->y);
}

QPoint QScrollView::viewportToContents(const QPoint& p) const
{
    return QPoint(p.x() + d->x, p.y() + d->y);
}

void QScrollView::updateContents(int x, int y, int w, int h)
{
    d->viewport->update(x - d->x, y - d->y, w, h);
}

void QScrollView::updateContents()
{
    d->viewport->update();
}

void QScrollView::repaintContents(int x, int y, int w, int h, bool erase)
{
    d->viewport->repaint(x - d->x, y - d->y, w, h, erase);
}

void QScrollView::repaintContents(bool erase)
{
    d->viewport->repaint(erase);
}

void QScrollView::resizeContents(int w, int h)
{
    d->width = w;
    d->height = h;
    updateScrollBars();
}

// The frame goes round the contents only; a bar takes room from the other direction. A frame that is wider
// than any widget leaves no room, just as one of that width.
void QScrollView::updateScrollBars()
{
    const int edge = QMIN(frameWidth(), QWIDGETSIZE_MAX);
    const int frame = 2 * edge;
    const int extent = d->vertical->sizeHint().width();
    int room = width() - frame;
    bool vertical = needsBar(d->verticalMode, d->height, height() - frame);
    const bool horizontal = needsBar(d->horizontalMode, d->width, room - (vertical ? extent : 0));
    vertical = needsBar(d->verticalMode, d->height, height() - frame - (horizontal ? extent : 0));
    const int w = width() - (vertical ? extent : 0);
    const int h = height() - (horizontal ? extent : 0);
    setFrameRect(QRect(0, 0, w, h));
    const QRect inside(edge, edge, QMAX(0, w - frame), QMAX(0, h - frame));
    d->viewport->setGeometry(inside);
    if (vertical)
        d->vertical->setGeometry(w, 0, extent, h);
    if (horizontal)
        d->horizontal->setGeometry(0, h, w, extent);
    d->corner->setGeometry(width() - extent, height() - extent, extent, extent);
    d->corner->setShown(vertical && horizontal);
    const QGuardedPtr<QScrollView> alive(this);
    adjustBar(d->vertical, vertical, d->height, inside.height(), inside.height());
    if (alive)
        adjustBar(d->horizontal, horizontal, d->width, inside.width(), inside.width());
}

void QScrollView::moveContents(int x, int y)
{
    x = QMAX(0, QMIN(x, d->width - visibleWidth()));
    y = QMAX(0, QMIN(y, d->height - visibleHeight()));
    if (x == d->x && y == d->y)
        return;
    const QGuardedPtr<QScrollView> alive(this);
    emit contentsMoving(x, y);
    if (!alive)
        return;
    const int dx = d->x - x;
    const int dy = d->y - y;
    d->x = x;
    d->y = y;
    d->viewport->scroll(dx, dy);
}

void QScrollView::hslide(int value)
{
    moveContents(value, d->y);
}

void QScrollView::vslide(int value)
{
    moveContents(d->x, value);
}

void QScrollView::setContentsPos(int x, int y)
{
    const QGuardedPtr<QScrollView> alive(this);
    d->horizontal->setValue(x);
    if (alive)
        d->vertical->setValue(y);
}

void QScrollView::scrollBy(int dx, int dy)
{
    setContentsPos(d->x + dx, d->y + dy);
}

void QScrollView::ensureVisible(int x, int y)
{
    ensureVisible(x, y, 50, 50);
}

void QScrollView::ensureVisible(int x, int y, int xmargin, int ymargin)
{
    int left = d->x;
    int top = d->y;
    if (x < left + xmargin)
        left = x - xmargin;
    else if (x > left + visibleWidth() - xmargin)
        left = x + xmargin - visibleWidth();
    if (y < top + ymargin)
        top = y - ymargin;
    else if (y > top + visibleHeight() - ymargin)
        top = y + ymargin - visibleHeight();
    setContentsPos(left, top);
}

bool QScrollView::eventFilter(QObject* watched, QEvent* event)
{
    if (!d || watched != d->viewport)
        return QFrame::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::Paint:
        viewportPaintEvent(static_cast<QPaintEvent*>(event));
        return true;
    case QEvent::Resize:
        viewportResizeEvent(static_cast<QResizeEvent*>(event));
        return false;
    case QEvent::Wheel: {
        QWheelEvent* wheel = static_cast<QWheelEvent*>(event);
        wheelEvent(wheel);
        return wheel->isAccepted();
    }
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
        return mouseToContents(static_cast<QMouseEvent*>(event));
    default:
        return QFrame::eventFilter(watched, event);
    }
}

bool QScrollView::mouseToContents(QMouseEvent* event)
{
    QMouseEvent inside(event->type(), viewportToContents(event->pos()), event->globalPos(), event->button(),
                       event->state());
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        contentsMousePressEvent(&inside);
        break;
    case QEvent::MouseButtonRelease:
        contentsMouseReleaseEvent(&inside);
        break;
    case QEvent::MouseButtonDblClick:
        contentsMouseDoubleClickEvent(&inside);
        break;
    default:
        contentsMouseMoveEvent(&inside);
    }
    return inside.isAccepted();
}

void QScrollView::viewportPaintEvent(QPaintEvent* event)
{
    QPainter p(d->viewport);
    p.setClipRegion(event->region());
    p.translate(-d->x, -d->y);
    const QRect r = event->rect();
    drawContents(&p, r.x() + d->x, r.y() + d->y, r.width(), r.height());
}

void QScrollView::drawContents(QPainter*, int, int, int, int) {}

void QScrollView::drawContents(QPainter*) {}

void QScrollView::viewportResizeEvent(QResizeEvent*) {}

void QScrollView::contentsMousePressEvent(QMouseEvent* event)
{
    event->ignore();
}

void QScrollView::contentsMouseReleaseEvent(QMouseEvent* event)
{
    event->ignore();
}

void QScrollView::contentsMouseDoubleClickEvent(QMouseEvent* event)
{
    contentsMousePressEvent(event);
}

void QScrollView::contentsMouseMoveEvent(QMouseEvent* event)
{
    event->ignore();
}

void QScrollView::wheelEvent(QWheelEvent* event)
{
    QScrollBar* bar =
        event->orientation() == Horizontal || !d->vertical->isVisible() ? d->horizontal : d->vertical;
    if (bar->isVisible())
        QApplication::sendEvent(bar, event);
    else
        event->ignore();
}

void QScrollView::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    updateScrollBars();
}

QSize QScrollView::sizeHint() const
{
    const int frame = 2 * frameWidth();
    const int line = fontMetrics().height();
    return QSize(frame + d->width, frame + d->height)
        .expandedTo(QSize(12 * line, 8 * line))
        .boundedTo(QSize(36 * line, 24 * line));
}

QSize QScrollView::minimumSizeHint() const
{
    const int frame = 2 * frameWidth();
    const int line = fontMetrics().height();
    return QSize(frame + 6 * line, frame + 4 * line);
}
