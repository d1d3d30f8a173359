#include "world.h"

#include "saboteur.h"
#include "witness.h"

#include <qapplication.h>
#include <qobjectlist.h>
#include <qwidgetlist.h>

#include <algorithm>

static std::vector<QWidget*> partsOf(QWidget* widget)
{
    std::vector<QWidget*> parts;
    QObjectList* all = widget->queryList("QWidget");
    for (QObjectListIt it(*all); it.current(); ++it)
        parts.push_back(static_cast<QWidget*>(it.current()));
    delete all;
    return parts;
}

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
    witness->meet(widget);
    saboteur->watch(widget);
    if (widget->inherits("QDialog"))
        for (QObject* part : partsOf(widget))
            saboteur->watch(part);
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

QWidget* World::partOf(QWidget* widget)
{
    if (!random.chance(30))
        return widget;
    const std::vector<QWidget*> parts = partsOf(widget);
    if (parts.empty())
        return widget;
    QWidget* const part = parts[static_cast<std::size_t>(random.below(static_cast<int>(parts.size())))];
    note(std::string("part ") + part->className() + " " + part->name());
    return part;
}

QWidget* World::ownerOf(QWidget* widget)
{
    const std::vector<QWidget*> all = widgets();
    while (widget && std::find(all.begin(), all.end(), widget) == all.end())
        widget = widget->parentWidget();
    return widget;
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

// Widgets are painted on pictures of their own size. The server is not asked for gigabytes of them, neither
// for those of the toolkit's own children.
static void tame()
{
    const double mostPixels = 4e6;
    std::vector<QGuardedPtr<QWidget>> tooLarge;
    QWidgetList* all = QApplication::allWidgets();
    for (QWidgetListIt it(*all); it.current(); ++it)
        if (1.0 * it.current()->width() * it.current()->height() > mostPixels)
            tooLarge.emplace_back(it.current());
    delete all;
    for (const QGuardedPtr<QWidget>& widget : tooLarge) {
        if (widget)
            widget->setMinimumSize(0, 0);
        if (widget)
            widget->setMaximumSize(1000, 1000);
        if (widget) // whose largest size was this one before
            widget->resize(widget->size().boundedTo(widget->maximumSize()));
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
        tame();
        --world.depth;
    }
    world.random.trace += "]";
}
