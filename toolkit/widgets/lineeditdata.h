// What a line edit keeps.
#ifndef ZELTK_LINEEDITDATA_H
#define ZELTK_LINEEDITDATA_H

#include "widgets/editbuffer.h"
#include "widgets/editmask.h"

#include <qdatetime.h>
#include <qguardedptr.h>
#include <qlineedit.h>
#include <qvalidator.h>

namespace zeltk
{

struct LineEditData {
    EditBuffer buffer;
    EditMask mask;
    int maxLength = 32767;
    bool readOnly = false;
    QLineEdit::EchoMode echo = QLineEdit::Normal;
    int alignment = Qt::AlignAuto;
    QGuardedPtr<QValidator> validator;
    bool dragEnabled = true;

    bool cursorVisible = false;
    int blinkTimer = 0;
    int scroll = 0; // how far the text stands left of the field's beginning

    bool marking = false; // the pointer is stretching the selection
    bool holding = false; // the selection was pressed on
    QTime doubleClicked;  // null, or when; a further click soon after marks all

    // Emits what has changed. With a validator a change that it does not like is taken back first.
    void finish(QLineEdit* edit);
    void finish(QLineEdit* edit, const EditBuffer& before);
    QString shown() const;
    // What the program is told: with a mask, without its blanks.
    QString value() const;
    QString selectedValue() const;
    void setValue(const QString& text);
    // Edit at the cursor, in place of the selection.
    void insert(const QString& text);
    void removeBefore();
    void removeBehind();
    void removeRest();
    void empty(int from, int count, int cursor);
    QRect lineRect(const QLineEdit* edit) const;
    // Moves the text so that the cursor can be seen; only painting does it.
    void keepCursorInSight(const QLineEdit* edit);
    int textStart(const QLineEdit* edit) const;
    int positionAt(const QLineEdit* edit, int x) const;
    void copySelection(bool toSelection) const;
    void setBlinking(QLineEdit* edit, bool on);
};

} // namespace zeltk

#endif
