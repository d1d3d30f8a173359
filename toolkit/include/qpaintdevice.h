// What painters draw on.
#ifndef QPAINTDEVICE_H
#define QPAINTDEVICE_H

#include <qnamespace.h>
#include <qpoint.h>
#include <qrect.h>
#include <qwindowdefs.h>

namespace zeltk
{
struct PaintDeviceAccess;
}

//! A widget or a pixmap.
class Q_EXPORT QPaintDevice
{
public:
    virtual ~QPaintDevice();

    //! The window or pixmap of the X server.
    virtual Qt::HANDLE handle() const;
    //! Whether a painter is open on it.
    bool paintingActive() const { return painters > 0; }

    //! Dots per inch of the screen.
    static int x11AppDpiX();
    static int x11AppDpiY();
    static int x11AppDepth();

protected:
    enum DeviceKind { WidgetDevice = 1, PixmapDevice = 2 };

    explicit QPaintDevice(uint kind);

    WId hd;

private:
    friend class QPainter;
    friend struct zeltk::PaintDeviceAccess;
    uint deviceKind;
    int painters;

    QPaintDevice(const QPaintDevice&);
    QPaintDevice& operator=(const QPaintDevice&);
};

//! Copies pixels between devices. A negative width or height means: up to the source's edge. Not clipped to
//! paint events. The pixmap's mask is respected unless `ignoreMask`.
Q_EXPORT void bitBlt(QPaintDevice* dst, int dx, int dy, const QPaintDevice* src, int sx = 0, int sy = 0,
                     int sw = -1, int sh = -1, Qt::RasterOp rop = Qt::CopyROP, bool ignoreMask = false);
inline void bitBlt(QPaintDevice* dst, const QPoint& dp, const QPaintDevice* src,
                   const QRect& sr = QRect(0, 0, -1, -1), Qt::RasterOp rop = Qt::CopyROP,
                   bool ignoreMask = false)
{
    bitBlt(dst, dp.x(), dp.y(), src, sr.x(), sr.y(), sr.width(), sr.height(), rop, ignoreMask);
}

#endif
