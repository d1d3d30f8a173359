// QColor.
#include <qcolor.h>

#include "painting/colornames.h"
#include "tools/unicode.h"
#include "x11/colors.h"
#include "x11/connection.h"

#include <algorithm>
#include <cctype>

namespace
{

bool inRange(int value)
{
    return value >= 0 && value <= 255;
}

// The nearest whole number; both parts positive, or the first one negative.
int rounded(int numerator, int denominator)
{
    const int twice = 2 * numerator + denominator;
    return twice >= 0 ? twice / (2 * denominator) : -((-twice + 2 * denominator - 1) / (2 * denominator));
}

int digitOf(char c)
{
    if (std::isdigit(static_cast<uchar>(c)))
        return c - '0';
    return std::tolower(static_cast<uchar>(c)) - 'a' + 10;
}

// "#" and 3, 6, 9 or 12 hexadecimal digits; of each part the highest 8 bits count.
bool parseDigits(const std::string& text, QRgb* rgb)
{
    const size_t digits = text.size() - 1;
    if (digits == 0 || digits % 3 != 0 || digits > 12)
        return false;
    if (!std::all_of(text.begin() + 1, text.end(),
                     [](char c) { return std::isxdigit(static_cast<uchar>(c)); }))
        return false;
    int parts[3];
    for (size_t i = 0; i < 3; ++i) {
        const size_t first = 1 + i * digits / 3;
        const int high = digitOf(text[first]);
        parts[i] = high * 16 + (digits == 3 ? high : digitOf(text[first + 1]));
    }
    *rgb = qRgb(parts[0], parts[1], parts[2]);
    return true;
}

} // namespace

QColor::QColor(int r, int g, int b) : value(invalidValue), valid(false)
{
    setRgb(r, g, b);
}

QColor::QColor(int x, int y, int z, Spec spec) : value(invalidValue), valid(false)
{
    if (spec == Hsv)
        setHsv(x, y, z);
    else
        setRgb(x, y, z);
}

QColor::QColor(QRgb rgb, uint) : value(rgb), valid(true) {}

QColor::QColor(const QString& name) : value(invalidValue), valid(false)
{
    setNamedColor(name);
}

QColor::QColor(const char* name) : value(invalidValue), valid(false)
{
    setNamedColor(QString(name));
}

// A null name leaves the colour's value alone but makes it count as valid.
void QColor::setNamedColor(const QString& name)
{
    if (name.isNull()) {
        valid = true;
        return;
    }
    const std::string text = zeltk::toUtf8(name);
    QRgb rgb = 0;
    if (!text.empty() && text[0] == '#') {
        valid = parseDigits(text, &rgb);
        if (!valid)
            qWarning("QColor::setNamedColor: could not parse color '%s'", text.c_str());
    } else {
        std::uint32_t found = 0;
        valid = !text.empty() && zeltk::colorByName(text, &found);
        rgb = 0xff000000 | found;
    }
    value = valid ? rgb : static_cast<QRgb>(invalidValue);
}

QString QColor::name() const
{
    QString text;
    text.sprintf("#%02x%02x%02x", red(), green(), blue());
    return text;
}

void QColor::setRgb(int r, int g, int b)
{
    if (!inRange(r) || !inRange(g) || !inRange(b)) {
        qWarning("QColor::setRgb: RGB parameter(s) out of range");
        return;
    }
    setRgb(qRgb(r, g, b));
}

void QColor::setRgb(QRgb rgb)
{
    value = rgb;
    valid = true;
}

void QColor::rgb(int* r, int* g, int* b) const
{
    *r = red();
    *g = green();
    *b = blue();
}

