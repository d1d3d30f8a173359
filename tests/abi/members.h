// What a compiled program knows of the classes of zelkit, from their headers.
#ifndef MEMBERS_H
#define MEMBERS_H

#include <cstddef>
#include <vector>

class QMetaObject;

struct Member {
    const char* name;
    std::size_t offset;
    std::size_t size;
};

struct Class {
    const char* name;
    const char* base;
    std::size_t size;
    std::size_t baseSize;
    const QMetaObject* metaObject;
    std::vector<Member> members;
};

std::vector<Class> allClasses();

#endif
