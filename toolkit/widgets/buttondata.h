// What a button carries.
#ifndef ZELTK_BUTTONDATA_H
#define ZELTK_BUTTONDATA_H

#include "kernel/accelerators.h"

#include <qbutton.h>
#include <qpixmap.h>
#include <qtimer.h>

#include <memory>

namespace zeltk
{

struct ButtonData : AcceleratorTarget {
    explicit ButtonData(QButton* b) : button(b) {}
    void activateAccelerator() override { button->emulateClick(); }

    QButton* button;
    QString text;
    std::unique_ptr<QPixmap> pixmap;
    QKeySequence accel;
    QButton::ToggleType type = QButton::SingleShot;
    QButton::ToggleState state = QButton::Off;
    bool down = false;
    bool mouseHeld = false; // the left button went down on it
    bool animating = false;
    bool autoResize = false;
    bool autoRepeat = false;
    QTimer repeat;
};

} // namespace zeltk

#endif
