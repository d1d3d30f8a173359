// Events handed to a widget through the toolkit's front door, for what a real pointer cannot do exactly.
#ifndef TEST_SENTEVENTS_H
#define TEST_SENTEVENTS_H

#include <qapplication.h>
#include <qevent.h>
#include <qwidget.h>

#include <string>

// True if the event was accepted.
inline bool sendMouse(QWidget* widget, QEvent::Type type, int x, int y, int button = Qt::LeftButton)
{
    QMouseEvent event(type, QPoint(x, y), widget->mapToGlobal(QPoint(x, y)), button,
                      type == QEvent::MouseButtonRelease ? button : 0);
    QApplication::sendEvent(widget, &event);
    return event.isAccepted();
}

inline bool press(QWidget* widget, int x = 5, int y = 5, int button = Qt::LeftButton)
{
    return sendMouse(widget, QEvent::MouseButtonPress, x, y, button);
}

inline bool release(QWidget* widget, int x = 5, int y = 5, int button = Qt::LeftButton)
{
    return sendMouse(widget, QEvent::MouseButtonRelease, x, y, button);
}

inline bool doubleClick(QWidget* widget, int x = 5, int y = 5, int button = Qt::LeftButton)
{
    return sendMouse(widget, QEvent::MouseButtonDblClick, x, y, button);
}

// With the left button held.
inline bool drag(QWidget* widget, int x, int y)
{
    QMouseEvent event(QEvent::MouseMove, QPoint(x, y), widget->mapToGlobal(QPoint(x, y)), Qt::NoButton,
                      Qt::LeftButton);
    QApplication::sendEvent(widget, &event);
    return event.isAccepted();
}

inline bool sendKey(QWidget* widget, int key, int ascii = 0, int state = 0,
                    const QString& text = QString::null)
{
    QKeyEvent event(QEvent::KeyPress, key, ascii, state, text);
    QApplication::sendEvent(widget, &event);
    return event.isAccepted();
}

inline void sendPlain(QWidget* widget, QEvent::Type type)
{
    QEvent event(type);
    QApplication::sendEvent(widget, &event);
}

inline void enter(QWidget* widget)
{
    sendPlain(widget, QEvent::Enter);
}

inline void leave(QWidget* widget)
{
    sendPlain(widget, QEvent::Leave);
}

// Writes down the paint events that reach a widget, as "erased" or "kept" for what was there before.
class PaintLog : public QObject
{
public:
    explicit PaintLog(QObject* watched) { watched->installEventFilter(this); }
    // All since the last call, separated by blanks.
    std::string take()
    {
        const std::string all = m_log;
        m_log = "";
        return all;
    }

protected:
    bool eventFilter(QObject*, QEvent* event)
    {
        if (event->type() == QEvent::Paint)
            m_log += std::string(m_log.empty() ? "" : " ") +
                     (static_cast<QPaintEvent*>(event)->erased() ? "erased" : "kept");
        return false;
    }

private:
    std::string m_log;
};

// Counts the events of one type that reach a widget.
class EventCount : public QObject
{
public:
    EventCount(QObject* watched, QEvent::Type type) : m_type(type), m_count(0)
    {
        watched->installEventFilter(this);
    }
    int take()
    {
        const int count = m_count;
        m_count = 0;
        return count;
    }

protected:
    bool eventFilter(QObject*, QEvent* event)
    {
        m_count += event->type() == m_type;
        return false;
    }

private:
    QEvent::Type m_type;
    int m_count;
};

#endif
