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

    QApplication(int& argc, char** argv);
    QApplication(int& argc, char** argv, bool GUIenabled);
    QApplication(int& argc, char** argv, Type type);
    virtual ~QApplication();

    int argc() const;
    char** argv() const;
    Type type() const;

    static QCursor* overrideCursor();
    static void setOverrideCursor(const QCursor& cursor, bool replace = false);
    static void restoreOverrideCursor();
    static bool hasGlobalMouseTracking();
    static void setGlobalMouseTracking(bool enable);

    //! The application's palette, or the one a widget of that class starts with.
    static QPalette palette(const QWidget* widget = 0);
    static void setPalette(const QPalette& palette, bool informWidgets = false, const char* className = 0);
    static QFont font(const QWidget* widget = 0);
    static void setFont(const QFont& font, bool informWidgets = false, const char* className = 0);
    static QFontMetrics fontMetrics();

    QWidget* mainWidget() const;
    //! The program ends when this widget is closed.
    virtual void setMainWidget(QWidget* widget);
    virtual void polish(QWidget* widget);

    //! New lists, which the caller deletes.
    static QWidgetList* allWidgets();
    static QWidgetList* topLevelWidgets();

    static QDesktopWidget* desktop();
    static QWidget* activePopupWidget();
    static QWidget* activeModalWidget();
    static QClipboard* clipboard();
    QWidget* focusWidget() const;
    QWidget* activeWindow() const;

    static QWidget* widgetAt(int x, int y, bool child = false);
    static QWidget* widgetAt(const QPoint& pos, bool child = false);

    static QEventLoop* eventLoop();
    int exec();
    void processEvents();
    void processEvents(int maxtime);
    void processOneEvent();
    bool hasPendingEvents();
    int enter_loop();
    void exit_loop();
    int loopLevel() const;
    static void exit(int retcode = 0);

    static bool sendEvent(QObject* receiver, QEvent* event);
    //! Queues the event, which must have been made with new.
    static void postEvent(QObject* receiver, QEvent* event);
    static void sendPostedEvents(QObject* receiver, int event_type);
    static void sendPostedEvents();
    static void removePostedEvents(QObject* receiver);

    //! Delivers one event; every event passes through here.
    virtual bool notify(QObject* receiver, QEvent* event);

    static bool startingUp();
    static bool closingDown();

    static void flushX();
    void flush();
    static void syncX();
    static void beep();

    void installTranslator(QTranslator* translator);
    void removeTranslator(QTranslator* translator);
    QString translate(const char* context, const char* key, const char* comment = 0,
                      Encoding encoding = DefaultCodec) const;

    QString applicationDirPath();
    QString applicationFilePath();

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
    void lastWindowClosed();
    void aboutToQuit();
    //! The event loop goes on after it has waited.
    void guiThreadAwake();

public slots:
    void quit();
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
