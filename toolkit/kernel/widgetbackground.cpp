// QWidget: what its background is made of.
#include "kernel/widgetdata.h"
#include "x11/window.h"

#include <qapplication.h>

using zeltk::WidgetData;

namespace
{

bool fromPalette(Qt::BackgroundMode mode)
{
    return mode >= Qt::PaletteForeground && mode < Qt::X11ParentRelative;
}

} // namespace

namespace zeltk
{

void applyBackground(QWidget* widget)
{
    const WidgetData* data = dataOf(widget);
    if (widget->isDesktop())
        return;
    if (data->mode == Qt::NoBackground)
        x11::unsetWindowBackground(data->window);
    else if (data->mode == Qt::X11ParentRelative)
        x11::setParentRelativeBackground(data->window);
    else if (!data->erasePixmap)
        x11::setWindowBackground(data->window, data->eraseColor.pixel());
    else if (data->origin == QWidget::WidgetOrigin && !data->erasePixmap->isNull())
        x11::setWindowBackgroundPixmap(data->window, data->erasePixmap->handle());
    else // erase() lays the tiles where the server could not
        x11::unsetWindowBackground(data->window);
}

} // namespace zeltk

Qt::BackgroundMode QWidget::backgroundMode() const
{
    return wd->mode;
}

void QWidget::setBackgroundMode(BackgroundMode mode)
{
    setBackgroundModeDirect(mode);
}

void QWidget::setBackgroundMode(BackgroundMode mode, BackgroundMode visual)
{
    setBackgroundMode(mode);
    wd->visualMode = visual;
}

void QWidget::setBackgroundModeDirect(BackgroundMode mode)
{
    if (mode == FixedColor || mode == FixedPixmap)
        return; // set with the colour or pixmap itself
    wd->mode = wd->visualMode = mode;
    if (mode == NoBackground)
        setBackgroundEmpty();
    else
        setBackgroundFromMode();
    update();
}

void QWidget::setBackgroundEmpty()
{
    wd->erasePixmap.reset(new QPixmap);
    wd->plainBackground = false;
    zeltk::applyBackground(this);
}

// Colour and pixmap as the palette has them now.
void QWidget::setBackgroundFromMode()
{
    if (wd->mode == X11ParentRelative) {
        wd->erasePixmap.reset();
        wd->plainBackground = false;
        zeltk::applyBackground(this);
        return;
    }
    if (!fromPalette(wd->mode))
        return;
    const QBrush& brush = colorGroup().brush(QPalette::backgroundRoleFromMode(wd->mode));
    if (wd->plainBackground && !brush.pixmap() && brush.color() == wd->eraseColor)
        return;
    wd->eraseColor = brush.color();
    wd->erasePixmap.reset(brush.pixmap() ? new QPixmap(*brush.pixmap()) : 0);
    wd->plainBackground = !brush.pixmap();
    zeltk::applyBackground(this);
}

void QWidget::setBackgroundColorDirect(const QColor& color)
{
    wd->mode = wd->visualMode = FixedColor;
    wd->eraseColor = color;
    wd->erasePixmap.reset();
    wd->plainBackground = false;
    zeltk::applyBackground(this);
}

void QWidget::setBackgroundPixmapDirect(const QPixmap& pixmap)
{
    wd->mode = wd->visualMode = FixedPixmap;
    wd->erasePixmap.reset(new QPixmap(pixmap));
    wd->plainBackground = false;
    zeltk::applyBackground(this);
}

const QColor& QWidget::eraseColor() const
{
    return wd->eraseColor;
}

void QWidget::setEraseColor(const QColor& color)
{
    setBackgroundColorDirect(color);
    update();
}

const QPixmap* QWidget::erasePixmap() const
{
    return wd->erasePixmap.get();
}

void QWidget::setErasePixmap(const QPixmap& pixmap)
{
    if (pixmap.isNull())
        setBackgroundColorDirect(wd->eraseColor);
    else
        setBackgroundPixmapDirect(pixmap);
    update();
}

const QColor& QWidget::backgroundColor() const
{
    return eraseColor();
}

void QWidget::setBackgroundColor(const QColor& color)
{
    setEraseColor(color);
}

const QPixmap* QWidget::backgroundPixmap() const
{
    return erasePixmap();
}

void QWidget::setBackgroundPixmap(const QPixmap& pixmap)
{
    setErasePixmap(pixmap);
}

QBrush QWidget::backgroundBrush() const
{
    if (fromPalette(wd->visualMode))
        return colorGroup().brush(QPalette::backgroundRoleFromMode(wd->visualMode));
    if (wd->visualMode == NoBackground)
        return QBrush(NoBrush);
    return wd->erasePixmap ? QBrush(wd->eraseColor, *wd->erasePixmap) : QBrush(wd->eraseColor);
}

QWidget::BackgroundOrigin QWidget::backgroundOrigin() const
{
    return wd->origin;
}

void QWidget::setBackgroundOrigin(BackgroundOrigin origin)
{
    if (origin == wd->origin)
        return;
    wd->origin = origin;
    zeltk::applyBackground(this);
    update();
}

QPoint QWidget::backgroundOffset() const
{
    if (isTopLevel() || wd->origin == WidgetOrigin)
        return QPoint(0, 0);
    if (wd->origin == WindowOrigin)
        return mapTo(topLevelWidget(), QPoint(0, 0));
    if (wd->origin == ParentOrigin || !parentWidget())
        return wd->geometry.topLeft();
    return wd->geometry.topLeft() + parentWidget()->backgroundOffset();
}
