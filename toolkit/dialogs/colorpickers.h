// Areas to pick hue, saturation and value from.
#ifndef ZELTK_COLORPICKERS_H
#define ZELTK_COLORPICKERS_H

#include <qframe.h>
#include <qpixmap.h>

#include <functional>

// Hues from the left to the right, and paler downwards.
class QColorPicker : public QFrame
{
    Q_OBJECT

public:
    explicit QColorPicker(QWidget* parent);

    std::function<void(int hue, int saturation)> onPicked;
    void show(int hue, int saturation); // moves the mark
    QSize sizeHint() const override;

protected:
    void drawContents(QPainter* p) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    QPoint place() const;

    int hue = 0;
    int saturation = 0;
    QPixmap rainbow;
};

// Dark below, bright above.
class QColorLuminancePicker : public QWidget
{
    Q_OBJECT

public:
    explicit QColorLuminancePicker(QWidget* parent);

    std::function<void(int value)> onPicked;
    void show(int hue, int saturation, int value);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    int hue = 0;
    int saturation = 0;
    int value = 0;
};

#endif
