#include "saboteur.h"

#include "world.h"

#include <qapplication.h>
#include <qmetaobject.h>
#include <qstrlist.h>

#include <string>

void Saboteur::watch(QObject* object)
{
    m_types.insert_or_assign(object, typeid(*object));
    QStrList names = object->metaObject()->signalNames(true);
    for (const char* name = names.first(); name; name = names.next())
        if (std::string(name).compare(0, 9, "destroyed") != 0)
            connect(object, (std::string("2") + name).c_str(), this, SLOT(harm()));
}

// A widget whose destructor runs is no longer what it was made as.
bool Saboteur::isDying(QWidget* widget) const
{
    const auto found = m_types.find(widget);
    return found != m_types.end() && found->second != typeid(*widget);
}

// Nobody may delete a widget once more, neither by way of one that it is in.
bool Saboteur::mayDelete(QWidget* widget) const
{
    for (QWidget* dying : m_world->widgets()) {
        if (!isDying(dying))
            continue;
        for (QWidget* outer = dying; outer; outer = outer->parentWidget())
            if (outer == widget)
                return false;
    }
    return true;
}

static QWidget* victimOf(World& world, QWidget* sender)
{
    switch (world.random.below(4)) {
    case 0:
        return sender->parentWidget() ? sender->parentWidget() : sender;
    case 1:
        return sender->topLevelWidget();
    default:
        return sender;
    }
}

void Saboteur::harm()
{
    if (m_wait != 0) {
        if (m_wait > 0)
            --m_wait;
        return;
    }
    m_wait = -1;
    // What a dialog is made of dies with the dialog only.
    QWidget* const from = m_world->ownerOf(dynamic_cast<QWidget*>(const_cast<QObject*>(sender())));
    m_world->note("!");
    switch (from ? m_world->random.below(8) : 7) {
    case 0:
    case 1:
    case 2:
        m_world->note("delete");
        if (QWidget* victim = victimOf(*m_world, from); mayDelete(victim))
            delete victim;
        break;
    case 3:
        m_world->note("hide");
        victimOf(*m_world, from)->hide();
        break;
    case 4:
        m_world->note("disable");
        victimOf(*m_world, from)->setEnabled(false);
        break;
    case 5:
        m_world->note("events");
        qApp->processEvents();
        break;
    default:
        act(*m_world);
    }
}
