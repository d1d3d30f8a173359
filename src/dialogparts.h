// What the dialogs share: their distances, their sunken panels and their two buttons.
#ifndef DIALOGPARTS_H
#define DIALOGPARTS_H

#include <qdialog.h>
#include <qframe.h>
#include <qpushbutton.h>

#include "creationcheck.h"

const int dialogMargin = 10; // pixels to the edge of the dialog
const int dialogGap = 8;     // pixels between its parts

const int sunkenPanel = (int)QFrame::Panel | (int)QFrame::Sunken;

// Makes OK and Cancel, which end the dialog, in its lower corners with their tops at `top`; each is a third
// of the dialog wide. The lines are those that are reported when a button cannot be created. Returns the
// place of OK.
inline QRect addOkAndCancel(QDialog* dialog, int top, const char* file, int okLine, int cancelLine)
{
    const int width = dialog->width() / 3;
    const int height = 2 * dialog->fontMetrics().height();

    QPushButton* const ok = new QPushButton("OK", dialog, "ok");
    checkCreation(ok, ZELKIT_PUSH_BUTTON_FAILED, file, okLine);
    QObject::connect(ok, SIGNAL(clicked()), dialog, SLOT(accept()));
    ok->setGeometry(dialogMargin, top, width, height);

    QPushButton* const cancel = new QPushButton("Cancel", dialog, "cancel");
    checkCreation(cancel, ZELKIT_PUSH_BUTTON_FAILED, file, cancelLine);
    QObject::connect(cancel, SIGNAL(clicked()), dialog, SLOT(reject()));
    cancel->setGeometry(dialog->width() - width - dialogMargin, top, width, height);

    return ok->geometry();
}

// Where the buttons of a dialog of a given height begin: half the height of a line stays free below them.
inline int buttonsTop(const QDialog* dialog)
{
    return dialog->height() - (int)(2.5 * dialog->fontMetrics().height());
}

#endif
