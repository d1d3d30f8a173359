// QListBox: its entries and which of them is current.
#include <qlistbox.h>

#include "widgets/listboxdata.h"

#include <qguardedptr.h>
#include <qstrlist.h>

#include <algorithm>

QListBox::QListBox(QWidget* parent, const char* name, WFlags f) : QScrollView(parent, name, f)
{
    d = new zeltk::ListBoxData;
    setFocusPolicy(WheelFocus);
    viewport()->setBackgroundMode(PaletteBase);
    viewport()->setFocusProxy(this);
    setBackgroundMode(PaletteBackground, PaletteBase);
}

QListBox::~QListBox()
{
    viewport()->removeEventFilter(this);
    for (QListBoxItem* each : d->items) {
        each->lbox = 0;
        delete each;
    }
    delete d;
    d = 0;
}

void QListBox::setFont(const QFont& font)
{
    QScrollView::setFont(font);
    triggerUpdate(true);
}

uint QListBox::count() const
{
    return static_cast<uint>(d->items.size());
}

QListBoxItem* QListBox::item(int index) const
{
    const bool there = index >= 0 && index < static_cast<int>(d->items.size());
    return there ? d->items[static_cast<size_t>(index)] : 0;
}

int QListBox::index(const QListBoxItem* item) const
{
    const auto found = std::find(d->items.begin(), d->items.end(), item);
    return found == d->items.end() ? -1 : static_cast<int>(found - d->items.begin());
}

QListBoxItem* QListBox::firstItem() const
{
    return item(0);
}

QString QListBox::text(int index) const
{
    const QListBoxItem* found = item(index);
    return found ? found->text() : QString();
}

const QPixmap* QListBox::pixmap(int index) const
{
    const QListBoxItem* found = item(index);
    return found ? found->pixmap() : 0;
}

void QListBox::insertItem(const QListBoxItem* item, int index)
{
    QListBoxItem* added = const_cast<QListBoxItem*>(item);
    if (!added || added->lbox == this)
        return;
    if (added->lbox)
        added->lbox->takeItem(added);
    if (index < 0 || index > static_cast<int>(count()))
        index = static_cast<int>(count());
    added->lbox = this;
    added->s = false;
    d->items.insert(d->items.begin() + index, added);
    if (count() == 1)
        d->current = added;
    triggerUpdate(true);
}

// Null: at the beginning.
void QListBox::insertItem(const QListBoxItem* item, const QListBoxItem* after)
{
    insertItem(item, after ? index(after) + 1 : 0);
}

void QListBox::insertItem(const QString& text, int index)
{
    insertItem(new QListBoxText(text), index);
}

void QListBox::insertItem(const QPixmap& pixmap, int index)
{
    insertItem(new QListBoxPixmap(pixmap), index);
}

void QListBox::insertItem(const QPixmap& pixmap, const QString& text, int index)
{
    insertItem(new QListBoxPixmap(pixmap, text), index);
}

void QListBox::insertStringList(const QStringList& list, int index)
{
    if (index < 0)
        index = static_cast<int>(count());
    for (QStringList::ConstIterator it = list.begin(); it != list.end(); ++it)
        insertItem(*it, index++);
}

void QListBox::insertStrList(const QStrList* list, int index)
{
    if (list)
        insertStrList(*list, index);
}

void QListBox::insertStrList(const QStrList& list, int index)
{
    if (index < 0)
        index = static_cast<int>(count());
    for (QStrListIterator it(list); it.current(); ++it)
        insertItem(QString::fromLatin1(it.current()), index++);
}

void QListBox::insertStrList(const char** strings, int numStrings, int index)
{
    if (index < 0)
        index = static_cast<int>(count());
    for (int i = 0; strings && (numStrings < 0 ? strings[i] != 0 : i < numStrings); ++i)
        insertItem(QString::fromLatin1(strings[i]), index++);
}

// The next entry takes over from the current one, at the end the one before.
void QListBox::takeItem(const QListBoxItem* item)
{
    const int place = index(item);
    if (place < 0)
        return;
    QListBoxItem* taken = d->items[static_cast<size_t>(place)];
    d->items.erase(d->items.begin() + place);
    taken->lbox = 0;
    if (d->pressed == taken)
        d->pressed = 0;
    if (d->current == taken) {
        d->current = 0;
        const bool selected = taken->s;
        QListBoxItem* heir = this->item(QMIN(place, static_cast<int>(count()) - 1));
        d->current = heir;
        if (heir && d->mode == Single)
            heir->s = selected;
        triggerUpdate(true);
        if (heir)
            tellHighlighted(heir);
        return;
    }
    triggerUpdate(true);
}

void QListBox::removeItem(int index)
{
    delete item(index);
}

void QListBox::clear()
{
    std::vector<QListBoxItem*> items;
    items.swap(d->items);
    d->current = 0;
    d->pressed = 0;
    for (QListBoxItem* each : items) {
        each->lbox = 0;
        delete each;
    }
    triggerUpdate(true);
}

void QListBox::changeItem(const QListBoxItem* item, int index)
{
    if (!item || index < 0 || index >= static_cast<int>(count()))
        return;
    const QGuardedPtr<QListBox> alive(this);
    removeItem(index);
    if (!alive) {
        delete item;
        return;
    }
    insertItem(item, index);
    setCurrentItem(index);
}

