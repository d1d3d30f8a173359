// QListBox: places and painting.
#include "widgets/listboxdata.h"

#include <qevent.h>
#include <qguardedptr.h>
#include <qpainter.h>

#include <algorithm>

int QListBox::totalHeight() const
{
    int height = 0;
    for (const QListBoxItem* each : d->items)
        height += each->height(this);
    return height;
}

int QListBox::totalWidth() const
{
    return static_cast<int>(maxItemWidth());
}

long QListBox::maxItemWidth() const
{
    int width = 0;
    for (const QListBoxItem* each : d->items)
        width = std::max(width, each->width(this));
    return width;
}

int QListBox::itemHeight(int index) const
{
    const QListBoxItem* found = item(index);
    return found ? found->height(this) : 0;
}

// Entries are measured anew.
void QListBox::triggerUpdate(bool doLayout)
{
    if (doLayout) {
        const QGuardedPtr<QListBox> alive(this);
        verticalScrollBar()->setLineStep(std::max(1, itemHeight()));
        resizeContents(totalWidth(), totalHeight());
        if (!alive)
            return;
    }
    viewport()->update();
}

void QListBox::resizeEvent(QResizeEvent* event)
{
    const QGuardedPtr<QListBox> alive(this);
    QScrollView::resizeEvent(event);
    if (alive)
        viewport()->update();
}

void QListBox::showEvent(QShowEvent*)
{
    const QGuardedPtr<QListBox> alive(this);
    triggerUpdate(true);
    if (alive)
        ensureCurrentVisible();
}

// In the viewport.
QRect QListBox::itemRect(QListBoxItem* item) const
{
    int y = -contentsY();
    for (const QListBoxItem* each : d->items) {
        const int height = each->height(this);
        if (each == item)
            return QRect(-contentsX(), y, std::max(contentsWidth(), visibleWidth()), height);
        y += height;
    }
    return QRect(0, 0, -1, -1);
}

QListBoxItem* QListBox::itemAt(const QPoint& p) const
{
    int y = -contentsY();
    for (QListBoxItem* each : d->items) {
        const int behind = y + each->height(this);
        if (p.y() >= y && p.y() < behind)
            return each;
        y = behind;
    }
    return 0;
}

int QListBox::topItem() const
{
    QListBoxItem* top = itemAt(QPoint(0, 0));
    return top ? index(top) : 0;
}

void QListBox::setTopItem(int index)
{
    if (QListBoxItem* found = item(index))
        setContentsPos(contentsX(), itemRect(found).y() + contentsY());
}

void QListBox::setBottomItem(int index)
{
    if (QListBoxItem* found = item(index))
        setContentsPos(contentsX(), itemRect(found).bottom() + 1 + contentsY() - visibleHeight());
}

void QListBox::ensureCurrentVisible()
{
    if (!d->current)
        return;
    const QRect r = itemRect(d->current);
    if (r.y() < 0)
        setTopItem(index(d->current));
    else if (r.bottom() >= visibleHeight())
        setBottomItem(index(d->current));
}

bool QListBox::itemVisible(const QListBoxItem* item)
{
    const QRect r = itemRect(const_cast<QListBoxItem*>(item));
    return r.isValid() && r.bottom() >= 0 && r.y() < visibleHeight();
}

int QListBox::numItemsVisible() const
{
    int visible = 0;
    for (QListBoxItem* each : d->items) {
        const QRect r = itemRect(each);
        visible += r.y() >= 0 && r.bottom() < visibleHeight() ? 1 : 0;
    }
    return visible;
}

void QListBox::updateItem(int index)
{
    updateItem(item(index));
}

void QListBox::updateItem(QListBoxItem* item)
{
    if (item)
        viewport()->update(itemRect(item));
}

void QListBox::viewportPaintEvent(QPaintEvent* event)
{
    QPainter p(viewport());
    p.setClipRegion(event->region());
    for (QListBoxItem* each : d->items) {
        const QRect r = itemRect(each);
        if (r.bottom() >= event->rect().y() && r.y() <= event->rect().bottom())
            paintItem(&p, each, r);
    }
}

// A selected entry with the focus has a frame inside.
void QListBox::paintItem(QPainter* p, QListBoxItem* item, const QRect& r)
{
    const QColorGroup& g = colorGroup();
    p->save();
    p->translate(r.x(), r.y());
    p->fillRect(0, 0, r.width(), r.height(), QBrush(item->s && !item->own ? g.highlight() : g.base()));
    p->setPen(item->s ? g.highlightedText() : g.text());
    p->setBackgroundColor(item->s ? g.highlight() : g.base());
    item->paint(p);
    p->restore();
    if (item != d->current || !hasFocus() || item->own)
        return;
    p->setPen(item->s ? g.base() : g.text());
    p->setBrush(NoBrush);
    p->drawRect(r.x() + 1, r.y() + 1, r.width() - 2, r.height() - 2);
}

QSize QListBox::sizeHint() const
{
    constPolish();
    if (count() == 0)
        return QSize(100, 40);
    const int frame = 2 * frameWidth();
    return QSize(std::max(totalWidth(), fontMetrics().width('x') * 10) + frame,
                 std::max(std::min(10, static_cast<int>(count())), 3) * std::max(1, itemHeight()) + frame);
}

QSize QListBox::minimumSizeHint() const
{
    return QScrollView::minimumSizeHint();
}

void QListBox::windowActivationChange(bool)
{
    viewport()->update();
}
