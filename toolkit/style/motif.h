// How controls look.
#ifndef ZELTK_MOTIF_H
#define ZELTK_MOTIF_H

#include <qcolor.h>
#include <qrect.h>

class QColorGroup;
class QPainter;
class QPixmap;
class QString;

namespace zeltk
{
namespace motif
{

constexpr int frameWidth = 2;       // of buttons and fields
constexpr int defaultIndicator = 5; // room around a default button
constexpr int checkIndicatorSize = 13;

// The key of a text with a sign before a letter, as in "&Open": Qt::ALT and the letter. 0 if there is none.
int shortcutOf(const QString& text);

// Disabled texts and pictures are pale. A null colour means the group's foreground.
void drawText(QPainter* p, const QRect& r, int flags, const QColorGroup& g, bool enabled, const QString& text,
              const QColor* color);
void drawPixmap(QPainter* p, const QRect& r, int flags, const QColorGroup& g, bool enabled,
                const QPixmap& pixmap);

struct ButtonLook {
    bool down;
    bool on;
    bool flat;
    bool isDefault;
    bool autoDefault;
    bool enabled;
};
// The bevel with the frame of a default button around it.
void drawPushButton(QPainter* p, const QRect& r, const QColorGroup& g, const ButtonLook& look);
// The inside, where the label goes.
QRect pushButtonContents(const QRect& r, const ButtonLook& look);

} // namespace motif
} // namespace zeltk

#endif
