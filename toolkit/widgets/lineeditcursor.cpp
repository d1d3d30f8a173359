// QLineEdit: cursor and selection.
#include "widgets/lineeditdata.h"

#include <qapplication.h>
#include <qclipboard.h>

namespace zeltk
{

// Only text that can be read is given away.
void LineEditData::copySelection(bool toSelection) const
{
    if (buffer.hasSelection() && echo == QLineEdit::Normal)
        QApplication::clipboard()->setText(selectedValue(),
                                           toSelection ? QClipboard::Selection : QClipboard::Clipboard);
}

} // namespace zeltk

int QLineEdit::cursorPosition() const
{
    return d->buffer.cursor();
}

void QLineEdit::setCursorPosition(int position)
{
    if (position > d->buffer.length())
        return;
    d->buffer.moveCursor(position, false);
    d->finish(this);
}

void QLineEdit::cursorForward(bool mark, int steps)
{
    int to = d->buffer.cursor() + steps;
    if (d->mask.isSet())
        to = steps > 0 ? d->mask.placeFrom(to) : QMAX(0, d->mask.placeBefore(to + 1));
    d->buffer.moveCursor(to, mark);
    d->finish(this);
}

void QLineEdit::cursorBackward(bool mark, int steps)
{
    cursorForward(mark, -steps);
}

void QLineEdit::cursorWordForward(bool mark)
{
    d->buffer.moveCursor(d->buffer.nextWord(d->buffer.cursor()), mark);
    d->finish(this);
}

void QLineEdit::cursorWordBackward(bool mark)
{
    d->buffer.moveCursor(d->buffer.previousWord(d->buffer.cursor()), mark);
    d->finish(this);
}

void QLineEdit::home(bool mark)
{
    d->buffer.moveCursor(0, mark);
    d->finish(this);
}

void QLineEdit::end(bool mark)
{
    d->buffer.moveCursor(d->buffer.length(), mark);
    d->finish(this);
}

bool QLineEdit::hasSelectedText() const
{
    return d->buffer.hasSelection();
}

QString QLineEdit::selectedText() const
{
    return d->selectedValue();
}

int QLineEdit::selectionStart() const
{
    return hasSelectedText() ? d->buffer.selectionStart() : -1;
}

bool QLineEdit::getSelection(int* start, int* end)
{
    if (!hasSelectedText() || !start || !end)
        return false;
    *start = d->buffer.selectionStart();
    *end = d->buffer.selectionEnd();
    return true;
}

// Without a signal.
void QLineEdit::setSelection(int start, int length)
{
    if (start < 0 || start > d->buffer.length()) {
        d->buffer.select(0, 0, d->buffer.cursor());
    } else {
        const int end = start + QMIN(QMAX(length, 0), d->buffer.length() - start);
        d->buffer.select(start, end, end);
    }
    repaint(false);
}

void QLineEdit::selectAll()
{
    d->buffer.moveCursor(0, false);
    d->buffer.moveCursor(d->buffer.length(), true);
    d->finish(this);
}

void QLineEdit::deselect()
{
    d->buffer.deselect();
    d->finish(this);
}
