// The corner of a dialog that resizes it.
#ifndef ZELTK_SIZEGRIP_H
#define ZELTK_SIZEGRIP_H

#include <qwidget.h>

namespace zeltk
{

class SizeGrip : public QWidget
{
public:
    explicit SizeGrip(QWidget* window);
    // To the lower right corner.
    void place();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    QPoint pressedAt; // on the screen
    QSize sizeThen;
};

} // namespace zeltk

#endif
