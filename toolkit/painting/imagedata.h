// What the copies of an image share.
#ifndef ZELTK_IMAGEDATA_H
#define ZELTK_IMAGEDATA_H

#include <qcolor.h>
#include <qpoint.h>

#include <vector>

namespace zeltk
{

struct ImageData {
    int references = 1;
    int width = 0;
    int height = 0;
    bool alpha = false;
    std::vector<QRgb> pixels = {}; // row by row
    std::vector<uchar*> rows = {};
    QPoint offset = {};
    int dotsPerMeterX = 0;
    int dotsPerMeterY = 0;
};

} // namespace zeltk

#endif
