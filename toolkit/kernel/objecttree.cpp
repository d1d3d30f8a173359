// QObject: parents and children.
#include "kernel/objecttree.h"

#include "kernel/applicationprivate.h"
#include "kernel/objectdata.h"
#include "tools/regexp.h"

#include <qapplication.h>
#include <qevent.h>
#include <qobjectlist.h>

namespace
{

QObjectList* trees()
{
    static QObjectList* const list = new QObjectList;
    return list;
}

struct Query {
    const char* className;
    const char* name;
    bool regexp;
    bool recursive;

    bool matches(const QObject* object) const
    {
        if (className && !object->inherits(className))
            return false;
        if (!name)
            return true;
        return regexp ? zeltk::matchesRegExp(name, object->name()) : qstrcmp(object->name(), name) == 0;
    }
};

// The child and its siblings; null without a parent.
QObjectList* familyOf(const QObject* child)
{
    return child->parent() ? zeltk::dataOf(child->parent())->children : nullptr;
}

void search(const QObject* object, const Query& query, QObjectList* found)
{
    if (!object->children())
        return;
    for (QObjectListIterator it(*object->children()); it.current(); ++it) {
        if (query.matches(it.current()))
            found->append(it.current());
        if (query.recursive)
            search(it.current(), query, found);
    }
}

} // namespace

namespace zeltk
{

void addToTrees(QObject* object)
{
    trees()->append(object);
}

void removeFromTrees(QObject* object)
{
    trees()->removeRef(object);
}

void moveToFront(QObject* child)
{
    QObjectList* const siblings = familyOf(child);
    if (siblings && siblings->removeRef(child))
        siblings->append(child);
}

void moveToBack(QObject* child)
{
    QObjectList* const siblings = familyOf(child);
    if (siblings && siblings->removeRef(child))
        siblings->prepend(child);
}

void moveBefore(QObject* child, QObject* sibling)
{
    QObjectList* const siblings = familyOf(child);
    if (siblings && siblings->removeRef(child))
        siblings->insert(static_cast<uint>(siblings->findRef(sibling)), child);
}

void deleteChildren(QObject* object)
{
    ObjectData* data = dataOf(object);
    while (data->children && data->children->getFirst()) {
        QObject* child = data->children->getFirst();
        data->children->removeFirst();
        dataOf(child)->parent = nullptr;
        delete child;
    }
    delete data->children;
    data->children = nullptr;
}

} // namespace zeltk

QObject* QObject::parent() const
{
    return d->parent;
}

const QObjectList* QObject::children() const
{
    return d->children;
}

const QObjectList* QObject::objectTrees()
{
    return trees();
}

void QObject::insertChild(QObject* child)
{
    if (child->d->parent == this) {
        qWarning("QObject::insertChild: Object %s::%s already in list", child->className(), child->name());
        return;
    }
    for (const QObject* outer = this; outer; outer = outer->d->parent)
        if (outer == child) {
            qWarning("QObject::insertChild: %s::%s cannot be inside itself", child->className(),
                     child->name());
            return;
        }
    if (QObject* const before = child->d->parent) {
        const zeltk::ObjectGuard alive(this);
        const zeltk::ObjectGuard moving(child);
        before->removeChild(child);
        if (!alive.object() || !moving.object() || child->d->parent)
            return; // who heard of it thought otherwise
    }
    zeltk::removeFromTrees(child);
    if (!d->children)
        d->children = new QObjectList;
    d->children->append(child);
    child->d->parent = this;
    if (qApp)
        QApplication::postEvent(this, new QChildEvent(QEvent::ChildInserted, child));
}

void QObject::removeChild(QObject* child)
{
    if (!d->children || !d->children->removeRef(child))
        return;
    if (d->children->isEmpty()) {
        delete d->children;
        d->children = nullptr;
    }
    child->d->parent = nullptr;
    if (!child->d->dying)
        zeltk::addToTrees(child);
    zeltk::removePostedChildEvents(this, child);
    QChildEvent event(QEvent::ChildRemoved, child);
    QApplication::sendEvent(this, &event);
}

QObject* QObject::child(const char* objName, const char* inheritsClass, bool recursiveSearch)
{
    QObjectList* found = queryList(inheritsClass, objName, false, recursiveSearch);
    QObject* first = found->getFirst();
    delete found;
    return first;
}

QObjectList* QObject::queryList(const char* inheritsClass, const char* objName, bool regexpMatch,
                                bool recursiveSearch) const
{
    QObjectList* found = new QObjectList;
    search(this, {inheritsClass, objName, regexpMatch, recursiveSearch}, found);
    return found;
}
