// Frames: what they measure and how they look.
#include "pixels.h"
#include "printers.h"
#include "waiting.h"

#include <gtest/gtest.h>
#include <qevent.h>
#include <qframe.h>
#include <qpainter.h>

#include <string>

namespace
{

const Pixels::Legend shades = {{'.', 0xc0c0c0}, {'L', 0xececec}, {'D', 0x808080}, {'M', 0xa0a0a4},
                               {'B', 0x000000}, {'s', 0xdfdfdf}, {'r', 0xff0000}};

// Counts what the base class calls and paints its contents red if told to.
class Frame : public QFrame
{
public:
    explicit Frame(QWidget* parent) : QFrame(parent) {}

    int changes = 0;
    bool red = false;

protected:
    void frameChanged() override { ++changes; }
    void drawContents(QPainter* p) override
    {
        if (red)
            p->fillRect(rect(), Qt::red);
    }
};

class FrameLook : public testing::Test
{
protected:
    FrameLook() : frame(&window)
    {
        window.setGeometry(100, 100, 60, 60);
        frame.setGeometry(10, 10, 10, 8);
    }

    std::string look(int style, int width = 1, int middle = 0)
    {
        frame.setFrameStyle(style);
        frame.setLineWidth(width);
        frame.setMidLineWidth(middle);
        showAndWait(&window);
        settle();
        return Pixels::of(&frame).picture(shades);
    }

    QWidget window;
    Frame frame;
};

} // namespace

TEST(Frame, HasNoFrameAtFirst)
{
    const QFrame frame;
    EXPECT_EQ(QFrame::NoFrame | QFrame::Plain, frame.frameStyle());
    EXPECT_EQ(1, frame.lineWidth());
    EXPECT_EQ(0, frame.midLineWidth());
    EXPECT_EQ(0, frame.margin());
    EXPECT_EQ(0, frame.frameWidth());
    EXPECT_EQ(frame.rect(), frame.contentsRect());
    EXPECT_EQ(frame.rect(), frame.frameRect());
    EXPECT_EQ(QSize(-1, -1), frame.sizeHint());
}

TEST(Frame, StyleIsShapeAndShadow)
{
    QFrame frame;
    frame.setFrameStyle(QFrame::Panel | QFrame::Sunken);
    EXPECT_EQ(QFrame::Panel, frame.frameShape());
    EXPECT_EQ(QFrame::Sunken, frame.frameShadow());
    frame.setFrameShape(QFrame::Box);
    EXPECT_EQ(QFrame::Box | QFrame::Sunken, frame.frameStyle());
    frame.setFrameShadow(QFrame::Raised);
    EXPECT_EQ(QFrame::Box | QFrame::Raised, frame.frameStyle());
}

TEST(Frame, WidthComesFromShapeLinesAndMargin)
{
    const struct {
        int style, line, middle, width;
    } cases[] = {
        {QFrame::NoFrame | QFrame::Plain, 5, 3, 0},      {QFrame::Box | QFrame::Plain, 2, 1, 2},
        {QFrame::Box | QFrame::Raised, 2, 1, 5},         {QFrame::Box | QFrame::Sunken, 1, 0, 2},
        {QFrame::Panel | QFrame::Sunken, 3, 2, 3},       {QFrame::WinPanel | QFrame::Raised, 5, 0, 2},
        {QFrame::StyledPanel | QFrame::Raised, 4, 0, 4}, {QFrame::HLine | QFrame::Sunken, 1, 2, 4},
    };
    QFrame frame;
    frame.resize(50, 40);
    for (const auto& each : cases) {
        frame.setFrameStyle(each.style);
        frame.setLineWidth(each.line);
        frame.setMidLineWidth(each.middle);
        frame.setMargin(0);
        EXPECT_EQ(each.width, frame.frameWidth()) << each.style;
        frame.setMargin(6);
        EXPECT_EQ(each.width + 6, frame.frameWidth()) << each.style;
        const int width = each.width + 6;
        EXPECT_EQ(QRect(width, width, 50 - 2 * width, 40 - 2 * width), frame.contentsRect());
    }
}

TEST(Frame, LinesWantLittleRoomAcross)
{
    QFrame frame;
    frame.setFrameStyle(QFrame::HLine | QFrame::Sunken);
    EXPECT_EQ(QSize(-1, 3), frame.sizeHint());
    EXPECT_EQ(QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed), frame.sizePolicy());
    frame.setFrameStyle(QFrame::VLine | QFrame::Sunken);
    EXPECT_EQ(QSize(3, -1), frame.sizeHint());
    EXPECT_EQ(QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Minimum), frame.sizePolicy());
}

TEST(Frame, TellsSubclassesWhatChanges)
{
    Frame frame(nullptr);
    frame.setFrameStyle(QFrame::Box | QFrame::Plain);
    frame.setLineWidth(2);
    frame.setMidLineWidth(1);
    frame.setMargin(1);
    frame.setFrameRect(QRect(1, 1, 20, 20));
    EXPECT_EQ(5, frame.changes);
}

