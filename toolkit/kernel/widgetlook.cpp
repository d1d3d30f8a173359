// QWidget: palette, font, background, cursor.
#include <qwidget.h>

#include "kernel/widgetdata.h"
#include "painting/fontdata.h"
#include "x11/input.h"
#include "x11/window.h"

#include <qapplication.h>

using zeltk::childWidgets;
using zeltk::dataOf;
using zeltk::WidgetAccess;
using zeltk::WidgetData;
namespace x11 = zeltk::x11;

namespace
{

QPalette inheritedPalette(const QWidget* widget)
{
    const QWidget* parent = widget->parentWidget(true);
    return parent ? parent->palette() : QApplication::palette(widget);
}

QFont inheritedFont(const QWidget* widget)
{
    const QWidget* parent = widget->parentWidget(true);
    return parent ? dataOf(parent)->font : QApplication::font(widget);
}

bool isPaletteMode(Qt::BackgroundMode mode)
{
    return mode != Qt::FixedColor && mode != Qt::FixedPixmap && mode != Qt::NoBackground &&
           mode != Qt::X11ParentRelative;
}

const QBrush& backgroundBrush(const QWidget* widget, Qt::BackgroundMode mode)
{
    return widget->colorGroup().brush(QPalette::backgroundRoleFromMode(mode));
}

void setPixmap(WidgetData* data, const QPixmap* pixmap)
{
    QPixmap* copy = pixmap ? new QPixmap(*pixmap) : nullptr;
    delete data->backgroundPixmap;
    data->backgroundPixmap = copy;
}

// Children without a palette of their own follow, before the widget itself is told.
void changePalette(QWidget* widget, const QPalette& palette)
{
    WidgetData* data = dataOf(widget);
    if (data->palette == palette)
        return;
    const QPalette old = data->palette;
    data->palette = palette;
    zeltk::applyBackground(widget);
    for (QWidget* child : childWidgets(widget)) {
        if (child->isTopLevel() || child->ownPalette())
            continue;
        child->setPalette(palette);
        dataOf(child)->ownPalette = false;
    }
    WidgetAccess::paletteChange(widget, old);
    widget->update();
}

void changeFont(QWidget* widget, const QFont& font)
{
    WidgetData* data = dataOf(widget);
    if (data->font == font)
        return;
    const QFont old = data->font;
    data->font = font;
    for (QWidget* child : childWidgets(widget)) {
        if (child->isTopLevel())
            continue;
        WidgetData* childData = dataOf(child);
        if (childData->ownFont) {
            changeFont(child, childData->askedFont.resolve(font));
        } else {
            child->setFont(font);
            childData->ownFont = false;
        }
    }
    WidgetAccess::fontChange(widget, old);
}

} // namespace

namespace zeltk
{

void inheritLook(QWidget* widget)
{
    WidgetData* data = dataOf(widget);
    if (!data->ownPalette)
        changePalette(widget, inheritedPalette(widget));
    const QFont parentFont = inheritedFont(widget);
    changeFont(widget, data->ownFont ? data->askedFont.resolve(parentFont) : parentFont);
}

void applyBackground(QWidget* widget)
{
    WidgetData* data = dataOf(widget);
    if (widget->isDesktop())
        return;
    if (isPaletteMode(data->mode)) {
        const QBrush& brush = backgroundBrush(widget, data->mode);
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

void applyCursor(QWidget* widget)
{
    const WidgetData* data = dataOf(widget);
    const QCursor* cursor = data->cursor;
    if (QApplication::overrideCursor() && (cursor || widget->isTopLevel()))
        cursor = QApplication::overrideCursor();
    if (!widget->isDesktop())
        x11::setCursor(widget->winId(), cursor ? cursor->handle() : 0);
}

} // namespace zeltk

const QColorGroup& QWidget::colorGroup() const
{
    if (!isEnabled())
        return w->palette.disabled();
    return !isVisible() || isActiveWindow() ? w->palette.active() : w->palette.inactive();
}

const QPalette& QWidget::palette() const
{
    return w->palette;
}

bool QWidget::ownPalette() const
{
    return w->ownPalette;
}

void QWidget::setPalette(const QPalette& palette)
{
    w->ownPalette = true;
    changePalette(this, palette);
}

void QWidget::unsetPalette()
{
    setPalette(inheritedPalette(this));
    w->ownPalette = false;
}

void QWidget::paletteChange(const QPalette&) {}

const QColor& QWidget::foregroundColor() const
{
    return paletteForegroundColor();
}

const QColor& QWidget::paletteForegroundColor() const
{
    return colorGroup().color(QPalette::foregroundRoleFromMode(w->visualMode));
}

void QWidget::setPaletteForegroundColor(const QColor& color)
{
    QPalette changed(palette());
    changed.setColor(QPalette::foregroundRoleFromMode(w->visualMode), color);
    setPalette(changed);
}

const QColor& QWidget::paletteBackgroundColor() const
{
    if (!isPaletteMode(w->visualMode))
        return eraseColor();
    return backgroundBrush(this, w->visualMode).color();
}

// A widget without a role for its background gets a fixed colour.
void QWidget::setPaletteBackgroundColor(const QColor& color)
{
    if (!isPaletteMode(w->visualMode)) {
        setEraseColor(color);
        return;
    }
    QPalette changed(palette());
    changed.setColor(QPalette::backgroundRoleFromMode(w->visualMode), color);
    setPalette(changed);
}

const QPixmap* QWidget::paletteBackgroundPixmap() const
{
    if (!isPaletteMode(w->visualMode))
        return erasePixmap();
    return backgroundBrush(this, w->visualMode).pixmap();
}

void QWidget::setPaletteBackgroundPixmap(const QPixmap& pixmap)
{
    if (!isPaletteMode(w->visualMode)) {
        setErasePixmap(pixmap);
        return;
    }
    QPalette changed(palette());
    changed.setBrush(QPalette::backgroundRoleFromMode(w->visualMode),
                     QBrush(paletteBackgroundColor(), pixmap));
    setPalette(changed);
}

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

QFont QWidget::font() const
{
    return w->font;
}

bool QWidget::ownFont() const
{
    return w->ownFont;
}

void QWidget::setFont(const QFont& font)
{
    w->ownFont = true;
    w->askedFont = font;
    changeFont(this, font.resolve(inheritedFont(this)));
}

void QWidget::unsetFont()
{
    setFont(inheritedFont(this));
    w->ownFont = false;
}

void QWidget::fontChange(const QFont&)
{
    update();
}

QFontMetrics QWidget::fontMetrics() const
{
    return QFontMetrics(w->font);
}

QFontInfo QWidget::fontInfo() const
{
    return QFontInfo(w->font);
}

const QCursor& QWidget::cursor() const
{
    static const QCursor arrow(ArrowCursor);
    if (w->cursor)
        return *w->cursor;
    return isTopLevel() || !parentWidget() ? arrow : parentWidget()->cursor();
}

bool QWidget::ownCursor() const
{
    return w->cursor != nullptr;
}

void QWidget::setCursor(const QCursor& cursor)
{
    QCursor* copy = new QCursor(cursor);
    delete w->cursor;
    w->cursor = copy;
    w->state |= WState_OwnCursor;
    zeltk::applyCursor(this);
}

void QWidget::unsetCursor()
{
    delete w->cursor;
    w->cursor = nullptr;
    w->state &= ~WState_OwnCursor;
    zeltk::applyCursor(this);
}
