// What the plugin uses of Qt 3's icon sets: they hold a pixmap.
#ifndef QICONSET_H
#define QICONSET_H

#include <qpixmap.h>

class QIconSet
{
public:
    QIconSet() {}
    QIconSet(const QPixmap& pixmap) : picture(pixmap) {}
    bool isNull() const { return picture.isNull(); }
    QPixmap pixmap() const { return picture; }

private:
    QPixmap picture;
};

#endif
