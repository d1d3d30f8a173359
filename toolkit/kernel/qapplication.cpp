// QApplication: beginning, loops and end.
#include <qapplication.h>

#include "kernel/applicationdata.h"
#include "kernel/applicationprivate.h"
#include "kernel/widgetdata.h"
#include "tools/unicode.h"
#include "x11/connection.h"
#include "x11/errors.h"
#include "x11/input.h"
#include "x11/pixmap.h"

#include <qeventloop.h>
#include <qtranslator.h>

#include <algorithm>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <unistd.h>

using zeltk::application;
using zeltk::ApplicationData;
namespace x11 = zeltk::x11;

QApplication* qApp = nullptr;

namespace zeltk
{

ApplicationData* application()
{
    static ApplicationData* const data = new ApplicationData;
    return data;
}

} // namespace zeltk

namespace
{

void warnOfXError(const std::string& text)
{
    qWarning("%s", text.c_str());
}

const char* baseName(const char* path)
{
    const char* slash = std::strrchr(path, '/');
    return slash ? slash + 1 : path;
}

// Takes the options that are the toolkit's own out of the command line. Returns the display's name.
std::string readCommandLine(int* argc, char** argv)
{
    std::string display;
    int kept = std::min(*argc, 1);
    for (int i = 1; i < *argc; ++i) {
        if (!std::strcmp(argv[i], "-display") && i + 1 < *argc)
            display = argv[++i];
        else
            argv[kept++] = argv[i];
    }
    if (kept < *argc)
        argv[kept] = nullptr;
    *argc = kept;
    return display;
}

void connectToServer(const char* program, const std::string& display)
{
    if (x11::openConnection(display))
        return;
    const char* variable = std::getenv("DISPLAY");
    const std::string wanted = !display.empty() ? display : variable ? variable : "";
    if (wanted.empty())
        std::fprintf(stderr, "%s: no X server is named; set DISPLAY or use -display\n", program);
    else
        std::fprintf(stderr, "%s: cannot connect to the X server %s\n", program, wanted.c_str());
    std::exit(1);
}

} // namespace

QApplication::QApplication(int& argc, char** argv) : QObject(nullptr, nullptr)
{
    construct(argc, argv, GuiClient);
}

QApplication::QApplication(int& argc, char** argv, bool GUIenabled) : QObject(nullptr, nullptr)
{
    construct(argc, argv, GUIenabled ? GuiClient : Tty);
}

QApplication::QApplication(int& argc, char** argv, Type type) : QObject(nullptr, nullptr)
{
    construct(argc, argv, type);
}

void QApplication::construct(int& argc, char** argv, Type type)
{
    if (qApp) {
        qFatal("QApplication: there should be only one application object");
        std::exit(1); // a message handler returns
    }
    const char* program = argc > 0 && argv[0] ? baseName(argv[0]) : "program";
    setName(program);
    const std::string display = readCommandLine(&argc, argv);
    std::setlocale(LC_CTYPE, ""); // the input method's language is the user's
    if (type != Tty)
        connectToServer(program, display);
    x11::setErrorHandler(warnOfXError);
    zeltk::connectPainting();
    ApplicationData* app = application();
    app->argc = &argc;
    app->argv = argv;
    app->type = type;
    app->closing = false;
    qApp = this;
    app->loop = new QEventLoop(this, "eventloop");
    connect(app->loop, SIGNAL(awake()), this, SIGNAL(guiThreadAwake()));
    if (type != Tty)
        app->desktop = new QDesktopWidget;
}

// Windows that are left go with the connection.
QApplication::~QApplication()
{
    ApplicationData* app = application();
    app->closing = true;
    delete app->desktop;
    app->desktop = nullptr;
    app->mainWidget = nullptr;
    app->overrideCursors.clear();
    app->translators.clear();
    app->loop = nullptr;
    qApp = nullptr;
    if (x11::connected()) {
        x11::freeRecycledPixmaps();
        x11::flush();
    }
}

int QApplication::argc() const
{
    return *application()->argc;
}

char** QApplication::argv() const
{
    return application()->argv;
}

QApplication::Type QApplication::type() const
{
    return application()->type;
}

bool QApplication::startingUp()
{
    return !qApp;
}

bool QApplication::closingDown()
{
    return application()->closing;
}

QWidget* QApplication::mainWidget() const
{
    return application()->mainWidget;
}

void QApplication::setMainWidget(QWidget* widget)
{
    application()->mainWidget = widget;
}

void QApplication::polish(QWidget*) {}

QEventLoop* QApplication::eventLoop()
{
    return application()->loop;
}

int QApplication::exec()
{
    return eventLoop()->exec();
}

void QApplication::processEvents()
{
    processEvents(3000);
}

void QApplication::processEvents(int maxtime)
{
    eventLoop()->processEvents(QEventLoop::AllEvents, maxtime);
}

void QApplication::processOneEvent()
{
    eventLoop()->processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMore);
}

bool QApplication::hasPendingEvents()
{
    return eventLoop()->hasPendingEvents();
}

int QApplication::enter_loop()
{
    return eventLoop()->enterLoop();
}

void QApplication::exit_loop()
{
    eventLoop()->exitLoop();
}

int QApplication::loopLevel() const
{
    return eventLoop()->loopLevel();
}

void QApplication::exit(int retcode)
{
    if (eventLoop())
        eventLoop()->exit(retcode);
}

void QApplication::quit()
{
    exit(0);
}

bool QApplication::event(QEvent* event)
{
    if (event->type() == QEvent::Close) {
        QCloseEvent* close = static_cast<QCloseEvent*>(event);
        close->accept();
        closeAllWindows();
        return true;
    }
    if (event->type() == QEvent::LanguageChange) {
        zeltk::tellWindowsOfLanguage();
        return true;
    }
    return QObject::event(event);
}

void QApplication::flushX()
{
    x11::flush();
}

void QApplication::flush()
{
    x11::flush();
}

void QApplication::syncX()
{
    x11::sync();
}

void QApplication::beep()
{
    if (x11::connected())
        x11::bell();
}

QString QApplication::applicationFilePath()
{
    char path[4096];
    const ssize_t length = readlink("/proc/self/exe", path, sizeof path);
    return length > 0 ? zeltk::fromUtf8(std::string(path, static_cast<size_t>(length))) : QString(argv()[0]);
}

QString QApplication::applicationDirPath()
{
    const QString file = applicationFilePath();
    const int slash = file.findRev('/');
    return slash < 0 ? QString(".") : file.left(static_cast<uint>(slash));
}
