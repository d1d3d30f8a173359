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
    //! In milliseconds from now on. Returns the timer's identifier, 0 without an application.
    int start(int msec, bool singleShot = false);
    //! Starts it anew.
    void changeInterval(int msec);
    void stop();
    //! -1 while it is not active.
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
