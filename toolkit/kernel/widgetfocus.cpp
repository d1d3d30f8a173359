// QWidget: keyboard focus and activation.
#include "kernel/applicationdata.h"
#include "kernel/taborder.h"
#include "kernel/widgetdata.h"
#include "x11/input.h"
#include "x11/wmhints.h"

#include <qapplication.h>

using zeltk::application;
using zeltk::dataOf;
namespace x11 = zeltk::x11;

QWidget::FocusPolicy QWidget::focusPolicy() const
{
    return w->focusPolicy;
}

void QWidget::setFocusPolicy(FocusPolicy policy)
{
    if (w->focusProxy)
        w->focusProxy->setFocusPolicy(policy);
    w->focusPolicy = policy;
    zeltk::joinTabOrder(this);
}

bool QWidget::hasFocus() const
{
    const QWidget* widget = this;
    while (zeltk::dataOf(widget)->focusProxy)
        widget = zeltk::dataOf(widget)->focusProxy;
    return application()->focus == widget;
}

QWidget* QWidget::focusWidget() const
{
    return dataOf(topLevelWidget())->focus;
}

QWidget* QWidget::focusProxy() const
{
    return w->focusProxy;
}

void QWidget::setFocusProxy(QWidget* proxy)
{
    for (const QWidget* end = proxy; end; end = end->focusProxy())
        if (end == this) {
            qWarning("QWidget::setFocusProxy: %s would be its own focus proxy", name());
            return;
        }
    w->focusProxy = proxy;
    if (proxy)
        zeltk::dataOf(proxy)->isFocusProxy = true;
    if (proxy && w->focusPolicy == NoFocus)
        setFocusPolicy(proxy->focusPolicy());
}

void QWidget::focusProxyDestroyed()
{
    w->focusProxy = nullptr;
    setFocusPolicy(NoFocus);
}

void QWidget::setFocus()
{
    if (!isEnabled())
        return;
    if (w->focusProxy) {
        w->focusProxy->setFocus();
        return;
    }
    QWidget* window = topLevelWidget();
    dataOf(window)->focus = this;
    if (!isActiveWindow())
        return;
    const QFocusEvent::Reason reason = QFocusEvent::reason();
    zeltk::moveFocus(this, reason);
}

void QWidget::clearFocus()
{
    if (w->focusProxy) {
        w->focusProxy->clearFocus();
        return;
    }
    zeltk::takeFocusFrom(this);
}

bool QWidget::isActiveWindow() const
{
    const QWidget* window = topLevelWidget();
    return application()->active == window || window->isPopup();
}

// With a window manager the keyboard is its to give.
void QWidget::setActiveWindow()
{
    QWidget* window = topLevelWidget();
    if (!window->isVisible())
        return;
    if (x11::hasWindowManager())
        x11::requestActivation(window->winId());
    x11::setInputFocus(window->winId());
}
