// QBoxLayout, QHBoxLayout, QVBoxLayout.
#include "kernel/boxlayoutdata.h"

#include <qapplication.h>
#include <qevent.h>
#include <qguardedptr.h>
#include <qwidget.h>

using zeltk::BoxItem;
using zeltk::BoxLayoutData;
using zeltk::Share;

namespace
{

class BoxIterator : public QGLayoutIterator
{
public:
    explicit BoxIterator(BoxLayoutData* data) : m_data(data) {}

    QLayoutItem* next() override
    {
        ++m_index;
        return current();
    }
    QLayoutItem* current() override
    {
        return m_index < m_data->items.size() ? m_data->items[m_index].item : nullptr;
    }
    QLayoutItem* takeCurrent() override
    {
        QLayoutItem* const item = current();
        if (item)
            m_data->items.erase(m_data->items.begin() + static_cast<std::ptrdiff_t>(m_index));
        m_data->dirty = true;
        return item;
    }

private:
    BoxLayoutData* m_data;
    size_t m_index = 0;
};

void shape(QSpacerItem* spacer, const zeltk::OwnSpacer& as, bool horizontal)
{
    const QSizePolicy::SizeType along = as.expanding ? QSizePolicy::Expanding : QSizePolicy::Fixed;
    if (horizontal)
        spacer->changeSize(as.along, as.across, along, QSizePolicy::Minimum);
    else
        spacer->changeSize(as.across, as.along, QSizePolicy::Minimum, along);
}

// An item beyond the end is dropped, as in a list that has no such place.
void insert(BoxLayoutData* data, int index, const BoxItem& box)
{
    const int count = static_cast<int>(data->items.size());
    if (index > count)
        delete box.item;
    else
        data->items.insert(data->items.begin() + (index < 0 ? count : index), box);
}

void insertSpacer(BoxLayoutData* data, int index, const zeltk::OwnSpacer& as, int stretch)
{
    QSpacerItem* const spacer = new QSpacerItem(0, 0);
    shape(spacer, as, data->horizontal());
    insert(data, index, {spacer, stretch, as});
}

bool setStretch(BoxLayoutData* data, const QObject* what, int stretch)
{
    for (BoxItem& box : data->items)
        if (box.item->widget() == what || box.item->layout() == what) {
            box.stretch = stretch;
            return true;
        }
    return false;
}

BoxLayoutData* newData(QBoxLayout::Direction direction)
{
    BoxLayoutData* const data = new BoxLayoutData;
    data->direction = direction;
    return data;
}

} // namespace

// Inserting a box into an outer one looks only at what a layout item has, so it may be done this early.
QBoxLayout::QBoxLayout(QWidget* parent, Direction direction, int margin, int spacing, const char* name)
    : QLayout(parent, margin, spacing, name), data(newData(direction))
{
    setSupportsMargin(true);
}

QBoxLayout::QBoxLayout(QLayout* parentLayout, Direction direction, int spacing, const char* name)
    : QLayout(parentLayout, spacing, name), data(newData(direction))
{
    setSupportsMargin(true);
}

QBoxLayout::QBoxLayout(Direction direction, int spacing, const char* name)
    : QLayout(spacing, name), data(newData(direction))
{
    setSupportsMargin(true);
}

QBoxLayout::~QBoxLayout()
{
    deleteAllItems();
    delete data;
}

void QBoxLayout::addItem(QLayoutItem* item)
{
    insertItem(-1, item);
}

void QBoxLayout::insertItem(int index, QLayoutItem* item)
{
    if (item->layout() && !item->layout()->parent())
        addChildLayout(item->layout());
    insert(data, index, {item, 0, std::nullopt});
    invalidate();
}

QBoxLayout::Direction QBoxLayout::direction() const
{
    return data->direction;
}

void QBoxLayout::setDirection(Direction direction)
{
    if (direction == data->direction)
        return;
    const bool turned = data->horizontal();
    data->direction = direction;
    if (turned != data->horizontal())
        for (const BoxItem& box : data->items)
            if (box.own)
                shape(box.item->spacerItem(), *box.own, data->horizontal());
    invalidate();
    if (QWidget* main = mainWidget())
        QApplication::postEvent(main, new QEvent(QEvent::LayoutHint));
}

void QBoxLayout::addSpacing(int size)
{
    insertSpacing(-1, size);
}

void QBoxLayout::addStretch(int stretch)
{
    insertStretch(-1, stretch);
}

void QBoxLayout::addWidget(QWidget* widget, int stretch, int alignment)
{
    insertWidget(-1, widget, stretch, alignment);
}

void QBoxLayout::addLayout(QLayout* layout, int stretch)
{
    insertLayout(-1, layout, stretch);
}

void QBoxLayout::addStrut(int size)
{
    zeltk::OwnSpacer strut;
    strut.across = size;
    insertSpacer(data, -1, strut, 0);
    invalidate();
}

void QBoxLayout::insertSpacing(int index, int size)
{
    zeltk::OwnSpacer room;
    room.along = size;
    insertSpacer(data, index, room, 0);
    invalidate();
}

void QBoxLayout::insertStretch(int index, int stretch)
{
    zeltk::OwnSpacer room;
    room.expanding = true;
    insertSpacer(data, index, room, stretch);
    invalidate();
}

