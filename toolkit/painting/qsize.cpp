// QSize.
#include <qsize.h>

void QSize::transpose()
{
    const QCOORD width = wd;
    wd = ht;
    ht = width;
}

// ScaleMin stays inside the wanted size, ScaleMax goes round it; both keep the proportions.
void QSize::scale(int width, int height, ScaleMode mode)
{
    if (mode == ScaleFree || wd == 0 || ht == 0) {
        wd = width;
        ht = height;
        return;
    }
    const int widthAtHeight = static_cast<int>(Q_LLONG(height) * wd / ht);
    const bool byHeight = mode == ScaleMin ? widthAtHeight <= width : widthAtHeight >= width;
    if (byHeight) {
        wd = widthAtHeight;
        ht = height;
    } else {
        ht = static_cast<int>(Q_LLONG(width) * ht / wd);
        wd = width;
    }
}
