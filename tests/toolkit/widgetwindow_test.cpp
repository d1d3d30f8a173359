// What windows tell the window manager, read back by another client.
#include "eventlog.h"
#include "printers.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qdesktopwidget.h>
#include <qpixmap.h>
#include <qwidget.h>

#include <X11/Xlib.h>
#include <X11/Xatom.h>
#include <X11/Xutil.h>
#undef None
#undef Bool

#include <string>
#include <unistd.h>
#include <vector>

namespace
{

// A property's bytes; empty if the window has none of that name.
std::string bytes(const QWidget& window, const char* name)
{
    QApplication::syncX();
    Display* display = xinput::display();
    Atom type = 0;
    int format = 0;
    unsigned long items = 0, rest = 0;
    unsigned char* data = nullptr;
    XGetWindowProperty(display, window.winId(), XInternAtom(display, name, False), 0, 1000, False,
                       AnyPropertyType, &type, &format, &items, &rest, &data);
    const std::size_t unit = format == 32 ? sizeof(long) : static_cast<std::size_t>(format / 8);
    const std::string found(reinterpret_cast<const char*>(data), data ? items * unit : 0);
    if (data)
        XFree(data);
    return found;
}

std::vector<long> numbers(const QWidget& window, const char* name)
{
    const std::string data = bytes(window, name);
    const long* first = reinterpret_cast<const long*>(data.data());
    return std::vector<long>(first, first + data.size() / sizeof(long));
}

// The names of the atoms in a property, each with a blank before it.
std::string atoms(const QWidget& window, const char* name)
{
    std::string all;
    for (long atom : numbers(window, name)) {
        char* text = XGetAtomName(xinput::display(), static_cast<Atom>(atom));
        all += ' ' + std::string(text);
        XFree(text);
    }
    return all;
}

XSizeHints sizeHints(const QWidget& window)
{
    QApplication::syncX();
    XSizeHints hints = XSizeHints();
    long supplied = 0;
    XGetWMNormalHints(xinput::display(), window.winId(), &hints, &supplied);
    return hints;
}

unsigned long owner(const QWidget& window)
{
    QApplication::syncX();
    Window found = 0;
    XGetTransientForHint(xinput::display(), window.winId(), &found);
    return found;
}

bool overridesRedirect(const QWidget& window)
{
    QApplication::syncX();
    XWindowAttributes attributes;
    XGetWindowAttributes(xinput::display(), window.winId(), &attributes);
    return attributes.override_redirect;
}

std::string programName()
{
    const std::string path = qApp->argv()[0];
    return path.substr(path.rfind('/') + 1);
}

} // namespace

TEST(WidgetWindow, SaysWhoItIsAndHowItIsClosed)
{
    QWidget window;
    showAndWait(&window);
    const std::string name = programName();
    std::string className = name;
    className[0] = static_cast<char>(className[0] - 'a' + 'A');
    EXPECT_EQ(name + '\0' + className + '\0', bytes(window, "WM_CLASS"));
    EXPECT_EQ(" WM_DELETE_WINDOW WM_TAKE_FOCUS _NET_WM_PING", atoms(window, "WM_PROTOCOLS"));
    EXPECT_EQ(std::vector<long>(1, getpid()), numbers(window, "_NET_WM_PID"));
    EXPECT_EQ(" _NET_WM_WINDOW_TYPE_NORMAL", atoms(window, "_NET_WM_WINDOW_TYPE"));
    EXPECT_EQ(0u, owner(window));
    EXPECT_FALSE(overridesRedirect(window));
}

TEST(WidgetWindow, WithoutATitleItBearsTheProgramsName)
{
    QWidget window;
    showAndWait(&window);
    EXPECT_EQ(programName(), bytes(window, "WM_NAME"));
    EXPECT_EQ("", bytes(window, "_NET_WM_NAME"));
    EXPECT_TRUE(window.caption().isNull());
}

TEST(WidgetWindow, ItsTitleIsToldInOldAndNewForm)
{
    EventLog log;
    LoggedWidget window(&log, 0, "window");
    window.setCaption(QString::fromLatin1("Title \xe4\xf6"));
    EXPECT_EQ("window CaptionChange", log.take());
    showAndWait(&window);
    EXPECT_EQ("Title \xe4\xf6", bytes(window, "WM_NAME"));
    EXPECT_EQ("Title \xc3\xa4\xc3\xb6", bytes(window, "_NET_WM_NAME"));
    window.setCaption("Renamed");
    EXPECT_EQ("Renamed", bytes(window, "WM_NAME"));
    EXPECT_EQ("Renamed", bytes(window, "_NET_WM_NAME"));
    EXPECT_EQ(QString("Renamed"), window.caption());
    window.setCaption(QString::fromUtf8("\xe2\x82\xac"));
    EXPECT_EQ("\xe2\x82\xac", bytes(window, "_NET_WM_NAME"));
    window.setIconText("small");
    EXPECT_EQ("small", bytes(window, "WM_ICON_NAME"));
    EXPECT_EQ(QString("small"), window.iconText());
}

