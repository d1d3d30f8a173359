#include "zelgraph.h"
#include "graphscale.h"

#include <qevent.h>
#include <qguardedptr.h>
#include <qfontmetrics.h>
#include <qpainter.h>
#include <qpixmap.h>
#include <qpointarray.h>

#include <new>

// Bits of modeFlags.
enum { GraphBars = 1, GraphRate = 2, GraphAutoRange = 4, GraphReadout = 8, GraphReadoutShown = 16 };

ZelGraph::ZelGraph(QWidget* parent, const char* name, bool readout, WFlags f)
    : QFrame(parent, name, f), minY(0.0), maxY(5.0), hGridCount(10), vGridStep(10),
      modeFlags(readout ? GraphReadout : 0), graphColor(0, 0, 220), gridColor(0, 150, 0),
      backgroundColor(0, 0, 0), writePos(0), capacity(0), count(0), history(0), prevTime(time(0)),
      lastTime(prevTime), prevInput(0.0), lastInput(0.0), firstValue(true), mouseX(0), mouseY(0)
{
    setFrameStyle((int)Panel | (int)Sunken);
    setBackgroundMode(NoBackground);
}

ZelGraph::~ZelGraph()
{
    delete[] history;
}

void ZelGraph::setGraphParameters(int newMinY, int newMaxY, int newHGridCount, int newVGridStep, bool bars,
                                  bool rate, bool autoRange, const QColor& background, const QColor& graph,
                                  const QColor& grid)
{
    minY = newMinY;
    maxY = newMaxY;
    repairRange(minY, maxY);
    hGridCount = newHGridCount;
    vGridStep = newVGridStep;
    modeFlags &= ~(GraphBars | GraphRate | GraphAutoRange);
    if (bars)
        modeFlags |= GraphBars;
    if (rate)
        modeFlags |= GraphRate;
    if (autoRange) {
        minY = 0.0;
        maxY = 2.0;
        modeFlags |= GraphAutoRange;
    }
    graphColor = graph;
    gridColor = grid;
    backgroundColor = background;
    flatten();
    repaint(true);
}

void ZelGraph::setMaxY(int y)
{
    if ((modeFlags & GraphAutoRange) || y == maxY)
        return;
    maxY = y;
    repairRange(minY, maxY);
    repaint(true);
}

void ZelGraph::setMinY(int y)
{
    if ((modeFlags & GraphAutoRange) || y == minY)
        return;
    minY = y;
    repairRange(minY, maxY);
    repaint(true);
}

// The columns that had samples keep being drawn.
void ZelGraph::clearAll()
{
    flatten();
    repaint(true);
}

void ZelGraph::flatten()
{
    for (int i = 0; i < capacity; ++i)
        history[i] = minY;
}

// One sample for each column inside of the frame.
void ZelGraph::resizeEvent(QResizeEvent* event)
{
    delete[] history;
    history = 0;
    capacity = writePos = count = 0;
    const int columns = contentsRect().width();
    if (columns > 0)
        history = new (std::nothrow) double[(unsigned int)columns];
    if (history)
        capacity = columns;
    flatten();
    QFrame::resizeEvent(event);
}

void ZelGraph::setValue(int v)
{
    prevTime = lastTime;
    lastTime = time(0);
    prevInput = lastInput;
    lastInput = v;
    const double y = plottedValue(v);
    if (modeFlags & GraphAutoRange) {
        if (firstValue || y > maxY)
            maxY = firstValue ? y + 1 : y;
        if (firstValue || y < minY)
            minY = firstValue ? y - 1 : y;
    }
    if (firstValue)
        flatten();
    firstValue = false;
    store(y > maxY ? maxY : y < minY ? minY : y);
    repaint(true);
}

// Two samples within a second count as two seconds apart.
double ZelGraph::plottedValue(int v) const
{
    if (!(modeFlags & GraphRate))
        return v;
    if (firstValue)
        return 0.0;
    const int seconds = secondsBetween(prevTime, lastTime);
    return asDouble(seconds ? (v - prevInput) / seconds : (v - prevInput) * 0.5);
}

void ZelGraph::store(double y)
{
    if (!history)
        return;
    history[writePos] = y;
    if (++writePos >= capacity)
        writePos = 0;
    if (count < capacity)
        ++count;
}

// The picture is made in the widget's coordinates and then put where the contents begin, so all of it shows a
// frame's width further to the right and below. One painter puts the picture and the read-out on the screen:
// where only a part of the widget is painted, both are limited to that part and the read-out stays whole.
void ZelGraph::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);
    const QRect area = contentsRect();
    QPainter screen(this);
    if (area.width() > 0 && area.height() > 0) {
        QPixmap picture(area.width(), area.height());
        QPainter painter;
        painter.begin(&picture, this);
        painter.fillRect(0, 0, area.width(), area.height(), QBrush(backgroundColor));
        drawGrid(painter, area);
        if (history)
            drawHistory(painter, area);
        painter.end();
        screen.drawPixmap(area.topLeft(), picture);
    }
    if (modeFlags & GraphReadoutShown)
        drawReadout(screen, area);
}

