// Does harm in the middle of signals.
#ifndef MONKEY_SABOTEUR_H
#define MONKEY_SABOTEUR_H

#include <qobject.h>

#include <map>
#include <typeindex>

class QWidget;
struct World;

class Saboteur : public QObject
{
    Q_OBJECT

public:
    explicit Saboteur(World* world) : m_world(world), m_wait(-1) {}

    // Hears all signals of the object from now on.
    void watch(QObject* object);
    // Does harm at the n-th signal from now; -1: at none.
    void arm(int n) { m_wait = n; }

public slots:
    void harm();

private:
    bool isDying(QWidget* widget) const;
    bool mayDelete(QWidget* widget) const;
    World* m_world;
    std::map<const QObject*, std::type_index> m_types;
    int m_wait;
};

#endif
