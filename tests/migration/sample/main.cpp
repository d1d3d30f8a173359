// A program of the Qt 3 days that uses more of Qt than the bundled toolkit has: what is missing is listed in
// expected.
#include "board.h"
#include "settings.h"

#include <qapplication.h>
#include <qmessagebox.h>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    application.setGlobalMouseTracking(true);
    Board board;
    application.setMainWidget(&board);
    board.show();
    if (argc > 1)
        QMessageBox::about(&board, "Board", "QTable is only a word in this text.");
    return application.exec();
}
