// Widgets with a frame.
#ifndef QFRAME_H
#define QFRAME_H

#include <qwidget.h>

//! Draws a frame along its edge and leaves the inside to drawContents().
class Q_EXPORT QFrame : public QWidget
{
    Q_OBJECT

public:
    enum Shape {
        NoFrame = 0,
        Box = 0x0001,
        Panel = 0x0002,
        WinPanel = 0x0003,
        HLine = 0x0004,
        VLine = 0x0005,
        StyledPanel = 0x0006,
        PopupPanel = 0x0007,
        MenuBarPanel = 0x0008,
        ToolBarPanel = 0x0009,
        LineEditPanel = 0x000a,
        TabWidgetPanel = 0x000b,
        GroupBoxPanel = 0x000c,
        MShape = 0x000f
    };
    enum Shadow { Plain = 0x0010, Raised = 0x0020, Sunken = 0x0030, MShadow = 0x00f0 };

    QFrame(QWidget* parent = 0, const char* name = 0, WFlags f = 0);

    //! A shape and a shadow.
    int frameStyle() const { return fstyle; }
    virtual void setFrameStyle(int style);
    Shape frameShape() const { return (Shape)(fstyle & MShape); }
    void setFrameShape(Shape shape);
    Shadow frameShadow() const { return (Shadow)(fstyle & MShadow); }
    void setFrameShadow(Shadow shadow);
    bool lineShapesOk() const { return true; }

    int lineWidth() const { return lwidth; }
    virtual void setLineWidth(int width);
    int midLineWidth() const { return mwidth; }
    virtual void setMidLineWidth(int width);
    //! Between the frame and the contents.
    int margin() const { return mgn; }
    virtual void setMargin(int margin);
    //! What frame and margin take up on each side.
    int frameWidth() const;

    QRect frameRect() const;
    virtual void setFrameRect(const QRect& rect);
    QRect contentsRect() const;

    QSize sizeHint() const;

protected:
    void paintEvent(QPaintEvent* event);
    void resizeEvent(QResizeEvent* event);
    virtual void drawFrame(QPainter* p);
    virtual void drawContents(QPainter* p);
    virtual void frameChanged();

private:
    ZELTK_LOCAL void changed();

    QRect frect; // null: the whole widget
    int fstyle;
    int lwidth;
    int mwidth;
    int mgn;

    QFrame(const QFrame&);
    QFrame& operator=(const QFrame&);
};

#endif
