#include "tour.h"
#include "gallerywindow.h"

#include <qapplication.h>
#include <qpixmap.h>

#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>

#include <cctype>
#include <cstdio>

namespace
{

const int stepMilliseconds = 60;
// What a picture of a single widget shows around it, in pixels.
const int closeMargin = 2;

// "Upside down" becomes "upside-down".
std::string fileName(const char* objectName)
{
    std::string name;
    for (const char* letter = objectName; *letter; ++letter)
        name += std::isalnum(static_cast<unsigned char>(*letter))
                    ? static_cast<char>(std::tolower(static_cast<unsigned char>(*letter)))
                    : '-';
    return name;
}

} // namespace

Tour::Tour(GalleryWindow& gallery, const std::string& folder, View view)
    : m_gallery(gallery), m_folder(folder), m_view(view), m_next(0), m_acted(false), m_dialogOpened(false),
      m_failed(false), m_display(0)
{
    if (view == Window)
        m_steps.push_back({&gallery, Rest, "gallery"});
    for (QWidget* const widget : gallery.tourStops()) {
        const std::string name = fileName(widget->className()) + "-" + fileName(widget->name());
        if (view == Widget)
            m_steps.push_back({widget, Rest, name + "-rest"});
        m_steps.push_back({widget, Hover, name + "-hover"});
        m_steps.push_back({widget, Press, name + "-pressed"});
        m_steps.push_back({widget, Release, name + "-clicked"});
    }
    connect(&m_timer, SIGNAL(timeout()), this, SLOT(nextStep()));
}

Tour::~Tour()
{
    if (m_display)
        XCloseDisplay(m_display);
}

bool Tour::start()
{
    // The pointer is worked over a connection of our own, as another program would.
    m_display = XOpenDisplay(0);
    int event, error, major, minor;
    if (!m_display || !XTestQueryExtension(m_display, &event, &error, &major, &minor)) {
        std::fprintf(stderr, "zelkit-gallery: the X server has no XTEST extension, so there is no tour\n");
        return false;
    }
    // Without a window manager nobody else gives the window the keyboard, and fields would show no cursor. At
    // first no widget has it.
    m_gallery.setActiveWindow();
    m_gallery.setFocus();
    m_timer.start(stepMilliseconds);
    return true;
}

bool Tour::complete() const
{
    return !m_failed && m_next == m_steps.size();
}

// A tick acts, the next one takes the picture of what came of it.
void Tour::nextStep()
{
    const Step& step = m_steps[m_next];
    if (!m_acted) {
        act(step);
        m_acted = true;
        return;
    }
    // A dialog that has just opened has its exposures now and is painted before the next tick.
    if (!m_dialogOpened && QApplication::activeModalWidget()) {
        QApplication::syncX();
        m_dialogOpened = true;
        return;
    }
    m_acted = m_dialogOpened = false;
    m_failed = !takePicture(step);
    ++m_next;
    if (m_failed || m_next == m_steps.size()) {
        m_timer.stop();
        qApp->quit();
    }
}

void Tour::act(const Step& step)
{
    const QPoint centre = step.widget->mapToGlobal(step.widget->rect().center());
    switch (step.action) {
    case Rest:
        XTestFakeMotionEvent(m_display, -1, 0, 0, CurrentTime);
        break;
    case Hover:
        XTestFakeMotionEvent(m_display, -1, centre.x(), centre.y(), CurrentTime);
        break;
    case Press:
        XTestFakeButtonEvent(m_display, 1, True, CurrentTime);
        break;
    case Release:
        XTestFakeButtonEvent(m_display, 1, False, CurrentTime);
        break;
    }
    XSync(m_display, False);
}

// A dialog that the step has opened is pictured in the place of the gallery, and closed.
bool Tour::takePicture(const Step& step)
{
    std::string name = step.picture;
    QPixmap picture;
    if (QWidget* const dialog = QApplication::activeModalWidget()) {
        name = fileName(dialog->className()) + "-" + fileName(dialog->name()) + "-shown";
        picture = QPixmap::grabWindow(dialog->winId());
        dialog->close();
    } else if (m_view == Window) {
        picture = QPixmap::grabWindow(m_gallery.winId());
    } else {
        const QPoint corner = step.widget->mapTo(&m_gallery, QPoint(-closeMargin, -closeMargin));
        picture = QPixmap::grabWindow(m_gallery.winId(), corner.x(), corner.y(),
                                      step.widget->width() + 2 * closeMargin,
                                      step.widget->height() + 2 * closeMargin);
    }
    const std::string path = m_folder + "/" + name + ".png";
    if (!picture.save(path.c_str(), "PNG")) {
        std::fprintf(stderr, "zelkit-gallery: cannot write %s\n", path.c_str());
        return false;
    }
    std::printf("%s\n", path.c_str());
    std::fflush(stdout);
    return true;
}
