// QChar: what the Unicode tables of the C library know.
#include <qstring.h>

#include <clocale>
#include <cwctype>
#include <locale.h>
#include <wctype.h>

const QChar QChar::null;
const QChar QChar::replacement(0xfffd);
const QChar QChar::byteOrderMark(0xfeff);
const QChar QChar::byteOrderSwapped(0xfffe);
const QChar QChar::nbsp(0x00a0);

namespace
{

// The Unicode tables of the C library, whatever the program's own locale is.
locale_t unicodeLocale()
{
    static const locale_t locale = [] {
        const locale_t utf8 = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
        return utf8 ? utf8 : newlocale(LC_CTYPE_MASK, "C", nullptr);
    }();
    return locale;
}

bool isAsciiSymbol(ushort code)
{
    switch (code) {
    case '$':
    case '+':
    case '<':
    case '=':
    case '>':
    case '^':
    case '`':
    case '|':
    case '~':
        return true;
    }
    return false;
}

} // namespace

bool QChar::isPrint() const
{
    return iswprint_l(ucs, unicodeLocale()) != 0;
}

bool QChar::isPunct() const
{
    return iswpunct_l(ucs, unicodeLocale()) != 0 && !isAsciiSymbol(ucs);
}

bool QChar::isSymbol() const
{
    return ucs < 0x80 ? isAsciiSymbol(ucs) : iswpunct_l(ucs, unicodeLocale()) != 0;
}

bool QChar::isSpace() const
{
    return (ucs >= 9 && ucs <= 13) || ucs == 0xa0 || iswspace_l(ucs, unicodeLocale()) != 0;
}

bool QChar::isMark() const
{
    const locale_t before = uselocale(unicodeLocale());
    const bool takesNoRoom = wcwidth(ucs) == 0;
    uselocale(before);
    return takesNoRoom && ucs >= 0x300;
}

bool QChar::isLetter() const
{
    return iswalpha_l(ucs, unicodeLocale()) != 0 && !isDigit();
}

bool QChar::isDigit() const
{
    return digitValue() >= 0;
}

bool QChar::isNumber() const
{
    return isDigit() || ucs == 0xb2 || ucs == 0xb3 || ucs == 0xb9 || (ucs >= 0xbc && ucs <= 0xbe) ||
           (ucs >= 0x2150 && ucs <= 0x218b) || (ucs >= 0x2460 && ucs <= 0x249b);
}

bool QChar::isLetterOrNumber() const
{
    return isLetter() || isNumber();
}

int QChar::digitValue() const
{
    // The zeros of the scripts whose ten digits follow each other.
    static const ushort zeros[] = {'0',    0x0660, 0x06f0, 0x0966, 0x09e6, 0x0a66, 0x0ae6, 0x0b66,
                                   0x0c66, 0x0ce6, 0x0d66, 0x0e50, 0x0ed0, 0x0f20, 0x1040, 0xff10};
    for (const ushort zero : zeros)
        if (ucs >= zero && ucs <= zero + 9)
            return ucs - zero;
    return -1;
}

QChar QChar::lower() const
{
    return QChar(static_cast<ushort>(towlower_l(ucs, unicodeLocale())));
}

QChar QChar::upper() const
{
    const wint_t upper = towupper_l(ucs, unicodeLocale());
    return QChar(static_cast<ushort>(upper > 0xffff ? ucs : upper));
}
