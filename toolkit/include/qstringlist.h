// Lists of strings.
#ifndef QSTRINGLIST_H
#define QSTRINGLIST_H

#include <qstring.h>
#include <qvaluelist.h>

class QStrList;

class Q_EXPORT QStringList : public QValueList<QString>
{
public:
    QStringList() {}
    QStringList(const QStringList& other) : QValueList<QString>(other) {}
    QStringList(const QValueList<QString>& other) : QValueList<QString>(other) {}
    QStringList(const QString& single) { append(single); }
    QStringList(const char* single) { append(QString(single)); }
    QStringList& operator=(const QStringList& other)
    {
        QValueList<QString>::operator=(other);
        return *this;
    }

    static QStringList fromStrList(const QStrList& list);
    //! By the codes of the characters.
    void sort();
    //! The parts between separators; empty parts are left out unless they are asked for.
    static QStringList split(const QString& separator, const QString& text, bool allowEmptyEntries = false);
    static QStringList split(const QChar& separator, const QString& text, bool allowEmptyEntries = false);
    QString join(const QString& separator) const;
    //! The strings that contain the text.
    QStringList grep(const QString& text, bool caseSensitive = true) const;
    //! Replaces the text in all strings.
    QStringList& gres(const QString& before, const QString& after, bool caseSensitive = true);
};

#endif
