// Events, objects and messages: what is needed less often.
#include "waiting.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qcombobox.h>
#include <qdesktopwidget.h>
#include <qeventloop.h>
#include <qimage.h>
#include <qlistbox.h>
#include <qmetaobject.h>
#include <qpainter.h>
#include <qpixmap.h>
#include <qptrlist.h>
#include <qrangecontrol.h>
#include <qtimer.h>
#include <qtranslator.h>

#include <string>

namespace
{

QtMsgType lastType;
std::string lastMessage;

void keep(QtMsgType type, const char* message)
{
    lastType = type;
    lastMessage = message;
}

class Range : public QRangeControl
{
};

class Entry : public QListBoxItem
{
public:
    explicit Entry(QListBox* box) : QListBoxItem(box) {}
    Entry(QListBox* box, QListBoxItem* after) : QListBoxItem(box, after) {}
    int height(const QListBox*) const override { return 23; }

protected:
    void paint(QPainter*) override {}
};

class Bits : public QPixmap
{
public:
    Bits(const uchar* bits, bool lowestFirst) : QPixmap(8, 1, bits, lowestFirst) {}
};

} // namespace

TEST(EventForms, TellWhatHappened)
{
    QContextMenuEvent menu(QContextMenuEvent::Keyboard, QPoint(1, 2), QPoint(11, 22), Qt::ShiftButton);
    EXPECT_EQ(QContextMenuEvent::Keyboard, menu.reason());
    EXPECT_EQ(QPoint(1, 2), menu.pos());
    EXPECT_EQ(QPoint(11, 22), menu.globalPos());
    EXPECT_EQ(11, menu.globalX());
    EXPECT_EQ(22, menu.globalY());
    EXPECT_EQ(Qt::ShiftButton, menu.state());
    menu.ignore();
    EXPECT_FALSE(menu.isAccepted());
    menu.consume();
    EXPECT_TRUE(menu.isConsumed());
    menu.accept();
    EXPECT_TRUE(menu.isAccepted());

    QWheelEvent wheel(QPoint(1, 2), QPoint(11, 22), 120, 0);
    EXPECT_EQ(QPoint(1, 2), wheel.pos());
    EXPECT_EQ(11, wheel.globalX());
    EXPECT_EQ(22, wheel.globalY());
    wheel.ignore();
    EXPECT_FALSE(wheel.isAccepted());
    wheel.accept();
    EXPECT_TRUE(wheel.isAccepted());

    const QMouseEvent mouse(QEvent::MouseButtonPress, QPoint(1, 2), QPoint(11, 22), Qt::LeftButton, 0);
    EXPECT_EQ(QPoint(11, 22), mouse.globalPos());
    QCloseEvent close;
    EXPECT_FALSE(close.isAccepted());
    close.accept();
    EXPECT_TRUE(close.isAccepted());
    EXPECT_EQ(QEvent::Show, QShowEvent().type());
    EXPECT_EQ(QEvent::Hide, QHideEvent().type());
    EXPECT_EQ(17, QTimerEvent(17).timerId());
    const QPaintEvent paint(QRegion(1, 2, 3, 4), QRect(1, 2, 3, 4), false);
    EXPECT_EQ(QRect(1, 2, 3, 4), paint.rect());
    EXPECT_FALSE(paint.erased());
}

TEST(EventForms, AreHandedOnByHand)
{
    QObject object(nullptr, "object");
    QCustomEvent event(QEvent::User);
    EXPECT_FALSE(object.eventFilter(&object, &event));
    EXPECT_TRUE(qApp->notify(&object, &event)) << "a custom event";
    QComboBox box(true, nullptr, "box");
    EXPECT_FALSE(box.eventFilter(&object, &event));
    EXPECT_FALSE(object.highPriority());
}

TEST(ObjectForms, DisconnectAReceiver)
{
    QTimer timer(nullptr, "timer");
    QTimer other(nullptr, "other");
    ASSERT_TRUE(QObject::connect(&timer, SIGNAL(timeout()), &other, SLOT(deleteLater())));
    EXPECT_TRUE(timer.disconnect(&other));
    EXPECT_FALSE(timer.disconnect(&other));
    EXPECT_EQ("text", QObject::tr("text"));
    QMetaObjectCleanUp cleanUp;
    QMetaObject* meta = nullptr;
    cleanUp.setMetaObject(meta);
}

