// QWidget: what a window tells the window manager.
#include "kernel/widgetdata.h"
#include "x11/window.h"
#include "x11/wmhints.h"

#include <qapplication.h>
#include <qbitmap.h>
#include <qevent.h>

#include <string>

namespace
{

std::string programName()
{
    const char* const path = qApp->argc() > 0 ? qApp->argv()[0] : "";
    const std::string text(path ? path : "");
    return text.substr(text.rfind('/') + 1);
}

std::string className(std::string name)
{
    if (!name.empty() && name[0] >= 'a' && name[0] <= 'z')
        name[0] = static_cast<char>(name[0] - 'a' + 'A');
    return name;
}

std::string utf8(const QString& text)
{
    const QCString bytes = text.utf8();
    return std::string(bytes.data() ? bytes.data() : "");
}

void sendTitle(const QWidget* widget)
{
    const QString& caption = zeltk::dataOf(widget)->caption;
    if (caption.isNull())
        zeltk::x11::setPlainTitle(widget->winId(), programName());
    else
        zeltk::x11::setTitle(widget->winId(), utf8(caption));
}

bool hasFixedSize(const QWidget* widget)
{
    return widget->minimumSize() == widget->maximumSize();
}

void sendDecorations(const QWidget* widget)
{
    zeltk::x11::Decorations wanted;
    const auto has = [widget](Qt::WFlags flag) { return widget->testWFlags(flag) != 0; };
    wanted.border = !has(Qt::WStyle_NoBorder) && has(Qt::WStyle_NormalBorder | Qt::WStyle_DialogBorder);
    wanted.title = has(Qt::WStyle_Title);
    wanted.menu = has(Qt::WStyle_SysMenu);
    wanted.minimize = has(Qt::WStyle_Minimize);
    wanted.maximize = has(Qt::WStyle_Maximize);
    wanted.resizable = !hasFixedSize(widget);
    wanted.modal = widget->isModal();
    zeltk::x11::setDecorations(widget->winId(), wanted);
}

unsigned initialState(const QWidget* widget)
{
    unsigned bits = 0;
    if (widget->isModal())
        bits |= zeltk::x11::StateModal;
    if (widget->isMaximized())
        bits |= zeltk::x11::StateMaximized;
    if (widget->isFullScreen())
        bits |= zeltk::x11::StateFullScreen;
    if (widget->testWFlags(Qt::WStyle_StaysOnTop))
        bits |= zeltk::x11::StateAbove;
    return bits;
}

// Dialogs without a parent stand above the whole screen's windows.
void sendOwner(const QWidget* widget)
{
    if (widget->parentWidget())
        zeltk::x11::setTransientFor(widget->winId(), widget->parentWidget()->topLevelWidget()->winId());
    else if (widget->isDialog() || widget->testWFlags(Qt::WStyle_Tool))
        zeltk::x11::setTransientFor(widget->winId(), zeltk::x11::rootWindow());
}

} // namespace

namespace zeltk
{

void describeWindow(QWidget* widget)
{
    WidgetData* data = dataOf(widget);
    data->described = true;
    applySizeHints(widget);
    if (widget->isPopup())
        return;
    const x11::XId window = widget->winId();
    const std::string name = programName();
    x11::setWindowIdentity(window, name, className(name), widget->testWFlags(Qt::WStyle_ContextHelp) != 0);
    x11::setWindowKind(window, widget->isDialog()                    ? x11::WindowKind::Dialog
                               : widget->testWFlags(Qt::WStyle_Tool) ? x11::WindowKind::Tool
                                                                     : x11::WindowKind::Normal);
    applyWindowHints(widget);
    sendOwner(widget);
    sendDecorations(widget);
    sendTitle(widget);
    if (!data->iconText.isNull())
        x11::setIconName(window, utf8(data->iconText));
    if (const unsigned bits = initialState(widget))
        x11::setInitialState(window, bits);
}

void applySizeHints(QWidget* widget)
{
    const WidgetData* data = dataOf(widget);
    const auto limit = [](int value) { return value < QWIDGETSIZE_MAX ? value : 0; };
    x11::SizeHints hints;
    hints.x = widget->x();
    hints.y = widget->y();
    hints.width = data->rect.width();
    hints.height = data->rect.height();
    hints.userPosition = data->placed;
    hints.userSize = widget->testWState(Qt::WState_Resized) != 0;
    hints.minimumWidth = data->minimum.width();
    hints.minimumHeight = data->minimum.height();
    const bool limited = limit(data->maximum.width()) || limit(data->maximum.height());
    hints.maximumWidth = limited ? data->maximum.width() : 0;
    hints.maximumHeight = limited ? data->maximum.height() : 0;
    hints.widthIncrement = data->step.width();
    hints.heightIncrement = data->step.height();
    hints.baseWidth = data->base.width();
    hints.baseHeight = data->base.height();
    x11::setSizeHints(widget->winId(), hints);
}

void applyWindowHints(QWidget* widget)
{
    const WidgetData* data = dataOf(widget);
    const QBitmap* const mask = data->icon ? data->icon->mask() : nullptr;
    x11::setWindowHints(widget->winId(), (data->windowState & Qt::WindowMinimized) != 0,
                        data->icon ? data->icon->handle() : 0, mask ? mask->handle() : 0, 0);
}

} // namespace zeltk

QString QWidget::caption() const
{
    return w->caption;
}

void QWidget::setCaption(const QString& caption)
{
    if (!isTopLevel() || (caption == w->caption && caption.isNull() == w->caption.isNull()))
        return;
    w->caption = caption;
    if (w->described)
        sendTitle(this);
    QEvent event(QEvent::CaptionChange);
    QApplication::sendEvent(this, &event);
}

const QPixmap* QWidget::icon() const
{
    return w->icon;
}

void QWidget::setIcon(const QPixmap& icon)
{
    if (!isTopLevel())
        return;
    delete w->icon;
    w->icon = icon.isNull() ? 0 : new QPixmap(icon);
    if (w->described)
        zeltk::applyWindowHints(this);
    QEvent event(QEvent::IconChange);
    QApplication::sendEvent(this, &event);
}

QString QWidget::iconText() const
{
    return w->iconText;
}

void QWidget::setIconText(const QString& text)
{
    if (!isTopLevel())
        return;
    w->iconText = text;
    if (w->described)
        zeltk::x11::setIconName(winId(), utf8(text));
}