void QColor::setHsv(int h, int s, int v)
{
    if (h < -1 || !inRange(s) || !inRange(v)) {
        qWarning("QColor::setHsv: HSV parameters out of range");
        return;
    }
    if (s == 0 || h == -1) {
        setRgb(qRgb(v, v, v));
        return;
    }
    h %= 360;
    const int sector = h / 60;
    const int f = h % 60;
    const int low = rounded(v * (255 - s), 255);
    const int falling = rounded(v * (255 * 60 - s * f), 255 * 60);
    const int rising = rounded(v * (255 * 60 - s * (60 - f)), 255 * 60);
    const int table[6][3] = {{v, rising, low},  {falling, v, low}, {low, v, rising},
                             {low, falling, v}, {rising, low, v},  {v, low, falling}};
    setRgb(qRgb(table[sector][0], table[sector][1], table[sector][2]));
}

void QColor::hsv(int* h, int* s, int* v) const
{
    const int largest = std::max({red(), green(), blue()});
    const int delta = largest - std::min({red(), green(), blue()});
    *v = largest;
    *s = largest == 0 ? 0 : rounded(255 * delta, largest);
    if (*s == 0) {
        *h = -1;
        return;
    }
    if (largest == red())
        *h = rounded(60 * (green() - blue()) + (green() >= blue() ? 0 : 360 * delta), delta);
    else if (largest == green())
        *h = rounded(120 * delta + 60 * (blue() - red()), delta);
    else
        *h = rounded(240 * delta + 60 * (red() - green()), delta);
}

// What does not fit into the value comes off the saturation.
QColor QColor::light(int percent) const
{
    if (percent <= 0)
        return *this;
    if (percent < 100)
        return dark(10000 / percent);
    int h;
    int s;
    int v;
    hsv(&h, &s, &v);
    const Q_LLONG wanted = Q_LLONG(v) * percent / 100;
    const int surplus = static_cast<int>(std::min(std::max(wanted - 255, Q_LLONG(0)), Q_LLONG(255)));
    QColor result;
    result.setHsv(h, std::max(s - surplus, 0), static_cast<int>(std::min(wanted, Q_LLONG(255))));
    return result;
}

QColor QColor::dark(int percent) const
{
    if (percent <= 0)
        return *this;
    if (percent < 100)
        return light(10000 / percent);
    int h;
    int s;
    int v;
    hsv(&h, &s, &v);
    QColor result;
    result.setHsv(h, s, v * 100 / percent);
    return result;
}

uint QColor::pixel() const
{
    return static_cast<uint>(zeltk::x11::pixelOf(value & RGB_MASK));
}

int QColor::maxColors()
{
    return zeltk::x11::colorCount();
}

int QColor::numBitPlanes()
{
    return zeltk::x11::connected() ? zeltk::x11::depth() : 24;
}

namespace
{

// color0 and color1 are the two values of a bitmap.
QColor global[] = {
    QColor(QRgb(0x01ffffff)), QColor(QRgb(0x01000000)), QColor(0, 0, 0),       QColor(255, 255, 255),
    QColor(128, 128, 128),    QColor(160, 160, 164),    QColor(192, 192, 192), QColor(255, 0, 0),
    QColor(0, 255, 0),        QColor(0, 0, 255),        QColor(0, 255, 255),   QColor(255, 0, 255),
    QColor(255, 255, 0),      QColor(128, 0, 0),        QColor(0, 128, 0),     QColor(0, 0, 128),
    QColor(0, 128, 128),      QColor(128, 0, 128),      QColor(128, 128, 0)};

} // namespace

const QColor& Qt::color0 = global[0];
const QColor& Qt::color1 = global[1];
const QColor& Qt::black = global[2];
const QColor& Qt::white = global[3];
const QColor& Qt::darkGray = global[4];
const QColor& Qt::gray = global[5];
const QColor& Qt::lightGray = global[6];
const QColor& Qt::red = global[7];
const QColor& Qt::green = global[8];
const QColor& Qt::blue = global[9];
const QColor& Qt::cyan = global[10];
const QColor& Qt::magenta = global[11];
const QColor& Qt::yellow = global[12];
const QColor& Qt::darkRed = global[13];
const QColor& Qt::darkGreen = global[14];
const QColor& Qt::darkBlue = global[15];
const QColor& Qt::darkCyan = global[16];
const QColor& Qt::darkMagenta = global[17];
const QColor& Qt::darkYellow = global[18];
