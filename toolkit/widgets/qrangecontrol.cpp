// QRangeControl.
#include <qrangecontrol.h>

#include <climits>
#include <cstdlib>

namespace
{

// Value and step may be large.
int limited(long long value, int minValue, int maxValue)
{
    if (value < minValue)
        return minValue;
    return value > maxValue ? maxValue : static_cast<int>(value);
}

// a * b / c to the nearest whole number. One of a and b and also c may have 32 bits, the other one 31.
long long scaled(unsigned long long a, unsigned long long b, unsigned long long c)
{
    return static_cast<long long>((2 * a * b + c) / (2 * c));
}

// Below the smallest number comes the largest.
int oneBelow(int value)
{
    return static_cast<int>(static_cast<unsigned>(value) - 1U);
}

int magnitude(int step)
{
    return std::abs(step < -INT_MAX ? -INT_MAX : step);
}

} // namespace

QRangeControl::QRangeControl() : minVal(0), maxVal(99), line(1), page(10), val(0), prevVal(-1) {}

QRangeControl::QRangeControl(int minValue, int maxValue, int lineStep, int pageStep, int value)
    : minVal(minValue), maxVal(maxValue < minValue ? minValue : maxValue), line(magnitude(lineStep)),
      page(magnitude(pageStep)), val(limited(value, minVal, maxVal)), prevVal(oneBelow(minValue))
{
}

QRangeControl::~QRangeControl() {}

int QRangeControl::bound(int value) const
{
    return limited(value, minVal, maxVal);
}

void QRangeControl::directSetValue(int value)
{
    prevVal = val;
    val = bound(value);
}

void QRangeControl::setValue(int value)
{
    directSetValue(value);
    if (prevVal != val)
        valueChange();
}

void QRangeControl::addPage()
{
    setValue(limited(static_cast<long long>(val) + page, minVal, maxVal));
}

void QRangeControl::subtractPage()
{
    setValue(limited(static_cast<long long>(val) - page, minVal, maxVal));
}

void QRangeControl::addLine()
{
    setValue(limited(static_cast<long long>(val) + line, minVal, maxVal));
}

void QRangeControl::subtractLine()
{
    setValue(limited(static_cast<long long>(val) - line, minVal, maxVal));
}

void QRangeControl::setRange(int minValue, int maxValue)
{
    if (minValue > maxValue) {
        qWarning("QRangeControl::setRange: minValue %d > maxValue %d", minValue, maxValue);
        maxValue = minValue;
    }
    if (minValue == minVal && maxValue == maxVal)
        return;
    minVal = minValue;
    maxVal = maxValue;
    const int nearest = bound(val);
    rangeChange();
    if (nearest != val)
        setValue(nearest);
}

void QRangeControl::setMinValue(int minValue)
{
    setRange(minValue, maxVal < minValue ? minValue : maxVal);
}

void QRangeControl::setMaxValue(int maxValue)
{
    setRange(minVal > maxValue ? maxValue : minVal, maxValue);
}

void QRangeControl::setSteps(int lineStep, int pageStep)
{
    if (lineStep == line && pageStep == page)
        return;
    line = magnitude(lineStep);
    page = magnitude(pageStep);
    stepChange();
}

int QRangeControl::positionFromValue(int value, int space) const
{
    const long long range = static_cast<long long>(maxVal) - minVal;
    if (space <= 0 || value < minVal || range <= 0)
        return 0;
    if (value > maxVal)
        return space;
    const long long above = static_cast<long long>(value) - minVal;
    return static_cast<int>(scaled(static_cast<unsigned long long>(above), static_cast<unsigned>(space),
                                   static_cast<unsigned long long>(range)));
}

int QRangeControl::valueFromPosition(int pos, int space) const
{
    if (space <= 0 || pos <= 0)
        return minVal;
    if (pos >= space)
        return maxVal;
    const long long range = static_cast<long long>(maxVal) - minVal;
    return static_cast<int>(minVal + scaled(static_cast<unsigned>(pos),
                                            static_cast<unsigned long long>(range),
                                            static_cast<unsigned>(space)));
}

void QRangeControl::valueChange() {}

void QRangeControl::rangeChange() {}

void QRangeControl::stepChange() {}
