// QApplication: beginning and end, settings, delivery of events.
#include <qapplication.h>

#include "kernel/applicationdata.h"
#include "kernel/applicationprivate.h"
#include "kernel/objectdata.h"
#include "kernel/widgetdata.h"
#include "painting/defaultfont.h"
#include "painting/defaultpalette.h"
#include "tools/unicode.h"
#include "x11/connection.h"
#include "x11/errors.h"
#include "x11/input.h"
#include "x11/window.h"

#include <qeventloop.h>
#include <qtranslator.h>
#include <qwidgetlist.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
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

std::map<std::string, QPalette>& classPalettes()
{
    static auto* const all = new std::map<std::string, QPalette>;
    return *all;
}

std::map<std::string, QFont>& classFonts()
{
    static auto* const all = new std::map<std::string, QFont>;
    return *all;
}

template <typename Value>
const Value* valueForClass(const std::map<std::string, Value>& values, const QWidget* widget)
{
    if (!widget)
        return nullptr;
    for (const auto& entry : values)
        if (widget->inherits(entry.first.c_str()))
            return &entry.second;
    return nullptr;
}

void warnOfXError(const std::string& text)
{
    qWarning("X error: %s", text.c_str());
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
    if (qApp)
        qFatal("QApplication: there should be only one application object");
    const char* program = argc > 0 && argv[0] ? baseName(argv[0]) : "program";
    setName(program);
    const std::string display = readCommandLine(&argc, argv);
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
}

// Windows that are left go with the connection.
QApplication::~QApplication()
{
    ApplicationData* app = application();
    app->closing = true;
    delete app->desktop;
    app->desktop = nullptr;
    app->translators.clear();
    app->loop = nullptr;
    qApp = nullptr;
    if (zeltk::everyWidget().empty() && x11::connected())
        x11::flush();
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

QPalette QApplication::palette(const QWidget* widget)
{
    const QPalette* special = valueForClass(classPalettes(), widget);
    return special ? *special : zeltk::defaultPalette();
}

namespace
{

// Windows take the new look, their children from them.
void informWidgets(const char* className)
{
    for (QWidget* widget : std::vector<QWidget*>(zeltk::everyWidget()))
        if (widget->isTopLevel() || (className && widget->inherits(className)))
            zeltk::inheritLook(widget);
}

bool styled = false;

// The default style has softer highlights, and shows a selection as text turned inside out.
QPalette styledPalette(QPalette palette)
{
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        if (palette.color(group, QColorGroup::Light) == Qt::white)
            palette.setColor(group, QColorGroup::Light,
                             palette.color(group, QColorGroup::Background).light(123));
        palette.setColor(group, QColorGroup::Highlight, palette.color(group, QColorGroup::Text));
        palette.setColor(group, QColorGroup::HighlightedText, palette.color(group, QColorGroup::Base));
    }
    return palette;
}

} // namespace

void QApplication::setPalette(const QPalette& palette, bool inform, const char* className)
{
    const QPalette wanted = styled ? styledPalette(palette) : palette;
    if (className)
        classPalettes()[className] = wanted;
    else
        zeltk::setDefaultPalette(wanted);
    if (inform)
        informWidgets(className);
}

namespace zeltk
{

void ensureStyled()
{
    if (styled)
        return;
    styled = true;
    QApplication::setPalette(defaultPalette(), true);
}

} // namespace zeltk

QFont QApplication::font(const QWidget* widget)
{
    const QFont* special = valueForClass(classFonts(), widget);
    return special ? *special : zeltk::defaultFont();
}

void QApplication::setFont(const QFont& font, bool inform, const char* className)
{
    if (className)
        classFonts()[className] = font;
    else
        zeltk::setDefaultFont(font);
    if (inform)
        informWidgets(className);
}

QFontMetrics QApplication::fontMetrics()
{
    return QFontMetrics(font());
}

QCursor* QApplication::overrideCursor()
{
    std::vector<QCursor>& cursors = application()->overrideCursors;
    return cursors.empty() ? nullptr : &cursors.back();
}

namespace
{

void applyCursors()
{
    for (QWidget* widget : zeltk::everyWidget())
        if (widget->ownCursor() || widget->isTopLevel())
            zeltk::applyCursor(widget);
}

} // namespace

