// How areas are filled.
#ifndef QBRUSH_H
#define QBRUSH_H

#include <qcolor.h>

class QPixmap;

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
    void setStyle(BrushStyle style);
    const QColor& color() const { return c; }
    void setColor(const QColor& color) { c = color; }
    //! Null unless the style is CustomPattern.
    QPixmap* pixmap() const { return p; }
    void setPixmap(const QPixmap& pixmap);

    bool operator==(const QBrush& other) const;
    bool operator!=(const QBrush& other) const { return !(*this == other); }

private:
    BrushStyle s;
    QColor c;
    QPixmap* p;
};

#endif
