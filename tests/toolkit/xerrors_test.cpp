// Errors of the X server are told and do no harm.
#include "messages.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qwidget.h>

#include <X11/Xlib.h>

#include <string>

TEST(XErrors, EachIsReportedOnceWithItsRequest)
{
    QWidget widget;
    showAndWait(&widget);
    XDestroyWindow(xinput::display(), widget.winId());
    xinput::sync();
    takeMessages();
    testing::internal::CaptureStderr();
    widget.setMask(QRegion(0, 0, 5, 5));
    widget.move(20, 20);
    QApplication::syncX();
    const std::string names = testing::internal::GetCapturedStderr();
    EXPECT_NE(std::string::npos, names.find("Request:       X_ConfigureWindow\n")) << names;
    EXPECT_NE(std::string::npos, names.find("Request:       X_ShapeRectangles\n")) << names;
    const std::string text = takeMessages();
    EXPECT_NE(std::string::npos, text.find("X Error: BadWindow (invalid Window parameter) 3\n")) << text;
    const std::string configure = "  Major opcode:  12\n  Minor opcode:  0\n  Resource id:  0x";
    EXPECT_NE(std::string::npos, text.find(configure)) << text;
    EXPECT_EQ(text.find(configure), text.rfind(configure)) << text;
    int shapes = 0, event, error;
    ASSERT_TRUE(XQueryExtension(xinput::display(), "SHAPE", &shapes, &event, &error));
    EXPECT_NE(std::string::npos, text.find("Major opcode:  " + std::to_string(shapes) + "\n")) << text;
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
