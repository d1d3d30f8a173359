// QScrollBar: mouse and keys.
#include <qscrollbar.h>

#include "style/motifinputs.h"
#include "widgets/scrollbardata.h"

#include <qapplication.h>
#include <qevent.h>
#include <qguardedptr.h>

#include <algorithm>

using zeltk::ScrollBarData;

namespace
{

constexpr int firstRepeat = 500; // milliseconds
constexpr int laterRepeats = 50;

} // namespace

int QScrollBar::partAt(const QPoint& pos) const
{
    const bool horizontal = orientation() == Horizontal;
    const int place = horizontal ? pos.x() : pos.y();
    const int length = horizontal ? width() : height();
    const int arrow = 2 + zeltk::motif::scrollBarArrow;
    if (!rect().contains(pos))
        return ScrollBarData::Nothing;
    if (place < arrow)
        return ScrollBarData::LineBack;
    if (place >= length - arrow)
        return ScrollBarData::LineForward;
    if (place < d->sliderStart)
        return ScrollBarData::PageBack;
    const QRect slider = sliderRect();
    const int behind = horizontal ? slider.right() : slider.bottom();
    return place > behind ? ScrollBarData::PageForward : ScrollBarData::Slider;
}

// What a press on a part does, and what follows while it is held.
void QScrollBar::act()
{
    const QGuardedPtr<QScrollBar> alive(this); // receivers may delete it, here and below
    switch (d->pressed) {
    case ScrollBarData::LineBack:
        subtractLine();
        if (alive)
            emit prevLine();
        break;
    case ScrollBarData::LineForward:
        addLine();
        if (alive)
            emit nextLine();
        break;
    case ScrollBarData::PageBack:
        subtractPage();
        if (alive)
            emit prevPage();
        break;
    case ScrollBarData::PageForward:
        addPage();
        if (alive)
            emit nextPage();
        break;
    default:
        break;
    }
}

void QScrollBar::mousePressEvent(QMouseEvent* event)
{
    if (d->pressed != ScrollBarData::Nothing ||
        (event->button() != LeftButton && event->button() != MidButton))
        return;
    const int part = partAt(event->pos());
    if (part == ScrollBarData::Nothing || maxValue() <= minValue())
        return;
    d->pointer = orientation() == Horizontal ? event->x() : event->y();
    d->inside = true;
    const bool onGroove = part == ScrollBarData::PageBack || part == ScrollBarData::PageForward;
    if (part == ScrollBarData::Slider || (onGroove && event->button() == MidButton)) {
        beginDrag(onGroove);
    } else if (event->button() == LeftButton) {
        d->pressed = static_cast<ScrollBarData::Part>(part);
        repaint(false);
        const QGuardedPtr<QScrollBar> alive(this);
        act();
        if (alive)
            startAutoRepeat();
    }
}

// With the middle button the slider jumps to the pointer first.
void QScrollBar::beginDrag(bool jump)
{
    if (jump) {
        d->sliderStart = boundedSlider(d->pointer - sliderLength() / 2);
        d->pressed = ScrollBarData::Slider;
        const QGuardedPtr<QScrollBar> alive(this);
        setValue(sliderPosToRangeValue(d->sliderStart));
        if (!alive)
            return;
    }
    d->pressed = ScrollBarData::Slider;
    d->grabbedAt = d->pointer - d->sliderStart;
    repaint(false);
    emit sliderPressed();
}

void QScrollBar::mouseMoveEvent(QMouseEvent* event)
{
    if (d->pressed == ScrollBarData::Nothing || !(event->state() & (LeftButton | MidButton)))
        return;
    d->pointer = orientation() == Horizontal ? event->x() : event->y();
    if (d->pressed == ScrollBarData::Slider) {
        drag();
        return;
    }
    const bool inside = partAt(event->pos()) == d->pressed;
    if (inside == d->inside)
        return;
    d->inside = inside;
    repaint(false);
    if (inside)
        startAutoRepeat();
    else
        stopAutoRepeat();
}

void QScrollBar::drag()
{
    const int start = boundedSlider(d->pointer - d->grabbedAt);
    if (start == d->sliderStart)
        return;
    d->sliderStart = start;
    const int newValue = sliderPosToRangeValue(start);
    const QGuardedPtr<QScrollBar> alive(this);
    if (newValue != value())
        emit sliderMoved(newValue);
    if (!alive)
        return;
    if (tracking() && newValue != value())
        setValue(newValue);
    else
        repaint(false);
}

void QScrollBar::mouseReleaseEvent(QMouseEvent* event)
{
    if (d->pressed == ScrollBarData::Nothing || (event->stateAfter() & (LeftButton | MidButton)))
        return;
    const bool dragged = draggingSlider();
    stopAutoRepeat();
    d->pressed = ScrollBarData::Nothing;
    repaint(false);
    if (!dragged)
        return;
    const int newValue = sliderPosToRangeValue(d->sliderStart);
    const QGuardedPtr<QScrollBar> alive(this);
    emit sliderReleased();
    if (alive && newValue != value())
        setValue(newValue);
}

void QScrollBar::contextMenuEvent(QContextMenuEvent* event)
{
    event->consume();
}

void QScrollBar::startAutoRepeat()
{
    d->repeats = false;
    d->repeatTimer.start(firstRepeat);
}

void QScrollBar::stopAutoRepeat()
{
    d->repeatTimer.stop();
}

// Paging stops when the slider has come to the pointer.
void QScrollBar::doAutoRepeat()
{
    if (!d->repeats) {
        d->repeatTimer.changeInterval(laterRepeats);
        d->repeats = true;
    }
    const bool atPointer =
        (d->pressed == ScrollBarData::PageBack && d->pointer >= d->sliderStart) ||
        (d->pressed == ScrollBarData::PageForward && d->pointer < d->sliderStart + sliderLength());
    if (atPointer)
        stopAutoRepeat();
    else
        act();
}

void QScrollBar::wheelEvent(QWheelEvent* event)
{
    event->accept();
    const bool pages = event->state() & (ControlButton | ShiftButton);
    const int step = pages ? pageStep() : std::min(QApplication::wheelScrollLines() * lineStep(), pageStep());
    d->wheelRest += -event->delta() * std::max(step, 1);
    const int steps = d->wheelRest / 120;
    d->wheelRest -= steps * 120;
    setValue(value() + steps);
}

void QScrollBar::keyPressEvent(QKeyEvent* event)
{
    const bool horizontal = orientation() == Horizontal;
    switch (event->key()) {
    case Key_Left:
        if (horizontal)
            subtractLine();
        break;
    case Key_Right:
        if (horizontal)
            addLine();
        break;
    case Key_Up:
        if (!horizontal)
            subtractLine();
        break;
    case Key_Down:
        if (!horizontal)
            addLine();
        break;
    case Key_PageUp:
        subtractPage();
        break;
    case Key_PageDown:
        addPage();
        break;
    case Key_Home:
        setValue(minValue());
        break;
    case Key_End:
        setValue(maxValue());
        break;
    default:
        event->ignore();
    }
}
