// Errors of the X server are told and do no harm.
#include "messages.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qwidget.h>

#include <X11/Xlib.h>

TEST(XErrors, EachIsReportedOnceWithItsRequest)
{
    QWidget widget;
    showAndWait(&widget);
    XDestroyWindow(xinput::display(), widget.winId());
    xinput::sync();
    takeMessages();
    widget.setMask(QRegion(0, 0, 5, 5));
    widget.move(20, 20);
    QApplication::syncX();
    const std::string text = takeMessages();
    EXPECT_NE(std::string::npos, text.find("X_ConfigureWindow")) << text;
    EXPECT_NE(std::string::npos, text.find("BadWindow")) << text;
    EXPECT_NE(std::string::npos, text.find("X_ShapeRectangles")) << text;
    EXPECT_EQ(text.find("X_ConfigureWindow"), text.rfind("X_ConfigureWindow")) << text;
}

TEST(XErrors, TheProgramGoesOn)
{
    QWidget* widget = new QWidget;
    showAndWait(widget);
    XDestroyWindow(xinput::display(), widget->winId());
    xinput::sync();
    delete widget;
    QApplication::syncX();
    EXPECT_NE("", takeMessages());
    QWidget next;
    showAndWait(&next);
    EXPECT_TRUE(next.isVisible());
    EXPECT_EQ("", takeMessages());
}
