// What is known of classes while the program runs.
#ifndef QMETAOBJECT_H
#define QMETAOBJECT_H

#include <qobjectdefs.h>
#include <qstrlist.h>

class QObject;
class QMetaProperty;
struct QMetaEnum;
struct QClassInfo;

//! One signal or slot.
struct QMetaData {
    enum Access { Private, Protected, Public };
    const char* name; // as in "number(int)"
    Access access;
};

//! Signals and slots are numbered from the first class of the chain on; each class begins at its offset.
//! `super`: whether the classes above count too.
class Q_EXPORT QMetaObject
{
public:
    QMetaObject(const char* className, QMetaObject* superClass, const QMetaData* slotData, int slotCount,
                const QMetaData* signalData, int signalCount, const QMetaProperty* properties,
                int propertyCount, const QMetaEnum* enums, int enumCount, const QClassInfo* classInfo,
                int classInfoCount);
    virtual ~QMetaObject();

    const char* className() const { return name; }
    const char* superClassName() const { return parent ? parent->name : 0; }
    QMetaObject* superClass() const { return parent; }
    bool inherits(const char* className) const;

    int numSlots(bool super = false) const;
    int numSignals(bool super = false) const;
    //! The number of the signal or slot of that normalised form; -1 if there is none.
    int findSlot(const char* signature, bool super = false) const;
    int findSignal(const char* signature, bool super = false) const;
    const QMetaData* slot(int index, bool super = false) const;
    const QMetaData* signal(int index, bool super = false) const;
    QStrList slotNames(bool super = false) const;
    QStrList signalNames(bool super = false) const;
    int slotOffset() const;
    int signalOffset() const;

    int numProperties(bool super = false) const;
    int numClassInfo(bool super = false) const;

    static QMetaObject* metaObject(const char* className);
    static bool hasMetaObject(const char* className);

private:
    const char* name;
    QMetaObject* parent;
    const QMetaData* slotTable;
    int slotCount;
    const QMetaData* signalTable;
    int signalCount;
    int propertyCount;
    int classInfoCount;

    QMetaObject(const QMetaObject&);
    QMetaObject& operator=(const QMetaObject&);
};

//! Makes a class known by name, and takes its meta-object away with the library that it came with.
class Q_EXPORT QMetaObjectCleanUp
{
public:
    QMetaObjectCleanUp(const char* className, QMetaObject* (*staticMetaObject)());
    QMetaObjectCleanUp();
    ~QMetaObjectCleanUp();
    void setMetaObject(QMetaObject*& metaObject);

private:
    const char* name;
    QMetaObject** reference;

    QMetaObjectCleanUp(const QMetaObjectCleanUp&);
    QMetaObjectCleanUp& operator=(const QMetaObjectCleanUp&);
};

#endif
