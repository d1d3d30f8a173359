#ifndef TOGGLES_H
#define TOGGLES_H

#include <qobject.h>

class ZelLabel;

// Counts how often a label was switched on and off.
class Toggles : public QObject
{
    Q_OBJECT

public:
    Toggles() : on(0), off(0) {}

    int on, off;

public slots:
    void count(ZelLabel* label);
};

#endif
