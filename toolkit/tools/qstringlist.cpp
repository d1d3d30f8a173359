// QStringList.
#include <qstringlist.h>

#include <qstrlist.h>

QStringList QStringList::fromStrList(const QStrList& list)
{
    QStringList result;
    for (QStrListIterator it(list); it.current(); ++it)
        result << QString(it.current());
    return result;
}

void QStringList::sort()
{
    items().sort();
}

QStringList QStringList::split(const QChar& separator, const QString& text, bool allowEmptyEntries)
{
    return split(QString(separator), text, allowEmptyEntries);
}

// Without a separator, or in an empty text, there is nothing to split: the whole is the only part.
QStringList QStringList::split(const QString& separator, const QString& text, bool allowEmptyEntries)
{
    QStringList parts;
    int start = 0;
    for (int end = text.find(separator, start); end >= 0 && !separator.isEmpty();
         end = text.find(separator, start)) {
        if (allowEmptyEntries || end > start)
            parts << (end > start ? text.mid(static_cast<uint>(start), static_cast<uint>(end - start))
                                  : QString::null);
        start = end + static_cast<int>(separator.length());
    }
    const QString rest = text.mid(static_cast<uint>(start));
    if (!rest.isEmpty() || (allowEmptyEntries && !text.isNull()))
        parts << rest;
    return parts;
}

QString QStringList::join(const QString& separator) const
{
    QString result;
    for (ConstIterator it = begin(); it != end(); ++it) {
        if (it != begin())
            result += separator;
        result += *it;
    }
    return result;
}

QStringList QStringList::grep(const QString& text, bool caseSensitive) const
{
    QStringList result;
    for (ConstIterator it = begin(); it != end(); ++it)
        if ((*it).find(text, 0, caseSensitive) >= 0)
            result << *it;
    return result;
}

QStringList& QStringList::gres(const QString& before, const QString& after, bool caseSensitive)
{
    for (Iterator it = begin(); it != end(); ++it)
        (*it).replace(before, after, caseSensitive);
    return *this;
}
