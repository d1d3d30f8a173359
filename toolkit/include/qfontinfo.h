// What was found for a font.
#ifndef QFONTINFO_H
#define QFONTINFO_H

#include <qfont.h>

//! Family, weight and pitch are those of the font that is used; the rest is as it was wished.
class Q_EXPORT QFontInfo
{
public:
    QFontInfo(const QFont& font);

    QString family() const;
    int pointSize() const;
    int pixelSize() const;
    bool italic() const { return wanted.italic(); }
    int weight() const;
    bool bold() const { return weight() > QFont::Normal; }
    bool underline() const { return wanted.underline(); }
    bool overline() const { return wanted.overline(); }
    bool strikeOut() const { return wanted.strikeOut(); }
    bool fixedPitch() const;
    QFont::StyleHint styleHint() const { return wanted.styleHint(); }
    //! Whether family and weight are those that were asked for.
    bool exactMatch() const;

private:
    QFont wanted;
};

#endif
