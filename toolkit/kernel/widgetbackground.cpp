// QWidget: what its background is made of.
#include "kernel/widgetdata.h"
#include "x11/window.h"

using zeltk::isPaletteMode;
using zeltk::WidgetData;

namespace
{

void setPixmap(WidgetData* data, const QPixmap* pixmap)
{
    QPixmap* copy = pixmap ? new QPixmap(*pixmap) : nullptr;
    delete data->backgroundPixmap;
    data->backgroundPixmap = copy;
}

} // namespace

namespace zeltk
{

bool isPaletteMode(Qt::BackgroundMode mode)
{
    return mode != Qt::FixedColor && mode != Qt::FixedPixmap && mode != Qt::NoBackground &&
           mode != Qt::X11ParentRelative;
}

void applyBackground(QWidget* widget)
{
    WidgetData* data = dataOf(widget);
    if (widget->isDesktop())
        return;
    if (isPaletteMode(data->mode)) {
        const QBrush& brush = widget->colorGroup().brush(QPalette::backgroundRoleFromMode(data->mode));
        if (data->plainBackground && !brush.pixmap() && brush.color() == data->background)
            return;
        data->background = brush.color();
        setPixmap(data, brush.pixmap());
    }
    const bool tiled = data->backgroundPixmap && !data->backgroundPixmap->isNull();
    data->plainBackground = isPaletteMode(data->mode) && !tiled;
    if (data->mode == Qt::NoBackground)
        x11::setNoBackground(widget->winId());
    else if (data->mode == Qt::X11ParentRelative)
        x11::setParentBackground(widget->winId());
    else if (tiled && data->origin != QWidget::WidgetOrigin)
        x11::setNoBackground(widget->winId()); // the tiles are laid by erase()
    else if (tiled)
        x11::setBackgroundPixmap(widget->winId(), data->backgroundPixmap->handle());
    else
        x11::setBackgroundColor(widget->winId(), data->background.rgb() & RGB_MASK);
}

} // namespace zeltk

Qt::BackgroundMode QWidget::backgroundMode() const
{
    return w->mode;
}

void QWidget::setBackgroundMode(BackgroundMode mode)
{
    if (mode == FixedColor || mode == FixedPixmap)
        return; // these are set with their colour or pixmap
    w->mode = w->visualMode = mode;
    w->plainBackground = false;
    const QPixmap none;
    setPixmap(w, mode == NoBackground ? &none : nullptr);
    zeltk::applyBackground(this);
    update();
}

void QWidget::setBackgroundMode(BackgroundMode mode, BackgroundMode visualMode)
{
    setBackgroundMode(mode);
    w->visualMode = visualMode;
}

const QColor& QWidget::eraseColor() const
{
    return w->background;
}

void QWidget::setEraseColor(const QColor& color)
{
    w->mode = w->visualMode = FixedColor;
    w->background = color;
    setPixmap(w, nullptr);
    zeltk::applyBackground(this);
    update();
}

const QPixmap* QWidget::erasePixmap() const
{
    return w->backgroundPixmap;
}

void QWidget::setErasePixmap(const QPixmap& pixmap)
{
    if (pixmap.isNull()) {
        setEraseColor(w->background);
        return;
    }
    w->mode = w->visualMode = FixedPixmap;
    setPixmap(w, &pixmap);
    zeltk::applyBackground(this);
    update();
}

QWidget::BackgroundOrigin QWidget::backgroundOrigin() const
{
    return w->origin;
}

void QWidget::setBackgroundOrigin(BackgroundOrigin origin)
{
    if (origin == w->origin)
        return;
    w->origin = origin;
    w->plainBackground = false;
    zeltk::applyBackground(this);
    update();
}

// From the widget's corner to where its background pixmap begins, the other way round.
QPoint QWidget::backgroundOffset() const
{
    switch (w->origin) {
    case WidgetOrigin:
        break;
    case ParentOrigin:
        return isTopLevel() ? QPoint(0, 0) : pos();
    case WindowOrigin:
        return isTopLevel() ? QPoint(0, 0) : mapTo(topLevelWidget(), QPoint(0, 0));
    case AncestorOrigin:
        return isTopLevel() || !parentWidget() ? QPoint(0, 0) : pos() + parentWidget()->backgroundOffset();
    }
    return QPoint(0, 0);
}
