// How controls look.
#ifndef ZELTK_MOTIF_H
#define ZELTK_MOTIF_H

#include <qcolor.h>
#include <qrect.h>

class QColorGroup;
class QPainter;
class QPixmap;
class QString;
class QWidget;

namespace zeltk
{
namespace motif
{

constexpr int frameWidth = 2; // of buttons, indicators and fields

// The key of a text with a sign before a letter, as in "&Open": Qt::ALT and the letter. 0 if there is none.
int shortcutOf(const QString& text);

// A text in the widget's font, or the pixmap if there is one.
QSize labelSize(const QWidget* widget, const QString& text, const QPixmap* pixmap);

// A null colour means the group's foreground.
void drawText(QPainter* p, const QRect& r, int flags, const QColorGroup& g, bool enabled, const QString& text,
              const QColor* color);
// Pictures of disabled controls are pale.
void drawPixmap(QPainter* p, const QRect& r, int flags, const QColorGroup& g, bool enabled,
                const QPixmap& pixmap);
// What shows that a control has the focus.
void drawFocusFrame(QPainter* p, const QRect& r, const QColorGroup& g);

struct ButtonLook {
    bool down;
    bool on;
    bool flat;
    bool isDefault;
    bool autoDefault;
};
QSize pushButtonSize(const QSize& label, const ButtonLook& look);
// The bevel with the frame of a default button around it.
void drawPushButton(QPainter* p, const QRect& r, const QColorGroup& g, const ButtonLook& look);
// The inside, where the label goes.
QRect pushButtonContents(const QRect& r, const ButtonLook& look);
QRect pushButtonFocusFrame(const QRect& r, const ButtonLook& look);

struct CheckLook {
    bool down;
    bool on;
    bool undecided;
};
// A label size that is not valid means that there is no label.
QSize checkBoxSize(const QSize& label);
QRect checkIndicator(const QRect& r);
QRect checkLabel(const QRect& r);
QRect checkFocusFrame(const QRect& r, const QSize& label);
void drawCheckIndicator(QPainter* p, const QRect& r, const QColorGroup& g, const CheckLook& look);

} // namespace motif
} // namespace zeltk

#endif
