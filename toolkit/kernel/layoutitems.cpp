// QLayoutItem, QSpacerItem, QWidgetItem and the iterators.
#include <qlayout.h>

#include "kernel/layoutplace.h"

#include <qwidget.h>

QGLayoutIterator::~QGLayoutIterator() {}

QLayoutIterator::QLayoutIterator(const QLayoutIterator& other) : it(other.it)
{
    if (it)
        it->ref();
}

QLayoutIterator::~QLayoutIterator()
{
    if (it && !it->deref())
        delete it;
}

QLayoutIterator& QLayoutIterator::operator=(const QLayoutIterator& other)
{
    if (other.it)
        other.it->ref();
    if (it && !it->deref())
        delete it;
    it = other.it;
    return *this;
}

void QLayoutIterator::deleteCurrent()
{
    delete takeCurrent();
}

QLayoutItem::~QLayoutItem() {}

bool QLayoutItem::hasHeightForWidth() const
{
    return false;
}

int QLayoutItem::heightForWidth(int) const
{
    return -1;
}

void QLayoutItem::invalidate() {}

QWidget* QLayoutItem::widget()
{
    return nullptr;
}

QLayoutIterator QLayoutItem::iterator()
{
    return QLayoutIterator(static_cast<QGLayoutIterator*>(nullptr));
}

QLayout* QLayoutItem::layout()
{
    return nullptr;
}

QSpacerItem* QLayoutItem::spacerItem()
{
    return nullptr;
}

void QLayoutItem::setAlignment(int alignment)
{
    align = alignment;
}

void QSpacerItem::changeSize(int w, int h, QSizePolicy::SizeType hor, QSizePolicy::SizeType ver)
{
    width = w;
    height = h;
    sizeP = QSizePolicy(hor, ver);
}

QSize QSpacerItem::sizeHint() const
{
    return QSize(width, height);
}

QSize QSpacerItem::minimumSize() const
{
    return QSize(sizeP.mayShrinkHorizontally() ? 0 : width, sizeP.mayShrinkVertically() ? 0 : height);
}

QSize QSpacerItem::maximumSize() const
{
    return QSize(sizeP.mayGrowHorizontally() ? QLAYOUTSIZE_MAX : width,
                 sizeP.mayGrowVertically() ? QLAYOUTSIZE_MAX : height);
}

QSizePolicy::ExpandData QSpacerItem::expanding() const
{
    return sizeP.expanding();
}

bool QSpacerItem::isEmpty() const
{
    return true;
}

void QSpacerItem::setGeometry(const QRect& room)
{
    rect = room;
}

QRect QSpacerItem::geometry() const
{
    return rect;
}

QSpacerItem* QSpacerItem::spacerItem()
{
    return this;
}

namespace
{

// The sizes that a layout gives a widget, in one direction; they follow from its hints, its policy and the
// limits that the program has set.
struct Length {
    int hint;
    int leastHint;
    int least;
    int most;
    bool mayShrink;
    bool mayGrow;
    bool ignoresHint;

    int minimum() const
    {
        if (least > 0)
            return least;
        return atLeastOne(QMIN(ignoresHint ? 0 : mayShrink ? leastHint : hint, most));
    }
    int preferred() const { return atLeastOne(QMAX(QMIN(ignoresHint ? 0 : hint, most), least)); }
    int maximum() const { return QMAX(most == QWIDGETSIZE_MAX && !mayGrow ? hint : most, least); }
    int aligned() const { return QMAX(QMIN(hint, most), least); }

private:
    static int atLeastOne(int length) { return QMAX(1, length); }
};

Length across(const QWidget* w)
{
    const QSizePolicy policy = w->sizePolicy();
    return {w->sizeHint().width(),
            w->minimumSizeHint().width(),
            w->minimumWidth(),
            w->maximumWidth(),
            policy.mayShrinkHorizontally(),
            policy.mayGrowHorizontally(),
            policy.horData() == QSizePolicy::Ignored};
}

Length down(const QWidget* w)
{
    const QSizePolicy policy = w->sizePolicy();
    return {w->sizeHint().height(),
            w->minimumSizeHint().height(),
            w->minimumHeight(),
            w->maximumHeight(),
            policy.mayShrinkVertically(),
            policy.mayGrowVertically(),
            policy.verData() == QSizePolicy::Ignored};
}

} // namespace

