#ifndef DIALOGROW_H
#define DIALOGROW_H

#include <qobject.h>

class QWidget;

// Runs the three dialogs and tells what was chosen in them.
class DialogRow : public QObject
{
    Q_OBJECT

public:
    // The dialogs belong to the window that the row lies in.
    explicit DialogRow(QWidget* row);

signals:
    void chosen(const QString& what);

private slots:
    void chooseColor();
    void chooseColors();
    void chooseFont();

private:
    QWidget* m_window;
};

#endif
