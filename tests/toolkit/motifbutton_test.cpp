// How push buttons and check boxes look.
#include "pixels.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qcheckbox.h>
#include <qpixmap.h>
#include <qpushbutton.h>

#include <string>

namespace
{

const Pixels::Legend shades = {
    {'.', 0xc0c0c0}, {'L', 0xececec}, {'D', 0x808080}, {'M', 0xa0a0a4}, {'B', 0x000000}};

class ButtonLook : public testing::Test
{
protected:
    ButtonLook() : rest(&window), button(&window)
    {
        window.setGeometry(100, 100, 60, 60);
        rest.setFocusPolicy(QWidget::StrongFocus);
        rest.setGeometry(50, 50, 5, 5);
        button.setGeometry(5, 5, 16, 14);
        showAndActivate(&window);
        rest.setFocus();
    }

    std::string look() { return Pixels::of(&button).picture(shades); }

    QWidget window;
    QWidget rest; // has the focus
    QPushButton button;
};

class CheckLook : public testing::Test
{
protected:
    CheckLook() : rest(&window), box(&window)
    {
        window.setGeometry(100, 100, 120, 60);
        rest.setFocusPolicy(QWidget::StrongFocus);
        rest.setGeometry(110, 50, 5, 5);
        box.setGeometry(5, 5, 80, 25);
        showAndActivate(&window);
        rest.setFocus();
    }

    Pixels indicator() { return Pixels::of(&box).part(0, 6, 13, 13); }

    QWidget window;
    QWidget rest; // has the focus
    QCheckBox box;
};

// A bevel two pixels wide around a filled area.
Pixels bevel(int width, int height, unsigned upper, unsigned lower, unsigned fill)
{
    Pixels picture(width, height, fill);
    for (int ring = 0; ring < 2; ++ring) {
        const int right = width - 1 - ring;
        const int bottom = height - 1 - ring;
        picture.fill(ring, ring, width - 2 * ring, 1, upper);
        picture.fill(ring, ring, 1, height - 2 * ring, upper);
        picture.fill(right, ring, 1, height - 2 * ring, lower);
        picture.fill(ring, bottom, width - 2 * ring, 1, lower);
    }
    return picture;
}

const unsigned light = 0xececec, dark = 0x808080, face = 0xc0c0c0, middle = 0xa0a0a4;

} // namespace

TEST_F(ButtonLook, StandsOutAndIsSunkenWhileDown)
{
    EXPECT_EQ("", bevel(16, 14, light, dark, face).differenceFrom(Pixels::of(&button)));
    button.setDown(true);
    EXPECT_EQ("", bevel(16, 14, dark, light, middle).differenceFrom(Pixels::of(&button)));
}

TEST_F(ButtonLook, AToggledButtonIsSunkenAndHatched)
{
    button.setToggleButton(true);
    button.setOn(true);
    Pixels expected = bevel(16, 14, dark, light, face);
    for (int y = 2; y < 12; ++y) {
        for (int x = 2; x < 14; ++x) {
            if ((x + y) % 2 == 0)
                expected.set(x, y, middle);
        }
    }
    EXPECT_EQ("", expected.differenceFrom(Pixels::of(&button)));
}

TEST_F(ButtonLook, AFlatButtonHasNoBevelUntilItIsPressed)
{
    button.setFlat(true);
    EXPECT_EQ(16 * 14, Pixels::of(&button).count(face));
    button.setDown(true);
    EXPECT_EQ("", bevel(16, 14, dark, light, middle).differenceFrom(Pixels::of(&button)));
}

TEST_F(ButtonLook, ADefaultButtonLiesInASunkenFrame)
{
    button.setDefault(true);
    const std::string expected = "DDDDDDDDDDDDDDDL\n"
                                 "D..............L\n"
                                 "D..............L\n"
                                 "D..LLLLLLLLLD..L\n"
                                 "D..LLLLLLLLDD..L\n"
                                 "D..LL......DD..L\n"
                                 "D..LL......DD..L\n"
                                 "D..LL......DD..L\n"
                                 "D..LL......DD..L\n"
                                 "D..LDDDDDDDDD..L\n"
                                 "D..DDDDDDDDDD..L\n"
                                 "D..............L\n"
                                 "D..............L\n"
                                 "LLLLLLLLLLLLLLLL\n";
    EXPECT_EQ(expected, look());
    button.setDefault(false);
    button.setAutoDefault(true);
    const Pixels automatic = Pixels::of(&button);
    EXPECT_EQ(face, automatic.at(0, 0)) << "only the room is kept";
    EXPECT_EQ("", bevel(10, 8, light, dark, face).differenceFrom(automatic.part(3, 3, 10, 8)));
}

