// The application and what it keeps.
#include "signalrecorder.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qcursor.h>
#include <qlabel.h>
#include <qobjectlist.h>
#include <qtimer.h>
#include <qwidgetlist.h>

#include <X11/keysym.h>

#include <memory>

namespace
{

class Recorder : public QObject
{
public:
    std::string seen;
    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() == QEvent::User)
            seen += std::string(object->name()) + ' ';
        return takes;
    }
    bool takes = false;
};

// Looks at the window of aboutQt() as soon as it is up, and closes it with Return.
class Reader : public QObject
{
public:
    Reader() { startTimer(20); }
    QString read;

protected:
    void timerEvent(QTimerEvent*) override
    {
        QWidget* window = QApplication::activeModalWidget();
        if (!window || !xinput::isViewable(window->winId()))
            return;
        killTimers();
        window->setActiveWindow();
        waitFor([window] { return window->isActiveWindow(); });
        const std::unique_ptr<QObjectList> labels(window->queryList("QLabel"));
        read = static_cast<QLabel*>(labels->first())->text();
        xinput::typeKey(XK_Return);
    }
};

bool listed(QWidgetList* list, QWidget* widget)
{
    const std::unique_ptr<QWidgetList> owned(list);
    return owned->containsRef(widget) > 0;
}

} // namespace

TEST(Application, ItsFiltersSeeTheEventsOfAllObjects)
{
    Recorder filter;
    QObject object(nullptr, "object");
    qApp->installEventFilter(&filter);
    QCustomEvent event(QEvent::User);
    EXPECT_TRUE(QApplication::sendEvent(&object, &event));
    EXPECT_EQ("object ", filter.seen);
    Recorder own;
    object.installEventFilter(&own);
    filter.takes = true;
    EXPECT_TRUE(QApplication::sendEvent(&object, &event));
    EXPECT_EQ("", own.seen) << "the application's filter comes first";
    qApp->removeEventFilter(&filter);
    QApplication::sendEvent(&object, &event);
    EXPECT_EQ("object ", own.seen);
}

TEST(Application, ListsAllWidgetsAndWindows)
{
    QWidget window;
    QWidget child(&window);
    EXPECT_TRUE(listed(QApplication::allWidgets(), &window));
    EXPECT_TRUE(listed(QApplication::allWidgets(), &child));
    EXPECT_TRUE(listed(QApplication::topLevelWidgets(), &window));
    EXPECT_FALSE(listed(QApplication::topLevelWidgets(), &child));
}

TEST(Application, FindsTheWidgetAtAPlaceOfTheScreen)
{
    QWidget window;
    window.setGeometry(300, 200, 100, 100);
    QWidget child(&window);
    child.setGeometry(10, 10, 20, 20);
    showAndWait(&window);
    EXPECT_EQ(&window, QApplication::widgetAt(315, 215));
    EXPECT_EQ(&child, QApplication::widgetAt(315, 215, true));
    EXPECT_EQ(&window, QApplication::widgetAt(QPoint(350, 250), true));
    EXPECT_EQ(nullptr, QApplication::widgetAt(900, 700));
}

TEST(Application, SaysWhenTheLastWindowIsClosed)
{
    SignalRecorder signals_;
    signals_.watch(qApp, SIGNAL(lastWindowClosed()));
    QWidget one, two;
    showAndWait(&one);
    showAndWait(&two);
    one.close();
    EXPECT_EQ("", signals_.take());
    two.close();
    EXPECT_EQ("lastWindowClosed", signals_.take());
    showAndWait(&one);
    one.hide();
    EXPECT_EQ("", signals_.take()) << "hidden, not closed";
}

TEST(Application, ClosesAllWindowsUntilOneRefuses)
{
    struct Stubborn : public QWidget {
        void closeEvent(QCloseEvent* event) override { event->ignore(); }
    };
    QWidget one, two;
    one.show();
    two.show();
    qApp->closeAllWindows();
    EXPECT_FALSE(one.isVisible());
    EXPECT_FALSE(two.isVisible());
    Stubborn stubborn;
    stubborn.show();
    one.show();
    qApp->closeAllWindows();
    EXPECT_TRUE(stubborn.isVisible());
}

TEST(Application, OverrideCursorsAreStacked)
{
    EXPECT_EQ(nullptr, QApplication::overrideCursor());
    QApplication::setOverrideCursor(Qt::WaitCursor);
    QApplication::setOverrideCursor(Qt::CrossCursor);
    EXPECT_EQ(static_cast<int>(Qt::CrossCursor), QApplication::overrideCursor()->shape());
    QApplication::setOverrideCursor(Qt::IbeamCursor, true);
    EXPECT_EQ(static_cast<int>(Qt::IbeamCursor), QApplication::overrideCursor()->shape());
    QApplication::restoreOverrideCursor();
    EXPECT_EQ(static_cast<int>(Qt::WaitCursor), QApplication::overrideCursor()->shape());
    QApplication::restoreOverrideCursor();
    EXPECT_EQ(nullptr, QApplication::overrideCursor());
}

