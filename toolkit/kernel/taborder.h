// The widgets of a window that Tab goes to, in their order.
#ifndef ZELTK_TABORDER_H
#define ZELTK_TABORDER_H

class QWidget;

namespace zeltk
{

// Whether Tab may go there now.
bool takesTab(const QWidget* widget);
// The widget and all inside it.
void joinTabOrder(QWidget* widget);
void leaveTabOrder(QWidget* widget);

} // namespace zeltk

#endif
