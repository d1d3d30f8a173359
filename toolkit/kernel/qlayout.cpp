// QLayout: whose layout it is, and when it lays out.
#include <qlayout.h>

#include "kernel/layoutplace.h"
#include "kernel/widgetdata.h"

#include <qapplication.h>
#include <qevent.h>

namespace
{

QLayout* outerLayout(const QLayout* layout)
{
    return dynamic_cast<QLayout*>(layout->parent());
}

void invalidateAll(QLayoutItem* item)
{
    QLayoutIterator it = item->iterator();
    for (QLayoutItem* inner = it.current(); inner; inner = ++it)
        invalidateAll(inner);
    item->invalidate();
}

bool isRemovalOf(const QObject* child, QEvent* event)
{
    return event->type() == QEvent::ChildRemoved && static_cast<QChildEvent*>(event)->child() == child;
}

bool takeItem(QLayout* layout, const QLayoutItem* item)
{
    QLayoutIterator it = layout->iterator();
    for (QLayoutItem* inner = it.current(); inner; inner = ++it)
        if (inner == item) {
            it.takeCurrent();
            return true;
        }
    return false;
}

// The child may be dying already: only its address counts. A layout goes its own way, a widget leaves an item
// behind.
bool takeOut(QLayout* layout, const QObject* child)
{
    QLayoutIterator it = layout->iterator();
    for (QLayoutItem* item = it.current(); item; item = ++it) {
        if (item->widget() != child && item->layout() != child)
            continue;
        if (item->layout())
            it.takeCurrent();
        else
            it.deleteCurrent();
        return true;
    }
    return false;
}

bool forgetIn(QLayout* layout, const QObject* child)
{
    if (takeOut(layout, child))
        return true;
    QLayoutIterator it = layout->iterator();
    for (QLayoutItem* item = it.current(); item; item = ++it)
        if (item->layout() && forgetIn(item->layout(), child))
            return true;
    return false;
}

} // namespace

QLayout::QLayout(QWidget* parent, int margin, int spacing, const char* name)
    : QObject(parent, name), insideSpacing(spacing < 0 ? margin : spacing), outsideBorder(margin), mode(Auto),
      topLevel(false), enabled(true), autoNewChild(false), marginImpl(false), activated(false)
{
    if (!parent)
        return;
    if (parent->layout()) {
        qWarning("QLayout \"%s\" added to %s \"%s\", which already has a layout", this->name(),
                 parent->className(), parent->name());
        return;
    }
    topLevel = true;
    zeltk::dataOf(parent)->layout = this;
    parent->installEventFilter(this);
}

QLayout::QLayout(QLayout* parentLayout, int spacing, const char* name)
    : QObject(nullptr, name), insideSpacing(spacing < 0 ? parentLayout->spacing() : spacing),
      outsideBorder(0), mode(Auto), topLevel(false), enabled(true), autoNewChild(false), marginImpl(false),
      activated(false)
{
    parentLayout->addItem(this);
}

QLayout::QLayout(int spacing, const char* name)
    : QObject(nullptr, name), insideSpacing(spacing), outsideBorder(0), mode(Auto), topLevel(false),
      enabled(true), autoNewChild(false), marginImpl(false), activated(false)
{
}

QLayout::~QLayout()
{
    QWidget* const main = topLevel ? mainWidget() : nullptr;
    if (main)
        zeltk::dataOf(main)->layout = nullptr;
    else if (QLayout* outer = outerLayout(this))
        if (takeItem(outer, this))
            outer->invalidate();
}

void QLayout::setMargin(int margin)
{
    outsideBorder = margin;
    changed();
}

void QLayout::setSpacing(int spacing)
{
    insideSpacing = spacing;
    changed();
}

// Lays out anew when control returns to the event loop.
void QLayout::changed()
{
    invalidate();
    if (QWidget* main = mainWidget())
        QApplication::postEvent(main, new QEvent(QEvent::LayoutHint));
}

void QLayout::freeze(int w, int h)
{
    if (w <= 0 || h <= 0) {
        freeze();
        return;
    }
    const QGuardedPtr<QWidget> main(mainWidget());
    setResizeMode(FreeResize);
    if (main)
        main->setFixedSize(w, h);
}

void QLayout::setResizeMode(ResizeMode newMode)
{
    if (newMode == mode)
        return;
    mode = newMode;
    if (activated)
        activate();
}

QWidget* QLayout::mainWidget()
{
    if (!topLevel) {
        QLayout* const outer = outerLayout(this);
        return outer ? outer->mainWidget() : nullptr;
    }
    return static_cast<QWidget*>(parent());
}

void QLayout::setAutoAdd(bool add)
{
    autoNewChild = add;
}

