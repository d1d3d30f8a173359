// How scroll bars, fields and lists look.
#ifndef ZELTK_MOTIFINPUTS_H
#define ZELTK_MOTIFINPUTS_H

#include <qcolor.h>
#include <qnamespace.h>
#include <qrect.h>

class QColorGroup;
class QPainter;

namespace zeltk
{
namespace motif
{

constexpr int scrollBarExtent = 16; // across
constexpr int scrollBarArrow = scrollBarExtent - 2 * 2;
constexpr int shortestSlider = 9;

enum class Arrow { Left, Right, Up, Down };
// Fills a square whose upper left corner is given.
void drawArrow(QPainter* p, int x, int y, int size, Arrow arrow, bool down, const QColorGroup& g);

struct ScrollBarLook {
    Qt::Orientation orientation;
    QRect slider;
    QRect groove; // where the slider moves
    QColor background;
    bool focus;
    bool decreasing; // the arrow that is held down
    bool increasing;
};
// On the background colour.
void drawScrollBar(QPainter* p, const QRect& r, const QColorGroup& g, const ScrollBarLook& look);

// A raised box with an arrow; the field is where the text stands.
constexpr int comboBoxArrowRoom = 25; // wished for, with the frame
QRect comboBoxField(const QRect& r);
QRect comboBoxFocusFrame(const QRect& r);
void drawComboBox(QPainter* p, const QRect& r, const QColorGroup& g, bool editable);

} // namespace motif
} // namespace zeltk

#endif
