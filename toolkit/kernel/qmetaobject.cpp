// QMetaObject, and the meta-objects that no compiler writes.
#include <qmetaobject.h>

#include <qobject.h>

#include <map>
#include <string>

namespace
{

std::map<std::string, QMetaObject* (*)()>& classes()
{
    static auto* const all = new std::map<std::string, QMetaObject* (*)()>;
    return *all;
}

// Qt, the name space at the top of every chain, has no signals and slots.
QMetaObject* metaObjectOfQt()
{
    static QMetaObject* const meta =
        new QMetaObject("Qt", nullptr, nullptr, 0, nullptr, 0, nullptr, 0, nullptr, 0, nullptr, 0);
    return meta;
}

int findIn(const QMetaData* table, int count, const char* signature)
{
    for (int i = 0; i < count; ++i)
        if (qstrcmp(table[i].name, signature) == 0)
            return i;
    return -1;
}

} // namespace

QMetaObject::QMetaObject(const char* className, QMetaObject* superClass, const QMetaData* slotData,
                         int slotNumber, const QMetaData* signalData, int signalNumber, const QMetaProperty*,
                         int properties, const QMetaEnum*, int, const QClassInfo*, int infos)
    : name(className), parent(superClass), slotTable(slotData), slotCount(slotNumber),
      signalTable(signalData), signalCount(signalNumber), propertyCount(properties), classInfoCount(infos)
{
}

QMetaObject::~QMetaObject() {}

bool QMetaObject::inherits(const char* className) const
{
    for (const QMetaObject* meta = this; meta; meta = meta->parent)
        if (qstrcmp(meta->name, className) == 0)
            return true;
    return false;
}

int QMetaObject::slotOffset() const
{
    return parent ? parent->numSlots(true) : 0;
}

int QMetaObject::signalOffset() const
{
    return parent ? parent->numSignals(true) : 0;
}

int QMetaObject::numSlots(bool super) const
{
    return slotCount + (super ? slotOffset() : 0);
}

int QMetaObject::numSignals(bool super) const
{
    return signalCount + (super ? signalOffset() : 0);
}

int QMetaObject::numProperties(bool super) const
{
    return propertyCount + (super && parent ? parent->numProperties(true) : 0);
}

int QMetaObject::numClassInfo(bool super) const
{
    return classInfoCount + (super && parent ? parent->numClassInfo(true) : 0);
}

int QMetaObject::findSlot(const char* signature, bool super) const
{
    for (const QMetaObject* meta = this; meta; meta = super ? meta->parent : nullptr) {
        const int index = findIn(meta->slotTable, meta->slotCount, signature);
        if (index >= 0)
            return meta->slotOffset() + index;
    }
    return -1;
}

int QMetaObject::findSignal(const char* signature, bool super) const
{
    for (const QMetaObject* meta = this; meta; meta = super ? meta->parent : nullptr) {
        const int index = findIn(meta->signalTable, meta->signalCount, signature);
        if (index >= 0)
            return meta->signalOffset() + index;
    }
    return -1;
}

const QMetaData* QMetaObject::slot(int index, bool super) const
{
    const int own = index - (super ? slotOffset() : 0);
    if (own >= slotCount || index < 0)
        return nullptr;
    return own >= 0 ? slotTable + own : parent->slot(index, true);
}

const QMetaData* QMetaObject::signal(int index, bool super) const
{
    const int own = index - (super ? signalOffset() : 0);
    if (own >= signalCount || index < 0)
        return nullptr;
    return own >= 0 ? signalTable + own : parent->signal(index, true);
}

QStrList QMetaObject::slotNames(bool super) const
{
    QStrList names(false);
    for (int i = 0; i < numSlots(super); ++i)
        names.append(slot(i, super)->name);
    return names;
}

QStrList QMetaObject::signalNames(bool super) const
{
    QStrList names(false);
    for (int i = 0; i < numSignals(super); ++i)
        names.append(signal(i, super)->name);
    return names;
}

QMetaObject* QMetaObject::metaObject(const char* className)
{
    const auto found = classes().find(className ? className : "");
    return found == classes().end() ? nullptr : found->second();
}

bool QMetaObject::hasMetaObject(const char* className)
{
    return className && classes().count(className) > 0;
}

QMetaObjectCleanUp::QMetaObjectCleanUp(const char* className, QMetaObject* (*staticMetaObject)())
    : name(className), reference(nullptr)
{
    classes()[className] = staticMetaObject;
}

QMetaObjectCleanUp::QMetaObjectCleanUp() : name(nullptr), reference(nullptr) {}

QMetaObjectCleanUp::~QMetaObjectCleanUp()
{
    if (name)
        classes().erase(name);
    if (reference) {
        delete *reference;
        *reference = nullptr;
    }
}

void QMetaObjectCleanUp::setMetaObject(QMetaObject*& metaObject)
{
    reference = &metaObject;
}

namespace
{

// In the order of the calls in QObject::qt_emit and qt_invoke.
const QMetaData objectSignals[] = {{"destroyed()", QMetaData::Public},
                                   {"destroyed(QObject*)", QMetaData::Public}};
const QMetaData objectSlots[] = {{"deleteLater()", QMetaData::Public},
                                 {"cleanupEventFilter(QObject*)", QMetaData::Private}};

} // namespace

QMetaObject* QObject::staticMetaObject()
{
    // Its one property is the name. Objects may outlive everything else, so it is never deleted.
    static QMetaObject* const meta = new QMetaObject("QObject", metaObjectOfQt(), objectSlots, 2,
                                                     objectSignals, 2, nullptr, 1, nullptr, 0, nullptr, 0);
    return meta;
}

QMetaObject* QObject::metaObject() const
{
    return staticMetaObject();
}

const char* QObject::className() const
{
    return "QObject";
}

void* QObject::qt_cast(const char* className)
{
    return qstrcmp(className, "QObject") == 0 ? this : nullptr;
}

QString QObject::tr(const char* text, const char* comment)
{
    return zeltk::translated(staticMetaObject(), text, comment, false);
}

QString QObject::trUtf8(const char* text, const char* comment)
{
    return zeltk::translated(staticMetaObject(), text, comment, true);
}

void QObject::destroyed()
{
    activate_signal(0);
}

void QObject::destroyed(QObject* object)
{
    QUObject argument = {&object};
    activate_signal(receivers(1), &argument);
}

bool QObject::qt_emit(int id, QUObject* arguments)
{
    if (id == 0)
        destroyed();
    else if (id == 1)
        destroyed(*static_cast<QObject* const*>(arguments[0].value));
    return id == 0 || id == 1;
}

bool QObject::qt_invoke(int id, QUObject* arguments)
{
    if (id == 0)
        deleteLater();
    else if (id == 1)
        cleanupEventFilter(*static_cast<QObject* const*>(arguments[0].value));
    return id == 0 || id == 1;
}
