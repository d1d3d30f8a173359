#ifndef GALLERYWINDOW_H
#define GALLERYWINDOW_H

#include <qwidget.h>

#include <vector>

class QLabel;

// Tells the gallery's status line that one certain signal of one certain widget came.
class SignalTeller : public QObject
{
    Q_OBJECT

public:
    // `signal` is a SIGNAL(...) of the sender, which owns the teller.
    SignalTeller(QObject* sender, const char* signal, QLabel* line);

private slots:
    void tell();

private:
    QString m_text;
    QLabel* m_line;
};

// The window of the gallery: a heading and a row for each class, in columns, and the status line at the
// bottom.
class GalleryWindow : public QWidget
{
    Q_OBJECT

public:
    // With `moving` the graphs run; else they stand still, which gives the same pictures each time.
    explicit GalleryWindow(bool moving = true);

    bool isMoving() const { return m_moving; }

    // Adds a row of that height (pixels) under the others, or at the top of a new column when it does not fit
    // there any more, and returns the area for its widgets.
    QWidget* addRow(const char* title, int height);

    // Shows the signal on the status line from now on and makes the widget a stop of the tour.
    void watch(QWidget* sender, const char* signal);

    // Places the status line and fixes the size, larger on a screen with large letters; call it when all rows
    // are there.
    void finish();

    const std::vector<QWidget*>& tourStops() const { return m_stops; }

public slots:
    // Says on the status line what was chosen in a dialog.
    void tellChoice(const QString& what);

private:
    bool m_moving;
    QLabel* m_status;
    std::vector<QWidget*> m_stops;
    // Where the next row begins.
    int m_left, m_bottom;
    // Of the highest column.
    int m_height;
};

#endif
