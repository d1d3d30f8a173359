// Pens.
#include "printers.h"

#include <gtest/gtest.h>
#include <qpen.h>

TEST(Pen, IsAThinBlackLineAtFirst)
{
    const QPen pen;
    EXPECT_EQ(Qt::SolidLine, pen.style());
    EXPECT_EQ(0u, pen.width());
    EXPECT_EQ(Qt::black, pen.color());
    EXPECT_EQ(Qt::FlatCap, pen.capStyle());
    EXPECT_EQ(Qt::MiterJoin, pen.joinStyle());
}

TEST(Pen, TakesWhatItIsMadeOf)
{
    EXPECT_EQ(Qt::DashLine, QPen(Qt::DashLine).style());
    const QPen pen(Qt::red, 3, Qt::DotLine, Qt::RoundCap, Qt::BevelJoin);
    EXPECT_EQ(Qt::red, pen.color());
    EXPECT_EQ(3u, pen.width());
    EXPECT_EQ(Qt::DotLine, pen.style());
    EXPECT_EQ(Qt::RoundCap, pen.capStyle());
    EXPECT_EQ(Qt::BevelJoin, pen.joinStyle());
    const QPen plain(Qt::blue);
    EXPECT_EQ(Qt::SolidLine, plain.style());
    EXPECT_EQ(0u, plain.width());
}

TEST(Pen, DiffersByEachProperty)
{
    const QPen pen(Qt::red, 2);
    QPen others[] = {pen, pen, pen, pen, pen};
    others[0].setColor(Qt::blue);
    others[1].setWidth(3);
    others[2].setStyle(Qt::DashDotLine);
    others[3].setCapStyle(Qt::SquareCap);
    others[4].setJoinStyle(Qt::RoundJoin);
    for (const QPen& other : others)
        EXPECT_TRUE(pen != other);
    EXPECT_TRUE(pen == QPen(Qt::red, 2));
}
