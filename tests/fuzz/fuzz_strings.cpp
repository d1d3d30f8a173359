// Conversions of strings: from bytes of any kind, to numbers, and back.
#include <qcstring.h>
#include <qstring.h>
#include <qstringlist.h>

#include <cstdint>
#include <cstdlib>

namespace
{

void check(bool condition)
{
    if (!condition)
        std::abort();
}

// arg() complains of what it cannot place.
void ignoreMessages(QtMsgType, const char*) {}

// What was read from well-formed text is written as it was.
void roundTrips(const QString& s)
{
    check(QString::fromUtf8(s.utf8()).length() <= s.length() + 1);
    const QString again = QString::fromUtf8(s.utf8());
    check(QString::fromUtf8(again.utf8()) == again);
    check(QString::fromLatin1(s.latin1() ? s.latin1() : "").length() <= s.length());
}

void numbers(const QString& s)
{
    bool ok = false;
    const int base = 2 + static_cast<int>(s.length() % 35);
    const int value = s.toInt(&ok, base);
    if (ok && (value >= 0 || base == 10)) // negative ones are not written in other bases
        check(QString::number(value, base).toInt(&ok, base) == value && ok);
    s.toUInt(&ok, base);
    s.toShort(&ok);
    s.toLong(&ok);
    const double real = s.toDouble(&ok);
    if (ok && real == real)
        check(QString::number(real, 'g', 17).toDouble(&ok) == real && ok);
}

void edits(QString s)
{
    const uint middle = s.length() / 2;
    const QString other = s.mid(middle);
    check(s.left(middle) + other == s || s.isNull());
    check(s.upper().length() == s.length() && s.lower().length() == s.length());
    check(s.stripWhiteSpace().length() <= s.length());
    check(s.simplifyWhiteSpace().length() <= s.length());
    check(s.isEmpty() || s.find(other) >= 0);
    s.replace(static_cast<int>(middle), 3, "abc");
    s.insert(middle, other);
    s.remove(static_cast<int>(middle), 2);
    s.truncate(middle);
    QStringList::split(QChar(','), other, true);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    qInstallMsgHandler(ignoreMessages);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    for (const QString& s :
         {QString::fromUtf8(bytes.data(), static_cast<int>(size)),
          QString::fromLatin1(bytes.data(), static_cast<int>(size)), QString::fromLocal8Bit(bytes.c_str())}) {
        roundTrips(s);
        numbers(s);
        edits(s);
        s.arg(7).arg("text", 5).arg(1.5, 0, 'f', 2).length();
    }
    const QCString text(bytes.c_str());
    text.toInt();
    text.toDouble();
    text.stripWhiteSpace();
    return 0;
}
