#include "pixels.h"
#include "waiting.h"
#include "xinput.h"

#include <qapplication.h>
#include <qpixmap.h>
#include <qwidget.h>

#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <algorithm>
#include <cstdio>

Pixels::Pixels(int width, int height, unsigned colour)
    : m_width(width), m_height(height), m_pixels(static_cast<size_t>(width) * height, colour)
{
}

static Pixels grab(unsigned long drawable, int x, int y, int width, int height)
{
    Pixels pixels(width, height);
    QApplication::syncX();
    XImage* image = XGetImage(xinput::display(), drawable, x, y, width, height, AllPlanes, ZPixmap);
    if (!image)
        return pixels;
    for (int row = 0; row < height; ++row)
        for (int column = 0; column < width; ++column)
            pixels.set(column, row, XGetPixel(image, column, row) & 0xffffff);
    XDestroyImage(image);
    return pixels;
}

Pixels Pixels::of(QWidget* widget)
{
    settle();
    return now(widget);
}

Pixels Pixels::now(QWidget* widget)
{
    return grab(widget->winId(), 0, 0, widget->width(), widget->height());
}

Pixels Pixels::of(const QPixmap& pixmap)
{
    return grab(pixmap.handle(), 0, 0, pixmap.width(), pixmap.height());
}

Pixels Pixels::ofRoot(int x, int y, int width, int height)
{
    settle();
    return grab(DefaultRootWindow(xinput::display()), x, y, width, height);
}

unsigned Pixels::at(int x, int y) const
{
    if (x < 0 || y < 0 || x >= m_width || y >= m_height)
        return outside;
    return m_pixels[static_cast<size_t>(y) * m_width + x];
}

void Pixels::set(int x, int y, unsigned colour)
{
    if (x >= 0 && y >= 0 && x < m_width && y < m_height)
        m_pixels[static_cast<size_t>(y) * m_width + x] = colour;
}

void Pixels::fill(int x, int y, int width, int height, unsigned colour)
{
    for (int row = y; row < y + height; ++row)
        for (int column = x; column < x + width; ++column)
            set(column, row, colour);
}

int Pixels::count(unsigned colour) const
{
    return static_cast<int>(std::count(m_pixels.begin(), m_pixels.end(), colour));
}

Pixels Pixels::turned(int quarters) const
{
    Pixels result = *this;
    for (int turn = 0; turn < (quarters & 3); ++turn) {
        Pixels next(result.m_height, result.m_width);
        for (int y = 0; y < result.m_height; ++y)
            for (int x = 0; x < result.m_width; ++x)
                next.set(result.m_height - 1 - y, x, result.at(x, y));
        result = next;
    }
    return result;
}

Pixels Pixels::part(int x, int y, int width, int height) const
{
    Pixels result(width, height);
    for (int row = 0; row < height; ++row)
        for (int column = 0; column < width; ++column)
            result.set(column, row, at(x + column, y + row));
    return result;
}

std::string Pixels::picture(const Legend& legend) const
{
    std::string text;
    for (int y = 0; y < m_height; ++y) {
        for (int x = 0; x < m_width; ++x) {
            const auto known =
                std::find_if(legend.begin(), legend.end(),
                             [&](const Legend::value_type& entry) { return entry.second == at(x, y); });
            text += known == legend.end() ? '?' : known->first;
        }
        text += '\n';
    }
    return text;
}

bool Pixels::operator==(const Pixels& other) const
{
    return m_width == other.m_width && m_height == other.m_height && m_pixels == other.m_pixels;
}

std::string Pixels::differenceFrom(const Pixels& other) const
{
    char text[160];
    if (m_width != other.m_width || m_height != other.m_height) {
        std::snprintf(text, sizeof text, "size %dx%d instead of %dx%d", m_width, m_height, other.m_width,
                      other.m_height);
        return text;
    }
    int different = 0, firstX = 0, firstY = 0;
    for (int y = 0; y < m_height; ++y)
        for (int x = 0; x < m_width; ++x)
            if (at(x, y) != other.at(x, y) && different++ == 0) {
                firstX = x;
                firstY = y;
            }
    if (!different)
        return std::string();
    std::snprintf(text, sizeof text, "%d pixels differ, first at (%d,%d): %06x instead of %06x", different,
                  firstX, firstY, at(firstX, firstY), other.at(firstX, firstY));
    return text;
}

std::ostream& operator<<(std::ostream& out, const Pixels& pixels)
{
    return out << "a picture of " << pixels.width() << "x" << pixels.height() << " pixels";
}
