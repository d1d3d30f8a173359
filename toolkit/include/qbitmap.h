// Pictures of one bit per pixel.
#ifndef QBITMAP_H
#define QBITMAP_H

#include <qpixmap.h>

class Q_EXPORT QBitmap : public QPixmap
{
public:
    QBitmap();
    QBitmap(int w, int h, bool clear = false, QPixmap::Optimization optimization = QPixmap::DefaultOptim);
    QBitmap(const QSize& size, bool clear = false,
            QPixmap::Optimization optimization = QPixmap::DefaultOptim);
    //! Rows of whole bytes; in XBM data the lowest bit is the leftmost.
    QBitmap(int w, int h, const uchar* bits, bool isXbitmap = false);
    QBitmap(const QSize& size, const uchar* bits, bool isXbitmap = false);
    QBitmap(const QBitmap& other);
    //! Loads a PNG file; null if that fails.
    QBitmap(const QString& fileName, const char* format = 0);
    QBitmap& operator=(const QBitmap& other);
    //! Colours become black or white, whatever is nearer.
    QBitmap& operator=(const QPixmap& pixmap);
    QBitmap& operator=(const QImage& image);

    //! The bitmap turned, scaled or sheared.
    QBitmap xForm(const QWMatrix& matrix) const;
};

#endif
