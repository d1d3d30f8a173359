// What the application keeps.
#ifndef ZELTK_APPLICATIONDATA_H
#define ZELTK_APPLICATIONDATA_H

#include <qapplication.h>
#include <qcursor.h>
#include <qguardedptr.h>

#include <vector>

class QTranslator;

namespace zeltk
{

struct ApplicationData {
    int* argc = nullptr;
    char** argv = nullptr;
    QApplication::Type type = QApplication::GuiClient;
    bool closing = false;
    QEventLoop* loop = nullptr;
    QWidget* mainWidget = nullptr;
    QDesktopWidget* desktop = nullptr;
    std::vector<QTranslator*> translators; // the last one is asked first
    std::vector<QCursor> overrideCursors;

    QWidget* active = nullptr; // the window that has the keyboard
    QWidget* focus = nullptr;  // the widget in it
    std::vector<QWidget*> popups;
    std::vector<QWidget*> modals;
    QWidget* mouseGrabber = nullptr;
    QWidget* keyboardGrabber = nullptr;
    QWidget* pressed = nullptr; // has the pointer while a button is held
    QWidget* hovered = nullptr;

    int flashTime = 1000; // milliseconds
    int doubleClickInterval = 400;
    int wheelLines = 3;
    int dragTime = 500;
    int dragDistance = 4;
    bool globalTracking = false;
};

// There is one from the first use on.
ApplicationData* application();

struct ApplicationAccess {
    static void emitLastWindowClosed() { qApp->lastWindowClosed(); }
    static void emitAboutToQuit() { qApp->aboutToQuit(); }
};

struct EventAccess {
    static void setSpontaneous(QEvent* event, bool on) { event->fromSystem = on; }
    static void setPosted(QEvent* event, bool on) { event->posted = on; }
};

// Sends an event that came from the X server.
bool sendSpontaneous(QObject* receiver, QEvent* event);
// Hands out what has come from the X server; false if there was nothing.
bool dispatchEvents(bool withInput);
void setActive(QWidget* window);
// Tells the one who loses the focus and the one who gets it. Null: nobody gets it.
void moveFocus(QWidget* widget, QFocusEvent::Reason reason);
// From the widget itself, whatever its proxy.
void takeFocusFrom(QWidget* widget);
// The one who gets the keys in this window.
QWidget* keyReceiver(QWidget* window);
// Calls who waits for the key in the window; false if nobody does.
bool activateAccelerator(QWidget* window, QKeyEvent* key);
// The Qt code of an X key symbol; 0 for none.
int keyCode(unsigned long keysym);
void tellWindowsOfLanguage();
void connectPainting();

} // namespace zeltk

#endif
