// What painting knows of devices beyond their public side.
#ifndef ZELTK_PAINTDEVICEPRIVATE_H
#define ZELTK_PAINTDEVICEPRIVATE_H

#include <qpaintdevice.h>

namespace zeltk
{

struct PaintDeviceAccess {
    static bool isWidget(const QPaintDevice* device)
    {
        return device->deviceKind == QPaintDevice::WidgetDevice;
    }
};

} // namespace zeltk

#endif