void QApplication::setOverrideCursor(const QCursor& cursor, bool replace)
{
    std::vector<QCursor>& cursors = application()->overrideCursors;
    if (replace && !cursors.empty())
        cursors.pop_back();
    cursors.push_back(cursor);
    applyCursors();
    flushX();
}

void QApplication::restoreOverrideCursor()
{
    std::vector<QCursor>& cursors = application()->overrideCursors;
    if (cursors.empty())
        return;
    cursors.pop_back();
    applyCursors();
    flushX();
}

bool QApplication::hasGlobalMouseTracking()
{
    return application()->globalTracking;
}

void QApplication::setGlobalMouseTracking(bool enable)
{
    application()->globalTracking = enable;
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

QWidgetList* QApplication::allWidgets()
{
    QWidgetList* list = new QWidgetList;
    for (QWidget* widget : zeltk::everyWidget())
        list->append(widget);
    return list;
}

QWidgetList* QApplication::topLevelWidgets()
{
    QWidgetList* list = new QWidgetList;
    for (QWidget* widget : zeltk::everyWidget())
        if (widget->isTopLevel())
            list->append(widget);
    return list;
}

QDesktopWidget* QApplication::desktop()
{
    ApplicationData* app = application();
    if (!app->desktop)
        app->desktop = new QDesktopWidget;
    return app->desktop;
}

QWidget* QApplication::activePopupWidget()
{
    return application()->popups.empty() ? nullptr : application()->popups.back();
}

QWidget* QApplication::activeModalWidget()
{
    return application()->modals.empty() ? nullptr : application()->modals.back();
}

QWidget* QApplication::focusWidget() const
{
    return application()->focus;
}

QWidget* QApplication::activeWindow() const
{
    return application()->active;
}

QWidget* QApplication::widgetAt(int x, int y, bool child)
{
    QWidget* widget = QWidget::find(x11::windowAt(x, y));
    return widget && !child ? widget->topLevelWidget() : widget;
}

QWidget* QApplication::widgetAt(const QPoint& pos, bool child)
{
    return widgetAt(pos.x(), pos.y(), child);
}

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

void QApplication::closeAllWindows()
{
    for (QWidget* widget : std::vector<QWidget*>(zeltk::everyWidget())) {
        const std::vector<QWidget*>& left = zeltk::everyWidget();
        if (std::find(left.begin(), left.end(), widget) == left.end() || !widget->isTopLevel() ||
            widget->isHidden() || widget->isDesktop())
            continue;
        if (!widget->close())
            return;
    }
}

namespace zeltk
{

void windowClosed(QWidget*, bool wasMainWidget)
{
    if (wasMainWidget && qApp)
        qApp->quit();
    for (const QWidget* widget : everyWidget())
        if (widget->isTopLevel() && !widget->isHidden() && !widget->isDesktop() && !widget->isPopup())
            return;
    if (qApp)
        ApplicationAccess::emitLastWindowClosed();
}

bool sendSpontaneous(QObject* receiver, QEvent* event)
{
    EventAccess::setSpontaneous(event, true);
    return qApp->notify(receiver, event);
}

} // namespace zeltk

bool QApplication::sendEvent(QObject* receiver, QEvent* event)
{
    zeltk::EventAccess::setSpontaneous(event, false);
    return qApp && qApp->notify(receiver, event);
}

namespace
{

bool deliver(QObject* receiver, QEvent* event)
{
    if (!receiver->isWidgetType() || receiver != qApp) {
        const std::vector<QObject*>& filters = zeltk::dataOf(qApp)->filters;
        const std::vector<QObject*> asked(filters.rbegin(), filters.rend());
        for (QObject* filter : asked)
            if (std::find(filters.begin(), filters.end(), filter) != filters.end() &&
                filter->eventFilter(receiver, event))
                return true;
    }
    return receiver->event(event);
}

// Who ignores a key leaves it to the parent.
bool deliverKey(QWidget* widget, QKeyEvent* key)
{
    const bool propagates = key->type() != QEvent::Accel && key->type() != QEvent::AccelOverride;
    for (;;) {
        key->accept();
        const QGuardedPtr<QWidget> alive(widget);
        const bool handled = deliver(widget, key);
        if ((handled && key->isAccepted()) || alive.isNull() || !propagates || widget->isTopLevel())
            return handled;
        widget = widget->parentWidget();
    }
}

bool wantsMove(const QWidget* widget, const QMouseEvent* mouse)
{
    return (mouse->state() & Qt::MouseButtonMask) || widget->hasMouseTracking() ||
           QApplication::hasGlobalMouseTracking();
}

// Who ignores the mouse leaves it to the parent, which sees the place in its own coordinates. Parents get an
// event of their own; what they decide counts for the first one.
bool deliverMouse(QWidget* widget, QMouseEvent* mouse)
{
    QPoint pos = mouse->pos();
    QMouseEvent* event = mouse;
    QMouseEvent translated(*mouse);
    bool handled = false;
    mouse->accept();
    for (;;) {
        if (mouse->type() != QEvent::MouseMove || wantsMove(widget, mouse)) {
            const QGuardedPtr<QWidget> alive(widget);
            handled = deliver(widget, event);
            if ((handled && event->isAccepted()) || alive.isNull())
                break;
        }
        if (widget->isTopLevel() || widget->testWFlags(Qt::WNoMousePropagation))
            break;
        pos = widget->mapToParent(pos);
        widget = widget->parentWidget();
        if (!widget->isEnabled())
            break;
        translated = QMouseEvent(mouse->type(), pos, mouse->globalPos(), mouse->button(), mouse->state());
        zeltk::EventAccess::setSpontaneous(&translated, mouse->spontaneous());
        event = &translated;
    }
    if (event->isAccepted())
        mouse->accept();
    else
        mouse->ignore();
    return handled;
}

bool deliverWheel(QWidget* widget, QWheelEvent* wheel)
{
    QPoint pos = wheel->pos();
    for (;;) {
        QWheelEvent here(pos, wheel->globalPos(), wheel->delta(), wheel->state(), wheel->orientation());
        zeltk::EventAccess::setSpontaneous(&here, wheel->spontaneous());
        const QGuardedPtr<QWidget> alive(widget);
        const bool handled = deliver(widget, &here);
        const bool accepted = handled && here.isAccepted();
        if (accepted || alive.isNull() || widget->isTopLevel() ||
            widget->testWFlags(Qt::WNoMousePropagation)) {
            if (accepted)
                wheel->accept();
            else
                wheel->ignore();
            return handled;
        }
        pos = widget->mapToParent(pos);
        widget = widget->parentWidget();
    }
}

} // namespace

bool QApplication::notify(QObject* receiver, QEvent* event)
{
    if (!receiver) {
        qWarning("QApplication::notify: Unexpected null receiver");
        return false;
    }
    if (!receiver->isWidgetType())
        return deliver(receiver, event);
    QWidget* widget = static_cast<QWidget*>(receiver);
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Accel:
    case QEvent::AccelOverride:
        return deliverKey(widget, static_cast<QKeyEvent*>(event));
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
        return deliverMouse(widget, static_cast<QMouseEvent*>(event));
    case QEvent::Wheel:
        return deliverWheel(widget, static_cast<QWheelEvent*>(event));
    default:
        return deliver(receiver, event);
    }
}

bool QApplication::event(QEvent* event)
{
    if (event->type() == QEvent::Close) {
        QCloseEvent* close = static_cast<QCloseEvent*>(event);
        close->accept();
        closeAllWindows();
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

void QApplication::setCursorFlashTime(int msecs)
{
    application()->flashTime = msecs;
}

int QApplication::cursorFlashTime()
{
    return application()->flashTime;
}

void QApplication::setDoubleClickInterval(int msecs)
{
    application()->doubleClickInterval = msecs;
}

int QApplication::doubleClickInterval()
{
    return application()->doubleClickInterval;
}

void QApplication::setWheelScrollLines(int lines)
{
    application()->wheelLines = lines;
}

int QApplication::wheelScrollLines()
{
    return application()->wheelLines;
}

void QApplication::setStartDragTime(int msecs)
{
    application()->dragTime = msecs;
}

int QApplication::startDragTime()
{
    return application()->dragTime;
}

void QApplication::setStartDragDistance(int pixels)
{
    application()->dragDistance = pixels;
}

int QApplication::startDragDistance()
{
    return application()->dragDistance;
}
