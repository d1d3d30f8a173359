// QCheckBox.
#include <qcheckbox.h>

#include "style/motif.h"

#include <qpainter.h>

QCheckBox::QCheckBox(QWidget* parent, const char* name) : QButton(parent, name)
{
    init();
}

QCheckBox::QCheckBox(const QString& text, QWidget* parent, const char* name) : QButton(parent, name)
{
    init();
    setText(text);
}

void QCheckBox::init()
{
    setToggleButton(true);
    setSizePolicy(QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed));
}

void QCheckBox::setNoChange()
{
    setTristate(true);
    setState(NoChange);
}

void QCheckBox::setTristate(bool enable)
{
    setToggleType(enable ? Tristate : Toggle);
}

void QCheckBox::setChecked(bool checked)
{
    setOn(checked);
}

// Empty without text and pixmap.
QSize QCheckBox::labelSize() const
{
    return text().isEmpty() && !pixmap() ? QSize() : zeltk::motif::labelSize(this, text(), pixmap());
}

QSize QCheckBox::sizeHint() const
{
    constPolish();
    return zeltk::motif::checkBoxSize(labelSize());
}

bool QCheckBox::hitButton(const QPoint& pos) const
{
    const QRect box = zeltk::motif::checkIndicator(rect());
    return (box | zeltk::motif::checkFocusFrame(rect(), labelSize())).contains(pos);
}

void QCheckBox::drawButton(QPainter* p)
{
    const zeltk::motif::CheckLook look = {isDown(), state() == On, state() == NoChange};
    zeltk::motif::drawCheckIndicator(p, zeltk::motif::checkIndicator(rect()), colorGroup(), look);
    drawButtonLabel(p);
}

void QCheckBox::drawButtonLabel(QPainter* p)
{
    const QRect label = zeltk::motif::checkLabel(rect());
    const QColorGroup& g = colorGroup();
    if (pixmap())
        zeltk::motif::drawPixmap(p, label, AlignAuto | AlignVCenter, g, isEnabled(), *pixmap());
    else
        zeltk::motif::drawText(p, label, AlignAuto | AlignVCenter | ShowPrefix, g, isEnabled(), text(),
                               &g.foreground());
    if (hasFocus())
        zeltk::motif::drawFocusFrame(p, zeltk::motif::checkFocusFrame(rect(), labelSize()), g);
}
