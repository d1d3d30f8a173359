// Asking for a colour.
#include "color.h"

#include <colordlg.h>
#include <qapplication.h>
#include <zelcolorbutton.h>

ColorWindow::ColorWindow() : QWidget(0, "window")
{
    resize(160, 80);
    button = new ZelColorButton(this, "ground");
    button->setColor(paletteBackgroundColor());
    button->setGeometry(50, 25, 60, 30);
    connect(button, SIGNAL(clicked()), SLOT(chooseColor()));
}

void ColorWindow::chooseColor()
{
    ZelColorDlg dialog(paletteBackgroundColor(), this, "dialog");
    if (dialog.exec() != QDialog::Accepted)
        return;
    setPaletteBackgroundColor(dialog.getColor());
    button->setColor(dialog.getColor());
}

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    ColorWindow window;
    application.setMainWidget(&window);
    window.show();
    return application.exec();
}