void QListBox::changeItem(const QString& text, int index)
{
    if (item(index))
        changeItem(new QListBoxText(text), index);
}

void QListBox::changeItem(const QPixmap& pixmap, int index)
{
    if (item(index))
        changeItem(new QListBoxPixmap(pixmap), index);
}

void QListBox::changeItem(const QPixmap& pixmap, const QString& text, int index)
{
    if (item(index))
        changeItem(new QListBoxPixmap(pixmap, text), index);
}

int QListBox::currentItem() const
{
    return d->current ? index(d->current) : -1;
}

QString QListBox::currentText() const
{
    return d->current ? d->current->text() : QString();
}

void QListBox::setCurrentItem(int index)
{
    setCurrentItem(item(index));
}

void QListBox::setCurrentItem(QListBoxItem* item)
{
    if (!item || item->lbox != this || (item == d->current && (item->s || d->mode != Single)))
        return;
    const QGuardedPtr<QListBox> alive(this);
    QListBoxItem* before = d->current;
    d->current = item;
    if (d->mode == Single) {
        const bool changed = !item->s;
        for (QListBoxItem* each : d->items) {
            if (each->s && each != item) {
                each->s = false;
                updateItem(each);
            }
        }
        item->s = item->able;
        if (changed)
            emit selectionChanged();
        if (changed && alive && d->current == item)
            emit selectionChanged(item);
        if (!alive || d->current != item)
            return;
    }
    if (before && index(before) >= 0)
        updateItem(before);
    updateItem(item);
    ensureCurrentVisible();
    if (alive && d->current == item && tellHighlighted(item))
        emit currentChanged(item);
}

// Who listens may delete the list, or take the entry away: then nothing more is told of it.
bool QListBox::tellHighlighted(QListBoxItem* item)
{
    const QGuardedPtr<QListBox> alive(this);
    emit highlighted(item);
    if (alive && index(item) >= 0 && !item->text().isNull())
        emit highlighted(item->text());
    if (alive && index(item) >= 0)
        emit highlighted(index(item));
    return alive && index(item) >= 0;
}

bool QListBox::tellSelected(QListBoxItem* item)
{
    const QGuardedPtr<QListBox> alive(this);
    emit selected(item);
    if (alive && index(item) >= 0 && !item->text().isNull())
        emit selected(item->text());
    if (alive && index(item) >= 0)
        emit selected(index(item));
    return alive && index(item) >= 0;
}

void QListBox::setSelectionMode(SelectionMode mode)
{
    if (d->mode == mode)
        return;
    const QGuardedPtr<QListBox> alive(this);
    clearSelection();
    if (!alive)
        return;
    d->mode = mode;
    triggerUpdate(false);
}

QListBox::SelectionMode QListBox::selectionMode() const
{
    return d->mode;
}

bool QListBox::isSelected(const QListBoxItem* item) const
{
    return item && item->s;
}

QListBoxItem* QListBox::selectedItem() const
{
    return d->mode == Single && d->current && d->current->s ? d->current : 0;
}

void QListBox::setSelected(QListBoxItem* item, bool select)
{
    if (!item || item->lbox != this || !item->able || item->s == select || d->mode == NoSelection)
        return;
    if (d->mode == Single && select) {
        setCurrentItem(item);
        return;
    }
    item->s = select;
    updateItem(item);
    const QGuardedPtr<QListBox> alive(this);
    emit selectionChanged();
    if (alive && d->mode == Single && index(item) >= 0)
        emit selectionChanged(item);
}

void QListBox::clearSelection()
{
    selectAll(false);
}

void QListBox::selectAll(bool select)
{
    if (select && !isMultiSelection())
        return;
    bool changed = false;
    for (QListBoxItem* each : d->items) {
        const bool after = select && each->able;
        changed = changed || each->s != after;
        each->s = after;
    }
    if (!changed)
        return;
    triggerUpdate(false);
    emit selectionChanged();
}

void QListBox::invertSelection()
{
    if (!isMultiSelection())
        return;
    for (QListBoxItem* each : d->items)
        each->s = each->able && !each->s;
    triggerUpdate(false);
    emit selectionChanged();
}

QListBoxItem* QListBox::findItem(const QString& text, ComparisonFlags compare) const
{
    const QString wanted = compare & CaseSensitive ? text : text.lower();
    for (QListBoxItem* each : d->items) {
        const QString found = compare & CaseSensitive ? each->text() : each->text().lower();
        if (((compare & ExactMatch) && found == wanted) ||
            ((compare & BeginsWith) && found.startsWith(wanted)) ||
            ((compare & EndsWith) && found.endsWith(wanted)) ||
            ((compare & Contains) && found.find(wanted) >= 0))
            return each;
    }
    return 0;
}

void QListBox::sort(bool ascending)
{
    std::stable_sort(d->items.begin(), d->items.end(), [=](const QListBoxItem* a, const QListBoxItem* b) {
        return ascending ? a->text() < b->text() : b->text() < a->text();
    });
    triggerUpdate(true);
}
