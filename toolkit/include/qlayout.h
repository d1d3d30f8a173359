// Layouts: they place and size the children of a widget.
#ifndef QLAYOUT_H
#define QLAYOUT_H

#include <qobject.h>
#include <qrect.h>
#include <qshared.h>
#include <qsize.h>
#include <qsizepolicy.h>

class QLayout;
class QLayoutItem;
class QSpacerItem;
class QWidget;

namespace zeltk
{
struct BoxLayoutData;
} // namespace zeltk

//! As large as a layout may grow; there is always room for a sum of such sizes.
static const int QLAYOUTSIZE_MAX = 524287;

//! Steps through the items of a layout; layouts of one's own derive one.
class Q_EXPORT QGLayoutIterator : public QShared
{
public:
    virtual ~QGLayoutIterator();
    //! Steps on and gives that item, null at the end.
    virtual QLayoutItem* next() = 0;
    virtual QLayoutItem* current() = 0;
    //! Removes the item from the layout without deleting it; the next one becomes the current one.
    virtual QLayoutItem* takeCurrent() = 0;
};

//! A place among the items of a layout. Copies share the place.
class Q_EXPORT QLayoutIterator
{
public:
    //! Takes the iterator over; null stands for no items.
    QLayoutIterator(QGLayoutIterator* iterator) : it(iterator) {}
    QLayoutIterator(const QLayoutIterator& other);
    ~QLayoutIterator();
    QLayoutIterator& operator=(const QLayoutIterator& other);
    QLayoutItem* operator++() { return it ? it->next() : 0; }
    QLayoutItem* current() { return it ? it->current() : 0; }
    QLayoutItem* takeCurrent() { return it ? it->takeCurrent() : 0; }
    //! Deletes the item; of a widget only its place in the layout.
    void deleteCurrent();

private:
    QGLayoutIterator* it;
};

//! What a layout arranges: a widget, a piece of empty room, or another layout.
class Q_EXPORT QLayoutItem
{
public:
    //! Without alignment the item fills its room, as far as it may grow.
    QLayoutItem(int alignment = 0) : align(alignment) {}
    virtual ~QLayoutItem();

    virtual QSize sizeHint() const = 0;
    virtual QSize minimumSize() const = 0;
    virtual QSize maximumSize() const = 0;
    //! The directions in which it wants all room it can get.
    virtual QSizePolicy::ExpandData expanding() const = 0;
    virtual void setGeometry(const QRect& rect) = 0;
    virtual QRect geometry() const = 0;
    //! Whether it is to be treated as if it were not there.
    virtual bool isEmpty() const = 0;
    virtual bool hasHeightForWidth() const;
    virtual int heightForWidth(int width) const;
    //! Forgets sizes that it remembers.
    virtual void invalidate();

    virtual QWidget* widget();
    virtual QLayoutIterator iterator();
    virtual QLayout* layout();
    virtual QSpacerItem* spacerItem();

    int alignment() const { return align; }
    virtual void setAlignment(int alignment);

protected:
    int align;
};

//! Empty room.
class Q_EXPORT QSpacerItem : public QLayoutItem
{
public:
    QSpacerItem(int w, int h, QSizePolicy::SizeType hor = QSizePolicy::Minimum,
                QSizePolicy::SizeType ver = QSizePolicy::Minimum)
        : width(w), height(h), sizeP(hor, ver)
    {
    }
    //! The layout must be invalidated afterwards.
    void changeSize(int w, int h, QSizePolicy::SizeType hor = QSizePolicy::Minimum,
                    QSizePolicy::SizeType ver = QSizePolicy::Minimum);

    QSize sizeHint() const;
    QSize minimumSize() const;
    QSize maximumSize() const;
    QSizePolicy::ExpandData expanding() const;
    bool isEmpty() const;
    void setGeometry(const QRect& rect);
    QRect geometry() const;
    QSpacerItem* spacerItem();

private:
    int width;
    int height;
    QSizePolicy sizeP;
    QRect rect;
};

