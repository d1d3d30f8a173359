// Views on something larger than themselves.
#ifndef QSCROLLVIEW_H
#define QSCROLLVIEW_H

#include <qframe.h>
#include <qscrollbar.h>

namespace zeltk
{
struct ScrollViewData;
}

//! Shows a part of its contents and has scroll bars for the rest.
class Q_EXPORT QScrollView : public QFrame
{
    Q_OBJECT

public:
    enum ScrollBarMode { Auto, AlwaysOff, AlwaysOn };

    QScrollView(QWidget* parent = 0, const char* name = 0, WFlags f = 0);
    ~QScrollView();

    ScrollBarMode vScrollBarMode() const;
    virtual void setVScrollBarMode(ScrollBarMode mode);
    ScrollBarMode hScrollBarMode() const;
    virtual void setHScrollBarMode(ScrollBarMode mode);
    QScrollBar* horizontalScrollBar() const;
    QScrollBar* verticalScrollBar() const;
    //! The widget in which the contents are painted.
    QWidget* viewport() const;

    int visibleWidth() const;
    int visibleHeight() const;
    int contentsWidth() const;
    int contentsHeight() const;
    int contentsX() const;
    int contentsY() const;

    void updateContents(int x, int y, int w, int h);
    void updateContents();
    void repaintContents(int x, int y, int w, int h, bool erase = true);
    void repaintContents(bool erase = true);
    QPoint contentsToViewport(const QPoint& p) const;
    QPoint viewportToContents(const QPoint& p) const;

    QSize sizeHint() const;
    QSize minimumSizeHint() const;

signals:
    //! The contents are about to move: to the place that comes into the corner of the viewport.
    void contentsMoving(int x, int y);

public slots:
    virtual void resizeContents(int w, int h);
    void scrollBy(int dx, int dy);
    virtual void setContentsPos(int x, int y);
    //! Scrolls as little as possible, so that the point is so far from the edges; without margins 50 pixels.
    void ensureVisible(int x, int y);
    void ensureVisible(int x, int y, int xmargin, int ymargin);
    void updateScrollBars();

protected:
    virtual void drawContents(QPainter* p, int clipx, int clipy, int clipw, int cliph);
    void drawContents(QPainter* p);
    virtual void contentsMousePressEvent(QMouseEvent* event);
    virtual void contentsMouseReleaseEvent(QMouseEvent* event);
    virtual void contentsMouseDoubleClickEvent(QMouseEvent* event);
    virtual void contentsMouseMoveEvent(QMouseEvent* event);
    virtual void viewportPaintEvent(QPaintEvent* event);
    virtual void viewportResizeEvent(QResizeEvent* event);

    bool eventFilter(QObject* watched, QEvent* event);
    void resizeEvent(QResizeEvent* event);
    void wheelEvent(QWheelEvent* event);

private slots:
    void hslide(int value);
    void vslide(int value);

private:
    void moveContents(int x, int y);
    bool mouseToContents(QMouseEvent* event);

    zeltk::ScrollViewData* d;

    QScrollView(const QScrollView&);
    QScrollView& operator=(const QScrollView&);
};

#endif
