// The screen.
#ifndef QDESKTOPWIDGET_H
#define QDESKTOPWIDGET_H

#include <qwidget.h>

//! A widget as large as the screen; QApplication::desktop() makes it.
class Q_EXPORT QDesktopWidget : public QWidget
{
    Q_OBJECT

public:
    QDesktopWidget();
    ~QDesktopWidget();

    bool isVirtualDesktop() const { return false; }
    int numScreens() const { return 1; }
    int primaryScreen() const { return 0; }
    //! There is one screen, whatever the number.
    QWidget* screen(int screen = -1);
    const QRect& screenGeometry(int screen = -1) const;

private:
    QRect area;

    QDesktopWidget(const QDesktopWidget&);
    QDesktopWidget& operator=(const QDesktopWidget&);
};

#endif
