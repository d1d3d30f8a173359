// QTimer.
#include <qtimer.h>

#include <qevent.h>
#include <qguardedptr.h>

namespace
{

// Fires once and goes away.
class SingleShot : public QTimer
{
public:
    SingleShot(int msec, QObject* receiver, const char* member)
    {
        connect(this, SIGNAL(timeout()), receiver, member);
        start(msec, true);
    }

protected:
    bool event(QEvent* event)
    {
        if (event->type() == QEvent::Timer)
            deleteLater();
        return QTimer::event(event);
    }
};

} // namespace

QTimer::QTimer(QObject* parent, const char* name) : QObject(parent, name), id(-1), single(false) {}

QTimer::~QTimer()
{
    stop();
}

int QTimer::start(int msec, bool singleShot)
{
    stop();
    single = singleShot;
    const int started = startTimer(msec);
    if (started > 0)
        id = started;
    return started;
}

void QTimer::changeInterval(int msec)
{
    start(msec, single);
}

void QTimer::stop()
{
    if (id >= 0)
        killTimer(id);
    id = -1;
}

bool QTimer::event(QEvent* event)
{
    if (event->type() != QEvent::Timer || static_cast<QTimerEvent*>(event)->timerId() != id)
        return QObject::event(event);
    if (single)
        stop();
    timeout();
    return true;
}

void QTimer::singleShot(int msec, QObject* receiver, const char* member)
{
    new SingleShot(msec, receiver, member);
}
