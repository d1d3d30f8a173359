// A line of text with a cursor, a selection and a history.
#include "widgets/editbuffer.h"

#include <algorithm>
#include <utility>

namespace zeltk
{

QString EditBuffer::selectedText() const
{
    return hasSelection() ? contents.mid(static_cast<uint>(start), static_cast<uint>(end - start))
                          : QString();
}

void EditBuffer::setText(const QString& text)
{
    deselect();
    textDirty = textDirty || !(contents == text);
    contents = text;
    place = length();
    history.clear();
    done = 0;
    unmodified = 0;
    newStep = true;
}

void EditBuffer::moveCursor(int to, bool mark)
{
    to = std::max(0, std::min(to, length()));
    if (to != place)
        newStep = true;
    if (!mark) {
        deselect();
        place = to;
        return;
    }
    int anchor = place;
    if (hasSelection() && (place == start || place == end))
        anchor = place == start ? end : start;
    const int newStart = std::min(anchor, to);
    const int newEnd = std::max(anchor, to);
    selectionDirty = selectionDirty || newStart != start || newEnd != end;
    start = newStart;
    end = newEnd;
    place = to;
}

void EditBuffer::select(int from, int to, int cursorPlace)
{
    start = std::min(from, to);
    end = std::max(from, to);
    place = cursorPlace;
    newStep = true;
}

void EditBuffer::deselect()
{
    if (hasSelection()) {
        selectionDirty = true;
        newStep = true;
    }
    start = end = 0;
}

int EditBuffer::nextWord(int from) const
{
    while (from < length() && !contents.at(static_cast<uint>(from)).isSpace())
        ++from;
    while (from < length() && contents.at(static_cast<uint>(from)).isSpace())
        ++from;
    return from;
}

int EditBuffer::previousWord(int from) const
{
    while (from > 0 && contents.at(static_cast<uint>(from) - 1).isSpace())
        --from;
    while (from > 0 && !contents.at(static_cast<uint>(from) - 1).isSpace())
        --from;
    return from;
}

void EditBuffer::replace(int at, int removedLength, const QString& inserted)
{
    contents.replace(static_cast<uint>(at), static_cast<uint>(removedLength), inserted);
    textDirty = true;
}

// Changes of one kind that follow each other are undone together, so is a selection with what replaced it.
void EditBuffer::apply(Kind kind, int at, int removedLength, const QString& inserted)
{
    history.resize(static_cast<size_t>(done));
    if (unmodified > done)
        unmodified = -1;
    const bool follows =
        !history.empty() &&
        (history.back().kind == kind || (history.back().kind == Kind::Selection && kind == Kind::Insert));
    const QString removed = contents.mid(static_cast<uint>(at), static_cast<uint>(removedLength));
    history.push_back({kind, at, removed, inserted, place, newStep || !follows});
    ++done;
    newStep = false;
    replace(at, removedLength, inserted);
    place = at + static_cast<int>(inserted.length());
}

void EditBuffer::insert(const QString& text, int maxLength)
{
    removeSelection();
    const int room = std::max(0, maxLength - length());
    apply(Kind::Insert, place, 0, text.left(static_cast<uint>(room)));
}

void EditBuffer::removeBefore()
{
    if (hasSelection())
        removeSelection();
    else if (place > 0)
        apply(Kind::Backspace, place - 1, 1, QString());
}

void EditBuffer::removeBehind()
{
    if (hasSelection())
        removeSelection();
    else if (place < length())
        apply(Kind::Delete, place, 1, QString());
}

void EditBuffer::removeRest()
{
    deselect();
    if (place < length())
        apply(Kind::Delete, place, length() - place, QString());
}

void EditBuffer::removeSelection()
{
    if (!hasSelection())
        return;
    const int from = start;
    const int count = end - start;
    deselect();
    apply(Kind::Selection, from, count, QString());
}

void EditBuffer::overwrite(const QString& whole, int cursorPlace, bool removing)
{
    int from = 0;
    while (from < length() && whole.at(static_cast<uint>(from)) == contents.at(static_cast<uint>(from)))
        ++from;
    int to = length();
    while (to > from && whole.at(static_cast<uint>(to) - 1) == contents.at(static_cast<uint>(to) - 1))
        --to;
    deselect();
    if (from < to)
        apply(removing ? Kind::Backspace : Kind::Insert, from, to - from,
              whole.mid(static_cast<uint>(from), static_cast<uint>(to - from)));
    place = cursorPlace;
}

void EditBuffer::undo()
{
    deselect();
    while (canUndo()) {
        const Change& change = history[static_cast<size_t>(--done)];
        replace(change.at, static_cast<int>(change.inserted.length()), change.removed);
        place = change.cursorBefore;
        if (change.startsStep)
            break;
    }
    newStep = false;
}

void EditBuffer::redo()
{
    deselect();
    bool first = true;
    while (canRedo()) {
        const Change& change = history[static_cast<size_t>(done)];
        if (!first && change.startsStep)
            break;
        first = false;
        ++done;
        replace(change.at, static_cast<int>(change.removed.length()), change.inserted);
        place = change.at + static_cast<int>(change.inserted.length());
    }
    newStep = false;
}

bool EditBuffer::takeTextChanged()
{
    return std::exchange(textDirty, false);
}

bool EditBuffer::takeSelectionChanged()
{
    return std::exchange(selectionDirty, false);
}

} // namespace zeltk
