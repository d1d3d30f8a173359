// Timers.
#ifndef QTIMER_H
#define QTIMER_H

#include <qobject.h>

//! Emits timeout() after each interval, or once. An interval of 0 fires whenever the event loop comes round.
class Q_EXPORT QTimer : public QObject
{
    Q_OBJECT

public:
    QTimer(QObject* parent = 0, const char* name = 0);
    ~QTimer();

    bool isActive() const { return id >= 0; }
    //! Returns the timer's identifier.
    int start(int msec, bool singleShot = false);
    void changeInterval(int msec);
    void stop();
    int timerId() const { return id; }

    //! Calls the slot once after that time.
    static void singleShot(int msec, QObject* receiver, const char* member);

signals:
    void timeout();

protected:
    bool event(QEvent* event);

private:
    int id;
    bool single;

    QTimer(const QTimer&);
    QTimer& operator=(const QTimer&);
};

#endif
