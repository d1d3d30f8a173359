#ifndef TOUR_H
#define TOUR_H

#include <qobject.h>
#include <qtimer.h>

#include <string>
#include <vector>

class GalleryWindow;
class QWidget;
struct _XDisplay;

// Goes through the gallery with the real pointer (XTEST): rests on each widget, presses it, lets go, and
// takes a picture each time. Ends the application when it is through.
class Tour : public QObject
{
    Q_OBJECT

public:
    // What the pictures show: the whole window, or only the widget, which is then seen at rest too.
    enum View { Window, Widget };

    // Pictures go into that folder, which must exist.
    Tour(GalleryWindow& gallery, const std::string& folder, View view);
    ~Tour();

    // False, with a message, if there is no XTEST to work the pointer with.
    bool start();
    // True when every picture was written.
    bool complete() const;

private slots:
    void nextStep();

private:
    enum Action { Rest, Hover, Press, Release };
    struct Step {
        QWidget* widget;
        Action action;
        std::string picture;
    };

    void act(const Step& step);
    bool takePicture(const Step& step);

    GalleryWindow& m_gallery;
    std::string m_folder;
    View m_view;
    std::vector<Step> m_steps;
    unsigned m_next;
    bool m_acted;
    bool m_dialogOpened;
    bool m_failed;
    QTimer m_timer;
    _XDisplay* m_display;
};

#endif