QPoint zeltk::placedIn(const QRect& room, const QSize& size, int align)
{
    int x = room.x();
    int y = room.y();
    if (align & Qt::AlignRight)
        x += room.width() - size.width();
    else if (!(align & Qt::AlignLeft) && (align & Qt::AlignHCenter))
        x += (room.width() - size.width()) / 2;
    if (align & Qt::AlignBottom)
        y += room.height() - size.height();
    else if (!(align & Qt::AlignTop))
        y += (room.height() - size.height()) / 2;
    return QPoint(x, y);
}

QSize QWidgetItem::sizeHint() const
{
    if (isEmpty())
        return QSize(0, 0);
    return QSize(across(wid).preferred(), down(wid).preferred());
}

QSize QWidgetItem::minimumSize() const
{
    if (isEmpty())
        return QSize(0, 0);
    return QSize(across(wid).minimum(), down(wid).minimum());
}

// An aligned widget keeps its size and leaves the rest of its room empty.
QSize QWidgetItem::maximumSize() const
{
    if (isEmpty())
        return QSize(0, 0);
    return QSize(align & Qt::AlignHorizontal_Mask ? QLAYOUTSIZE_MAX : across(wid).maximum(),
                 align & Qt::AlignVertical_Mask ? QLAYOUTSIZE_MAX : down(wid).maximum());
}

// A widget that may grow wants what its own layout wants. An aligned one leaves surplus room to others.
QSizePolicy::ExpandData QWidgetItem::expanding() const
{
    if (isEmpty())
        return QSizePolicy::NoDirection;
    const QSizePolicy policy = wid->sizePolicy();
    int directions = policy.expanding();
    if (QLayout* inner = wid->layout()) {
        const int inside = inner->expanding();
        if (policy.mayGrowHorizontally())
            directions |= inside & QSizePolicy::Horizontally;
        if (policy.mayGrowVertically())
            directions |= inside & QSizePolicy::Vertically;
    }
    if (align & Qt::AlignHorizontal_Mask)
        directions &= ~QSizePolicy::Horizontally;
    if (align & Qt::AlignVertical_Mask)
        directions &= ~QSizePolicy::Vertically;
    return static_cast<QSizePolicy::ExpandData>(directions);
}

bool QWidgetItem::isEmpty() const
{
    return wid->isHidden() || wid->isTopLevel();
}

void QWidgetItem::setGeometry(const QRect& room)
{
    if (isEmpty())
        return;
    const Length h = across(wid);
    const Length v = down(wid);
    const bool aligned = align & Qt::AlignHorizontal_Mask;
    QSize size(QMIN(room.width(), aligned ? h.aligned() : h.maximum()), 0);
    if (!(align & Qt::AlignVertical_Mask))
        size.setHeight(v.maximum());
    else
        size.setHeight(hasHeightForWidth() ? heightForWidth(size.width()) : v.aligned());
    size.setHeight(QMIN(size.height(), room.height()));
    wid->setGeometry(QRect(zeltk::placedIn(room, size, align), size));
}

QRect QWidgetItem::geometry() const
{
    return wid->geometry();
}

QWidget* QWidgetItem::widget()
{
    return wid;
}

bool QWidgetItem::hasHeightForWidth() const
{
    if (isEmpty())
        return false;
    return wid->layout() ? wid->layout()->hasHeightForWidth() : wid->sizePolicy().hasHeightForWidth();
}

int QWidgetItem::heightForWidth(int width) const
{
    if (wid->layout())
        return wid->layout()->totalHeightForWidth(width);
    return QMAX(QMIN(wid->heightForWidth(width), wid->maximumHeight()), wid->minimumHeight());
}
