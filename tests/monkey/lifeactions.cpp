// Births, deaths and moves to another family.
#include "saboteur.h"
#include "world.h"
#include "zoo.h"

#include <qapplication.h>

namespace
{

const int crowd = 36;
const int deepest = 6;

int depthOf(const QWidget* widget)
{
    int depth = 0;
    for (; widget; widget = widget->parentWidget())
        ++depth;
    return depth;
}

bool isAncestor(const QWidget* ancestor, const QWidget* widget)
{
    for (; widget; widget = widget->parentWidget())
        if (widget == ancestor)
            return true;
    return false;
}

void create(World& world, QWidget* parent)
{
    if (static_cast<int>(world.widgets().size()) >= crowd) {
        delete world.pick();
        return;
    }
    if (parent && depthOf(parent) >= deepest)
        parent = nullptr;
    QWidget* widget = makeAny(world, parent);
    if (widget && world.random.chance(60))
        widget->setGeometry(world.random.below(300), world.random.below(200), world.random.between(1, 250),
                            world.random.between(1, 120));
    if (widget && world.random.chance(70))
        widget->show();
}

void createInside(World& world, QWidget*)
{
    create(world, world.pick());
}

void createWindow(World& world, QWidget*)
{
    create(world, nullptr);
}

void remove(World&, QWidget* target)
{
    delete target;
}

void removeLater(World&, QWidget* target)
{
    target->deleteLater();
}

void removeOnClose(World& world, QWidget* target)
{
    target->close(world.random.chance(50));
}

void move(World& world, QWidget* target)
{
    QWidget* parent = world.random.chance(25) ? nullptr : world.pick();
    if (parent && (isAncestor(target, parent) || depthOf(parent) >= deepest))
        parent = nullptr;
    const Qt::WFlags flags = parent || world.random.chance(80) ? 0 : Qt::WType_Popup;
    const QPoint place(world.random.anyInt(), world.random.anyInt());
    target->reparent(parent, flags, place, world.random.chance(70));
}

void sabotage(World& world, QWidget*)
{
    world.saboteur->arm(world.random.below(4));
    act(world);
    drain();
    world.saboteur->arm(-1);
}

void blockSignals(World& world, QWidget* target)
{
    target->blockSignals(world.random.chance(30));
}

void connectSomebody(World& world, QWidget* target)
{
    QWidget* other = world.pick();
    switch (world.random.below(3)) {
    case 0:
        QObject::connect(target, SIGNAL(destroyed()), other, SLOT(hide()));
        break;
    case 1:
        QObject::connect(target, SIGNAL(clicked()), other, SLOT(setFocus()));
        break;
    default:
        QObject::disconnect(target, nullptr, other, nullptr);
    }
}

} // namespace

const std::vector<Action> lifeActions = {
    {"create inside", 90, nullptr, createInside},
    {"create window", 20, nullptr, createWindow},
    {"delete", 25, "QWidget", remove},
    {"delete later", 8, "QWidget", removeLater},
    {"close", 8, "QWidget", removeOnClose},
    {"reparent", 30, "QWidget", move},
    {"sabotage", 120, nullptr, sabotage},
    {"block signals", 4, "QWidget", blockSignals},
    {"connect", 6, "QPushButton", connectSomebody},
};
