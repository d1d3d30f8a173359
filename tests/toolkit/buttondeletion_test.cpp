// Buttons that are deleted by who listens to their signals.
#include "controldeletion.h"

#include <qcheckbox.h>
#include <qguardedptr.h>
#include <qpushbutton.h>

#include <X11/keysym.h>

#include <vector>

namespace
{

const char* const pressed = SIGNAL(pressed());
const char* const released = SIGNAL(released());
const char* const clicked = SIGNAL(clicked());
const char* const toggled = SIGNAL(toggled(bool));
const char* const changed = SIGNAL(stateChanged(int));

void click(QButton* button)
{
    xinput::click(button, 10, 10);
}

void typeSpace(QButton*)
{
    xinput::typeKey(XK_space);
}

void typeShortcut(QButton* button)
{
    button->setText("&Text");
    xinput::typeKey('t', XK_Alt_L);
}

void leaveAndComeBack(QButton* button)
{
    const QPoint place = button->mapToGlobal(QPoint(10, 10));
    xinput::moveTo(button, 10, 10);
    xinput::pressButton();
    settle();
    xinput::moveToRoot(place.x() + 200, place.y());
    settle();
    xinput::moveToRoot(place.x(), place.y());
    settle();
    xinput::releaseButton();
}

// Its first signals at all are those of a repetition.
void repeat(QButton* button)
{
    button->setAutoRepeat(true);
    button->blockSignals(true);
    xinput::moveTo(button, 10, 10);
    xinput::pressButton();
    waitFor([=] { return button->isDown(); });
    button->blockSignals(false);
    const QGuardedPtr<QButton> gone(button);
    EXPECT_TRUE(waitFor([&] { return !gone; }));
}

void toggle(QButton* button)
{
    button->toggle();
}

const Case<QButton> cases[] = {
    {pressed, click},
    {released, click},
    {clicked, click},
    {toggled, click},
    {changed, click},
    {released, typeSpace},
    {clicked, typeSpace},
    {toggled, typeSpace},
    {changed, typeSpace},
    {pressed, typeShortcut},
    {released, typeShortcut},
    {clicked, typeShortcut},
    {released, leaveAndComeBack},
    {toggled, toggle},
    {changed, toggle},
};

} // namespace

TEST_F(ControlDeletion, OfAPushButton)
{
    checkAll<QButton>(cases, [this]() -> QButton* {
        QPushButton* button = new Perishable<QPushButton>("Text", &window);
        button->setToggleButton(true);
        return button;
    });
}

TEST_F(ControlDeletion, OfAPushButtonThatRepeats)
{
    const Case<QButton> repeating[] = {{pressed, repeat}, {released, repeat}, {clicked, repeat}};
    checkAll<QButton>(repeating,
                      [this]() -> QButton* { return new Perishable<QPushButton>("Text", &window); });
}

TEST_F(ControlDeletion, OfAPushButtonByKeysThatOthersDoNotHave)
{
    const Case<QButton> keys[] = {{pressed, typeSpace},
                                  {clicked, [](QButton*) { xinput::typeKey(XK_Return); }}};
    checkAll<QButton>(keys, [this]() -> QButton* {
        QPushButton* button = new Perishable<QPushButton>("Text", &window);
        button->setAutoDefault(true);
        return button;
    });
}

TEST_F(ControlDeletion, OfAPushButtonThatIsSeenToBeClicked)
{
    const auto animate = [](QButton* button) {
        const QGuardedPtr<QButton> gone(button);
        static_cast<QPushButton*>(button)->animateClick();
        EXPECT_TRUE(waitFor([&] { return !gone; }));
    };
    const Case<QButton> seen[] = {{pressed, animate}, {released, animate}, {clicked, animate}};
    checkAll<QButton>(seen, [this]() -> QButton* { return new Perishable<QPushButton>("Text", &window); });
}

TEST_F(ControlDeletion, OfACheckBox)
{
    checkAll<QButton>(cases, [this]() -> QButton* { return new Perishable<QCheckBox>("Text", &window); });
}
