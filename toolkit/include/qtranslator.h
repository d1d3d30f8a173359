// Texts in the user's language.
#ifndef QTRANSLATOR_H
#define QTRANSLATOR_H

#include <qobject.h>
#include <qvaluelist.h>

namespace zeltk
{
struct TranslatorData;
}

//! One text in its context, and its translation.
class Q_EXPORT QTranslatorMessage
{
public:
    QTranslatorMessage();
    QTranslatorMessage(const char* context, const char* sourceText, const char* comment,
                       const QString& translation = QString::null);
    QTranslatorMessage(const QTranslatorMessage& other);
    QTranslatorMessage& operator=(const QTranslatorMessage& other);

    //! A number made from source text and comment.
    uint hash() const { return h; }
    const char* context() const { return cx.data(); }
    const char* sourceText() const { return st.data(); }
    const char* comment() const { return cm.data(); }
    void setTranslation(const QString& translation) { tn = translation; }
    QString translation() const { return tn; }

    //! Translations do not count in comparisons.
    bool operator==(const QTranslatorMessage& other) const;
    bool operator!=(const QTranslatorMessage& other) const { return !(*this == other); }
    bool operator<(const QTranslatorMessage& other) const;
    bool operator<=(const QTranslatorMessage& other) const { return !(other < *this); }
    bool operator>(const QTranslatorMessage& other) const { return other < *this; }
    bool operator>=(const QTranslatorMessage& other) const { return !(*this < other); }

private:
    uint h;
    QCString cx;
    QCString st;
    QCString cm;
    QString tn;
};

//! A book of translations that an application installs.
class Q_EXPORT QTranslator : public QObject
{
    Q_OBJECT

public:
    QTranslator(QObject* parent = 0, const char* name = 0);
    ~QTranslator();

    //! The translation, null if there is none. An entry without comment serves every comment.
    QString find(const char* context, const char* sourceText, const char* comment = 0) const
    {
        return findMessage(context, sourceText, comment).translation();
    }
    virtual QTranslatorMessage findMessage(const char* context, const char* sourceText,
                                           const char* comment) const;

    void clear();
    void insert(const QTranslatorMessage& message);
    void insert(const char* context, const char* sourceText, const QString& translation)
    {
        insert(QTranslatorMessage(context, sourceText, "", translation));
    }
    void remove(const QTranslatorMessage& message);
    void remove(const char* context, const char* sourceText)
    {
        remove(QTranslatorMessage(context, sourceText, ""));
    }
    bool contains(const char* context, const char* sourceText, const char* comment = 0) const
    {
        return !find(context, sourceText, comment).isNull();
    }
    bool isEmpty() const;
    QValueList<QTranslatorMessage> messages() const;

private:
    zeltk::TranslatorData* d;

    QTranslator(const QTranslator&);
    QTranslator& operator=(const QTranslator&);
};

#endif
