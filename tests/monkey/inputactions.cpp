// The user's hands, through the X server.
#include "clock.h"
#include "world.h"
#include "xinput.h"

#include <qapplication.h>

#include <X11/keysym.h>

namespace
{

void point(World& world, QWidget* target)
{
    const int x = world.random.between(-3, target->width() < 1000 ? target->width() + 2 : 1000);
    const int y = world.random.between(-3, target->height() < 800 ? target->height() + 2 : 800);
    xinput::moveTo(target, x, y);
}

int button(World& world)
{
    return world.random.chance(70) ? 1 : world.random.between(1, 5);
}

void click(World& world, QWidget* widget)
{
    QWidget* const target = world.partOf(widget);
    const int which = button(world);
    point(world, target);
    drain();
    xinput::pressButton(which);
    if (world.random.chance(70))
        drain();
    xinput::releaseButton(which);
}

void doubleClick(World& world, QWidget* widget)
{
    QWidget* const target = world.partOf(widget);
    QApplication::setDoubleClickInterval(1000000);
    point(world, target);
    for (int i = 0; i < 2; ++i) {
        xinput::pressButton(1);
        xinput::releaseButton(1);
    }
    drain();
    QApplication::setDoubleClickInterval(0);
}

void drag(World& world, QWidget* widget)
{
    QWidget* const target = world.partOf(widget);
    const int which = button(world);
    const QGuardedPtr<QWidget> alive(target);
    point(world, target);
    xinput::pressButton(which);
    for (int moves = world.random.between(1, 4); moves > 0; --moves) {
        drain();
        if (alive && world.random.chance(60))
            point(world, target);
        else
            xinput::moveToRoot(world.random.below(1024), world.random.below(768));
        monkeyclock::advance(world.random.below(400));
    }
    xinput::releaseButton(which);
}

// The button stays down until some later step.
void holdButton(World& world, QWidget* widget)
{
    QWidget* const target = world.partOf(widget);
    point(world, target);
    xinput::pressButton(button(world));
}

void letGo(World&, QWidget*)
{
    xinput::releaseAll();
}

void moveAnywhere(World& world, QWidget*)
{
    xinput::moveToRoot(world.random.below(1024), world.random.below(768));
}

const unsigned long keys[] = {XK_Return, XK_KP_Enter, XK_Escape,  XK_Tab,       XK_BackSpace,
                              XK_Delete, XK_Left,     XK_Right,   XK_Up,        XK_Down,
                              XK_Home,   XK_End,      XK_Page_Up, XK_Page_Down, XK_space,
                              XK_F1,     XK_F4,       XK_Menu,    XK_Insert,    XK_Num_Lock};
const char letters[] = "abcdefghijklmnopqrstuvwxyzABCZ0123456789-+.,%&<";

unsigned long key(World& world)
{
    if (world.random.chance(50))
        return keys[world.random.below(sizeof keys / sizeof keys[0])];
    return static_cast<unsigned char>(letters[world.random.below(sizeof letters - 1)]);
}

void type(World& world, QWidget*)
{
    static const unsigned long modifiers[] = {0, 0, 0, 0, XK_Shift_L, XK_Control_L, XK_Alt_L};
    for (int count = world.random.between(1, 6); count > 0; --count) {
        xinput::typeKey(key(world), modifiers[world.random.below(7)]);
        if (world.random.chance(50))
            drain();
    }
}

void typeInto(World& world, QWidget* widget)
{
    QWidget* const target = world.partOf(widget);
    target->setActiveWindow();
    target->setFocus();
    drain();
    type(world, target);
}

void passTime(World& world, QWidget*)
{
    static const int spans[] = {1, 20, 100, 300, 500, 1000, 60000, 1000000000};
    monkeyclock::advance(spans[world.random.below(8)]);
}

} // namespace

const std::vector<Action> inputActions = {
    {"click", 120, "QWidget", click},
    {"double click", 20, "QWidget", doubleClick},
    {"drag", 50, "QWidget", drag},
    {"hold button", 6, "QWidget", holdButton},
    {"let go", 12, nullptr, letGo},
    {"move pointer", 20, nullptr, moveAnywhere},
    {"type", 40, nullptr, type},
    {"type into", 60, "QWidget", typeInto},
    {"type into", 30, "QLineEdit", typeInto},
    {"pass time", 30, nullptr, passTime},
};
