// Pictures kept by the program.
#ifndef QIMAGE_H
#define QIMAGE_H

#include <qcolor.h>
#include <qrect.h>

class QPixmap;

namespace zeltk
{
struct ImageData;
}

//! Pixels of 32 bits, 0xAARRGGBB. Copies share explicitly, until detach() or copy().
class Q_EXPORT QImage
{
public:
    enum Endian { IgnoreEndian, BigEndian, LittleEndian };

    QImage();
    //! Pixels are undefined at first. The depth must be 32.
    QImage(int width, int height, int depth, int numColors = 0, Endian bitOrder = IgnoreEndian);
    QImage(const QSize& size, int depth, int numColors = 0, Endian bitOrder = IgnoreEndian);
    QImage(const QString& fileName, const char* format = 0);
    QImage(const QImage& other);
    ~QImage();
    QImage& operator=(const QImage& other);
    QImage& operator=(const QPixmap& pixmap);
    bool operator==(const QImage& other) const;
    bool operator!=(const QImage& other) const { return !(*this == other); }

    void detach();
    QImage copy() const;
    QImage copy(int x, int y, int w, int h, int conversionFlags = 0) const;
    QImage copy(const QRect& rect) const { return copy(rect.x(), rect.y(), rect.width(), rect.height()); }

    bool isNull() const;
    int width() const;
    int height() const;
    QSize size() const { return QSize(width(), height()); }
    QRect rect() const { return QRect(0, 0, width(), height()); }
    int depth() const;
    int bytesPerLine() const;
    int numBytes() const;
    uchar* bits() const;
    uchar* scanLine(int row) const;
    bool valid(int x, int y) const;

    //! Whether the upper eight bits of the pixels count.
    bool hasAlphaBuffer() const;
    void setAlphaBuffer(bool enable);

    bool create(int width, int height, int depth, int numColors = 0, Endian bitOrder = IgnoreEndian);
    void reset();
    void fill(uint pixel);
    QRgb pixel(int x, int y) const;
    void setPixel(int x, int y, uint pixel);
    QImage mirror() const { return mirror(false, true); }
    QImage mirror(bool horizontally, bool vertically) const;

    //! PNG files.
    bool load(const QString& fileName, const char* format = 0);
    bool save(const QString& fileName, const char* format, int quality = -1) const;

private:
    zeltk::ImageData* d;
};

#endif
