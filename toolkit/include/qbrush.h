// How areas are filled.
#ifndef QBRUSH_H
#define QBRUSH_H

#include <qcolor.h>

class QPixmap;

//! A colour and a pattern, or a pixmap that is repeated. A default one fills nothing.
class Q_EXPORT QBrush : public Qt
{
public:
    QBrush();
    QBrush(BrushStyle style);
    QBrush(const QColor& color, BrushStyle style = SolidPattern);
    QBrush(const QColor& color, const QPixmap& pixmap);
    QBrush(const QBrush& other);
    ~QBrush();
    QBrush& operator=(const QBrush& other);

    BrushStyle style() const { return s; }
    //! Warns of CustomPattern, which comes with setPixmap().
    void setStyle(BrushStyle style);
    const QColor& color() const { return c; }
    void setColor(const QColor& color) { c = color; }
    //! The pattern that was given; null if there is none. The brush owns it.
    QPixmap* pixmap() const { return p; }
    //! The style becomes CustomPattern; with a null pixmap, NoBrush.
    void setPixmap(const QPixmap& pixmap);

    //! Pixmaps count as equal if they share their pixels.
    bool operator==(const QBrush& other) const;
    bool operator!=(const QBrush& other) const { return !(*this == other); }

private:
    BrushStyle s;
    QColor c;
    QPixmap* p;
};

#endif