TEST_F(ButtonLook, TheFocusIsAFrameInside)
{
    button.setFocus();
    Pixels expected = bevel(16, 14, light, dark, face);
    expected.fill(4, 4, 8, 6, 0x000000);
    expected.fill(5, 5, 6, 4, face);
    EXPECT_EQ("", expected.differenceFrom(Pixels::of(&button)));
}

TEST_F(ButtonLook, ThePixmapIsInTheMiddle)
{
    QPixmap pixmap(4, 4);
    pixmap.fill(Qt::blue);
    button.setPixmap(pixmap);
    Pixels expected = bevel(16, 14, light, dark, face);
    expected.fill(6, 5, 4, 4, 0x0000ff);
    EXPECT_EQ("", expected.differenceFrom(Pixels::of(&button)));
}

TEST_F(ButtonLook, ALongTextStaysInsideTheBevel)
{
    button.setText("MMMMMMMM");
    const Pixels picture = Pixels::of(&button);
    const Pixels plain = bevel(16, 14, light, dark, face);
    for (int x = 0; x < 16; ++x) {
        for (int y : {0, 1, 12, 13})
            EXPECT_EQ(plain.at(x, y), picture.at(x, y)) << x << ',' << y;
    }
    for (int y = 0; y < 14; ++y) {
        for (int x : {0, 1, 14, 15})
            EXPECT_EQ(plain.at(x, y), picture.at(x, y)) << x << ',' << y;
    }
    EXPECT_GT(picture.count(0x000000), 0);
}

TEST_F(ButtonLook, TheBackgroundColourIsTheFace)
{
    button.setPaletteBackgroundColor(QColor(120, 200, 120));
    EXPECT_EQ("", bevel(16, 14, light, dark, 0x78c878).differenceFrom(Pixels::of(&button)));
}

TEST_F(CheckLook, TheIndicatorIsRaisedWhenOffAndSunkenWhenOn)
{
    const Pixels off = bevel(13, 13, light, dark, face);
    const Pixels on = bevel(13, 13, dark, light, middle);
    EXPECT_EQ("", off.differenceFrom(indicator()));
    box.setChecked(true);
    EXPECT_EQ("", on.differenceFrom(indicator()));
    box.setDown(true);
    EXPECT_EQ("", off.differenceFrom(indicator())) << "what it will be";
    box.setChecked(false);
    EXPECT_EQ("", on.differenceFrom(indicator()));
}

TEST_F(CheckLook, AnUndecidedBoxIsCrossedByALine)
{
    box.setNoChange();
    Pixels expected(13, 13, 0x000000);
    expected.fill(1, 1, 11, 11, face);
    for (int i = 0; i < 13; ++i)
        expected.set(i, 12 - i, 0x000000);
    EXPECT_EQ("", expected.differenceFrom(indicator()));
}

TEST_F(CheckLook, TheFocusIsAroundTheTextOrInTheIndicator)
{
    box.setFocus();
    Pixels expected = bevel(13, 13, light, dark, face);
    expected.fill(1, 1, 11, 11, 0x000000);
    expected.fill(2, 2, 9, 9, face);
    EXPECT_EQ("", expected.differenceFrom(indicator()));
    box.setText("On");
    const Pixels picture = Pixels::of(&box);
    EXPECT_EQ("", bevel(13, 13, light, dark, face).differenceFrom(indicator()));
    const int right = box.sizeHint().width() + 2;
    for (int x = 19; x <= right; ++x) {
        EXPECT_EQ(0u, picture.at(x, 2)) << x;
        EXPECT_EQ(0u, picture.at(x, 22)) << x;
    }
    EXPECT_EQ(0u, picture.at(19, 12));
    EXPECT_EQ(0u, picture.at(right, 12));
    EXPECT_EQ(face, picture.at(18, 12));
    EXPECT_EQ(face, picture.at(right + 1, 12));
}

TEST_F(CheckLook, TheIndicatorKeepsItsSizeInSmallBoxes)
{
    box.resize(10, 10);
    const Pixels whole = bevel(13, 13, light, dark, face);
    EXPECT_EQ("", whole.part(0, 1, 10, 10).differenceFrom(Pixels::of(&box)));
}
