// Fonts.
#ifndef QFONT_H
#define QFONT_H

#include <qstringlist.h>
#include <qwindowdefs.h>

namespace zeltk
{
struct FontData;
struct FontAccess;
} // namespace zeltk

//! A wish for a font; the nearest one there is is used. Shared until changed.
class Q_EXPORT QFont : public Qt
{
public:
    enum StyleHint {
        Helvetica,
        SansSerif = Helvetica,
        Times,
        Serif = Times,
        Courier,
        TypeWriter = Courier,
        OldEnglish,
        Decorative = OldEnglish,
        System,
        AnyStyle
    };
    enum StyleStrategy {
        PreferDefault = 0x0001,
        PreferBitmap = 0x0002,
        PreferDevice = 0x0004,
        PreferOutline = 0x0008,
        ForceOutline = 0x0010,
        PreferMatch = 0x0020,
        PreferQuality = 0x0040,
        PreferAntialias = 0x0080,
        NoAntialias = 0x0100
    };
    enum Weight { Light = 25, Normal = 50, DemiBold = 63, Bold = 75, Black = 87 };

    //! The application's font.
    QFont();
    //! Size in points; one below 1 becomes 12. Weights reach from 0 to 99.
    QFont(const QString& family, int pointSize = 12, int weight = Normal, bool italic = false);
    QFont(const QFont& other);
    ~QFont();
    QFont& operator=(const QFont& other);

    QString family() const;
    void setFamily(const QString& family);
    //! -1 if the size is given in pixels.
    int pointSize() const;
    float pointSizeFloat() const;
    void setPointSize(int size);
    void setPointSizeFloat(float size);
    //! -1 if the size is given in points.
    int pixelSize() const;
    void setPixelSize(int size);
    void setPixelSizeFloat(float size);
    int weight() const;
    void setWeight(int weight);
    bool bold() const { return weight() > Normal; }
    void setBold(bool enable) { setWeight(enable ? Bold : Normal); }
    bool italic() const;
    void setItalic(bool enable);
    bool underline() const;
    void setUnderline(bool enable);
    bool overline() const;
    void setOverline(bool enable);
    bool strikeOut() const;
    void setStrikeOut(bool enable);
    bool fixedPitch() const;
    void setFixedPitch(bool enable);
    StyleHint styleHint() const;
    StyleStrategy styleStrategy() const;
    void setStyleHint(StyleHint hint, StyleStrategy strategy = PreferDefault);
    void setStyleStrategy(StyleStrategy strategy);
    bool rawMode() const;
    void setRawMode(bool enable);
    bool exactMatch() const;

    bool operator==(const QFont& other) const;
    bool operator!=(const QFont& other) const { return !(*this == other); }
    bool isCopyOf(const QFont& other) const { return d == other.d; }

    QString key() const { return toString(); }
    //! Family, sizes, hint, weight and flags, with commas.
    QString toString() const;
    bool fromString(const QString& text);

    static QString substitute(const QString& family);
    static QStringList substitutes(const QString& family);
    static void insertSubstitution(const QString& family, const QString& substitute);
    static void insertSubstitutions(const QString& family, const QStringList& substitutes);
    //! The families that have stand-ins, in lower case.
    static QStringList substitutions();
    static void removeSubstitution(const QString& family);

    QString defaultFamily() const;
    QString lastResortFamily() const;

    //! This font, with what it leaves open taken from the other one.
    QFont resolve(const QFont& other) const;

private:
    friend struct zeltk::FontAccess;
    void detach();

    zeltk::FontData* d;
};

#endif
