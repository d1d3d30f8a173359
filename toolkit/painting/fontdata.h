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
    int references;
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
    int set;

    QString family;
    int tenths;    // of a point; -1 if pixels count
    int pixelSize; // -1 if points count
    int weight;
    bool italic;
    bool underline;
    bool overline;
    bool strikeOut;
    bool fixedPitch;
    bool raw;
    QFont::StyleHint hint;
    QFont::StyleStrategy strategy;

    const x11::Font* face; // opened when it is needed first
};

struct FontAccess {
    static FontData* data(const QFont& font) { return font.d; }
    static QFont withMask(const QFont& font, int set);
};

// The face that was found for a font. Needs a connection.
const x11::Font* faceOf(const QFont& font);
int pixelSizeOf(const QFont& font);

} // namespace zeltk

#endif
