// Wells of colours in rows and columns, one of which may be chosen.
#ifndef ZELTK_COLORGRID_H
#define ZELTK_COLORGRID_H

#include <qcolor.h>
#include <qscrollview.h>

#include <functional>
#include <vector>

// Counted down the columns. As everywhere in this dialog, the class has the name that Qt 3 shows through
// className().
class QWellArray : public QScrollView
{
    Q_OBJECT

public:
    // The colours stay the caller's, who calls updateContents() when they change.
    QWellArray(int rows, int columns, const std::vector<QRgb>* colors, QWidget* parent);

    std::function<void(int)> onChosen;
    int chosen() const { return selected; }
    void choose(int index); // -1: none
    QSize sizeHint() const override;

protected:
    void drawContents(QPainter* p, int x, int y, int w, int h) override;
    void contentsMousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    QRect cell(int index) const;
    void drawWell(QPainter* p, int index);
    void chooseByHand(int index);

    const int rowCount, columnCount;
    const std::vector<QRgb>* const colors;
    int current = 0; // where the keyboard is
    int selected = -1;
};

#endif
