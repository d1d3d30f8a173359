#ifndef DIALOGROW_H
#define DIALOGROW_H

#include <qcolor.h>
#include <qobject.h>

class QLabel;
class QWidget;
class ZelColorButton;

// Runs the three dialogs and shows what was chosen: the colour on a button, the colours on the whole gallery,
// the font on a label.
class DialogRow : public QObject
{
    Q_OBJECT

public:
    // The results lie in the second line of the row; the dialogs belong to its window.
    explicit DialogRow(QWidget* row);

signals:
    void chosen(const QString& what);

private slots:
    void chooseColor();
    void chooseColors();
    void chooseFont();

private:
    QWidget* m_window;
    ZelColorButton* m_color;
    QColor m_chosenColor;
    QLabel* m_sample;
};

#endif
