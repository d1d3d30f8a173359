// Scroll bars.
#ifndef QSCROLLBAR_H
#define QSCROLLBAR_H

#include <qrangecontrol.h>
#include <qwidget.h>

namespace zeltk
{
struct ScrollBarData;
}

//! Two arrows with a slider between them.
class Q_EXPORT QScrollBar : public QWidget, public QRangeControl
{
    Q_OBJECT

public:
    QScrollBar(QWidget* parent, const char* name = 0);
    QScrollBar(Orientation orientation, QWidget* parent, const char* name = 0);
    QScrollBar(int minValue, int maxValue, int lineStep, int pageStep, int value, Orientation orientation,
               QWidget* parent, const char* name = 0);
    ~QScrollBar();

    virtual void setOrientation(Orientation orientation);
    Orientation orientation() const;
    //! Whether the value follows while the slider is dragged.
    virtual void setTracking(bool enable);
    bool tracking() const;
    bool draggingSlider() const;

    virtual void setPalette(const QPalette& palette);
    QSize sizeHint() const;
    virtual void setSizePolicy(QSizePolicy policy);
    void setSizePolicy(QSizePolicy::SizeType hor, QSizePolicy::SizeType ver, bool hfw = false)
    {
        QWidget::setSizePolicy(hor, ver, hfw);
    }

    int minValue() const { return QRangeControl::minValue(); }
    int maxValue() const { return QRangeControl::maxValue(); }
    void setMinValue(int minValue) { QRangeControl::setMinValue(minValue); }
    void setMaxValue(int maxValue) { QRangeControl::setMaxValue(maxValue); }
    int lineStep() const { return QRangeControl::lineStep(); }
    int pageStep() const { return QRangeControl::pageStep(); }
    void setLineStep(int step) { setSteps(step, pageStep()); }
    void setPageStep(int step) { setSteps(lineStep(), step); }
    int value() const { return QRangeControl::value(); }

    //! Pixels from the beginning of the bar.
    int sliderStart() const;
    QRect sliderRect() const;

public slots:
    void setValue(int value) { QRangeControl::setValue(value); }

signals:
    //! By the user or by the program.
    void valueChanged(int value);
    //! The slider is dragged; without tracking the value follows when it is released.
    void sliderPressed();
    void sliderMoved(int value);
    void sliderReleased();
    //! After the value has changed by a step.
    void nextLine();
    void prevLine();
    void nextPage();
    void prevPage();

protected:
    void wheelEvent(QWheelEvent* event);
    void keyPressEvent(QKeyEvent* event);
    void resizeEvent(QResizeEvent* event);
    void paintEvent(QPaintEvent* event);
    void mousePressEvent(QMouseEvent* event);
    void mouseReleaseEvent(QMouseEvent* event);
    void mouseMoveEvent(QMouseEvent* event);
    void contextMenuEvent(QContextMenuEvent* event);
    void hideEvent(QHideEvent* event);

    void valueChange();
    void stepChange();
    void rangeChange();

private slots:
    void doAutoRepeat();

private:
    ZELTK_LOCAL void init(Orientation orientation);
    void positionSliderFromValue();
    int rangeValueToSliderPos(int value) const;
    int sliderPosToRangeValue(int pos) const;
    ZELTK_LOCAL int grooveLength() const;
    ZELTK_LOCAL int sliderLength() const;
    ZELTK_LOCAL int boundedSlider(int start) const;
    ZELTK_LOCAL int partAt(const QPoint& pos) const;
    ZELTK_LOCAL void act();
    ZELTK_LOCAL void beginDrag(bool jump);
    ZELTK_LOCAL void drag();
    void startAutoRepeat();
    void stopAutoRepeat();

    zeltk::ScrollBarData* d;

    QScrollBar(const QScrollBar&);
    QScrollBar& operator=(const QScrollBar&);
};

#endif