void QBoxLayout::insertWidget(int index, QWidget* widget, int stretch, int alignment)
{
    if (!widget || widget == mainWidget()) {
        qWarning("QBoxLayout::insertWidget: %s cannot be put into layout \"%s\"",
                 widget ? "The layout's own widget" : "A null widget", name());
        return;
    }
    QWidgetItem* const item = new QWidgetItem(widget);
    item->setAlignment(alignment);
    insert(data, index, {item, stretch, std::nullopt});
    invalidate();
}

void QBoxLayout::insertLayout(int index, QLayout* layout, int stretch)
{
    if (!layout) {
        qWarning("QBoxLayout::insertLayout: A null layout cannot be put into layout \"%s\"", name());
        return;
    }
    addChildLayout(layout);
    if (layout->parent() != this)
        return;
    insert(data, index, {layout, stretch, std::nullopt});
    invalidate();
}

bool QBoxLayout::setStretchFactor(QWidget* widget, int stretch)
{
    if (!widget || !setStretch(data, widget, stretch))
        return false;
    invalidate();
    return true;
}

bool QBoxLayout::setStretchFactor(QLayout* layout, int stretch)
{
    if (!layout || !setStretch(data, layout, stretch))
        return false;
    invalidate();
    return true;
}

int QBoxLayout::findWidget(QWidget* widget)
{
    for (size_t i = 0; i < data->items.size(); ++i)
        if (widget && data->items[i].item->widget() == widget)
            return static_cast<int>(i);
    return -1;
}

// Bounds stay bounds with the margin around them.
QSize QBoxLayout::sizeHint() const
{
    data->measure(spacing());
    return data->hint + QSize(2 * margin(), 2 * margin());
}

QSize QBoxLayout::minimumSize() const
{
    data->measure(spacing());
    return data->minimum + QSize(2 * margin(), 2 * margin());
}

QSize QBoxLayout::maximumSize() const
{
    data->measure(spacing());
    QSize most = data->maximum + QSize(2 * margin(), 2 * margin());
    if (alignment() & AlignHorizontal_Mask)
        most.setWidth(QLAYOUTSIZE_MAX);
    if (alignment() & AlignVertical_Mask)
        most.setHeight(QLAYOUTSIZE_MAX);
    return most.boundedTo(QSize(QLAYOUTSIZE_MAX, QLAYOUTSIZE_MAX));
}

bool QBoxLayout::hasHeightForWidth() const
{
    data->measure(spacing());
    return data->hasHeightForWidth;
}

int QBoxLayout::heightForWidth(int width) const
{
    if (!hasHeightForWidth())
        return -1;
    int height;
    int least;
    data->heights(width - 2 * margin(), spacing(), height, least);
    return height + 2 * margin();
}

int QBoxLayout::minimumHeightForWidth(int width) const
{
    data->measure(spacing());
    int height;
    int least;
    data->heights(width - 2 * margin(), spacing(), height, least);
    return least + 2 * margin();
}

QSizePolicy::ExpandData QBoxLayout::expanding() const
{
    data->measure(spacing());
    return static_cast<QSizePolicy::ExpandData>(data->expanding);
}

void QBoxLayout::invalidate()
{
    data->dirty = true;
    QLayout::invalidate();
}

QLayoutIterator QBoxLayout::iterator()
{
    return QLayoutIterator(new BoxIterator(data));
}

void QBoxLayout::setGeometry(const QRect& room)
{
    if (!data->dirty && room == geometry())
        return;
    data->measure(spacing());
    QLayout::setGeometry(room);
    const QRect all = alignment() ? alignmentRect(room) : room;
    const QRect inside(all.x() + margin(), all.y() + margin(), all.width() - 2 * margin(),
                       all.height() - 2 * margin());
    const bool h = data->horizontal();
    const bool backwards = data->direction == RightToLeft || data->direction == BottomToTop;
    const int length = h ? inside.width() : inside.height();
    std::vector<Share> row = data->rowFor(inside.width());
    shareSpace(row, 0, length, spacing());
    const QGuardedPtr<QLayout> alive(this);
    for (size_t i = 0; alive && i < data->items.size() && i < row.size();
         ++i) { // widgets may take others out
        const Share& share = row[i];
        const int pos = backwards ? length - share.pos - share.size : share.pos;
        data->items[i].item->setGeometry(h ? QRect(inside.x() + pos, inside.y(), share.size, inside.height())
                                           : QRect(inside.x(), inside.y() + pos, inside.width(), share.size));
    }
}

QHBoxLayout::QHBoxLayout(QWidget* parent, int margin, int spacing, const char* name)
    : QBoxLayout(parent, LeftToRight, margin, spacing, name)
{
}

QHBoxLayout::QHBoxLayout(QLayout* parentLayout, int spacing, const char* name)
    : QBoxLayout(parentLayout, LeftToRight, spacing, name)
{
}

QHBoxLayout::QHBoxLayout(int spacing, const char* name) : QBoxLayout(LeftToRight, spacing, name) {}

QHBoxLayout::~QHBoxLayout() {}

QVBoxLayout::QVBoxLayout(QWidget* parent, int margin, int spacing, const char* name)
    : QBoxLayout(parent, TopToBottom, margin, spacing, name)
{
}

QVBoxLayout::QVBoxLayout(QLayout* parentLayout, int spacing, const char* name)
    : QBoxLayout(parentLayout, TopToBottom, spacing, name)
{
}

QVBoxLayout::QVBoxLayout(int spacing, const char* name) : QBoxLayout(TopToBottom, spacing, name) {}

QVBoxLayout::~QVBoxLayout() {}
