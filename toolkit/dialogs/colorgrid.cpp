// Wells of colours.
#include "dialogs/colorgrid.h"

#include <qdrawutil.h>
#include <qevent.h>
#include <qpainter.h>

namespace
{

constexpr int cellWidth = 28;
constexpr int cellHeight = 24;
constexpr int wellDistance = 3; // from the edge of the cell

QRect inside(const QRect& r, int by)
{
    return QRect(r.x() + by, r.y() + by, r.width() - 2 * by, r.height() - 2 * by);
}

} // namespace

QWellArray::QWellArray(int rows, int columns, const std::vector<QRgb>* c, QWidget* parent)
    : QScrollView(parent, ""), rowCount(rows), columnCount(columns), colors(c)
{
    setFrameStyle(NoFrame);
    setHScrollBarMode(AlwaysOff);
    setVScrollBarMode(AlwaysOff);
    viewport()->setBackgroundMode(PaletteBackground);
    viewport()->setFocusProxy(this);
    setFocusPolicy(StrongFocus);
}

QSize QWellArray::sizeHint() const
{
    return QSize(columnCount * cellWidth, rowCount * cellHeight);
}

QRect QWellArray::cell(int index) const
{
    return QRect(index / rowCount * cellWidth, index % rowCount * cellHeight, cellWidth, cellHeight);
}

void QWellArray::choose(int index)
{
    selected = index;
    if (index >= 0)
        current = index;
    updateContents();
}

void QWellArray::chooseByHand(int index)
{
    choose(index);
    if (onChosen)
        onChosen(index);
}

void QWellArray::drawContents(QPainter* p, int x, int y, int w, int h)
{
    for (int index = 0; index < rowCount * columnCount; ++index) {
        if (cell(index).intersects(QRect(x, y, w, h)))
            drawWell(p, index);
    }
}

// The chosen colour lies smaller in its well.
void QWellArray::drawWell(QPainter* p, int index)
{
    const QRect well = inside(cell(index), wellDistance);
    const QBrush face(colorGroup().background());
    qDrawShadePanel(p, well, colorGroup(), true, 2, &face);
    p->fillRect(inside(well, index == selected ? 4 : 2), QColor((*colors)[static_cast<size_t>(index)]));
    if (index == current && hasFocus()) {
        p->setPen(colorGroup().foreground());
        p->drawRect(cell(index));
    }
}

void QWellArray::contentsMousePressEvent(QMouseEvent* event)
{
    for (int index = 0; index < rowCount * columnCount; ++index) {
        if (cell(index).contains(event->pos())) {
            chooseByHand(index);
            return;
        }
    }
}

void QWellArray::focusInEvent(QFocusEvent*)
{
    updateContents();
}

void QWellArray::focusOutEvent(QFocusEvent*)
{
    updateContents();
}

void QWellArray::keyPressEvent(QKeyEvent* event)
{
    const int row = current % rowCount;
    const int column = current / rowCount;
    int next = current;
    switch (event->key()) {
    case Key_Left:
        next -= column > 0 ? rowCount : 0;
        break;
    case Key_Right:
        next += column < columnCount - 1 ? rowCount : 0;
        break;
    case Key_Up:
        next -= row > 0 ? 1 : 0;
        break;
    case Key_Down:
        next += row < rowCount - 1 ? 1 : 0;
        break;
    case Key_Space:
        chooseByHand(current);
        return;
    default:
        event->ignore();
        return;
    }
    current = next;
    updateContents();
}
