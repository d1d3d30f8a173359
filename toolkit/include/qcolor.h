// Colours.
#ifndef QCOLOR_H
#define QCOLOR_H

#include <qstring.h>
#include <qwindowdefs.h>

const QRgb RGB_MASK = 0x00ffffff;

//! Parts of a colour value 0xAARRGGBB, each 0-255.
inline int qRed(QRgb rgb)
{
    return (int)((rgb >> 16) & 0xff);
}
inline int qGreen(QRgb rgb)
{
    return (int)((rgb >> 8) & 0xff);
}
inline int qBlue(QRgb rgb)
{
    return (int)(rgb & 0xff);
}
inline int qAlpha(QRgb rgb)
{
    return (int)((rgb >> 24) & 0xff);
}
inline QRgb qRgb(int r, int g, int b)
{
    return 0xff000000u | (QRgb)((r & 0xff) << 16) | (QRgb)((g & 0xff) << 8) | (QRgb)(b & 0xff);
}
inline QRgb qRgba(int r, int g, int b, int a)
{
    return (QRgb)(a & 0xff) << 24 | (qRgb(r, g, b) & RGB_MASK);
}
inline int qGray(int r, int g, int b)
{
    return (r * 11 + g * 16 + b * 5) / 32;
}
inline int qGray(QRgb rgb)
{
    return qGray(qRed(rgb), qGreen(rgb), qBlue(rgb));
}

//! A colour of 8 bits each for red, green and blue; a default one is invalid, and black where it is used.
class Q_EXPORT QColor
{
public:
    enum Spec { Rgb, Hsv };

    QColor() : value(invalidValue), valid(false) {}
    QColor(int r, int g, int b);
    //! Hue 0-359 (-1 for greys), saturation and value 0-255.
    QColor(int x, int y, int z, Spec spec);
    QColor(QRgb rgb, uint pixel = 0xffffffff);
    //! "#RGB", "#RRGGBB", "#RRRGGGBBB", "#RRRRGGGGBBBB", or a name of the X11 colour list.
    QColor(const QString& name);
    QColor(const char* name);
    QColor(const QColor& other) : value(other.value), valid(other.valid) {}
    QColor& operator=(const QColor& other)
    {
        value = other.value;
        valid = other.valid;
        return *this;
    }

    bool isValid() const { return valid; }
    //! "#rrggbb"
    QString name() const;
    void setNamedColor(const QString& name);

    QRgb rgb() const { return value; }
    void setRgb(int r, int g, int b);
    void setRgb(QRgb rgb);
    void rgb(int* r, int* g, int* b) const;
    void getRgb(int* r, int* g, int* b) const { rgb(r, g, b); }
    int red() const { return qRed(value); }
    int green() const { return qGreen(value); }
    int blue() const { return qBlue(value); }

    void setHsv(int h, int s, int v);
    void hsv(int* h, int* s, int* v) const;
    void getHsv(int* h, int* s, int* v) const { hsv(h, s, v); }
    void getHsv(int& h, int& s, int& v) const { hsv(&h, &s, &v); }

    //! Lighter or darker by that many percent.
    QColor light(int percent = 150) const;
    QColor dark(int percent = 200) const;

    bool operator==(const QColor& other) const { return valid == other.valid && value == other.value; }
    bool operator!=(const QColor& other) const { return !(*this == other); }

    //! The X server's number for the colour.
    uint alloc() { return pixel(); }
    uint pixel() const;

    static int maxColors();
    static int numBitPlanes();

private:
    enum { invalidValue = 0x49000000 };

    QRgb value;
    bool valid;
};

#endif
