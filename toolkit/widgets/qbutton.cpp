// QButton.
#include "widgets/buttondata.h"

#include "kernel/applicationprivate.h"
#include "style/motif.h"

#include <qevent.h>
#include <qguardedptr.h>
#include <qpainter.h>

namespace
{

constexpr int animationTime = 100; // milliseconds

} // namespace

QButton::QButton(QWidget* parent, const char* name, WFlags f)
    : QWidget(parent, name, f), d(new zeltk::ButtonData(this))
{
    zeltk::ensureStyled();
    setFocusPolicy(TabFocus);
    connect(&d->repeat, SIGNAL(timeout()), this, SLOT(autoRepeatTimeout()));
}

QButton::~QButton()
{
    zeltk::removeAccelerators(d);
    delete d;
}

QString QButton::text() const
{
    return d->text;
}

void QButton::setText(const QString& text)
{
    if (d->text == text && !d->pixmap)
        return;
    d->pixmap.reset();
    d->text = text;
    const int key = zeltk::motif::shortcutOf(text);
    setAccel(key ? key | UNICODE_ACCEL : 0);
    contentsChanged();
}

const QPixmap* QButton::pixmap() const
{
    return d->pixmap.get();
}

void QButton::setPixmap(const QPixmap& pixmap)
{
    d->pixmap.reset(new QPixmap(pixmap));
    d->text = QString::null;
    setAccel(QKeySequence());
    contentsChanged();
}

void QButton::contentsChanged()
{
    if (d->autoResize)
        adjustSize();
    update();
    updateGeometry();
}

QKeySequence QButton::accel() const
{
    return d->accel;
}

void QButton::setAccel(const QKeySequence& key)
{
    zeltk::removeAccelerators(d);
    d->accel = key;
    if (!key.isEmpty())
        zeltk::addAccelerator(this, key & ~UNICODE_ACCEL, d);
}

bool QButton::isToggleButton() const
{
    return d->type != SingleShot;
}

QButton::ToggleType QButton::toggleType() const
{
    return d->type;
}

void QButton::setToggleButton(bool enable)
{
    d->type = enable ? Toggle : SingleShot;
}

void QButton::setToggleType(ToggleType type)
{
    d->type = type;
}

bool QButton::isDown() const
{
    return d->down;
}

void QButton::setDown(bool down)
{
    d->mouseHeld = false;
    d->repeat.stop();
    showDown(down);
}

void QButton::showDown(bool down)
{
    if (d->down == down)
        return;
    d->down = down;
    repaint(false);
}

bool QButton::isOn() const
{
    return d->state != Off;
}

QButton::ToggleState QButton::state() const
{
    return d->state;
}

void QButton::setOn(bool on)
{
    if (isToggleButton())
        setState(on ? On : Off);
}

void QButton::setState(ToggleState state)
{
    if (d->state == state)
        return;
    const bool wasOn = isOn();
    d->state = state;
    repaint(false);
    const QGuardedPtr<QButton> alive(this);
    if (wasOn != (state != Off))
        emit toggled(state != Off);
    if (alive)
        emit stateChanged(state);
}

void QButton::toggle()
{
    if (isToggleButton())
        setOn(!isOn());
}

void QButton::nextState()
{
    if (d->type == Tristate)
        setState(d->state == Off ? NoChange : d->state == NoChange ? On : Off);
    else
        toggle();
}

bool QButton::autoResize() const
{
    return d->autoResize;
}

void QButton::setAutoResize(bool enable)
{
    d->autoResize = enable;
    if (enable)
        adjustSize();
}

bool QButton::autoRepeat() const
{
    return d->autoRepeat;
}

void QButton::setAutoRepeat(bool enable)
{
    d->autoRepeat = enable;
}

void QButton::animateClick()
{
    if (!isEnabled() || d->animating)
        return;
    d->animating = true;
    showDown(true);
    QTimer::singleShot(animationTime, this, SLOT(animateTimeout()));
    emit pressed();
}

void QButton::animateTimeout()
{
    if (!d->animating)
        return;
    d->animating = false;
    finishClick();
}

// What the shortcut does.
void QButton::emulateClick()
{
    if (!isEnabled() || d->animating)
        return;
    const QGuardedPtr<QButton> alive(this);
    press();
    if (alive)
        finishClick();
}

bool QButton::hitButton(const QPoint& pos) const
{
    return rect().contains(pos);
}

void QButton::drawButton(QPainter*) {}

void QButton::drawButtonLabel(QPainter*) {}

// A button is drawn aside and then shown as a whole, so that it does not flicker.
void QButton::paintEvent(QPaintEvent* event)
{
    const QRect part = event->rect() & rect();
    if (part.isEmpty())
        return;
    QPixmap picture(size());
    picture.fill(this, 0, 0);
    QPainter p;
    p.begin(&picture, this);
    drawButton(&p);
    p.end();
    bitBlt(this, part.topLeft(), &picture, part);
}

void QButton::enabledChange(bool oldEnabled)
{
    if (!isEnabled())
        setDown(false);
    QWidget::enabledChange(oldEnabled);
}
