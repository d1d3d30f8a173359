// Controls that are deleted by who listens to their signals: nothing of them is used afterwards.
#ifndef TEST_CONTROLDELETION_H
#define TEST_CONTROLDELETION_H

#include "perishable.h"
#include "sentevents.h"
#include "signalrecorder.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

template <typename Class>
struct Case {
    const char* signal;
    std::function<void(Class*)> doIt;
};

class ControlDeletion : public testing::Test
{
protected:
    ControlDeletion() : window(nullptr, "window") { window.setGeometry(200, 150, 240, 200); }
    ~ControlDeletion() override { Graveyard::clear(); }

    // Does it to the widget, which is deleted at the signal's first emission. It must be emitted but once.
    template <typename Class>
    void check(Class* widget, const Case<Class>& each)
    {
        SignalRecorder recorder;
        Class* victim = widget;
        recorder.watch(widget, each.signal);
        widget->setGeometry(20, 20, 120, 28);
        widget->show();
        showAndActivate(&window);
        widget->setFocus();
        settle();
        ASSERT_EQ(recorder.take(), "");
        recorder.whenever = [&victim] {
            delete victim;
            victim = nullptr;
        };
        each.doIt(widget);
        settle();
        EXPECT_EQ(recorder.count(), 1);
        EXPECT_FALSE(victim);
        delete victim;
        xinput::releaseAll();
        settle();
    }

    // Each with a new widget.
    template <typename Class, typename Cases>
    void checkAll(const Cases& cases, const std::function<Class*()>& make)
    {
        int number = 0;
        for (const Case<Class>& each : cases) {
            SCOPED_TRACE(std::to_string(number++) + each.signal);
            check<Class>(make(), each);
        }
    }

    QWidget window;
};

#endif
