#ifndef BOARD_H
#define BOARD_H

#include <qdict.h>
#include <qwidget.h>

class QProgressBar;

class Board : public QWidget
{
    Q_OBJECT

public:
    Board();

public slots:
    void turn();

protected:
    void paintEvent(QPaintEvent* event);

private:
    QProgressBar* progress;
    QDict<QString> names;
};

#endif