TEST(EventLoops, RunWithinEachOther)
{
    QEventLoop loop(nullptr, "loop");
    EXPECT_EQ(&loop, static_cast<QObject*>(&loop));
    class Leaver : public QObject
    {
    public:
        Leaver() { startTimer(0); }
        int level = 0;

    protected:
        void timerEvent(QTimerEvent*) override
        {
            killTimers();
            level = qApp->loopLevel();
            qApp->eventLoop()->exitLoop();
        }
    } leaver;
    const int before = qApp->loopLevel();
    qApp->eventLoop()->enterLoop();
    EXPECT_EQ(before + 1, leaver.level);
    EXPECT_EQ(before, qApp->loopLevel());
}

TEST(Messages, GoToTheHandlerWithTheirType)
{
    const QtMsgHandler before = qInstallMsgHandler(keep);
    qDebug("number %d", 1);
    EXPECT_EQ(QtDebugMsg, lastType);
    EXPECT_EQ("number 1", lastMessage);
    qWarning("number %d", 2);
    EXPECT_EQ(QtWarningMsg, lastType);
    EXPECT_EQ("number 2", lastMessage);
    qFatal("number %d", 3);
    EXPECT_EQ(QtFatalMsg, lastType);
    EXPECT_EQ("number 3", lastMessage);
    qInstallMsgHandler(before);
}

TEST(Translators, KeepAndCompareMessages)
{
    const QTranslatorMessage a("Window", "Open", "", QString("Oeffnen"));
    const QTranslatorMessage b("Window", "Close", "menu", QString("Schliessen"));
    QTranslatorMessage copy;
    copy = b;
    EXPECT_STREQ("Window", copy.context());
    EXPECT_STREQ("menu", copy.comment());
    EXPECT_TRUE(copy == b);
    EXPECT_NE(a > b, b > a);
    EXPECT_TRUE(a >= a);
    EXPECT_NE(a >= b, b >= a);
    QTranslator translator(nullptr, "translator");
    translator.insert(b);
    EXPECT_EQ("Schliessen", translator.findMessage("Window", "Close", "menu").translation());
    EXPECT_TRUE(translator.findMessage("Window", "Open", "").translation().isNull());
}

TEST(RangeControls, BeginWithTheirStandardRange)
{
    const Range range;
    EXPECT_EQ(0, range.value());
    EXPECT_EQ(0, range.minValue());
    EXPECT_EQ(99, range.maxValue());
}

TEST(ListBoxEntries, MayBeAProgramsOwn)
{
    QListBox box(nullptr, "box");
    Entry* first = new Entry(&box);
    new Entry(&box);
    Entry* second = new Entry(&box, first);
    EXPECT_EQ(3u, box.count());
    EXPECT_EQ(1, box.index(second));
    EXPECT_EQ(0, first->rtti());
    EXPECT_EQ(23, box.itemHeight(0));
}

TEST(PtrCollections, PassItemsOnAsTheyAre)
{
    QPtrList<int> list;
    int number = 5;
    EXPECT_EQ(&number, list.newItem(&number));
}

TEST(Widgets, ArePolishedWithoutBeingChanged)
{
    const QWidget widget(nullptr, "widget");
    widget.constPolish();
    const QDesktopWidget desktop;
    EXPECT_EQ(QApplication::desktop()->size(), desktop.screenGeometry().size());
}

TEST(Pixmaps, AreMadeOfBits)
{
    const uchar bits[] = {0x03};
    const QImage lowestFirst = Bits(bits, true).convertToImage();
    const QImage highestFirst = Bits(bits, false).convertToImage();
    EXPECT_EQ(qRgb(0, 0, 0), lowestFirst.pixel(0, 0));
    EXPECT_EQ(qRgb(255, 255, 255), lowestFirst.pixel(7, 0));
    EXPECT_EQ(qRgb(255, 255, 255), highestFirst.pixel(0, 0));
    EXPECT_EQ(qRgb(0, 0, 0), highestFirst.pixel(7, 0));
}
