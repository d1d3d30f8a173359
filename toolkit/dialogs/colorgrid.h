// Wells of colours in rows and columns, one of which may be chosen.
#ifndef ZELTK_COLORGRID_H
#define ZELTK_COLORGRID_H

#include <qcolor.h>
#include <qwidget.h>

#include <functional>
#include <vector>

namespace zeltk
{

// Counted down the columns.
class ColorGrid : public QWidget
{
public:
    // The colours stay the caller's, who calls update() when they change.
    ColorGrid(int rows, int columns, const std::vector<QRgb>* colors, QWidget* parent);

    std::function<void(int)> onChosen;
    int chosen() const { return selected; }
    void choose(int index); // -1: none
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QRect cell(int index) const;
    void drawWell(QPainter* p, int index);
    void chooseByHand(int index);

    const int rowCount, columnCount;
    const std::vector<QRgb>* const colors;
    int current = 0; // where the keyboard is
    int selected = -1;
};

} // namespace zeltk

#endif
