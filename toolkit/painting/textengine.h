// Places text in rectangles.
#ifndef ZELTK_TEXTENGINE_H
#define ZELTK_TEXTENGINE_H

#include <qfont.h>
#include <qrect.h>

#include <string>
#include <vector>

namespace zeltk
{

// A piece of text on one line.
struct TextRun {
    std::u16string text;
    int x;        // of the pen
    int baseline; // its row
    int width;
};

// A line under the letter of a keyboard shortcut.
struct TextMark {
    int x;
    int baseline;
    int width;
};

struct TextLayout {
    std::vector<TextRun> runs;
    std::vector<TextMark> marks;
    QRect bounding;
};

struct TextFormat {
    int flags;           // Qt::AlignmentFlags and Qt::TextFlags
    int tabStops;        // distance in pixels; 0: eight times the width of an x
    const int* tabArray; // places of tabs in pixels, ended by 0; may be null
};

TextLayout layoutText(const QFont& font, const QRect& rect, const TextFormat& format, const QString& text);

} // namespace zeltk

#endif
