// What the monkey plays with.
#ifndef MONKEY_WORLD_H
#define MONKEY_WORLD_H

#include "random.h"

#include <qguardedptr.h>
#include <qwidget.h>

#include <string>
#include <vector>

class Saboteur;
class Witness;

struct World {
    Random random; // of this step
    Saboteur* saboteur = nullptr;
    Witness* witness = nullptr;
    int depth = 0; // of actions inside actions

    // The widgets that the monkey made and nobody has deleted; old ones first.
    std::vector<QWidget*> widgets();
    void add(QWidget* widget);
    // One that inherits the class, or null.
    QWidget* pick(const char* className = "QWidget");
    // The widget or, now and then, something inside of it, such as a field of a dialog.
    QWidget* partOf(QWidget* widget);
    // The widget, or the nearest one around it that the monkey made; null: there is none.
    QWidget* ownerOf(QWidget* widget);
    void note(const std::string& text) { random.trace += ' ' + text; }

private:
    std::vector<QGuardedPtr<QWidget>> m_widgets;
};

// Something that the monkey can do. With a class, it is done to a widget of that class; without, to the
// world.
struct Action {
    const char* name;
    int weight;
    const char* className;
    void (*run)(World&, QWidget*);
};

// Whatever it is that happens next.
void act(World& world);
// Handles all events, those of the X server and the posted ones, until none is left.
void drain();

extern const std::vector<Action> lifeActions, inputActions, sentActions, lookActions, windowActions,
    classActions;

#endif
