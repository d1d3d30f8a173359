// The application: its event loop, its windows and its settings.
#ifndef QAPPLICATION_H
#define QAPPLICATION_H

#include <qdesktopwidget.h>
#include <qevent.h>
#include <qfont.h>
#include <qfontmetrics.h>
#include <qnamespace.h>
#include <qobject.h>
#include <qpalette.h>
#include <qpoint.h>
#include <qstring.h>

class QApplication;
class QClipboard;
class QCursor;
class QEvent;
class QEventLoop;
class QTranslator;
class QWidget;
class QWidgetList;

namespace zeltk
{
struct ApplicationAccess;
}

//! The one application object, or null.
extern Q_EXPORT QApplication* qApp;

//! A program makes exactly one QApplication before its first widget. It connects to the X server, runs the
//! event loop, sends every event, and keeps what belongs to no single widget.
class Q_EXPORT QApplication : public QObject
{
    Q_OBJECT

public:
    enum Type { Tty, GuiClient, GuiServer };
    enum Encoding { DefaultCodec, UnicodeUTF8 };

    //! Takes "-display NAME" out of the arguments, which must outlive the application. Ends the program with
    //! a message if the X server cannot be reached; a Tty does not need one, and makes no widgets.
    QApplication(int& argc, char** argv);
    QApplication(int& argc, char** argv, bool GUIenabled);
    QApplication(int& argc, char** argv, Type type);
    virtual ~QApplication();

    int argc() const;
    char** argv() const;
    Type type() const;

    //! The latest of those that are in force for all widgets; null if there is none.
    static QCursor* overrideCursor();
    static void setOverrideCursor(const QCursor& cursor, bool replace = false);
    static void restoreOverrideCursor();
    //! Whether all widgets hear of moves without a button.
    static bool hasGlobalMouseTracking();
    static void setGlobalMouseTracking(bool enable);

    //! The application's palette, or the one of widgets of that class, which they have instead of their
    //! parent's unless they have one of their own; new ones have it once they are polished. One that is set
    //! without a class replaces those of all classes. Widgets that are there already follow if they are
    //! informed.
    static QPalette palette(const QWidget* widget = 0);
    static void setPalette(const QPalette& palette, bool informWidgets = false, const char* className = 0);
    static QFont font(const QWidget* widget = 0);
    static void setFont(const QFont& font, bool informWidgets = false, const char* className = 0);
    static QFontMetrics fontMetrics();

    QWidget* mainWidget() const;
    //! The program ends when this widget is closed.
    virtual void setMainWidget(QWidget* widget);
    //! Called for every widget before it is shown first.
    virtual void polish(QWidget* widget);

    //! New lists, which the caller deletes.
    static QWidgetList* allWidgets();
    static QWidgetList* topLevelWidgets();

    static QDesktopWidget* desktop();
    //! The latest one that is open; null without.
    static QWidget* activePopupWidget();
    static QWidget* activeModalWidget();
    static QClipboard* clipboard();
    //! Null while another program has the keyboard.
    QWidget* focusWidget() const;
    QWidget* activeWindow() const;

    //! The window at that place of the screen, or the innermost child; null if it is none of this program's.
    static QWidget* widgetAt(int x, int y, bool child = false);
    static QWidget* widgetAt(const QPoint& pos, bool child = false);

    static QEventLoop* eventLoop();
    //! Runs until exit() or quit(), and returns what was said there.
    int exec();
    //! Handle what is pending, for at most three seconds or that many milliseconds.
    void processEvents();
    void processEvents(int maxtime);
    //! Waits if nothing is pending.
    void processOneEvent();
    bool hasPendingEvents();
    //! A loop inside of the running one, until exit_loop(). Returns how many are left.
    int enter_loop();
    void exit_loop();
    int loopLevel() const;
    //! Ends all loops. Has no effect before exec().
    static void exit(int retcode = 0);

    //! Delivers the event at once; true if it was handled.
    static bool sendEvent(QObject* receiver, QEvent* event);
    //! Queues the event, which must have been made with new, until control returns to the event loop.
    static void postEvent(QObject* receiver, QEvent* event);
    //! Delivers queued events at once. Null and 0 stand for any receiver and type.
    static void sendPostedEvents(QObject* receiver, int event_type);
    static void sendPostedEvents();
    static void removePostedEvents(QObject* receiver);

    //! Delivers one event; every event passes through here.
    virtual bool notify(QObject* receiver, QEvent* event);

    //! Before there is an application, and from the begin of its destructor on.
    static bool startingUp();
    static bool closingDown();

    //! Sends what waits for the X server; syncX() also waits until it is done.
    static void flushX();
    void flush();
    static void syncX();
    static void beep();

    //! The last one installed is asked first. All windows hear of the change.
    void installTranslator(QTranslator* translator);
    void removeTranslator(QTranslator* translator);
    //! The text itself if no translator knows it.
    QString translate(const char* context, const char* key, const char* comment = 0,
                      Encoding encoding = DefaultCodec) const;

    QString applicationDirPath();
    QString applicationFilePath();

    //! How long a text cursor takes to go and come again.
    static void setCursorFlashTime(int msecs);
    static int cursorFlashTime();
    static void setDoubleClickInterval(int msecs);
    static int doubleClickInterval();
    static void setWheelScrollLines(int lines);
    static int wheelScrollLines();
    static void setStartDragTime(int msecs);
    static int startDragTime();
    static void setStartDragDistance(int pixels);
    static int startDragDistance();

signals:
    //! A window was closed and no other is open.
    void lastWindowClosed();
    //! The outermost loop has ended by exit() or quit().
    void aboutToQuit();
    //! The event loop goes on after it has waited.
    void guiThreadAwake();

public slots:
    void quit();
    //! Until one refuses.
    void closeAllWindows();
    //! Shows a small window about the toolkit, and returns when it is closed.
    void aboutQt();

protected:
    bool event(QEvent* event);

private:
    void construct(int& argc, char** argv, Type type);
    friend struct zeltk::ApplicationAccess;

    QApplication(const QApplication&);
    QApplication& operator=(const QApplication&);
};

#endif
