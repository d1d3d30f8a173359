// The desktop: the screen behind all windows.
#ifndef QDESKTOPWIDGET_H
#define QDESKTOPWIDGET_H

#include <qrect.h>
#include <qwidget.h>

//! The root window as a widget, with the geometry of the screen. QApplication::desktop() gives it.
class Q_EXPORT QDesktopWidget : public QWidget
{
    Q_OBJECT

public:
    QDesktopWidget();
    ~QDesktopWidget();

    bool isVirtualDesktop() const;
    int numScreens() const;
    int primaryScreen() const;
    int screenNumber(QWidget* widget = 0) const;
    int screenNumber(const QPoint& point) const;
    QWidget* screen(int screen = -1);

    const QRect& screenGeometry(int screen = -1) const;
    const QRect& screenGeometry(QWidget* widget) const;
    const QRect& screenGeometry(const QPoint& point) const;
    //! Without the panels that a window manager reserves room for.
    const QRect& availableGeometry(int screen = -1) const;
    const QRect& availableGeometry(QWidget* widget) const;
    const QRect& availableGeometry(const QPoint& point) const;

signals:
    void resized(int screen);
    void workAreaResized(int screen);

private:
    QRect m_screen;
    mutable QRect m_available;

    QDesktopWidget(const QDesktopWidget&);
    QDesktopWidget& operator=(const QDesktopWidget&);
};

#endif
