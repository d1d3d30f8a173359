// A small white pixmap with a painter, read back as text.
#ifndef TEST_SHEET_H
#define TEST_SHEET_H

#include "pixels.h"

#include <qpainter.h>
#include <qpixmap.h>

#include <string>

class Sheet
{
public:
    Sheet(int width, int height) : pixmap(width, height)
    {
        pixmap.fill(Qt::white);
        painter.begin(&pixmap);
    }

    Pixels pixels()
    {
        if (painter.isActive())
            painter.end();
        return Pixels::of(pixmap);
    }

    // '.' white, '#' black, 'r', 'g', 'b', 'y' red, green, blue and yellow; a line break before each row.
    std::string drawing()
    {
        return '\n' + pixels().picture({{'.', 0xffffff},
                                        {'#', 0x000000},
                                        {'r', 0xff0000},
                                        {'g', 0x00ff00},
                                        {'b', 0x0000ff},
                                        {'y', 0xffff00}});
    }

    QPixmap pixmap;
    QPainter painter;
};

#endif
