// What strings share.
#ifndef ZELTK_STRINGDATA_H
#define ZELTK_STRINGDATA_H

#include <string>

namespace zeltk
{

struct StringData {
    int references;
    bool isNull;
    std::u16string text;
    bool hasLatin1; // `latin1` belongs to the present text
    std::string latin1;
};

} // namespace zeltk

#endif
