// Drawing.
#ifndef QPAINTER_H
#define QPAINTER_H

#include <qbrush.h>
#include <qfont.h>
#include <qfontinfo.h>
#include <qfontmetrics.h>
#include <qpen.h>
#include <qpixmap.h>
#include <qpointarray.h>
#include <qrect.h>
#include <qregion.h>
#include <qwmatrix.h>

class QImage;
class QWidget;

namespace zeltk
{
struct PainterData;
}

/*!
 * \brief Draws on a widget or a pixmap.
 *
 * On a widget it begins with the widget's font and colours; inside a paint event it is clipped to the event's
 * region. Rectangles cover exactly their width and height, the outline included; lines include both ends.
 * Negative widths and heights are mirrored.
 */
class Q_EXPORT QPainter : public Qt
{
public:
    enum CoordinateMode { CoordDevice, CoordPainter };

    QPainter();
    QPainter(const QPaintDevice* device, bool unclipped = false);
    //! Takes pen, background and font from the widget.
    QPainter(const QPaintDevice* device, const QWidget* copyAttributes, bool unclipped = false);
    ~QPainter();

    //! False, with a warning, if the painter is active, the device null or a null pixmap. `unclipped`:
    //! children of the widget are painted over.
    bool begin(const QPaintDevice* device, bool unclipped = false);
    bool begin(const QPaintDevice* device, const QWidget* copyAttributes, bool unclipped = false);
    //! False, with a warning, if the painter is not active.
    bool end();
    QPaintDevice* device() const;
    bool isActive() const;
    //! Sends what was drawn to the X server.
    void flush();
    //! Remember and bring back all that is set below. Warns if nothing was saved.
    void save();
    void restore();

    QFontMetrics fontMetrics() const;
    QFontInfo fontInfo() const;
    const QFont& font() const;
    void setFont(const QFont& font);
    const QPen& pen() const;
    void setPen(const QPen& pen);
    void setPen(PenStyle style);
    void setPen(const QColor& color);
    const QBrush& brush() const;
    void setBrush(const QBrush& brush);
    void setBrush(BrushStyle style);
    void setBrush(const QColor& color);
    //! Where lineTo() begins.
    QPoint pos() const;

    //! What text, dashes and patterns lie on in OpaqueMode.
    const QColor& backgroundColor() const;
    void setBackgroundColor(const QColor& color);
    BGMode backgroundMode() const;
    void setBackgroundMode(BGMode mode);
    RasterOp rasterOp() const;
    void setRasterOp(RasterOp op);
    const QPoint& brushOrigin() const;
    void setBrushOrigin(int x, int y);
    void setBrushOrigin(const QPoint& p) { setBrushOrigin(p.x(), p.y()); }

    //! The window lies over the viewport: the program's coordinates and the device's for the same area. Both
    //! are all of the device at first.
    bool hasViewXForm() const;
    void setViewXForm(bool enable);
    QRect window() const;
    void setWindow(const QRect& rect);
    void setWindow(int x, int y, int w, int h) { setWindow(QRect(x, y, w, h)); }
    QRect viewport() const;
    void setViewport(const QRect& rect);
    void setViewport(int x, int y, int w, int h) { setViewport(QRect(x, y, w, h)); }

    //! Transforms coordinates before the window does.
    bool hasWorldXForm() const;
    void setWorldXForm(bool enable);
    const QWMatrix& worldMatrix() const;
    void setWorldMatrix(const QWMatrix& matrix, bool combine = false);
    void translate(double dx, double dy);
    void scale(double sx, double sy);
    void shear(double sh, double sv);
    void rotate(double degrees);
    void resetXForm();
    double translationX() const;
    double translationY() const;
    //! From the program's coordinates to the device's, and back.
    QPoint xForm(const QPoint& p) const;
    QRect xForm(const QRect& rect) const;
    QPointArray xForm(const QPointArray& points) const;
    QPointArray xForm(const QPointArray& points, int index, int count) const;
    QPoint xFormDev(const QPoint& p) const;
    QRect xFormDev(const QRect& rect) const;
    QPointArray xFormDev(const QPointArray& points) const;
    QPointArray xFormDev(const QPointArray& points, int index, int count) const;