void ZelGraph::drawGrid(QPainter& painter, const QRect& area) const
{
    const int step = hGridCount > 0 ? area.height() / hGridCount : 0;
    const int rows = step > 0 ? area.bottom() / step : 0;
    const int columns = vGridStep > 0 ? (area.width() - 1) / vGridStep : 0;
    QPointArray ends(2 * (rows + columns));
    unsigned int end = 0;
    for (int i = 1; i <= rows; ++i) {
        const int y = area.bottom() - i * step;
        ends.setPoint(end++, area.left(), y);
        ends.setPoint(end++, area.right(), y);
    }
    for (int i = 1; i <= columns; ++i) {
        const int x = area.left() + i * vGridStep;
        ends.setPoint(end++, x, area.top());
        ends.setPoint(end++, x, area.bottom());
    }
    painter.setPen(gridColor);
    painter.drawLineSegments(ends);
}

int ZelGraph::rowAt(int slot, const QRect& area) const
{
    return rowOfValue(history[slot], minY, maxY, area.height(), area.bottom());
}

// From the oldest sample to the newest; the slot that is written next is left out.
void ZelGraph::drawHistory(QPainter& painter, const QRect& area) const
{
    QPointArray ends(2 * area.width());
    unsigned int lines = 0;
    int slot = writePos + 1 < capacity ? writePos + 1 : 0;
    int previous = rowAt(slot, area);
    for (int x = area.left(); x <= area.right(); ++x) {
        const int row = rowAt(slot, area);
        if (slot < count) {
            ends.setPoint(2 * lines, x, modeFlags & GraphBars ? area.bottom() : previous);
            ends.setPoint(2 * lines + 1, x, row);
            ++lines;
        }
        if (++slot == writePos)
            break;
        if (slot >= capacity)
            slot = 0;
        previous = row;
    }
    painter.setPen(graphColor);
    painter.drawLineSegments(ends, 0, (int)lines);
}

void ZelGraph::mousePressEvent(QMouseEvent* event)
{
    const QGuardedPtr<QWidget> alive(this);
    emit mousePress(event);
    if (alive && event->button() == LeftButton && (modeFlags & GraphReadout)) {
        const QRect area = contentsRect();
        modeFlags |= GraphReadoutShown;
        mouseX = event->x();
        mouseY = event->y();
        placeReadout(area);
        QPainter screen(this);
        drawReadout(screen, area);
    }
    if (alive)
        QWidget::mousePressEvent(event);
}

void ZelGraph::mouseMoveEvent(QMouseEvent* event)
{
    const QGuardedPtr<QWidget> alive(this);
    emit mouseMove(event);
    if (alive && (modeFlags & GraphReadoutShown)) {
        const QRect area = contentsRect();
        QPainter screen(this);
        drawReadout(screen, area); // takes the old one away
        mouseX = event->x();
        mouseY = event->y() < 0 ? 0 : event->y();
        if (mouseY > area.bottom())
            mouseY = area.bottom();
        placeReadout(area);
        drawReadout(screen, area);
    }
    if (alive)
        QWidget::mouseMoveEvent(event);
}

void ZelGraph::mouseReleaseEvent(QMouseEvent* event)
{
    const QGuardedPtr<QWidget> alive(this);
    emit mouseRelease(event);
    if (alive && event->button() == LeftButton && (modeFlags & GraphReadoutShown)) {
        modeFlags &= ~GraphReadoutShown;
        QPainter screen(this);
        drawReadout(screen, contentsRect());
    }
    if (alive)
        QWidget::mouseReleaseEvent(event);
}

void ZelGraph::mouseDoubleClickEvent(QMouseEvent* event)
{
    const QGuardedPtr<QWidget> alive(this);
    emit mouseDoubleClick(event);
    if (alive)
        QWidget::mouseDoubleClickEvent(event);
}

void ZelGraph::keyPressEvent(QKeyEvent* event)
{
    const QGuardedPtr<QWidget> alive(this);
    emit keyPress(event);
    if (alive)
        QWidget::keyPressEvent(event);
}

// The middle of the text is measured from the widget's edge, not from the contents'.
void ZelGraph::placeReadout(const QRect& area)
{
    readoutText.sprintf("%.2f", valueAtRow(mouseY, minY, maxY, area.height()));
    const QFontMetrics metrics(font());
    const int width = metrics.width(readoutText);
    const int height = metrics.height();
    const int lowest = area.bottom() - (height - 1);
    int top = mouseY > height / 2 ? mouseY - height / 2 : 0;
    if (top > lowest)
        top = lowest > 0 ? lowest : 0;
    readoutRect = QRect(area.width() / 2 - width / 2, top, width, height);
}

// Inverts; a second time, it takes away what the first time drew.
void ZelGraph::drawReadout(QPainter& screen, const QRect& area) const
{
    screen.setRasterOp(NotROP);
    screen.drawText(readoutRect, AlignCenter, readoutText);
    screen.drawLine(area.left(), mouseY, readoutRect.left(), mouseY);
    screen.drawLine(readoutRect.right(), mouseY, area.right(), mouseY);
}
