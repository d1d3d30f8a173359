// How scroll bars look.
#include "style/motifinputs.h"

#include "style/motif.h"

#include <qdrawutil.h>
#include <qpainter.h>
#include <qpalette.h>

#include <algorithm>

namespace zeltk
{
namespace motif
{

namespace
{

// Draws lines along the arrow's rows, which run from the tip to the base.
struct ArrowPainter {
    QPainter* p;
    int x;
    int y;
    int size;
    Arrow arrow;

    // Places are counted from the side of the tip; the ones outside of the square are left out.
    void line(int row, int from, int to, const QColor& color) const
    {
        from = std::max(from, 0);
        to = std::min(to, size - 1);
        if (from > to)
            return;
        const bool mirrored = arrow == Arrow::Right || arrow == Arrow::Down;
        const int start = mirrored ? size - 1 - to : from;
        const int length = to - from + 1;
        if (arrow == Arrow::Left || arrow == Arrow::Right)
            p->fillRect(x + start, y + row, length, 1, QBrush(color));
        else
            p->fillRect(x + row, y + start, 1, length, QBrush(color));
    }
};

} // namespace

// The slopes rise two places a row and are four places wide; the base is two places thick. Where they meet,
// the edge in the shade wins only its outer place. The middle row of an odd size belongs to the first half in
// arrows to the left and down, to the second one in the others.
void drawArrow(QPainter* p, int x, int y, int size, Arrow arrow, bool down, const QColorGroup& g)
{
    const QColor lit = down ? g.dark() : g.light();
    const QColor shaded = down ? g.light() : g.dark();
    const bool baseIsLit = arrow == Arrow::Right || arrow == Arrow::Down;
    const int firstHalf = (arrow == Arrow::Left || arrow == Arrow::Down ? size + 1 : size) / 2;
    const ArrowPainter painter = {p, x, y, size, arrow};
    for (int row = 0; row < size; ++row) {
        const bool first = row < firstHalf;
        const int fromEdge = std::min(row, size - 1 - row);
        const int slope = size - 2 - 2 * fromEdge;
        const bool sameShade = first == baseIsLit;
        const int base = fromEdge < 2 && !sameShade ? size - 1 : size - 2;
        painter.line(row, slope + 4, base - 1, g.button());
        painter.line(row, base, size - 1, baseIsLit ? lit : shaded);
        painter.line(row, slope, std::min(slope + 3, base - 1), first ? lit : shaded);
    }
}

void drawScrollBar(QPainter* p, const QRect& r, const QColorGroup& g, const ScrollBarLook& look)
{
    qDrawShadePanel(p, r, g, true, 2);
    const bool horizontal = look.orientation == Qt::Horizontal;
    const int length = horizontal ? r.width() : r.height();
    const int size = std::min(scrollBarArrow, (length - 8) / 2);
    const int far = length - 2 - size;
    if (horizontal) {
        drawArrow(p, r.x() + 2, r.y() + 2, size, Arrow::Left, look.decreasing, g);
        drawArrow(p, r.x() + far, r.y() + 2, size, Arrow::Right, look.increasing, g);
    } else {
        drawArrow(p, r.x() + 2, r.y() + 2, size, Arrow::Up, look.decreasing, g);
        drawArrow(p, r.x() + 2, r.y() + far, size, Arrow::Down, look.increasing, g);
    }
    p->fillRect(look.groove, QBrush(look.background));
    const QBrush fill(g.button());
    qDrawShadePanel(p, look.slider, g, false, 2, &fill);
    const QRect& s = look.slider;
    if (look.focus)
        drawFocusFrame(p, QRect(s.x() + 2, s.y() + 2, s.width() - 5, s.height() - 5), g);
}

} // namespace motif
} // namespace zeltk
