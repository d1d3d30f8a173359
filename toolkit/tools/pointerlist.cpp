// What every QPtrList stands on.
#include <qptrlist.h>

#include <algorithm>
#include <vector>

namespace zeltk
{

struct PointerListData {
    std::vector<void*> items;
    std::vector<PointerIterator*> iterators;
    int current = -1;

    int size() const { return static_cast<int>(items.size()); }

    // The place that was at or behind `index` when one item was put in there.
    static void inserted(int* place, int index)
    {
        if (*place >= index)
            ++*place;
    }
    // The one behind a removed item takes its turn; the last one if there is none behind.
    void removed(int* place, int index) const
    {
        if (*place > index || *place == size())
            --*place;
    }
};

PointerList::PointerList() : d(new PointerListData) {}

PointerList::PointerList(const PointerList& other) : QPtrCollection(other), d(new PointerListData) {}

PointerList::~PointerList()
{
    for (PointerIterator* iterator : d->iterators) {
        iterator->list = nullptr;
        iterator->place = -1;
    }
    delete d;
}

uint PointerList::count() const
{
    return static_cast<uint>(d->items.size());
}

void PointerList::clear()
{
    std::vector<void*> gone;
    gone.swap(d->items);
    d->current = -1;
    for (PointerIterator* iterator : d->iterators)
        iterator->place = -1;
    for (void* item : gone)
        deleteItem(item);
}

void PointerList::copyItems(const PointerList& other)
{
    if (&other == this)
        return;
    clear();
    for (void* item : other.d->items)
        d->items.push_back(newItem(item));
    d->current = d->items.empty() ? -1 : 0;
}

bool PointerList::equals(const PointerList& other) const
{
    if (count() != other.count())
        return false;
    PointerList* self = const_cast<PointerList*>(this);
    for (size_t i = 0; i < d->items.size(); ++i)
        if (self->compareItems(d->items[i], other.d->items[i]) != 0)
            return false;
    return true;
}

QPtrCollection::Item PointerList::item(uint index) const
{
    return index < count() ? d->items[index] : nullptr;
}

bool PointerList::insertItem(uint index, Item item)
{
    if (index > count())
        return false;
    d->items.insert(d->items.begin() + index, newItem(item));
    d->current = static_cast<int>(index);
    for (PointerIterator* iterator : d->iterators)
        PointerListData::inserted(&iterator->place, static_cast<int>(index));
    return true;
}

void PointerList::insertSorted(Item item)
{
    uint index = 0;
    while (index < count() && compareItems(item, d->items[index]) > 0)
        ++index;
    insertItem(index, item);
}

QPtrCollection::Item PointerList::takeItem(int index)
{
    if (index < 0)
        return nullptr;
    Item item = d->items[static_cast<size_t>(index)];
    d->items.erase(d->items.begin() + index);
    d->current = std::min(index, d->size() - 1);
    for (PointerIterator* iterator : d->iterators)
        d->removed(&iterator->place, index);
    return item;
}

bool PointerList::removeItem(int index)
{
    if (index < 0)
        return false;
    deleteItem(takeItem(index));
    return true;
}

bool PointerList::replaceItem(uint index, Item item)
{
    if (index >= count())
        return false;
    Item old = d->items[index];
    d->items[index] = newItem(item);
    d->current = static_cast<int>(index);
    deleteItem(old);
    return true;
}

int PointerList::indexOf(Item item) const
{
    const auto place = std::find(d->items.begin(), d->items.end(), item);
    return place == d->items.end() ? -1 : static_cast<int>(place - d->items.begin());
}

int PointerList::findIndex(Item item, int from, bool byPointer)
{
    for (int i = std::max(from, 0); i < d->size(); ++i) {
        Item candidate = d->items[static_cast<size_t>(i)];
        if (byPointer ? candidate == item : compareItems(item, candidate) == 0)
            return i;
    }
    return -1;
}

uint PointerList::containsItem(Item item, bool byPointer) const
{
    PointerList* self = const_cast<PointerList*>(this);
    return static_cast<uint>(std::count_if(d->items.begin(), d->items.end(), [=](Item candidate) {
        return byPointer ? candidate == item : self->compareItems(item, candidate) == 0;
    }));
}

void PointerList::sortItems()
{
    std::stable_sort(d->items.begin(), d->items.end(),
                     [this](Item a, Item b) { return compareItems(a, b) < 0; });
}

int PointerList::currentIndex() const
{
    return d->current;
}

QPtrCollection::Item PointerList::setCurrent(int index) const
{
    d->current = index >= 0 && index < d->size() ? index : -1;
    return currentItem();
}

QPtrCollection::Item PointerList::currentItem() const
{
    return d->current < 0 ? nullptr : d->items[static_cast<size_t>(d->current)];
}

PointerIterator::PointerIterator(const PointerList& l)
{
    attach(&l);
    place = l.count() > 0 ? 0 : -1;
}

PointerIterator::PointerIterator(const PointerIterator& other)
{
    attach(other.list);
    place = other.place;
}

PointerIterator::~PointerIterator()
{
    detach();
}

PointerIterator& PointerIterator::operator=(const PointerIterator& other)
{
    if (&other != this) {
        detach();
        attach(other.list);
        place = other.place;
    }
    return *this;
}

void PointerIterator::attach(const PointerList* to)
{
    list = to;
    if (list)
        list->d->iterators.push_back(this);
}

void PointerIterator::detach()
{
    if (!list)
        return;
    std::vector<PointerIterator*>& all = list->d->iterators;
    all.erase(std::find(all.begin(), all.end(), this));
}

uint PointerIterator::count() const
{
    return list ? list->count() : 0;
}

void* PointerIterator::item() const
{
    return list && place >= 0 ? list->d->items[static_cast<size_t>(place)] : nullptr;
}

void* PointerIterator::move(int index)
{
    place = list && index >= 0 && index < list->d->size() ? index : -1;
    return item();
}

} // namespace zeltk
