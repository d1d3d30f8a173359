// Slots for signals that carry an event or the widget itself.
#ifndef TEST_EVENTRECEIVER_H
#define TEST_EVENTRECEIVER_H

#include <qevent.h>
#include <qobject.h>

class ZelFrame;
class ZelLabel;

// Keeps what came last.
class EventReceiver : public QObject
{
    Q_OBJECT

public:
    EventReceiver() : event(nullptr), frame(nullptr), label(nullptr) {}

    const QEvent* event; // only to be compared
    ZelFrame* frame;
    ZelLabel* label;

public slots:
    void takeMouse(QMouseEvent* e) { event = e; }
    void takeMouseOf(QMouseEvent* e, ZelFrame* f)
    {
        event = e;
        frame = f;
    }
    void takeLabel(ZelLabel* l) { label = l; }
    void takeKey(QKeyEvent* e) { event = e; }
    void takeEvent(QEvent* e) { event = e; }
};

// The event of that type that last reached a widget.
class EventWitness : public QObject
{
public:
    EventWitness(QObject* watched, QEvent::Type type) : seen(nullptr), m_type(type)
    {
        watched->installEventFilter(this);
    }
    const QEvent* seen; // only to be compared

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == m_type)
            seen = event;
        return false;
    }

private:
    QEvent::Type m_type;
};

#endif
