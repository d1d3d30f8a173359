// A line of text with a cursor, a selection and a history.
#ifndef ZELTK_EDITBUFFER_H
#define ZELTK_EDITBUFFER_H

#include <qstring.h>

#include <vector>

namespace zeltk
{

// A value: a copy taken before a change brings everything back. It tells what changed since the last time
// it was asked.
class EditBuffer
{
public:
    const QString& text() const { return contents; }
    int length() const { return static_cast<int>(contents.length()); }
    int cursor() const { return place; }
    bool hasSelection() const { return end > start; }
    int selectionStart() const { return start; }
    int selectionEnd() const { return end; }
    QString selectedText() const;

    // Forgets the history; the cursor goes to the end.
    void setText(const QString& text);
    // With `mark` the selection is stretched, else dropped.
    void moveCursor(int to, bool mark);
    // The cursor goes to where `to` is.
    void select(int from, int to, int cursorPlace);
    void deselect();

    int nextWord(int from) const;
    int previousWord(int from) const;

    // In place of the selection. What would make it longer than that is left out.
    void insert(const QString& text, int maxLength);
    void removeBefore();
    void removeBehind();
    void removeRest();
    void removeSelection();
    // A text of the same length in place of this one.
    void overwrite(const QString& whole, int cursorPlace, bool removing);

    bool canUndo() const { return done > 0; }
    bool canRedo() const { return done < static_cast<int>(history.size()); }
    void undo();
    void redo();

    bool isModified() const { return done != unmodified; }
    void setModified(bool modified) { unmodified = modified ? -1 : done; }

    bool takeTextChanged();
    bool takeSelectionChanged();

private:
    enum class Kind { Insert, Backspace, Delete, Selection };
    struct Change {
        Kind kind;
        int at;
        QString removed;
        QString inserted;
        int cursorBefore;
        bool startsStep; // undo stops here
    };

    void apply(Kind kind, int at, int removedLength, const QString& inserted);
    void replace(int at, int removedLength, const QString& inserted);

    QString contents;
    int place = 0;
    int start = 0;
    int end = 0;
    std::vector<Change> history;
    int done = 0;       // how many of the changes are in force
    int unmodified = 0; // the number at which the text counts as unmodified; -1: never
    bool newStep = true;
    bool textDirty = false;
    bool selectionDirty = false;
};

} // namespace zeltk

#endif
