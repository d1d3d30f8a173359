// Steps that happen while a modal dialog runs.
#ifndef MONKEY_NESTEDSTEPS_H
#define MONKEY_NESTEDSTEPS_H

#include <qobject.h>

#include <vector>

class QWidget;
struct World;

// Takes a few steps in every event loop that a step begins, then closes its dialog.
class NestedSteps : public QObject
{
public:
    explicit NestedSteps(World& world);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void end(QWidget* modal);
    World& m_world;
    std::vector<int> m_left; // of each loop; -1: not decided
};

#endif
