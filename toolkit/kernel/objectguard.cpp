// Pointers that become null when their object dies.
#include "kernel/objectdata.h"

#include <algorithm>

namespace zeltk
{

ObjectGuard::ObjectGuard(QObject* object) : watched(nullptr)
{
    watch(object);
}

ObjectGuard::ObjectGuard(const ObjectGuard& other) : watched(nullptr)
{
    watch(other.watched);
}

ObjectGuard::~ObjectGuard()
{
    watch(nullptr);
}

ObjectGuard& ObjectGuard::operator=(const ObjectGuard& other)
{
    watch(other.watched);
    return *this;
}

void ObjectGuard::watch(QObject* object)
{
    if (watched)
        ObjectAccess::removeGuard(this);
    watched = object;
    if (watched)
        ObjectAccess::addGuard(this);
}

void ObjectAccess::addGuard(ObjectGuard* guard)
{
    dataOf(guard->watched)->guards.push_back(guard);
}

void ObjectAccess::removeGuard(ObjectGuard* guard)
{
    std::vector<ObjectGuard*>& guards = dataOf(guard->watched)->guards;
    guards.erase(std::find(guards.begin(), guards.end(), guard));
}

} // namespace zeltk
