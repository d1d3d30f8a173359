// QDesktopWidget.
#include <qdesktopwidget.h>

QDesktopWidget::QDesktopWidget() : QWidget(nullptr, "desktop", WType_Desktop), area(geometry()) {}

QDesktopWidget::~QDesktopWidget() {}

QWidget* QDesktopWidget::screen(int)
{
    return this;
}

const QRect& QDesktopWidget::screenGeometry(int) const
{
    return area;
}
