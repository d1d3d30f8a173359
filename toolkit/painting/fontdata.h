// What a font is made of.
#ifndef ZELTK_FONTDATA_H
#define ZELTK_FONTDATA_H

#include <qfont.h>

namespace zeltk
{

namespace x11
{
class Font;
}

struct FontData {
    int references = 1;
    // Which of the fields below were set; the others come from the parent's or the application's font.
    enum Field {
        Family = 1,
        Size = 2,
        Weight = 4,
        Italic = 8,
        Underline = 16,
        StrikeOut = 32,
        Hint = 64,
        Pitch = 128,
        All = 255
    };
    int set = 0;

    QString family;
    int tenths = -1;    // of a point; -1 if pixels count
    int pixelSize = -1; // -1 if points count
    int weight = QFont::Normal;
    bool italic = false;
    bool underline = false;
    bool overline = false;
    bool strikeOut = false;
    bool fixedPitch = false;
    bool raw = false;
    QFont::StyleHint hint = QFont::AnyStyle;
    QFont::StyleStrategy strategy = QFont::PreferDefault;

    const x11::Font* face = nullptr; // opened when it is needed first
};

struct FontAccess {
    static FontData* data(const QFont& font) { return font.d; }
    static QFont withMask(const QFont& font, int set);
};

// The face that was found for a font. Needs a connection.
const x11::Font* faceOf(const QFont& font);
int pixelSizeOf(const QFont& font);
// What is too large for an int is the largest that fits; what is no number is the smallest.
int roundedSize(double size);

} // namespace zeltk

#endif
