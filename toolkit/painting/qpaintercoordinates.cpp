// QPainter: coordinates.
#include <qpainter.h>

#include "painting/painterdata.h"

namespace
{

QPointArray partOf(const QPointArray& points, int index, int count)
{
    zeltk::cutToArray(points, &index, &count);
    QPointArray part;
    part.putPoints(0, count, points, index);
    return part;
}

} // namespace

bool QPainter::hasViewXForm() const
{
    return d->state.viewOn;
}

void QPainter::setViewXForm(bool enable)
{
    d->needView();
    d->state.viewOn = enable;
    d->transformChanged();
}

QRect QPainter::window() const
{
    d->needView();
    return d->state.window;
}

void QPainter::setWindow(const QRect& rect)
{
    d->needView();
    d->state.window = rect;
    setViewXForm(true);
}

QRect QPainter::viewport() const
{
    d->needView();
    return d->state.viewport;
}

void QPainter::setViewport(const QRect& rect)
{
    d->needView();
    d->state.viewport = rect;
    setViewXForm(true);
}

double QPainter::translationX() const
{
    return d->state.worldOn ? d->state.world.dx() : 0.0;
}

double QPainter::translationY() const
{
    return d->state.worldOn ? d->state.world.dy() : 0.0;
}

bool QPainter::hasWorldXForm() const
{
    return d->state.worldOn;
}

void QPainter::setWorldXForm(bool enable)
{
    d->state.worldOn = enable;
    d->transformChanged();
}

const QWMatrix& QPainter::worldMatrix() const
{
    return d->state.world;
}

void QPainter::setWorldMatrix(const QWMatrix& matrix, bool combine)
{
    d->state.world = combine ? matrix * d->state.world : matrix;
    setWorldXForm(!d->state.world.isIdentity());
}

void QPainter::translate(double dx, double dy)
{
    QWMatrix matrix;
    setWorldMatrix(matrix.translate(dx, dy), true);
}

void QPainter::scale(double sx, double sy)
{
    QWMatrix matrix;
    setWorldMatrix(matrix.scale(sx, sy), true);
}

void QPainter::shear(double sh, double sv)
{
    QWMatrix matrix;
    setWorldMatrix(matrix.shear(sh, sv), true);
}

void QPainter::rotate(double degrees)
{
    QWMatrix matrix;
    setWorldMatrix(matrix.rotate(degrees), true);
}

void QPainter::resetXForm()
{
    d->state.viewOn = d->state.viewKnown = false;
    setWorldMatrix(QWMatrix());
}

QPoint QPainter::xForm(const QPoint& p) const
{
    return d->map(p);
}

QRect QPainter::xForm(const QRect& rect) const
{
    return d->mapRect(rect);
}

QPointArray QPainter::xForm(const QPointArray& points) const
{
    return xForm(points, 0, -1);
}

QPointArray QPainter::xForm(const QPointArray& points, int index, int count) const
{
    return d->matrix.map(partOf(points, index, count));
}

QPoint QPainter::xFormDev(const QPoint& p) const
{
    return d->matrix.invert().map(p);
}

QRect QPainter::xFormDev(const QRect& rect) const
{
    return d->matrix.invert().mapRect(rect);
}

QPointArray QPainter::xFormDev(const QPointArray& points) const
{
    return xFormDev(points, 0, -1);
}

QPointArray QPainter::xFormDev(const QPointArray& points, int index, int count) const
{
    return d->matrix.invert().map(partOf(points, index, count));
}