void QLayout::invalidate()
{
    rect = QRect();
}

QRect QLayout::geometry() const
{
    return rect;
}

bool QLayout::activate()
{
    if (QLayout* outer = outerLayout(this))
        return outer->activate();
    const QGuardedPtr<QWidget> main(topLevel ? mainWidget() : nullptr);
    if (!main || !enabled)
        return false;
    invalidateAll(this);
    activated = true;
    const QGuardedPtr<QLayout> alive(this); // who is placed may delete it
    setGeometry(main->rect());
    if (alive && mode == Fixed)
        main->setFixedSize(totalSizeHint());
    else if (alive && (mode == Minimum || (mode == Auto && main->isTopLevel() && !hasHeightForWidth())))
        main->setMinimumSize(totalMinimumSize());
    if (main)
        main->updateGeometry();
    return true;
}

void QLayout::add(QWidget* widget)
{
    if (!widget) {
        qWarning("QLayout::add: A null widget cannot be put into layout \"%s\"", name());
        return;
    }
    addItem(new QWidgetItem(widget));
}

void QLayout::remove(QWidget* widget)
{
    if (widget && takeOut(this, widget))
        changed();
}

// Also in the layouts inside, and however often it was added.
void QLayout::forget(const QObject* child)
{
    bool there = false;
    while (forgetIn(this, child))
        there = true;
    if (there)
        changed();
}

void QLayout::removeItem(QLayoutItem* item)
{
    if (takeItem(this, item))
        changed();
}

QSizePolicy::ExpandData QLayout::expanding() const
{
    return QSizePolicy::BothDirections;
}

QSize QLayout::minimumSize() const
{
    return QSize(0, 0);
}

QSize QLayout::maximumSize() const
{
    return QSize(QLAYOUTSIZE_MAX, QLAYOUTSIZE_MAX);
}

void QLayout::setGeometry(const QRect& room)
{
    rect = room;
}

bool QLayout::isEmpty() const
{
    return false;
}

int QLayout::totalHeightForWidth(int width) const
{
    return heightForWidth(width);
}

QSize QLayout::totalMinimumSize() const
{
    return minimumSize();
}

QSize QLayout::totalMaximumSize() const
{
    return maximumSize();
}

QSize QLayout::totalSizeHint() const
{
    return sizeHint();
}

QLayout* QLayout::layout()
{
    return this;
}

void QLayout::setEnabled(bool enable)
{
    enabled = enable;
}

bool QLayout::isEnabled() const
{
    return enabled;
}

bool QLayout::eventFilter(QObject* watched, QEvent* event)
{
    if (topLevel && isRemovalOf(this, event)) { // the main widget has it no more
        topLevel = false;
        zeltk::dataOf(static_cast<QWidget*>(watched))->layout = nullptr;
        return false;
    }
    if (!enabled || watched != parent())
        return false;
    switch (event->type()) {
    case QEvent::Resize:
        if (activated)
            setGeometry(QRect(QPoint(0, 0), static_cast<QResizeEvent*>(event)->size()));
        else
            activate();
        break;
    case QEvent::LayoutHint:
        activate();
        break;
    case QEvent::ChildInserted: {
        QObject* const child = static_cast<QChildEvent*>(event)->child();
        if (autoNewChild && child->isWidgetType() && !static_cast<QWidget*>(child)->isTopLevel())
            add(static_cast<QWidget*>(child));
        break;
    }
    case QEvent::ChildRemoved:
        forget(static_cast<QChildEvent*>(event)->child());
        break;
    default:
        break;
    }
    return false;
}

// A layout inside that leaves.
void QLayout::childEvent(QChildEvent* event)
{
    if (event->type() == QEvent::ChildRemoved)
        forget(event->child());
}

void QLayout::addChildLayout(QLayout* layout)
{
    if (layout->parent()) {
        qWarning("QLayout::addChildLayout: Layout \"%s\" is in use already", layout->name());
        return;
    }
    insertChild(layout);
    if (layout->insideSpacing < 0)
        layout->insideSpacing = insideSpacing;
}

void QLayout::deleteAllItems()
{
    QLayoutIterator it = iterator();
    while (it.current())
        it.deleteCurrent();
}

QRect QLayout::alignmentRect(const QRect& room) const
{
    const int directions = expanding();
    const bool wide = (directions & QSizePolicy::Horizontally) || !(align & AlignHorizontal_Mask);
    const bool high = (directions & QSizePolicy::Vertically) || !(align & AlignVertical_Mask);
    const QSize hint = sizeHint();
    const QSize size(wide ? room.width() : QMIN(room.width(), hint.width()),
                     high ? room.height() : QMIN(room.height(), hint.height()));
    return QRect(zeltk::placedIn(room, size, align), size);
}
