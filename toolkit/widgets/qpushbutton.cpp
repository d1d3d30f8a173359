// QPushButton.
#include <qpushbutton.h>

#include "style/motif.h"
#include "widgets/defaultbutton.h"

#include <qpainter.h>

namespace
{

zeltk::motif::ButtonLook lookOf(const QPushButton* button)
{
    zeltk::motif::ButtonLook look;
    look.down = button->isDown();
    look.on = button->isOn();
    look.flat = button->isFlat();
    look.isDefault = button->isDefault();
    look.autoDefault = button->autoDefault();
    return look;
}

} // namespace

QPushButton::QPushButton(QWidget* parent, const char* name) : QButton(parent, name)
{
    init();
}

QPushButton::QPushButton(const QString& text, QWidget* parent, const char* name) : QButton(parent, name)
{
    init();
    setText(text);
}

QPushButton::~QPushButton() {}

void QPushButton::init()
{
    flat = false;
    isdefault = false;
    chosen = false;
    automatic = topLevelWidget()->inherits("QDialog");
    setBackgroundMode(PaletteButton);
    setSizePolicy(QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed));
}

QSize QPushButton::sizeHint() const
{
    constPolish();
    const QSize label = zeltk::motif::labelSize(this, text().isEmpty() ? QString("XXXX") : text(), pixmap());
    return zeltk::motif::pushButtonSize(label, lookOf(this));
}

void QPushButton::setToggleButton(bool enable)
{
    QButton::setToggleButton(enable);
}

void QPushButton::setOn(bool on)
{
    QButton::setOn(on);
}

void QPushButton::setAutoDefault(bool enable)
{
    if (automatic == enable)
        return;
    automatic = enable;
    update();
    updateGeometry();
}

void QPushButton::setDefault(bool enable)
{
    if (enable) {
        showDefault(true);
        zeltk::defaultButtonChosen(this);
    } else {
        chosen = false;
        showDefault(false);
    }
}

void QPushButton::showDefault(bool on)
{
    if (isdefault == on)
        return;
    isdefault = on;
    update();
    updateGeometry();
}

void QPushButton::setFlat(bool enable)
{
    flat = enable;
    update();
}

void QPushButton::drawButton(QPainter* p)
{
    const zeltk::motif::ButtonLook look = lookOf(this);
    zeltk::motif::drawPushButton(p, rect(), colorGroup(), look);
    drawButtonLabel(p);
    if (hasFocus())
        zeltk::motif::drawFocusFrame(p, zeltk::motif::pushButtonFocusFrame(rect(), look), colorGroup());
}

void QPushButton::drawButtonLabel(QPainter* p)
{
    const QRect contents = zeltk::motif::pushButtonContents(rect(), lookOf(this));
    const QColorGroup& g = colorGroup();
    if (pixmap())
        zeltk::motif::drawPixmap(p, contents, AlignCenter, g, isEnabled(), *pixmap());
    else
        zeltk::motif::drawText(p, contents, AlignCenter | ShowPrefix, g, isEnabled(), text(),
                               &g.buttonText());
}

void QPushButton::focusInEvent(QFocusEvent* event)
{
    if (automatic && !isdefault)
        zeltk::defaultButtonFocused(this);
    QButton::focusInEvent(event);
}

void QPushButton::focusOutEvent(QFocusEvent* event)
{
    if (automatic && isdefault)
        zeltk::defaultButtonLeft(this);
    QButton::focusOutEvent(event);
}