    //! Setting a clip switches it on.
    void setClipping(bool enable);
    bool hasClipping() const;
    QRegion clipRegion(CoordinateMode mode = CoordDevice) const;
    void setClipRect(const QRect& rect, CoordinateMode mode = CoordDevice);
    void setClipRect(int x, int y, int w, int h, CoordinateMode mode = CoordDevice)
    {
        setClipRect(QRect(x, y, w, h), mode);
    }
    void setClipRegion(const QRegion& region, CoordinateMode mode = CoordDevice);

    void drawPoint(int x, int y);
    void drawPoint(const QPoint& p) { drawPoint(p.x(), p.y()); }
    void drawPoints(const QPointArray& points, int index = 0, int count = -1);
    void moveTo(int x, int y);
    void moveTo(const QPoint& p) { moveTo(p.x(), p.y()); }
    void lineTo(int x, int y);
    void lineTo(const QPoint& p) { lineTo(p.x(), p.y()); }
    void drawLine(int x1, int y1, int x2, int y2);
    void drawLine(const QPoint& p1, const QPoint& p2) { drawLine(p1.x(), p1.y(), p2.x(), p2.y()); }
    void drawRect(int x, int y, int w, int h);
    void drawRect(const QRect& rect) { drawRect(rect.x(), rect.y(), rect.width(), rect.height()); }
    //! A dotted outline, white on dark backgrounds, else black.
    void drawWinFocusRect(int x, int y, int w, int h);
    void drawWinFocusRect(int x, int y, int w, int h, const QColor& backgroundColor);
    void drawWinFocusRect(const QRect& r) { drawWinFocusRect(r.x(), r.y(), r.width(), r.height()); }
    void drawWinFocusRect(const QRect& r, const QColor& backgroundColor)
    {
        drawWinFocusRect(r.x(), r.y(), r.width(), r.height(), backgroundColor);
    }
    //! Roundness from 0, a rectangle, to 99, an ellipse.
    void drawRoundRect(int x, int y, int w, int h, int xRound = 25, int yRound = 25);
    void drawRoundRect(const QRect& r, int xRound = 25, int yRound = 25)
    {
        drawRoundRect(r.x(), r.y(), r.width(), r.height(), xRound, yRound);
    }
    void drawEllipse(int x, int y, int w, int h);
    void drawEllipse(const QRect& r) { drawEllipse(r.x(), r.y(), r.width(), r.height()); }
    //! Angles in sixteenths of a degree, counter-clockwise from three o'clock.
    void drawArc(int x, int y, int w, int h, int startAngle, int angleLength);
    void drawArc(const QRect& r, int startAngle, int angleLength)
    {
        drawArc(r.x(), r.y(), r.width(), r.height(), startAngle, angleLength);
    }
    void drawPie(int x, int y, int w, int h, int startAngle, int angleLength);
    void drawPie(const QRect& r, int startAngle, int angleLength)
    {
        drawPie(r.x(), r.y(), r.width(), r.height(), startAngle, angleLength);
    }
    void drawChord(int x, int y, int w, int h, int startAngle, int angleLength);
    void drawChord(const QRect& r, int startAngle, int angleLength)
    {
        drawChord(r.x(), r.y(), r.width(), r.height(), startAngle, angleLength);
    }
    //! Pairs of points are the ends of lines.
    void drawLineSegments(const QPointArray& points, int index = 0, int lineCount = -1);
    void drawPolyline(const QPointArray& points, int index = 0, int count = -1);
    void drawPolygon(const QPointArray& points, bool winding = false, int index = 0, int count = -1);
    void drawConvexPolygon(const QPointArray& points, int index = 0, int count = -1)
    {
        drawPolygon(points, true, index, count);
    }
    //! Needs four points from the index on, else warns.
    void drawCubicBezier(const QPointArray& points, int index = 0);

