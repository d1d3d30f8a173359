// QValidator and the validators of numbers.
#include <qvalidator.h>

#include <limits.h>

#include <cmath>

namespace
{

// Whether only blanks, a minus and, if it may be there, a point have been typed.
bool isBeginning(const QString& input, bool mayHavePoint)
{
    const QString text = input.stripWhiteSpace();
    return text.isEmpty() || text == "-" || (mayHavePoint && (text == "." || text == "-."));
}

int decimalsOf(const QString& input)
{
    const int point = input.find('.');
    if (point < 0)
        return 0;
    uint end = static_cast<uint>(point) + 1;
    while (end < input.length() && input.at(end).isDigit())
        ++end;
    return static_cast<int>(end) - point - 1;
}

// The place where an exponent begins that ends the text and may still be incomplete; -1 if there is none.
int exponentPlace(const QString& input)
{
    int place = static_cast<int>(input.length()) - 1;
    while (place >= 0 && input.at(static_cast<uint>(place)).isDigit())
        --place;
    if (place >= 0 &&
        (input.at(static_cast<uint>(place)) == '+' || input.at(static_cast<uint>(place)) == '-'))
        --place;
    return place >= 0 && input.at(static_cast<uint>(place)).lower() == 'e' ? place : -1;
}

} // namespace

QValidator::QValidator(QObject* parent, const char* name) : QObject(parent, name) {}

QValidator::~QValidator() {}

void QValidator::fixup(QString&) const {}

QIntValidator::QIntValidator(QObject* parent, const char* name)
    : QValidator(parent, name), b(INT_MIN), t(INT_MAX)
{
}

QIntValidator::QIntValidator(int bottom, int top, QObject* parent, const char* name)
    : QValidator(parent, name), b(bottom), t(top)
{
}

QIntValidator::~QIntValidator() {}

QValidator::State QIntValidator::validate(QString& input, int&) const
{
    if (isBeginning(input, false))
        return b >= 0 && input.find('-') >= 0 ? Invalid : Intermediate;
    bool ok = false;
    const int number = input.toInt(&ok);
    if (!ok)
        return Invalid;
    if (number >= b && number <= t)
        return Acceptable;
    const bool beyond = number >= 0 ? number > t : number < b;
    return beyond ? Invalid : Intermediate;
}

void QIntValidator::setRange(int bottom, int top)
{
    b = bottom;
    t = top;
}

void QIntValidator::setBottom(int bottom)
{
    setRange(bottom, top());
}

void QIntValidator::setTop(int top)
{
    setRange(bottom(), top);
}

QDoubleValidator::QDoubleValidator(QObject* parent, const char* name)
    : QValidator(parent, name), b(-HUGE_VAL), t(HUGE_VAL), d(1000)
{
}

QDoubleValidator::QDoubleValidator(double bottom, double top, int decimals, QObject* parent, const char* name)
    : QValidator(parent, name), b(bottom), t(top), d(decimals)
{
}

QDoubleValidator::~QDoubleValidator() {}

QValidator::State QDoubleValidator::validate(QString& input, int&) const
{
    if (isBeginning(input, true))
        return b >= 0 && input.find('-') >= 0 ? Invalid : Intermediate;
    bool ok = false;
    double number = input.toDouble(&ok);
    if (!ok || (std::isinf(number) && exponentPlace(input) > 0)) {
        const int exponent = exponentPlace(input);
        if (exponent == 0)
            return Intermediate;
        if (exponent > 0)
            number = input.left(static_cast<uint>(exponent)).toDouble(&ok);
        if (!ok)
            return Invalid;
    }
    if (b >= 0 && input.stripWhiteSpace().startsWith("-"))
        return Invalid;
    if (decimalsOf(input) > d)
        return Intermediate;
    return number < b || number > t ? Intermediate : Acceptable;
}

void QDoubleValidator::setRange(double bottom, double top, int decimals)
{
    b = bottom;
    t = top;
    d = decimals;
}

void QDoubleValidator::setBottom(double bottom)
{
    setRange(bottom, top(), decimals());
}

void QDoubleValidator::setTop(double top)
{
    setRange(bottom(), top, decimals());
}

void QDoubleValidator::setDecimals(int decimals)
{
    setRange(bottom(), top(), decimals);
}
