// QTranslator and its messages.
#include <qtranslator.h>

#include <qapplication.h>

#include <set>
#include <tuple>

namespace zeltk
{

struct TranslatorData {
    std::set<QTranslatorMessage> messages;
};

} // namespace zeltk

namespace
{

// The hash function of the ELF file format, over source text and comment.
uint elfHash(const char* sourceText, const char* comment)
{
    uint hash = 0;
    for (const char* text : {sourceText, comment}) {
        for (; text && *text; ++text) {
            hash = (hash << 4) + static_cast<uchar>(*text);
            const uint high = hash & 0xf0000000;
            hash ^= high >> 24;
            hash &= ~high;
        }
    }
    return hash ? hash : 1;
}

const char* orEmpty(const char* text)
{
    return text ? text : "";
}

} // namespace

QTranslatorMessage::QTranslatorMessage() : h(0) {}

QTranslatorMessage::QTranslatorMessage(const char* context, const char* sourceText, const char* comment,
                                       const QString& translation)
    : h(elfHash(sourceText, comment)), cx(orEmpty(context)), st(orEmpty(sourceText)), cm(orEmpty(comment)),
      tn(translation)
{
}

QTranslatorMessage::QTranslatorMessage(const QTranslatorMessage& other)
    : h(other.h), cx(other.cx), st(other.st), cm(other.cm), tn(other.tn)
{
}

QTranslatorMessage& QTranslatorMessage::operator=(const QTranslatorMessage& other)
{
    h = other.h;
    cx = other.cx;
    st = other.st;
    cm = other.cm;
    tn = other.tn;
    return *this;
}

bool QTranslatorMessage::operator==(const QTranslatorMessage& other) const
{
    return h == other.h && cx == other.cx && st == other.st && cm == other.cm;
}

bool QTranslatorMessage::operator<(const QTranslatorMessage& other) const
{
    return std::tie(h, cx, st, cm) < std::tie(other.h, other.cx, other.st, other.cm);
}

QTranslator::QTranslator(QObject* parent, const char* name)
    : QObject(parent, name), d(new zeltk::TranslatorData)
{
}

QTranslator::~QTranslator()
{
    if (qApp)
        qApp->removeTranslator(this);
    delete d;
}

QTranslatorMessage QTranslator::findMessage(const char* context, const char* sourceText,
                                            const char* comment) const
{
    for (const char* wanted : {orEmpty(comment), ""}) {
        const auto found = d->messages.find(QTranslatorMessage(context, sourceText, wanted));
        if (found != d->messages.end())
            return *found;
    }
    return QTranslatorMessage();
}

void QTranslator::clear()
{
    d->messages.clear();
}

void QTranslator::insert(const QTranslatorMessage& message)
{
    d->messages.erase(message);
    d->messages.insert(message);
}

void QTranslator::remove(const QTranslatorMessage& message)
{
    d->messages.erase(message);
}

bool QTranslator::isEmpty() const
{
    return d->messages.empty();
}

QValueList<QTranslatorMessage> QTranslator::messages() const
{
    QValueList<QTranslatorMessage> list;
    for (const QTranslatorMessage& message : d->messages)
        list.append(message);
    return list;
}
