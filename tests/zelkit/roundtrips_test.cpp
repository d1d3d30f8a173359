// A program on a slow line must not wait for the X server where it need not.
#include "roundtrips.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qcursor.h>
#include <qlayout.h>
#include <qlineedit.h>
#include <qpainter.h>
#include <qpushbutton.h>
#include <zelactivelabel.h>
#include <zelgraph.h>
#include <zellineedit.h>

#include <chrono>
#include <functional>

namespace
{

class Window : public QWidget
{
public:
    Window() : QWidget(nullptr, "window")
    {
        QVBoxLayout* layout = new QVBoxLayout(this, 8, 6);
        layout->addWidget(new ZelActiveLabel(this, "label"));
        layout->addWidget(edit = new ZelLineEdit(this));
        layout->addWidget(new QPushButton("Button", this));
        layout->addWidget(graph = new ZelGraph(this));
        graph->setMinimumSize(300, 100);
        graph->setGraphParameters(0, 100, 4, 10, false, false, false, Qt::black, Qt::blue, Qt::green);
    }

    int painted = 0;
    ZelLineEdit* edit;
    ZelGraph* graph;

protected:
    void paintEvent(QPaintEvent*) override
    {
        ++painted;
        QPainter painter(this);
        painter.drawText(10, 20, "text");
    }
};

// waitFor() would ask the server itself.
bool handleEventsUntil(const std::function<bool()>& condition)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(5);
    while (!condition() && std::chrono::steady_clock::now() < end)
        qApp->processEvents();
    return condition();
}

} // namespace

// The first window asks for what the program needs once, such as fonts and colours.
TEST(RoundTrips, AreCountedAtAll)
{
    RoundTrips trips;
    QCursor::pos();
    EXPECT_EQ(1, trips.count());
}

TEST(RoundTrips, AWindowIsShownWithoutAny)
{
    Window first;
    showAndWait(&first);
    first.hide();
    settle();

    RoundTrips trips;
    Window window;
    window.show();
    EXPECT_TRUE(handleEventsUntil([&window] { return window.painted > 0; }));
    EXPECT_EQ(0, trips.count());
}

TEST(RoundTrips, ASampleOfAGraphIsDrawnWithoutAny)
{
    Window window;
    showAndWait(&window);
    for (int i = 0; i < 10; ++i)
        window.graph->setValue(i);
    settle();

    RoundTrips trips;
    for (int i = 0; i < 100; ++i)
        window.graph->setValue(i);
    qApp->processEvents();
    EXPECT_EQ(0, trips.count());
}

TEST(RoundTrips, AKeyIsTypedWithoutAny)
{
    Window window;
    showAndActivate(&window);
    window.edit->setFocus();
    xinput::typeText("a");
    ASSERT_TRUE(waitFor([&window] { return window.edit->text() == "a"; }));
    settle();
    xinput::typeText("b");

    RoundTrips trips;
    ASSERT_TRUE(handleEventsUntil([&window] { return window.edit->text() == "ab"; }));
    EXPECT_EQ(0, trips.count());
}

TEST(RoundTrips, ThePointerEntersAndClicksWithoutAny)
{
    Window window;
    showAndActivate(&window);
    QWidget* label = static_cast<QWidget*>(window.child(nullptr, "ZelActiveLabel"));
    xinput::moveTo(label, 5, 5);
    settle();
    xinput::park();
    settle();
    xinput::moveTo(label, 5, 5);
    xinput::pressButton();
    xinput::releaseButton();

    RoundTrips trips;
    for (int i = 0; i < 20; ++i)
        qApp->processEvents();
    EXPECT_EQ(0, trips.count());
}
