// How failing tests print the toolkit's small values.
#ifndef TEST_PRINTERS_H
#define TEST_PRINTERS_H

#include <qcolor.h>
#include <qpoint.h>
#include <qrect.h>
#include <qsize.h>
#include <qstring.h>

#include <ostream>

inline void PrintTo(const QPoint& point, std::ostream* out)
{
    *out << point.x() << ',' << point.y();
}

inline void PrintTo(const QSize& size, std::ostream* out)
{
    *out << size.width() << 'x' << size.height();
}

inline void PrintTo(const QRect& rect, std::ostream* out)
{
    *out << '(' << rect.x() << ',' << rect.y() << ' ' << rect.width() << 'x' << rect.height() << ')';
}

inline void PrintTo(const QColor& colour, std::ostream* out)
{
    *out << colour.name().latin1();
}

inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << (text.isNull() ? "null" : text.latin1());
}

#endif
