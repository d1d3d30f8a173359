// The event loop.
#ifndef QEVENTLOOP_H
#define QEVENTLOOP_H

#include <qobject.h>

namespace zeltk
{
struct EventLoopState;
}

//! Waits for news from the X server and for timers, and hands them out. QApplication makes one.
class Q_EXPORT QEventLoop : public QObject
{
    Q_OBJECT

public:
    enum ProcessEvents {
        AllEvents = 0x00,
        ExcludeUserInput = 0x01,
        ExcludeSocketNotifiers = 0x02,
        WaitForMore = 0x04
    };
    typedef uint ProcessEventsFlags;

    QEventLoop(QObject* parent = 0, const char* name = 0);
    ~QEventLoop();

    //! Handles events for at most that many milliseconds.
    void processEvents(ProcessEventsFlags flags, int maxtime);
    //! Handles what is pending; true if there was something.
    virtual bool processEvents(ProcessEventsFlags flags);
    virtual bool hasPendingEvents() const;

    //! As QApplication has them.
    virtual int exec();
    virtual void exit(int retcode = 0);
    virtual int enterLoop();
    virtual void exitLoop();
    virtual int loopLevel() const;
    //! Lets a waiting loop go round once more.
    virtual void wakeUp();

signals:
    //! After and before the loop waits.
    void awake();
    void aboutToBlock();

private:
    ZELTK_LOCAL void waitForEvents(ProcessEventsFlags flags);

    zeltk::EventLoopState* d;

    QEventLoop(const QEventLoop&);
    QEventLoop& operator=(const QEventLoop&);
};

#endif
