// QString: numbers to text, text to numbers, and places for arguments.
#include <qstring.h>

#include "tools/numbertext.h"
#include "tools/unicode.h"

#include <array>

namespace
{

QString padded(const QString& text, int fieldWidth)
{
    if (fieldWidth > 0)
        return text.rightJustify(static_cast<uint>(fieldWidth));
    return text.leftJustify(0 - static_cast<uint>(fieldWidth));
}

// The digit behind the percent sign at that place, -1 if there is none.
int markerAt(const std::u16string& text, size_t place)
{
    if (text[place] != u'%' || place + 1 >= text.size() || text[place + 1] < u'0' || text[place + 1] > u'9')
        return -1;
    return text[place + 1] - u'0';
}

// Replaces the first of the lowest-numbered markers.
QString withArgument(const QString& pattern, const QString& argument)
{
    const std::u16string text = zeltk::toUtf16(pattern);
    int lowest = 10;
    size_t place = 0;
    for (size_t i = 0; i < text.size(); ++i) {
        const int number = markerAt(text, i);
        if (number >= 0 && number < lowest) {
            lowest = number;
            place = i;
        }
    }
    if (lowest > 9) {
        qWarning("QString::arg(): Argument missing: %s, %s", zeltk::toUtf8(pattern).c_str(),
                 zeltk::toUtf8(argument).c_str());
        return pattern;
    }
    return zeltk::fromUtf16(text.substr(0, place) + zeltk::toUtf16(argument) + text.substr(place + 2));
}

// Fills in several arguments at once, so that markers inside an argument stay as they are. The lowest number
// in the text stands for the first argument, and so on.
template <size_t count>
QString withArguments(const QString& pattern, const std::array<const QString*, count>& arguments)
{
    const std::u16string text = zeltk::toUtf16(pattern);
    bool used[10] = {};
    for (size_t i = 0; i < text.size(); ++i)
        if (markerAt(text, i) >= 0)
            used[markerAt(text, i)] = true;
    const QString* meaning[10] = {};
    size_t next = 0;
    for (int digit = 0; digit < 10 && next < count; ++digit)
        if (used[digit])
            meaning[digit] = arguments[next++];
    if (next < count)
        qWarning("QString::arg(): Argument missing: %s, %s", zeltk::toUtf8(pattern).c_str(),
                 zeltk::toUtf8(*arguments[next]).c_str());
    std::u16string result;
    for (size_t i = 0; i < text.size(); ++i) {
        const int number = markerAt(text, i);
        if (number >= 0 && meaning[number]) {
            result += zeltk::toUtf16(*meaning[number]);
            ++i;
        } else {
            result += text[i];
        }
    }
    return zeltk::fromUtf16(result);
}

} // namespace

QString QString::arg(Q_LLONG a, int fieldWidth, int base) const
{
    return arg(number(a, base), fieldWidth);
}

QString QString::arg(Q_ULLONG a, int fieldWidth, int base) const
{
    return arg(number(a, base), fieldWidth);
}

QString QString::arg(long a, int fieldWidth, int base) const
{
    return arg(number(a, base), fieldWidth);
}

QString QString::arg(ulong a, int fieldWidth, int base) const
{
    return arg(number(a, base), fieldWidth);
}

QString QString::arg(double a, int fieldWidth, char format, int precision) const
{
    return arg(number(a, format, precision), fieldWidth);
}

QString QString::arg(QChar a, int fieldWidth) const
{
    return arg(QString(a), fieldWidth);
}

QString QString::arg(const QString& a, int fieldWidth) const
{
    return withArgument(*this, padded(a, fieldWidth));
}

QString QString::arg(const QString& a1, const QString& a2) const
{
    return withArguments<2>(*this, {&a1, &a2});
}

QString QString::arg(const QString& a1, const QString& a2, const QString& a3) const
{
    return withArguments<3>(*this, {&a1, &a2, &a3});
}

QString QString::arg(const QString& a1, const QString& a2, const QString& a3, const QString& a4) const
{
    return withArguments<4>(*this, {&a1, &a2, &a3, &a4});
}

short QString::toShort(bool* ok, int base) const
{
    return zeltk::parsed<short>(zeltk::toUtf8(*this), base, ok);
}

ushort QString::toUShort(bool* ok, int base) const
{
    return zeltk::parsed<ushort>(zeltk::toUtf8(*this), base, ok);
}

int QString::toInt(bool* ok, int base) const
{
    return zeltk::parsed<int>(zeltk::toUtf8(*this), base, ok);
}

uint QString::toUInt(bool* ok, int base) const
{
    return zeltk::parsed<uint>(zeltk::toUtf8(*this), base, ok);
}

long QString::toLong(bool* ok, int base) const
{
    return zeltk::parsed<long>(zeltk::toUtf8(*this), base, ok);
}

ulong QString::toULong(bool* ok, int base) const
{
    return zeltk::parsed<ulong>(zeltk::toUtf8(*this), base, ok);
}

Q_LLONG QString::toLongLong(bool* ok, int base) const
{
    return zeltk::parsed<Q_LLONG>(zeltk::toUtf8(*this), base, ok);
}

Q_ULLONG QString::toULongLong(bool* ok, int base) const
{
    return zeltk::parsed<Q_ULLONG>(zeltk::toUtf8(*this), base, ok);
}

float QString::toFloat(bool* ok) const
{
    return static_cast<float>(toDouble(ok));
}

double QString::toDouble(bool* ok) const
{
    double number = 0.0;
    const bool good = zeltk::parseNumber(zeltk::toUtf8(*this), &number);
    if (ok)
        *ok = good;
    return number;
}

// A negative number in another base than 10 shows the bits of its type.
QString& QString::setNum(long number, int base)
{
    if (base != 10)
        return setNum(static_cast<ulong>(number), base);
    return setLatin1(zeltk::numberText(static_cast<Q_LLONG>(number), base).c_str());
}

QString& QString::setNum(ulong number, int base)
{
    return setLatin1(zeltk::numberText(static_cast<Q_ULLONG>(number), base).c_str());
}

QString& QString::setNum(Q_LLONG number, int base)
{
    if (base != 10)
        return setNum(static_cast<Q_ULLONG>(number), base);
    return setLatin1(zeltk::numberText(number, base).c_str());
}

QString& QString::setNum(Q_ULLONG number, int base)
{
    return setLatin1(zeltk::numberText(number, base).c_str());
}

QString& QString::setNum(double number, char format, int precision)
{
    return setLatin1(zeltk::numberText(number, format, precision).c_str());
}

QString QString::number(long number, int base)
{
    return QString().setNum(number, base);
}

QString QString::number(ulong number, int base)
{
    return QString().setNum(number, base);
}

QString QString::number(Q_LLONG number, int base)
{
    return QString().setNum(number, base);
}

QString QString::number(Q_ULLONG number, int base)
{
    return QString().setNum(number, base);
}

QString QString::number(int number, int base)
{
    return QString().setNum(number, base);
}

QString QString::number(uint number, int base)
{
    return QString().setNum(number, base);
}

QString QString::number(double number, char format, int precision)
{
    return QString().setNum(number, format, precision);
}
