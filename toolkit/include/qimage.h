// Pictures kept by the program.
#ifndef QIMAGE_H
#define QIMAGE_H

#include <qcolor.h>
#include <qcstring.h>
#include <qrect.h>
#include <qstringlist.h>
#include <qstrlist.h>

class QPixmap;

namespace zeltk
{
struct ImageData;
}

/*!
 * \brief Pixels of 32 bits, 0xAARRGGBB; other depths give null images.
 *
 * Copies share their pixels explicitly: a change shows in every copy until detach() or copy().
 */
class Q_EXPORT QImage
{
public:
    enum Endian { IgnoreEndian, BigEndian, LittleEndian };
    //! Free: exactly as asked. Min, Max: the largest size within the asked one, the smallest around it, that
    //! keep the proportions.
    enum ScaleMode { ScaleFree, ScaleMin, ScaleMax };

    QImage();
    //! Pixels are undefined at first. The depth must be 32.
    QImage(int width, int height, int depth, int numColors = 0, Endian bitOrder = IgnoreEndian);
    QImage(const QSize& size, int depth, int numColors = 0, Endian bitOrder = IgnoreEndian);
    //! Loads a file; null if that fails.
    QImage(const QString& fileName, const char* format = 0);
    //! Reads the bytes of a file; null if that fails.
    QImage(const QByteArray& data);
    QImage(const QImage& other);
    ~QImage();
    QImage& operator=(const QImage& other);
    QImage& operator=(const QPixmap& pixmap);
    //! Without alpha buffers the upper eight bits of the pixels do not count.
    bool operator==(const QImage& other) const;
    bool operator!=(const QImage& other) const { return !(*this == other); }

    void detach();
    QImage copy() const;
    //! A part; what lies outside of the image is 0.
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
    //! How many colours the table has: none, as pixels hold their colours themselves.
    int numColors() const { return 0; }
    QRgb* colorTable() const { return 0; }
    //! The order of pixels within a byte, which matters only for pixels smaller than that.
    Endian bitOrder() const { return IgnoreEndian; }
    static Endian systemByteOrder();
    static Endian systemBitOrder();

    uchar* bits() const;
    uchar* scanLine(int row) const;
    //! The addresses of all rows.
    uchar** jumpTable() const;
    bool valid(int x, int y) const;

    //! Whether the upper eight bits of the pixels count.
    bool hasAlphaBuffer() const;
    void setAlphaBuffer(bool enable);

    bool create(int width, int height, int depth, int numColors = 0, Endian bitOrder = IgnoreEndian);
    bool create(const QSize& size, int depth, int numColors = 0, Endian bitOrder = IgnoreEndian)
    {
        return create(size.width(), size.height(), depth, numColors, bitOrder);
    }
    void reset();
    void fill(uint pixel);
    QRgb pixel(int x, int y) const;
    void setPixel(int x, int y, uint pixel);
    //! Warns: such pixels are no indexes.
    int pixelIndex(int x, int y) const;

    //! All colours inverted; the alpha values, too, if the argument is false.
    void invertPixels(bool invertAlpha = true);
    //! Red and blue exchanged.
    QImage swapRGB() const;
    bool allGray() const;
    bool isGrayscale() const { return allGray(); }
    //! To 32 bits, the one depth there is; null, with a warning, for others.
    QImage convertDepth(int depth) const;
    QImage mirror() const { return mirror(false, true); }
    QImage mirror(bool horizontally, bool vertically) const;

    //! Takes the nearest pixels.
    QImage scale(int width, int height, ScaleMode mode = ScaleFree) const;
    QImage scale(const QSize& size, ScaleMode mode = ScaleFree) const
    {
        return scale(size.width(), size.height(), mode);
    }
    //! Scale to a width or height and keep the proportions.
    QImage scaleWidth(int width) const;
    QImage scaleHeight(int height) const;
    //! Each pixel is the average of what it covers.
    QImage smoothScale(int width, int height, ScaleMode mode = ScaleFree) const;
    QImage smoothScale(const QSize& size, ScaleMode mode = ScaleFree) const
    {
        return smoothScale(size.width(), size.height(), mode);
    }

    //! Where the picture is to lie, and its resolution; 0 if unknown. Files keep them.
    QPoint offset() const;
    void setOffset(const QPoint& offset);
    int dotsPerMeterX() const;
    int dotsPerMeterY() const;
    void setDotsPerMeterX(int dots);
    void setDotsPerMeterY(int dots);

    //! PNG is the one format there is; its name is written in capitals.
    static QStrList inputFormats();
    static QStrList outputFormats();
    static QStringList inputFormatList();
    static QStringList outputFormatList();
    //! The format of a file, found by its first bytes; null if unknown.
    static const char* imageFormat(const QString& fileName);

    //! False, and the image stays as it is, if it cannot be read.
    bool load(const QString& fileName, const char* format = 0);
    bool loadFromData(const uchar* bytes, uint length, const char* format = 0);
    bool loadFromData(QByteArray data, const char* format = 0);
    //! The quality is from 0, small and slow, to 100, large and fast; -1 leaves it to the library. No pixel
    //! suffers.
    bool save(const QString& fileName, const char* format, int quality = -1) const;

private:
    ZELTK_LOCAL QSize scaled(const char* function, int width, int height, ScaleMode mode) const;

    zeltk::ImageData* d;
};

//! Copies a part of an image; -1 means as much as there is.
Q_EXPORT void bitBlt(QImage* dst, int dx, int dy, const QImage* src, int sx = 0, int sy = 0, int sw = -1,
                     int sh = -1, int conversionFlags = 0);

#endif
