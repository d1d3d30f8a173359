// The events.
#ifndef QEVENT_H
#define QEVENT_H

#include <qnamespace.h>
#include <qpoint.h>
#include <qrect.h>
#include <qregion.h>
#include <qsize.h>
#include <qstring.h>

class QObject;

namespace zeltk
{
struct EventAccess;
}

class Q_EXPORT QEvent : public Qt
{
public:
    enum Type {
        None = 0,
        Timer = 1,
        MouseButtonPress = 2,
        MouseButtonRelease = 3,
        MouseButtonDblClick = 4,
        MouseMove = 5,
        KeyPress = 6,
        KeyRelease = 7,
        FocusIn = 8,
        FocusOut = 9,
        Enter = 10,
        Leave = 11,
        Paint = 12,
        Move = 13,
        Resize = 14,
        Create = 15,
        Destroy = 16,
        Show = 17,
        Hide = 18,
        Close = 19,
        Quit = 20,
        Reparent = 21,
        ShowMinimized = 22,
        ShowNormal = 23,
        WindowActivate = 24,
        WindowDeactivate = 25,
        ShowToParent = 26,
        HideToParent = 27,
        ShowMaximized = 28,
        ShowFullScreen = 29,
        Accel = 30,
        Wheel = 31,
        AccelAvailable = 32,
        CaptionChange = 33,
        IconChange = 34,
        ParentFontChange = 35,
        ApplicationFontChange = 36,
        ParentPaletteChange = 37,
        ApplicationPaletteChange = 38,
        PaletteChange = 39,
        Clipboard = 40,
        Speech = 42,
        SockAct = 50,
        AccelOverride = 51,
        DeferredDelete = 52,
        DragEnter = 60,
        DragMove = 61,
        DragLeave = 62,
        Drop = 63,
        DragResponse = 64,
        ChildInserted = 70,
        ChildRemoved = 71,
        LayoutHint = 72,
        ShowWindowRequest = 73,
        WindowBlocked = 74,
        WindowUnblocked = 75,
        ActivateControl = 80,
        DeactivateControl = 81,
        ContextMenu = 82,
        IMStart = 83,
        IMCompose = 84,
        IMEnd = 85,
        Accessibility = 86,
        TabletMove = 87,
        LocaleChange = 88,
        LanguageChange = 89,
        LayoutDirectionChange = 90,
        Style = 91,
        TabletPress = 92,
        TabletRelease = 93,
        OkRequest = 94,
        HelpRequest = 95,
        WindowStateChange = 96,
        IconDrag = 97,
        User = 1000,
        MaxUser = 65535
    };

    QEvent(Type type) : t(type), posted(false), fromSystem(false) {}
    virtual ~QEvent();
    Type type() const { return t; }
    //! Whether it came from the X server and not from the program.
    bool spontaneous() const { return fromSystem; }

private:
    friend struct zeltk::EventAccess;
    Type t;
    bool posted;
    bool fromSystem;
};

class Q_EXPORT QTimerEvent : public QEvent
{
public:
    QTimerEvent(int timerId) : QEvent(Timer), id(timerId) {}
    int timerId() const { return id; }

private:
    int id;
};

//! Accepted at first; who does not want it ignores it, and it goes on to the parent.
class Q_EXPORT QMouseEvent : public QEvent
{
public:
    QMouseEvent(Type type, const QPoint& pos, int button, int state);
    QMouseEvent(Type type, const QPoint& pos, const QPoint& globalPos, int button, int state)
        : QEvent(type), p(pos), g(globalPos), b((ButtonState)button), s((ushort)state), accepted(true)
    {
    }
    const QPoint& pos() const { return p; }
    const QPoint& globalPos() const { return g; }
    int x() const { return p.x(); }
    int y() const { return p.y(); }
    int globalX() const { return g.x(); }
    int globalY() const { return g.y(); }
    //! The button that caused the event.
    ButtonState button() const { return b; }
    //! Buttons and modifiers before the event.
    ButtonState state() const { return (ButtonState)s; }
    ButtonState stateAfter() const;
    bool isAccepted() const { return accepted; }
    void accept() { accepted = true; }
    void ignore() { accepted = false; }

protected:
    QPoint p;
    QPoint g;
    ButtonState b;
    ushort s;
    bool accepted;
};

class Q_EXPORT QWheelEvent : public QEvent
{
public:
    QWheelEvent(const QPoint& pos, int delta, int state, Orientation orientation = Vertical);
    QWheelEvent(const QPoint& pos, const QPoint& globalPos, int delta, int state,
                Orientation orientation = Vertical)
        : QEvent(Wheel), p(pos), g(globalPos), d(delta), s((ushort)state), accepted(true), o(orientation)
    {
    }
    //! 120 for each step away from the user.
    int delta() const { return d; }
    const QPoint& pos() const { return p; }
    const QPoint& globalPos() const { return g; }
    int x() const { return p.x(); }
    int y() const { return p.y(); }
    int globalX() const { return g.x(); }
    int globalY() const { return g.y(); }
    ButtonState state() const { return (ButtonState)s; }
    Orientation orientation() const { return o; }
    bool isAccepted() const { return accepted; }
    void accept() { accepted = true; }
    void ignore() { accepted = false; }

protected:
    QPoint p;
    QPoint g;
    int d;
    ushort s;
    bool accepted;
    Orientation o;
};

