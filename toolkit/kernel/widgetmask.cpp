// QWidget: windows that are no rectangles.
#include "kernel/widgetdata.h"
#include "x11/window.h"

void QWidget::setMask(const QRegion& region)
{
    std::vector<zeltk::x11::Box> shape;
    const QMemArray<QRect> parts = region.rects();
    for (uint i = 0; i < parts.size(); ++i) {
        const QRect& part = parts.at(i);
        shape.push_back({part.x(), part.y(), part.width(), part.height()});
    }
    zeltk::x11::setShape(winId(), &shape);
}

void QWidget::clearMask()
{
    zeltk::x11::setShape(winId(), nullptr);
}
