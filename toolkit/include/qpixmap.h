// Pictures kept by the X server.
#ifndef QPIXMAP_H
#define QPIXMAP_H

#include <qcolor.h>
#include <qpaintdevice.h>

class QBitmap;
class QImage;
class QWidget;

namespace zeltk
{
struct PixmapData;
struct PixmapAccess;
} // namespace zeltk

//! Shared until one of its copies is painted on. Needs an application.
class Q_EXPORT QPixmap : public QPaintDevice, public Qt
{
public:
    enum ColorMode { Auto, Color, Mono };
    enum Optimization { DefaultOptim, NoOptim, MemoryOptim = NoOptim, NormalOptim, BestOptim };

    QPixmap();
    //! Pixels are undefined at first. Depth -1 is the screen's; 1 is the other one there is.
    QPixmap(int w, int h, int depth = -1, Optimization optimization = DefaultOptim);
    QPixmap(const QSize& size, int depth = -1, Optimization optimization = DefaultOptim);
    QPixmap(const QImage& image);
    //! Loads a PNG file; null if that fails.
    QPixmap(const QString& fileName, const char* format = 0, ColorMode mode = Auto);
    QPixmap(const QPixmap& other);
    ~QPixmap();
    QPixmap& operator=(const QPixmap& other);
    QPixmap& operator=(const QImage& image);

    bool isNull() const;
    int width() const;
    int height() const;
    QSize size() const { return QSize(width(), height()); }
    QRect rect() const { return QRect(0, 0, width(), height()); }
    int depth() const;
    static int defaultDepth();
    bool isQBitmap() const;
    int serialNumber() const;

    //! The mask stays. In bitmaps color0 and white are 0, all others 1.
    void fill(const QColor& color = Qt::white);
    //! With what the widget's background shows, when the pixmap's corner is at that place of the widget.
    void fill(const QWidget* widget, int xofs, int yofs);
    void fill(const QWidget* widget, const QPoint& ofs) { fill(widget, ofs.x(), ofs.y()); }
    //! New pixels are undefined, and the mask goes. A size below 1 makes the pixmap null.
    void resize(int w, int h);
    void resize(const QSize& size) { resize(size.width(), size.height()); }

    //! Where the mask is 0 the pixmap is transparent. Null if it has none.
    const QBitmap* mask() const;
    //! Warns, and nothing changes, if the mask has another size; a null one takes the mask away.
    void setMask(const QBitmap& mask);
    bool selfMask() const;
    bool hasAlpha() const { return mask() || selfMask(); }

    //! The pixmap turned, scaled or sheared; where nothing comes to lie it is transparent.
    QPixmap xForm(const QWMatrix& matrix) const;
    //! The matrix with the translation that puts the corner of the turned picture at (0, 0).
    static QWMatrix trueMatrix(const QWMatrix& matrix, int w, int h);

    Optimization optimization() const;
    void setOptimization(Optimization optimization);
    static Optimization defaultOptimization();
    static void setDefaultOptimization(Optimization optimization);

    QImage convertToImage() const;
    bool convertFromImage(const QImage& image, ColorMode mode = Auto);
    bool load(const QString& fileName, const char* format = 0, ColorMode mode = Auto);
    bool save(const QString& fileName, const char* format, int quality = -1) const;

    //! What the screen shows of a window and its children; -1 means up to its edge. What other windows cover
    //! is undefined.
    static QPixmap grabWindow(WId window, int x = 0, int y = 0, int w = -1, int h = -1);
    static QPixmap grabWidget(QWidget* widget, int x = 0, int y = 0, int w = -1, int h = -1);

    //! Gives this copy pixels of its own.
    virtual void detach();

protected:
    QPixmap(int w, int h, const uchar* data, bool isXbitmap);

private:
    friend struct zeltk::PixmapAccess;
    ZELTK_LOCAL void setData(zeltk::PixmapData* data);

    zeltk::PixmapData* d;
};

#endif
