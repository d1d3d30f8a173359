// What stands on the screen, read back from the X server over a connection of the tests' own.
#ifndef TEST_PIXELS_H
#define TEST_PIXELS_H

#include <ostream>
#include <string>
#include <vector>

class QPixmap;
class QWidget;

// A picture of 0xRRGGBB values. Outside of it at() gives `outside`.
class Pixels
{
public:
    enum { outside = 0xff000000u };

    Pixels(int width, int height, unsigned colour = 0);

    // The widget as it is on the screen now; everything on its way is handled first.
    static Pixels of(QWidget* widget);
    // The same without handling any event: what is on the screen at this very moment.
    static Pixels now(QWidget* widget);
    static Pixels of(const QPixmap& pixmap);
    static Pixels ofRoot(int x, int y, int width, int height);

    int width() const { return m_width; }
    int height() const { return m_height; }
    unsigned at(int x, int y) const;
    void set(int x, int y, unsigned colour);
    void fill(int x, int y, int width, int height, unsigned colour);
    int count(unsigned colour) const;
    // The picture turned by quarter turns clockwise.
    Pixels turned(int quarters) const;
    Pixels part(int x, int y, int width, int height) const;

    // One character a pixel, one line a row: `legend` pairs characters with colours ("#", 0x000000); others
    // are shown as '?'.
    typedef std::vector<std::pair<char, unsigned>> Legend;
    std::string picture(const Legend& legend) const;

    bool operator==(const Pixels& other) const;
    bool operator!=(const Pixels& other) const { return !(*this == other); }

    // Where two pictures differ, for a failing test's message; empty when they are equal.
    std::string differenceFrom(const Pixels& other) const;

private:
    int m_width, m_height;
    std::vector<unsigned> m_pixels;
};

std::ostream& operator<<(std::ostream& out, const Pixels& pixels);

#endif
