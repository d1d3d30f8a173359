// What the meta-object compiler and its users agree upon.
#ifndef QOBJECTDEFS_H
#define QOBJECTDEFS_H

#include <qglobal.h>

class QMetaObject;
class QMetaObjectCleanUp;
class QObject;
class QString;

//! One argument of a signal on its way to a slot.
struct QUObject {
    const void* value;
};

namespace zeltk
{
// The class's text in the user's language, as the application's translators have it.
Q_EXPORT QString translated(const QMetaObject* context, const char* text, const char* comment, bool utf8);
} // namespace zeltk

#define slots
#define signals protected
#define emit
#define Q_SLOTS
#define Q_SIGNALS protected
#define Q_EMIT

#define METHOD(a) "0" #a
#define SLOT(a) "1" #a
#define SIGNAL(a) "2" #a

//! Stands first in every class that has signals or slots, or that wants a name of its own.
#define Q_OBJECT                                                                                             \
public:                                                                                                      \
    virtual QMetaObject* metaObject() const;                                                                 \
    virtual const char* className() const;                                                                   \
    virtual void* qt_cast(const char* className);                                                            \
    virtual bool qt_invoke(int id, QUObject* arguments);                                                     \
    virtual bool qt_emit(int id, QUObject* arguments);                                                       \
    static QMetaObject* staticMetaObject();                                                                  \
    QObject* qObject()                                                                                       \
    {                                                                                                        \
        return this;                                                                                         \
    }                                                                                                        \
    static QString tr(const char* text, const char* comment = 0)                                             \
    {                                                                                                        \
        return zeltk::translated(staticMetaObject(), text, comment, false);                                  \
    }                                                                                                        \
    static QString trUtf8(const char* text, const char* comment = 0)                                         \
    {                                                                                                        \
        return zeltk::translated(staticMetaObject(), text, comment, true);                                   \
    }                                                                                                        \
                                                                                                             \
private:                                                                                                     \
    static QMetaObject* metaObj;                                                                             \
    static QMetaObjectCleanUp metaCleanUp;

#define Q_PROPERTY(text)
#define Q_OVERRIDE(text)
#define Q_ENUMS(x)
#define Q_SETS(x)
#define Q_CLASSINFO(name, value)

#endif
