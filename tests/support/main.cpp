// The main program of every test: one QApplication with a fixed font, the pointer parked in a corner, and
// every message of the toolkit recorded. With TEST_MANAGED in the environment a window manager runs all the
// time.
#include "messages.h"
#include "windowmanager.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qfont.h>

#include <clocale>
#include <cstdlib>
#include <memory>

namespace
{

// Leaves no trace of one test for the next: the pointer is parked, no message is left over.
class FreshStart : public testing::EmptyTestEventListener
{
    void OnTestStart(const testing::TestInfo&) override
    {
        xinput::releaseAll();
        xinput::park();
        QApplication::syncX();
        qApp->processEvents();
        testMessages().clear();
    }
};

} // namespace

int main(int argc, char** argv)
{
    setenv("FONTCONFIG_FILE", TEST_FONTS_CONF, 0);
    setenv("XMODIFIERS", "@im=none", 1);
    setenv("LC_ALL", "C.UTF-8", 1);
    setlocale(LC_ALL, "");
    testing::InitGoogleTest(&argc, argv);
    recordMessages();
    xinput::park();
    QApplication application(argc, argv);
    QApplication::setFont(QFont("DejaVu Sans", 10), true);
    testing::UnitTest::GetInstance()->listeners().Append(new FreshStart);
    std::unique_ptr<WindowManager> manager(std::getenv("TEST_MANAGED") ? new WindowManager : nullptr);
    const int result = RUN_ALL_TESTS();
    manager.reset();
    xinput::disconnect();
    return result;
}
