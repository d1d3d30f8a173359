// Measures of fonts, in pixels.
#ifndef QFONTMETRICS_H
#define QFONTMETRICS_H

#include <qfont.h>
#include <qrect.h>

class QTextParag;

//! Of the font that is used for the one given. Needs an application.
class Q_EXPORT QFontMetrics
{
public:
    QFontMetrics(const QFont& font);
    QFontMetrics(const QFontMetrics& other);
    ~QFontMetrics();
    QFontMetrics& operator=(const QFontMetrics& other);

    //! Rows above the base line, and below it; the base line itself is in none of them, but in the height.
    int ascent() const;
    int descent() const;
    int height() const { return ascent() + descent() + 1; }
    //! Rows between two lines of text.
    int leading() const;
    int lineSpacing() const { return leading() + height(); }
    //! The least bearings of all letters, negative where letters reach over their widths; 0 at the most.
    int minLeftBearing() const;
    int minRightBearing() const;
    int maxWidth() const;

    //! Whether the font has the character.
    bool inFont(QChar c) const;
    //! Pixels between the letter and the edges of its width, negative where it reaches over them.
    int leftBearing(QChar c) const;
    int rightBearing(QChar c) const;
    //! How far the pen moves.
    int width(const QString& text, int length = -1) const;
    int width(QChar c) const;
    int width(char c) const { return width(QChar(c)); }
    int charWidth(const QString& text, int position) const;

    //! The pixels, with the pen at (0, 0).
    QRect boundingRect(const QString& text, int length = -1) const;
    QRect boundingRect(QChar c) const;
    //! The place of a text in a rectangle, with Qt::AlignmentFlags and Qt::TextFlags.
    QRect boundingRect(int x, int y, int w, int h, int flags, const QString& text, int length = -1,
                       int tabStops = 0, int* tabArray = 0, QTextParag** unused = 0) const;
    QSize size(int flags, const QString& text, int length = -1, int tabStops = 0, int* tabArray = 0,
               QTextParag** unused = 0) const;

    //! Rows from the base line to a line under, over or through the text.
    int underlinePos() const;
    int overlinePos() const { return ascent() + 1; }
    int strikeOutPos() const;
    //! How thick such a line is.
    int lineWidth() const;

private:
    QFont font;
};

#endif