TEST(Application, FontsCanBeSetForAClass)
{
    const QFont before = QApplication::font();
    QApplication::setFont(QFont("DejaVu Sans", 20), false, "QDesktopWidget");
    QWidget plain;
    EXPECT_EQ(20, QApplication::font(QApplication::desktop()).pointSize());
    EXPECT_EQ(before.pointSize(), QApplication::font(&plain).pointSize());
    EXPECT_EQ(before.pointSize(), QApplication::font().pointSize());
    QApplication::setFont(before, true, "QDesktopWidget");
}

TEST(Application, WidgetsOfAClassHaveItsLookWhateverTheirParents)
{
    const QFont font = QApplication::font();
    const QPalette palette = QApplication::palette();
    QPalette green(palette);
    green.setColor(QColorGroup::Text, Qt::green);
    QWidget window;
    QLabel label("old", &window);
    QLabel own("own", &window);
    own.setFont(QFont("DejaVu Sans", 7));
    QWidget other(&window);
    QWidget inside(&label);
    QApplication::setFont(QFont("DejaVu Sans", 20), true, "QLabel");
    QApplication::setPalette(green, true, "QLabel");
    EXPECT_EQ(20, label.font().pointSize());
    EXPECT_EQ(20, inside.font().pointSize());
    EXPECT_EQ(7, own.font().pointSize());
    EXPECT_EQ(font.pointSize(), other.font().pointSize());
    EXPECT_EQ(Qt::green, label.palette().active().text());
    EXPECT_EQ(Qt::black, other.palette().active().text());

    window.setFont(QFont("DejaVu Sans", 11));
    window.setPalette(QPalette(Qt::gray));
    EXPECT_EQ(20, label.font().pointSize());
    EXPECT_EQ(11, other.font().pointSize());
    EXPECT_EQ(Qt::green, label.palette().active().text());

    QLabel young("new", &window);
    young.polish();
    EXPECT_EQ(20, young.font().pointSize());
    EXPECT_EQ(Qt::green, young.palette().active().text());

    QApplication::setFont(font, true);
    QApplication::setPalette(palette, true);
    EXPECT_EQ(11, label.font().pointSize());
    EXPECT_EQ(11, inside.font().pointSize());
    EXPECT_EQ(7, own.font().pointSize());
    EXPECT_EQ(Qt::black, label.palette().active().text());
}

TEST(Application, ALookForAllReplacesThoseOfClasses)
{
    const QFont font = QApplication::font();
    const QPalette palette = QApplication::palette();
    const QWidget* const desktop = QApplication::desktop();
    QApplication::setFont(QFont("DejaVu Sans", 20), false, "QDesktopWidget");
    QApplication::setPalette(QPalette(Qt::red), false, "QDesktopWidget");
    EXPECT_EQ(QFont("DejaVu Sans", 20), QApplication::font(desktop));
    EXPECT_FALSE(palette == QApplication::palette(desktop));
    QApplication::setFont(font);
    QApplication::setPalette(palette);
    EXPECT_EQ(font, QApplication::font(desktop));
    EXPECT_TRUE(palette == QApplication::palette(desktop));
}

TEST(Application, WidgetsLearnOfANewFontAndPalette)
{
    const QFont font = QApplication::font();
    const QPalette palette = QApplication::palette();
    QWidget window;
    QWidget child(&window);
    QWidget own;
    own.setFont(QFont("DejaVu Sans", 7));
    QApplication::setFont(QFont("DejaVu Sans", 17), true);
    EXPECT_EQ(17, window.font().pointSize());
    EXPECT_EQ(17, child.font().pointSize());
    EXPECT_EQ(7, own.font().pointSize());
    QPalette green(palette);
    green.setColor(QPalette::Active, QColorGroup::Background, Qt::green);
    QApplication::setPalette(green, true);
    EXPECT_EQ(Qt::green, child.palette().color(QPalette::Active, QColorGroup::Background));
    QApplication::setFont(font, true);
    QApplication::setPalette(palette, true);
    EXPECT_EQ(font.pointSize(), child.font().pointSize());
}

TEST(Application, KnowsItsFile)
{
    EXPECT_NE(-1, qApp->applicationFilePath().find("application_test"));
    EXPECT_EQ(QString(qApp->applicationDirPath() + "/application_test"), qApp->applicationFilePath());
    EXPECT_EQ(QApplication::GuiClient, qApp->type());
    EXPECT_FALSE(QApplication::startingUp());
    EXPECT_FALSE(QApplication::closingDown());
}

TEST(Application, TellsOfItsToolkit)
{
    Reader reader;
    qApp->aboutQt();
    EXPECT_TRUE(reader.read.contains(qVersion())) << reader.read.latin1();
    EXPECT_EQ(nullptr, QApplication::activeModalWidget());
}

TEST(Application, TellsThatItHasWaited)
{
    SignalRecorder recorder;
    recorder.watch(qApp, SIGNAL(guiThreadAwake()), "awake");
    QTimer timer;
    timer.start(1, true);
    EXPECT_TRUE(waitFor([&] { return !timer.isActive(); }));
    recorder.take();
    // A busy machine may come to the loop when the time is over already, and there is nothing to wait for.
    for (int milliseconds = 1; recorder.count() == 0 && milliseconds < 10000; milliseconds *= 4) {
        timer.start(milliseconds, true);
        while (timer.isActive())
            qApp->processOneEvent();
    }
    EXPECT_LE(1, recorder.count());
}
