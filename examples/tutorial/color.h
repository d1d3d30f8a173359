#ifndef COLOR_H
#define COLOR_H

#include <qwidget.h>

class ZelColorButton;

// A window with a button; the colour chosen in its dialog becomes the window's ground.
class ColorWindow : public QWidget
{
    Q_OBJECT

public:
    ColorWindow();

private slots:
    void chooseColor();

private:
    ZelColorButton* button;
};

#endif
