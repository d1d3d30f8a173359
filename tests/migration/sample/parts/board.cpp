#include "board.h"

#include <qlineedit.h>
#include <counting/counter.h>
#include <qpainter.h>
#include <qprogressbar.h>

Board::Board() : QWidget(0, "board")
{
    progress = new QProgressBar(this);
    QLineEdit* field = new QLineEdit(this);
    field->setInputMask("000");
    connect(field, SIGNAL(textChanged(const QString&)), SLOT(turn()));
    connect(field, SIGNAL(inputRejected()), SLOT(turn()));
}

void Board::turn() // a QListView would do as well
{
    update();
    setWindowOpacity(0.5);
}

void Board::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.drawLine(0, 0, 10, 10);
    painter.drawRoundRect(rect());
    painter.drawPicture(0, 0, 0);
    qSysInfo(0, 0);
}

#include "board.moc"