class Q_EXPORT QKeyEvent : public QEvent
{
public:
    QKeyEvent(Type type, int key, int ascii, int state, const QString& text = QString::null,
              bool autorep = false, ushort count = 1)
        : QEvent(type), txt(text), k((ushort)key), s((ushort)state), a((uchar)ascii), accepted(true),
          autor(autorep), c(count)
    {
    }
    int key() const { return k; }
    int ascii() const { return a; }
    //! Buttons and modifiers before the event.
    ButtonState state() const { return (ButtonState)s; }
    ButtonState stateAfter() const;
    bool isAccepted() const { return accepted; }
    QString text() const { return txt; }
    bool isAutoRepeat() const { return autor; }
    int count() const { return c; }
    void accept() { accepted = true; }
    void ignore() { accepted = false; }

protected:
    QString txt;
    ushort k;
    ushort s;
    uchar a;
    bool accepted;
    bool autor;
    ushort c;
};

class Q_EXPORT QFocusEvent : public QEvent
{
public:
    enum Reason { Mouse, Tab, Backtab, ActiveWindow, Popup, Shortcut, Other };

    QFocusEvent(Type type) : QEvent(type) {}
    bool gotFocus() const { return type() == FocusIn; }
    bool lostFocus() const { return type() == FocusOut; }
    //! Why the focus moves now.
    static Reason reason();
    static void setReason(Reason reason);
    static void resetReason();
};

class Q_EXPORT QPaintEvent : public QEvent
{
public:
    QPaintEvent(const QRegion& paintRegion, bool erased = true)
        : QEvent(Paint), rec(paintRegion.boundingRect()), reg(paintRegion), erase(erased)
    {
    }
    QPaintEvent(const QRect& paintRect, bool erased = true)
        : QEvent(Paint), rec(paintRect), reg(paintRect), erase(erased)
    {
    }
    QPaintEvent(const QRegion& paintRegion, const QRect& paintRect, bool erased = true)
        : QEvent(Paint), rec(paintRect), reg(paintRegion), erase(erased)
    {
    }
    const QRect& rect() const { return rec; }
    const QRegion& region() const { return reg; }
    //! Whether the background was cleared before.
    bool erased() const { return erase; }

protected:
    QRect rec;
    QRegion reg;
    bool erase;
};

class Q_EXPORT QMoveEvent : public QEvent
{
public:
    QMoveEvent(const QPoint& pos, const QPoint& oldPos) : QEvent(Move), p(pos), oldp(oldPos) {}
    const QPoint& pos() const { return p; }
    const QPoint& oldPos() const { return oldp; }

protected:
    QPoint p;
    QPoint oldp;
};

class Q_EXPORT QResizeEvent : public QEvent
{
public:
    QResizeEvent(const QSize& size, const QSize& oldSize) : QEvent(Resize), s(size), olds(oldSize) {}
    const QSize& size() const { return s; }
    const QSize& oldSize() const { return olds; }

protected:
    QSize s;
    QSize olds;
};

//! Not accepted at first.
class Q_EXPORT QCloseEvent : public QEvent
{
public:
    QCloseEvent() : QEvent(Close), accepted(false) {}
    bool isAccepted() const { return accepted; }
    void accept() { accepted = true; }
    void ignore() { accepted = false; }

protected:
    bool accepted;
};

class Q_EXPORT QShowEvent : public QEvent
{
public:
    QShowEvent() : QEvent(Show) {}
};

class Q_EXPORT QHideEvent : public QEvent
{
public:
    QHideEvent() : QEvent(Hide) {}
};

class Q_EXPORT QContextMenuEvent : public QEvent
{
public:
    enum Reason { Mouse, Keyboard, Other };

    QContextMenuEvent(Reason reason, const QPoint& pos, const QPoint& globalPos, int state)
        : QEvent(ContextMenu), p(pos), gp(globalPos), accepted(true), consumed(true), reas(reason),
          s((ushort)state)
    {
    }
    const QPoint& pos() const { return p; }
    const QPoint& globalPos() const { return gp; }
    int x() const { return p.x(); }
    int y() const { return p.y(); }
    int globalX() const { return gp.x(); }
    int globalY() const { return gp.y(); }
    ButtonState state() const { return (ButtonState)s; }
    Reason reason() const { return reas; }
    bool isAccepted() const { return accepted; }
    bool isConsumed() const { return consumed; }
    void consume() { consumed = true; }
    void accept()
    {
        accepted = true;
        consumed = true;
    }
    void ignore()
    {
        accepted = false;
        consumed = false;
    }

protected:
    QPoint p;
    QPoint gp;
    bool accepted;
    bool consumed;
    Reason reas;
    ushort s;
};

class Q_EXPORT QChildEvent : public QEvent
{
public:
    QChildEvent(Type type, QObject* child) : QEvent(type), c(child) {}
    QObject* child() const { return c; }
    bool inserted() const { return type() == ChildInserted; }
    bool removed() const { return type() == ChildRemoved; }

protected:
    QObject* c;
};

class Q_EXPORT QCustomEvent : public QEvent
{
public:
    QCustomEvent(int type) : QEvent((Type)type), d(0) {}
    QCustomEvent(Type type, void* data) : QEvent(type), d(data) {}
    void* data() const { return d; }
    void setData(void* data) { d = data; }

private:
    void* d;
};

#endif