//! A widget in a layout. The item does not own it.
class Q_EXPORT QWidgetItem : public QLayoutItem
{
public:
    QWidgetItem(QWidget* widget) : wid(widget) {}

    QSize sizeHint() const;
    QSize minimumSize() const;
    QSize maximumSize() const;
    QSizePolicy::ExpandData expanding() const;
    //! True while the widget is hidden.
    bool isEmpty() const;
    void setGeometry(const QRect& rect);
    QRect geometry() const;
    QWidget* widget();
    bool hasHeightForWidth() const;
    int heightForWidth(int width) const;

private:
    QWidget* wid;
};

/*!
 * \brief Arranges the children of a widget, its main widget, whenever something about them changes.
 *
 * A layout that was given a widget is that widget's layout; others are put into it. A layout owns its items
 * and the layouts in it, the main widget owns the layout.
 */
class Q_EXPORT QLayout : public QObject, public QLayoutItem
{
    Q_OBJECT

public:
    /*!
     * What the main widget's size is bound to: nothing, not less than the layout's minimum, or always the
     * layout's size hint. Auto means Minimum for windows (unless their height depends on their width) and
     * FreeResize for all others.
     */
    enum ResizeMode { FreeResize, Minimum, Fixed, Auto };

    //! A widget has one layout; a second one warns and does nothing. A spacing of -1 is the margin.
    QLayout(QWidget* parent, int margin = 0, int spacing = -1, const char* name = 0);
    //! A spacing of -1 is the outer layout's.
    QLayout(QLayout* parentLayout, int spacing = -1, const char* name = 0);
    //! A layout to be put into another one.
    QLayout(int spacing = -1, const char* name = 0);
    ~QLayout();

    //! Around all items, in pixels.
    int margin() const { return outsideBorder; }
    virtual void setMargin(int margin);
    //! Between two items, in pixels.
    int spacing() const { return insideSpacing; }
    virtual void setSpacing(int spacing);
    int defaultBorder() const { return insideSpacing; }

    //! Fixes the main widget's size, to its size hint if none is given.
    void freeze(int w, int h);
    void freeze() { setResizeMode(Fixed); }
    void setResizeMode(ResizeMode mode);
    ResizeMode resizeMode() const { return mode; }

    //! Null for a layout that is not in use yet.
    QWidget* mainWidget();
    bool isTopLevel() const { return topLevel; }

    //! Whether new children of the main widget are added by themselves.
    virtual void setAutoAdd(bool add);
    bool autoAdd() const { return autoNewChild; }

    void invalidate();
    QRect geometry() const;
    //! Lays out at once. False if there is nothing to lay out or the layout is disabled.
    bool activate();

    void add(QWidget* widget);
    //! Takes the item over.
    virtual void addItem(QLayoutItem* item) = 0;
    //! Takes the widget's item out and deletes it; the widget stays.
    void remove(QWidget* widget);
    //! Hands the item back to the caller.
    void removeItem(QLayoutItem* item);

    QSizePolicy::ExpandData expanding() const;
    QSize minimumSize() const;
    QSize maximumSize() const;
    void setGeometry(const QRect& rect) = 0;
    QLayoutIterator iterator() = 0;
    bool isEmpty() const;

    //! What the main widget needs.
    int totalHeightForWidth(int width) const;
    QSize totalMinimumSize() const;
    QSize totalMaximumSize() const;
    QSize totalSizeHint() const;
    QLayout* layout();

    bool supportsMargin() const { return marginImpl; }
    //! A disabled layout leaves everything where it is.
    void setEnabled(bool enable);
    bool isEnabled() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event);
    void childEvent(QChildEvent* event);
    //! To be called for each layout that is put into this one.
    void addChildLayout(QLayout* layout);
    //! To be called by the destructors of layouts with items.
    void deleteAllItems();
    void setSupportsMargin(bool supports) { marginImpl = supports; }
    //! What of the room to cover, for layouts that heed their alignment.
    QRect alignmentRect(const QRect& room) const;

