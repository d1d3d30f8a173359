#include "world.h"

#include "saboteur.h"
#include "xinput.h"

#include <qapplication.h>

#include <algorithm>

std::vector<QWidget*> World::widgets()
{
    m_widgets.erase(std::remove_if(m_widgets.begin(), m_widgets.end(),
                                   [](const QGuardedPtr<QWidget>& w) { return w.isNull(); }),
                    m_widgets.end());
    return std::vector<QWidget*>(m_widgets.begin(), m_widgets.end());
}

void World::add(QWidget* widget)
{
    m_widgets.push_back(QGuardedPtr<QWidget>(widget));
    saboteur->watch(widget);
}

QWidget* World::pick(const char* className)
{
    std::vector<QWidget*> fitting;
    for (QWidget* widget : widgets())
        if (widget->inherits(className))
            fitting.push_back(widget);
    return fitting.empty()
               ? nullptr
               : fitting[static_cast<std::size_t>(random.below(static_cast<int>(fitting.size())))];
}

static const std::vector<Action>& allActions()
{
    static const std::vector<Action> all = [] {
        std::vector<Action> list;
        for (const auto* part :
             {&lifeActions, &inputActions, &sentActions, &lookActions, &windowActions, &classActions})
            list.insert(list.end(), part->begin(), part->end());
        return list;
    }();
    return all;
}

static const Action& choose(Random& random)
{
    static const int total = [] {
        int sum = 0;
        for (const Action& action : allActions())
            sum += action.weight;
        return sum;
    }();
    int ticket = random.below(total);
    for (const Action& action : allActions()) {
        ticket -= action.weight;
        if (ticket < 0)
            return action;
    }
    return allActions().back();
}

// Widgets are painted on pictures of their own size. The server is not asked for gigabytes of them.
static void tame(World& world)
{
    const double mostPixels = 4e6;
    for (QWidget* widget : world.widgets())
        if (1.0 * widget->width() * widget->height() > mostPixels) {
            widget->setMinimumSize(0, 0);
            widget->setMaximumSize(1000, 1000);
        }
}

void act(World& world)
{
    const Action& action = choose(world.random);
    QWidget* target = action.className ? world.pick(action.className) : nullptr;
    world.note(std::string("[") + action.name);
    if (target)
        world.note(std::string(target->className()) + " " + target->name());
    if (target || !action.className) {
        ++world.depth;
        action.run(world, target);
        tame(world);
        --world.depth;
    }
    world.random.trace += "]";
}

// Each round carries the program's requests to the server and the answers back; a widget that causes new
// events for ever is found by the watchdog.
void drain()
{
    int quiet = 0;
    while (quiet < 2) {
        QApplication::syncX();
        xinput::sync();
        quiet = qApp->hasPendingEvents() ? 0 : quiet + 1;
        qApp->processEvents();
    }
}
