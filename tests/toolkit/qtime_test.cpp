// Times of day and stopwatches.
#include "messages.h"
#include "printers.h"
#include "waiting.h"

#include <gtest/gtest.h>
#include <qdatetime.h>

TEST(Time, HasParts)
{
    const QTime time(1, 2, 3, 4);
    EXPECT_EQ(1, time.hour());
    EXPECT_EQ(2, time.minute());
    EXPECT_EQ(3, time.second());
    EXPECT_EQ(4, time.msec());
    EXPECT_EQ("01:02:03", time.toString());
    EXPECT_EQ("01:02:03", time.toString(Qt::ISODate));
    EXPECT_EQ("13:02:03", QTime(13, 2, 3).toString(Qt::LocalDate)) << "in the C locale";
}

TEST(Time, MayBeNullOrInvalid)
{
    EXPECT_TRUE(QTime().isNull());
    EXPECT_TRUE(QTime().isValid());
    EXPECT_TRUE(QTime(23, 59, 59, 999).isValid());
    EXPECT_EQ("", takeMessages());
    const QTime wrong(25, 0);
    EXPECT_FALSE(wrong.isValid());
    EXPECT_FALSE(wrong.isNull());
    EXPECT_TRUE(wrong.toString().isNull());
    EXPECT_NE("", takeMessages());
    EXPECT_FALSE(QTime::isValid(0, 60, 0));
    EXPECT_FALSE(QTime::isValid(0, 0, -1));
    QTime time(1, 1);
    EXPECT_TRUE(time.setHMS(2, 3, 4));
    EXPECT_FALSE(time.setHMS(2, 3, 60));
    EXPECT_FALSE(time.isValid());
    takeMessages();
}

TEST(Time, WrapsAtMidnight)
{
    const QTime time(1, 2, 3, 4);
    EXPECT_EQ(QTime(1, 3, 4, 4), time.addMSecs(61000));
    EXPECT_EQ(QTime(0, 2, 3, 4), time.addSecs(23 * 3600));
    EXPECT_EQ(QTime(23, 2, 3, 4), time.addSecs(-2 * 3600));
    EXPECT_EQ(QTime(1, 2, 3, 4), time.addMSecs(2 * 24 * 3600 * 1000));
}

TEST(Time, Differences)
{
    const QTime time(1, 2, 3, 4);
    EXPECT_EQ(1000, time.msecsTo(QTime(1, 2, 4, 4)));
    EXPECT_EQ(-3723, time.secsTo(QTime(0, 0)));
    EXPECT_TRUE(time < QTime(1, 2, 3, 5));
    EXPECT_TRUE(time >= QTime(1, 2, 3, 4));
    EXPECT_TRUE(time != QTime());
}

TEST(Time, StopwatchesRun)
{
    QTime watch;
    watch.start();
    EXPECT_TRUE(waitFor([&] { return watch.elapsed() >= 15; }));
    EXPECT_LT(watch.elapsed(), 60 * 1000);
    watch = watch.addSecs(-100);
    EXPECT_GE(watch.restart(), 100 * 1000);
    EXPECT_LT(watch.elapsed(), 60 * 1000) << "starts again";
}

TEST(Time, StopwatchesRunOverMidnight)
{
    QTime watch = QTime::currentTime().addSecs(10);
    const int passed = watch.elapsed();
    EXPECT_GT(passed, 24 * 3600 * 1000 - 11 * 1000);
    EXPECT_LT(passed, 24 * 3600 * 1000);
}
