// The classes of the library, each with a way to make one.
#ifndef TEST_ALLCLASSES_H
#define TEST_ALLCLASSES_H

#include <vector>

class QWidget;

struct NamedClass {
    const char* name;
    QWidget* (*make)(QWidget* parent);
};

const std::vector<NamedClass>& allClasses();

#endif
