// From the X server's keyboard events to key events, and who has the keyboard.
#include "kernel/applicationdata.h"
#include "kernel/applicationprivate.h"
#include "kernel/dispatch.h"
#include "kernel/widgetdata.h"
#include "tools/unicode.h"

#include <qevent.h>

namespace zeltk
{

namespace
{

// Keys of the number pad that give a sign; those that move the cursor are like their twins.
bool isKeypadSign(unsigned long keysym)
{
    return keysym >= 0xff80 && keysym <= 0xffbd && !(keysym >= 0xff91 && keysym <= 0xff9f);
}

QKeyEvent translated(const x11::Event& e)
{
    const bool down = e.type == x11::Event::KeyDown;
    const QString text = fromUtf8(e.text);
    int ascii = text.length() == 1 && text.at(0).unicode() < 0x100 ? text.at(0).unicode() : 0;
    int code = keyCode(e.keysym);
    if (code == Qt::Key_Tab && (e.state & shiftBit))
        code = Qt::Key_Backtab;
    if (code == Qt::Key_Backtab)
        ascii = 0;
    if (code == 0)
        code = ascii >= 32 ? ascii : static_cast<int>(Qt::Key_unknown);
    const int state = stateOf(e.state) | (isKeypadSign(e.keysym) ? Qt::Keypad : 0);
    const bool silent = !down || text.isEmpty() || text.at(0).unicode() == 0 || code == Qt::Key_Backtab;
    return QKeyEvent(down ? QEvent::KeyPress : QEvent::KeyRelease, code, ascii, state,
                     silent ? QString("") : text, e.autoRepeat);
}

// Who edits text may want the key for itself; else it may be a shortcut.
bool isShortcut(QWidget* receiver, const QKeyEvent& key)
{
    const QGuardedPtr<QWidget> alive(receiver);
    QKeyEvent wish(QEvent::AccelOverride, key.key(), key.ascii(), key.state(), key.text(),
                   key.isAutoRepeat());
    if (sendSpontaneous(receiver, &wish) && wish.isAccepted())
        return false;
    QKeyEvent shortcut(QEvent::Accel, key.key(), key.ascii(), key.state(), key.text(), key.isAutoRepeat());
    return !alive.isNull() && activateAccelerator(receiver->topLevelWidget(), &shortcut);
}

} // namespace

void keyChanged(QWidget* window, const x11::Event& e)
{
    const QGuardedPtr<QWidget> receiver(keyReceiver(window->topLevelWidget()));
    if (receiver.isNull() || blockedByModal(receiver) || !receiver->isEnabled())
        return;
    QKeyEvent event = translated(e);
    if (event.type() == QEvent::KeyPress && !application()->keyboardGrabber && isShortcut(receiver, event))
        return;
    if (!receiver.isNull())
        sendSpontaneous(receiver, &event);
}

void focusChanged(QWidget* window, const x11::Event& e)
{
    if (window->isPopup())
        return;
    if (e.type == x11::Event::FocusGained)
        setActive(window->topLevelWidget());
    else if (application()->active == window)
        setActive(nullptr);
}

} // namespace zeltk
