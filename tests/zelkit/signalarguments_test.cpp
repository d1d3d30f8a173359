// What the signals carry: the event that the widget received, and the widget itself.
#include <zeledge.h>
#include <zelframe.h>
#include <zelgraph.h>
#include <zellabel.h>
#include <zellineedit.h>

#include "eventreceiver.h"
#include "sentevents.h"

#include <gtest/gtest.h>

namespace
{

struct MouseKind {
    QEvent::Type type;
    const char* signal;
};

const MouseKind mouseKinds[] = {
    {QEvent::MouseButtonPress, SIGNAL(mousePress(QMouseEvent*))},
    {QEvent::MouseButtonRelease, SIGNAL(mouseRelease(QMouseEvent*))},
    {QEvent::MouseMove, SIGNAL(mouseMove(QMouseEvent*))},
    {QEvent::MouseButtonDblClick, SIGNAL(mouseDoubleClick(QMouseEvent*))},
};

// Sends one and expects that the signal carries it.
void expectItsEvent(QWidget* widget, const MouseKind& kind)
{
    widget->setMouseTracking(true);
    EventReceiver receiver;
    EventWitness witness(widget, kind.type);
    ASSERT_TRUE(QObject::connect(widget, kind.signal, &receiver, SLOT(takeMouse(QMouseEvent*))));
    sendMouse(widget, kind.type, 3, 4);
    EXPECT_NE(receiver.event, nullptr) << kind.signal;
    EXPECT_EQ(receiver.event, witness.seen) << kind.signal;
}

} // namespace

TEST(SignalArguments, MouseSignalsCarryTheEvent)
{
    QWidget window;
    ZelFrame frame(&window, "frame", 0);
    ZelLabel label("text", &window, "label", false, 0);
    ZelGraph graph(&window, "graph", true);
    ZelEdge edge(&window, "edge");
    for (const MouseKind& kind : mouseKinds) {
        expectItsEvent(&frame, kind);
        expectItsEvent(&label, kind);
        expectItsEvent(&graph, kind);
        if (kind.type != QEvent::MouseButtonDblClick)
            expectItsEvent(&edge, kind);
    }
}

TEST(SignalArguments, AFramesOtherSignalsTellWhichFrameItWas)
{
    const MouseKind kinds[] = {
        {QEvent::MouseButtonPress, SIGNAL(mousePressEx(QMouseEvent*, ZelFrame*))},
        {QEvent::MouseButtonRelease, SIGNAL(mouseReleaseEx(QMouseEvent*, ZelFrame*))},
        {QEvent::MouseMove, SIGNAL(mouseMoveEx(QMouseEvent*, ZelFrame*))},
        {QEvent::MouseButtonDblClick, SIGNAL(mouseDoubleClickEx(QMouseEvent*, ZelFrame*))},
    };
    QWidget window;
    ZelFrame first(&window, "first", 0), second(&window, "second", 0);
    for (const MouseKind& kind : kinds) {
        EventReceiver receiver;
        for (ZelFrame* frame : {&first, &second})
            ASSERT_TRUE(
                QObject::connect(frame, kind.signal, &receiver, SLOT(takeMouseOf(QMouseEvent*, ZelFrame*))));
        for (ZelFrame* frame : {&second, &first}) {
            frame->setMouseTracking(true);
            EventWitness witness(frame, kind.type);
            sendMouse(frame, kind.type, 3, 4);
            EXPECT_EQ(receiver.frame, frame) << kind.signal;
            EXPECT_EQ(receiver.event, witness.seen) << kind.signal;
        }
    }
}

TEST(SignalArguments, ALabelTellsItself)
{
    QWidget window;
    ZelLabel first("first", &window, "first", false, 0), second("second", &window, "second", true, 0);
    EventReceiver receiver;
    for (ZelLabel* label : {&first, &second})
        ASSERT_TRUE(
            QObject::connect(label, SIGNAL(clicked(ZelLabel*)), &receiver, SLOT(takeLabel(ZelLabel*))));
    release(&second);
    EXPECT_EQ(receiver.label, &second);
    first.setOn(true);
    EXPECT_EQ(receiver.label, &first);
}

TEST(SignalArguments, KeysAndLeavingCarryTheirEvents)
{
    QWidget window;
    ZelGraph graph(&window, "graph");
    ZelLineEdit edit(&window, "edit");
    EventReceiver receiver;
    ASSERT_TRUE(QObject::connect(&graph, SIGNAL(keyPress(QKeyEvent*)), &receiver, SLOT(takeKey(QKeyEvent*))));
    ASSERT_TRUE(QObject::connect(&edit, SIGNAL(leave(QEvent*)), &receiver, SLOT(takeEvent(QEvent*))));
    EventWitness key(&graph, QEvent::KeyPress);
    EventWitness leaving(&edit, QEvent::Leave);
    sendKey(&graph, Qt::Key_A, 'a', 0, "a");
    EXPECT_NE(receiver.event, nullptr);
    EXPECT_EQ(receiver.event, key.seen);
    leave(&edit);
    EXPECT_NE(leaving.seen, nullptr);
    EXPECT_EQ(receiver.event, leaving.seen);
}
