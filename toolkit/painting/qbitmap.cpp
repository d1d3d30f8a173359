// QBitmap.
#include <qbitmap.h>
#include <qimage.h>
#include <qwmatrix.h>

#include "painting/pixmapdata.h"

using zeltk::PixmapAccess;

namespace
{

void markAsBitmap(const QPixmap* pixmap)
{
    PixmapAccess::data(pixmap)->isBitmap = true;
}

} // namespace

QBitmap::QBitmap() : QPixmap(0, 0, 1)
{
    markAsBitmap(this);
}

QBitmap::QBitmap(int w, int h, bool clear, Optimization optimization) : QPixmap(w, h, 1, optimization)
{
    markAsBitmap(this);
    if (clear)
        fill(Qt::color0);
}

QBitmap::QBitmap(const QSize& size, bool clear, Optimization optimization) : QPixmap(size, 1, optimization)
{
    markAsBitmap(this);
    if (clear)
        fill(Qt::color0);
}

QBitmap::QBitmap(int w, int h, const uchar* bits, bool isXbitmap) : QPixmap(w, h, bits, isXbitmap)
{
    markAsBitmap(this);
}

QBitmap::QBitmap(const QSize& size, const uchar* bits, bool isXbitmap)
    : QPixmap(size.width(), size.height(), bits, isXbitmap)
{
    markAsBitmap(this);
}

QBitmap::QBitmap(const QBitmap& other) : QPixmap(other) {}

QBitmap::QBitmap(const QString& fileName, const char* format) : QPixmap(0, 0, 1)
{
    markAsBitmap(this);
    load(fileName, format, Mono);
}

QBitmap& QBitmap::operator=(const QBitmap& other)
{
    QPixmap::operator=(other);
    return *this;
}

QBitmap& QBitmap::operator=(const QPixmap& pixmap)
{
    if (pixmap.isQBitmap())
        QPixmap::operator=(pixmap);
    else if (pixmap.isNull())
        resize(0, 0);
    else
        convertFromImage(pixmap.convertToImage(), Mono);
    return *this;
}

QBitmap& QBitmap::operator=(const QImage& image)
{
    convertFromImage(image, Mono);
    return *this;
}

QBitmap QBitmap::xForm(const QWMatrix& matrix) const
{
    QBitmap result;
    result = QPixmap::xForm(matrix);
    return result;
}