TEST(Frame, ARectangleOfItsOwnKeepsItsDistanceFromTheEdges)
{
    QWidget window;
    QFrame frame(&window);
    window.show();
    frame.setGeometry(0, 0, 50, 40);
    frame.show();
    frame.setFrameRect(QRect(5, 5, 30, 30));
    EXPECT_EQ(QRect(5, 5, 30, 30), frame.frameRect());
    frame.resize(60, 45);
    EXPECT_EQ(QRect(5, 5, 40, 35), frame.frameRect());
    frame.resize(10, 10);
    EXPECT_EQ(QRect(0, 0, 10, 10), frame.frameRect()) << "nothing was left of it";
}

TEST_F(FrameLook, Boxes)
{
    EXPECT_EQ(
        "BBBBBBBBBB\nB........B\nB........B\nB........B\nB........B\nB........B\nB........B\nBBBBBBBBBB\n",
        look(QFrame::Box | QFrame::Plain));
    EXPECT_EQ(
        "LLLLLLLLLD\nLDDDDDDDLD\nLD......LD\nLD......LD\nLD......LD\nLD......LD\nLLLLLLLLLD\nDDDDDDDDDD\n",
        look(QFrame::Box | QFrame::Raised));
    EXPECT_EQ(
        "DDDDDDDDDD\nDMMMMMMMML\nDMLLLLLLML\nDML....DML\nDML....DML\nDMLDDDDDML\nDMMMMMMMML\nDLLLLLLLLL\n",
        look(QFrame::Box | QFrame::Sunken, 1, 1));
}

TEST_F(FrameLook, Panels)
{
    const std::string raised =
        "LLLLLLLLLD\nLLLLLLLLDD\nLL......DD\nLL......DD\nLL......DD\nLL......DD\nLDDDDDDDDD\nDDDDDDDDDD\n";
    const std::string sunken =
        "DDDDDDDDDL\nDDDDDDDDLL\nDD......LL\nDD......LL\nDD......LL\nDD......LL\nDLLLLLLLLL\nLLLLLLLLLL\n";
    for (int shape : {QFrame::Panel, QFrame::StyledPanel, QFrame::PopupPanel, QFrame::LineEditPanel,
                      QFrame::TabWidgetPanel}) {
        EXPECT_EQ(raised, look(shape | QFrame::Raised, 2)) << shape;
        EXPECT_EQ(sunken, look(shape | QFrame::Sunken, 2)) << shape;
    }
    for (int shadow : {QFrame::Plain, QFrame::Raised, QFrame::Sunken}) {
        EXPECT_EQ(raised, look(QFrame::MenuBarPanel | shadow, 2)) << "bars always stand out";
        EXPECT_EQ(raised, look(QFrame::ToolBarPanel | shadow, 2));
    }
    EXPECT_EQ(
        "DDDDDDDDDL\nDBBBBBBBsL\nDB......sL\nDB......sL\nDB......sL\nDB......sL\nDsssssssSL\nLLLLLLLLLL\n",
        look(QFrame::WinPanel | QFrame::Sunken).replace(6 * 11 + 8, 1, "S"));
}

TEST_F(FrameLook, LinesRunThroughTheMiddle)
{
    EXPECT_EQ(
        "..........\n..........\n..........\n..........\nBBBBBBBBBB\n..........\n..........\n..........\n",
        look(QFrame::HLine | QFrame::Plain));
    EXPECT_EQ(
        "..........\n..........\n..........\nDDDDDDDDDD\nLLLLLLLLLL\n..........\n..........\n..........\n",
        look(QFrame::HLine | QFrame::Sunken));
    std::string rows;
    for (int i = 0; i < 8; ++i)
        rows += "....BB....\n";
    EXPECT_EQ(rows, look(QFrame::VLine | QFrame::Plain, 2));
}

TEST_F(FrameLook, AChangeIsPaintedSoon)
{
    look(QFrame::NoFrame);
    frame.setFrameStyle(QFrame::Panel | QFrame::Plain);
    EXPECT_TRUE(waitFor([this] { return Pixels::now(&frame).count(0) == 32; }));
}

TEST_F(FrameLook, ContentsDoNotPaintOverTheFrame)
{
    frame.red = true;
    frame.setMargin(1);
    EXPECT_EQ(
        "BBBBBBBBBB\nB........B\nB.rrrrrr.B\nB.rrrrrr.B\nB.rrrrrr.B\nB.rrrrrr.B\nB........B\nBBBBBBBBBB\n",
        look(QFrame::Box | QFrame::Plain));
}

TEST_F(FrameLook, AFrameWiderThanAnyScreenIsDrawnNevertheless)
{
    for (const int shape : {QFrame::Panel, QFrame::Box, QFrame::WinPanel, QFrame::StyledPanel})
        EXPECT_EQ(look(shape | QFrame::Raised, 40000), look(shape | QFrame::Raised, 1 << 30)) << shape;
}
