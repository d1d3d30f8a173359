// The same program on FLTK.
#include "used.h"

#include <FL/Fl.H>
#include <FL/Fl_Button.H>
#include <FL/Fl_Window.H>
#include <FL/x.H>

class Button : public Fl_Button
{
public:
    Button(int x, int y, int w, int h, const char* text) : Fl_Button(x, y, w, h, text) {}

protected:
    void draw()
    {
        Fl_Button::draw();
        XSync(fl_display, False);
        printUsedAndExit();
    }
};

static void quit(Fl_Widget* button, void*)
{
    button->window()->hide();
}

int main(int argc, char** argv)
{
    Fl_Window window(200, 100, "One button");
    Button button(50, 35, 100, 30, "Quit");
    button.callback(quit);
    window.end();
    window.show(argc, argv);
    return Fl::run();
}