    //! A negative width or height means: up to the edge. Bitmaps show in the pen's and the background colour.
    void drawPixmap(int x, int y, const QPixmap& pixmap, int sx = 0, int sy = 0, int sw = -1, int sh = -1);
    void drawPixmap(const QPoint& p, const QPixmap& pixmap, const QRect& source)
    {
        drawPixmap(p.x(), p.y(), pixmap, source.x(), source.y(), source.width(), source.height());
    }
    void drawPixmap(const QPoint& p, const QPixmap& pixmap) { drawPixmap(p.x(), p.y(), pixmap); }
    //! Scaled to the rectangle.
    void drawPixmap(const QRect& r, const QPixmap& pixmap);
    void drawImage(int x, int y, const QImage& image, int sx = 0, int sy = 0, int sw = -1, int sh = -1,
                   int conversionFlags = 0);
    void drawImage(const QPoint& p, const QImage& image, const QRect& source, int conversionFlags = 0)
    {
        drawImage(p.x(), p.y(), image, source.x(), source.y(), source.width(), source.height(),
                  conversionFlags);
    }
    void drawImage(const QPoint& p, const QImage& image, int conversionFlags = 0);
    void drawImage(const QRect& r, const QImage& image);
    //! (sx, sy) of the pixmap comes to lie at the corner.
    void drawTiledPixmap(int x, int y, int w, int h, const QPixmap& pixmap, int sx = 0, int sy = 0);
    void drawTiledPixmap(const QRect& r, const QPixmap& pixmap, const QPoint& s)
    {
        drawTiledPixmap(r.x(), r.y(), r.width(), r.height(), pixmap, s.x(), s.y());
    }
    void drawTiledPixmap(const QRect& r, const QPixmap& pixmap) { drawTiledPixmap(r, pixmap, QPoint()); }

    //! Without an outline; the painter's brush stays.
    void fillRect(int x, int y, int w, int h, const QBrush& brush);
    void fillRect(const QRect& r, const QBrush& brush)
    {
        fillRect(r.x(), r.y(), r.width(), r.height(), brush);
    }
    //! With the background colour.
    void eraseRect(int x, int y, int w, int h);
    void eraseRect(const QRect& r) { eraseRect(r.x(), r.y(), r.width(), r.height()); }

    enum TextDirection { Auto, RTL, LTR };

    //! The pen at (x, y), on the base line.
    void drawText(int x, int y, const QString& text, int length = -1, TextDirection direction = Auto);
    void drawText(const QPoint& p, const QString& text, int length = -1, TextDirection direction = Auto)
    {
        drawText(p.x(), p.y(), text, length, direction);
    }
    void drawText(int x, int y, const QString& text, int position, int length,
                  TextDirection direction = Auto);
    //! Placed in the rectangle by Qt::AlignmentFlags and Qt::TextFlags, and clipped to it. `boundingRect`
    //! receives what the text takes up.
    void drawText(int x, int y, int w, int h, int flags, const QString& text, int length = -1,
                  QRect* boundingRect = 0, QTextParag** unused = 0);
    void drawText(const QRect& r, int flags, const QString& text, int length = -1, QRect* boundingRect = 0,
                  QTextParag** unused = 0)
    {
        drawText(r.x(), r.y(), r.width(), r.height(), flags, text, length, boundingRect, unused);
    }
    QRect boundingRect(int x, int y, int w, int h, int flags, const QString& text, int length = -1,
                       QTextParag** unused = 0);
    QRect boundingRect(const QRect& r, int flags, const QString& text, int length = -1,
                       QTextParag** unused = 0)
    {
        return boundingRect(r.x(), r.y(), r.width(), r.height(), flags, text, length, unused);
    }
    //! The distance of tabs in pixels; 0: eight times the width of an x.
    int tabStops() const;
    void setTabStops(int pixels);
    //! Places of tabs in pixels, ended by 0; copied.
    int* tabArray() const;
    void setTabArray(int* places);

    //! What is drawn on the device goes to the other one, until redirected to null.
    static void redirect(QPaintDevice* device, QPaintDevice* replacement);
    static QPaintDevice* redirect(QPaintDevice* device);

private:
    zeltk::PainterData* d;

    QPainter(const QPainter&);
    QPainter& operator=(const QPainter&);
};

#endif
