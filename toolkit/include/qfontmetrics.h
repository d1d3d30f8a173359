// Measures of fonts, in pixels.
#ifndef QFONTMETRICS_H
#define QFONTMETRICS_H

#include <qfont.h>
#include <qrect.h>

class QTextParag;

class Q_EXPORT QFontMetrics
{
public:
    QFontMetrics(const QFont& font);
    QFontMetrics(const QFontMetrics& other);
    ~QFontMetrics();
    QFontMetrics& operator=(const QFontMetrics& other);

    int ascent() const;
    int descent() const;
    int height() const { return ascent() + descent() + 1; }
    int leading() const;
    int lineSpacing() const { return leading() + height(); }
    int minLeftBearing() const;
    int minRightBearing() const;
    int maxWidth() const;

    bool inFont(QChar c) const;
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

    int underlinePos() const;
    int overlinePos() const { return ascent() + 1; }
    int strikeOutPos() const;
    int lineWidth() const;

private:
    QFont font;
};

#endif
