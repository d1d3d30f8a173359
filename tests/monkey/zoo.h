// Every kind of widget that the monkey can make.
#ifndef MONKEY_ZOO_H
#define MONKEY_ZOO_H

struct World;
class QWidget;

// One of any kind, in this parent (null: a window of its own, if the kind can be one).
QWidget* makeAny(World& world, QWidget* parent);

#endif
