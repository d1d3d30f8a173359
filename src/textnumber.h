// Numbers in texts that a user may have typed.
#ifndef TEXTNUMBER_H
#define TEXTNUMBER_H

#include <qstring.h>

#include <limits.h>
#include <stdlib.h>

// The number that a text begins with; 0 if it begins with none. What is too long is the largest or smallest
// int.
inline int leadingNumber(const QString& text)
{
    const char* const digits = text.ascii();
    const long value = digits ? strtol(digits, 0, 10) : 0;
    return value > INT_MAX ? INT_MAX : value < INT_MIN ? INT_MIN : (int)value;
}

#endif