private:
    ZELTK_LOCAL void changed();
    ZELTK_LOCAL void forget(const QObject* child);

    int insideSpacing;
    int outsideBorder;
    ResizeMode mode;
    bool topLevel;
    bool enabled;
    bool autoNewChild;
    bool marginImpl;
    bool activated;
    QRect rect;

    QLayout(const QLayout&);
    QLayout& operator=(const QLayout&);
};

/*!
 * \brief Items in a row or a column.
 *
 * Room beyond the size hints goes to the items with a stretch factor, in proportion; if there are none, to
 * those that want to expand; else to all.
 */
class Q_EXPORT QBoxLayout : public QLayout
{
    Q_OBJECT

public:
    enum Direction {
        LeftToRight,
        RightToLeft,
        TopToBottom,
        BottomToTop,
        Down = TopToBottom,
        Up = BottomToTop
    };

    QBoxLayout(QWidget* parent, Direction direction, int margin = 0, int spacing = -1, const char* name = 0);
    QBoxLayout(QLayout* parentLayout, Direction direction, int spacing = -1, const char* name = 0);
    QBoxLayout(Direction direction, int spacing = -1, const char* name = 0);
    ~QBoxLayout();

    void addItem(QLayoutItem* item);
    Direction direction() const;
    void setDirection(Direction direction);

    void addSpacing(int size);
    void addStretch(int stretch = 0);
    //! Without a stretch factor, that of the widget's size policy counts.
    void addWidget(QWidget* widget, int stretch = 0, int alignment = 0);
    void addLayout(QLayout* layout, int stretch = 0);
    //! Makes the box at least that large across.
    void addStrut(int size);

    //! A negative index is the end; one beyond the end inserts nothing.
    void insertSpacing(int index, int size);
    void insertStretch(int index, int stretch = 0);
    void insertWidget(int index, QWidget* widget, int stretch = 0, int alignment = 0);
    void insertLayout(int index, QLayout* layout, int stretch = 0);

    //! False if it is not in the box.
    bool setStretchFactor(QWidget* widget, int stretch);
    bool setStretchFactor(QLayout* layout, int stretch);

    QSize sizeHint() const;
    QSize minimumSize() const;
    QSize maximumSize() const;
    bool hasHeightForWidth() const;
    int heightForWidth(int width) const;
    int minimumHeightForWidth(int width) const;
    QSizePolicy::ExpandData expanding() const;
    void invalidate();
    QLayoutIterator iterator();
    void setGeometry(const QRect& rect);

    //! The widget's index, -1 if it is not in the box.
    int findWidget(QWidget* widget);

protected:
    void insertItem(int index, QLayoutItem* item);

private:
    zeltk::BoxLayoutData* data;

    QBoxLayout(const QBoxLayout&);
    QBoxLayout& operator=(const QBoxLayout&);
};

//! Items from left to right.
class Q_EXPORT QHBoxLayout : public QBoxLayout
{
    Q_OBJECT

public:
    QHBoxLayout(QWidget* parent, int margin = 0, int spacing = -1, const char* name = 0);
    QHBoxLayout(QLayout* parentLayout, int spacing = -1, const char* name = 0);
    QHBoxLayout(int spacing = -1, const char* name = 0);
    ~QHBoxLayout();

private:
    QHBoxLayout(const QHBoxLayout&);
    QHBoxLayout& operator=(const QHBoxLayout&);
};

//! Items from top to bottom.
class Q_EXPORT QVBoxLayout : public QBoxLayout
{
    Q_OBJECT

public:
    QVBoxLayout(QWidget* parent, int margin = 0, int spacing = -1, const char* name = 0);
    QVBoxLayout(QLayout* parentLayout, int spacing = -1, const char* name = 0);
    QVBoxLayout(int spacing = -1, const char* name = 0);
    ~QVBoxLayout();

private:
    QVBoxLayout(const QVBoxLayout&);
    QVBoxLayout& operator=(const QVBoxLayout&);
};

#endif