TEST(WidgetWindow, AChildHasNoTitle)
{
    QWidget window;
    QWidget child(&window);
    child.setCaption("child");
    EXPECT_TRUE(child.caption().isNull());
}

TEST(WidgetWindow, ItsLimitsAreHints)
{
    QWidget window;
    window.setGeometry(30, 40, 200, 100);
    showAndWait(&window);
    XSizeHints hints = sizeHints(window);
    EXPECT_EQ(0, hints.flags & (PMinSize | PMaxSize | PResizeInc | PBaseSize));
    EXPECT_TRUE(hints.flags & USPosition);
    EXPECT_TRUE(hints.flags & USSize);
    window.setMinimumSize(40, 30);
    window.setMaximumSize(400, 300);
    hints = sizeHints(window);
    EXPECT_TRUE(hints.flags & PMinSize);
    EXPECT_EQ(40, hints.min_width);
    EXPECT_EQ(300, hints.max_height);
    window.setFixedSize(150, 80);
    hints = sizeHints(window);
    EXPECT_EQ(150, hints.min_width);
    EXPECT_EQ(150, hints.max_width);
    EXPECT_EQ(80, hints.min_height);
    EXPECT_EQ(80, hints.max_height);
}

TEST(WidgetWindow, ADialogBelongsToItsParentsWindow)
{
    QWidget window;
    QWidget child(&window);
    QWidget dialog(&child, "dialog", Qt::WType_Dialog | Qt::WShowModal);
    showAndWait(&window);
    showAndWait(&dialog);
    EXPECT_TRUE(dialog.isDialog());
    EXPECT_TRUE(dialog.isModal());
    EXPECT_EQ(window.winId(), owner(dialog));
    EXPECT_EQ(" _NET_WM_WINDOW_TYPE_DIALOG _NET_WM_WINDOW_TYPE_NORMAL", atoms(dialog, "_NET_WM_WINDOW_TYPE"));
    EXPECT_EQ(" _NET_WM_STATE_MODAL", atoms(dialog, "_NET_WM_STATE"));
    dialog.hide();
}

TEST(WidgetWindow, AnOrphanDialogBelongsToTheScreen)
{
    QWidget dialog(0, "dialog", Qt::WType_Dialog);
    showAndWait(&dialog);
    EXPECT_EQ(QApplication::desktop()->winId(), owner(dialog));
    EXPECT_EQ(QApplication::desktop(), QWidget::find(owner(dialog)));
    EXPECT_EQ(0, sizeHints(dialog).flags & (USSize | USPosition)) << "nobody chose them";
    EXPECT_EQ("", atoms(dialog, "_NET_WM_STATE"));
}

TEST(WidgetWindow, APopupIsNoneOfTheWindowManagersBusiness)
{
    QWidget popup(0, "popup", Qt::WType_Popup);
    popup.resize(20, 20);
    popup.show();
    EXPECT_TRUE(popup.isPopup());
    EXPECT_TRUE(overridesRedirect(popup));
    EXPECT_EQ("", bytes(popup, "WM_NAME"));
    EXPECT_EQ("", bytes(popup, "WM_CLASS"));
    popup.hide();
}

TEST(WidgetWindow, AnIconIsAPixmapOfTheServer)
{
    QPixmap icon(16, 16);
    icon.fill(Qt::red);
    QWidget window;
    EXPECT_EQ(nullptr, window.icon());
    window.setIcon(icon);
    ASSERT_NE(nullptr, window.icon());
    showAndWait(&window);
    QApplication::syncX();
    XWMHints* hints = XGetWMHints(xinput::display(), window.winId());
    ASSERT_NE(nullptr, hints);
    EXPECT_TRUE(hints->flags & IconPixmapHint);
    EXPECT_EQ(window.icon()->handle(), hints->icon_pixmap);
    XFree(hints);
}

TEST(WidgetWindow, MaximizedItFillsTheScreenAndComesBack)
{
    QWidget window;
    window.setGeometry(30, 40, 200, 100);
    showAndWait(&window);
    window.showMaximized();
    EXPECT_TRUE(window.isMaximized());
    EXPECT_TRUE(waitFor([&] { return window.width() == QApplication::desktop()->width(); }));
    window.showNormal();
    EXPECT_FALSE(window.isMaximized());
    EXPECT_TRUE(waitFor([&] { return window.geometry() == QRect(30, 40, 200, 100); }));
}
