// The colours behind and before: background modes, erase colours and pixmaps.
#include "pixels.h"
#include "printers.h"
#include "waiting.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qpainter.h>
#include <qpixmap.h>
#include <qwidget.h>

namespace
{

const unsigned red = 0xff0000;
const unsigned blue = 0x0000ff;

// A tile of 8 x 8 pixels, its upper left quarter red, the rest white.
QPixmap tile()
{
    QPixmap pixmap(8, 8);
    pixmap.fill(Qt::white);
    QPainter painter(&pixmap);
    painter.fillRect(0, 0, 4, 4, Qt::red);
    return pixmap;
}

QPalette colourful()
{
    QPalette palette = QApplication::palette();
    palette.setColor(QColorGroup::Foreground, QColor(1, 1, 1));
    palette.setColor(QColorGroup::Button, QColor(2, 2, 2));
    palette.setColor(QColorGroup::Light, QColor(3, 3, 3));
    palette.setColor(QColorGroup::Dark, QColor(4, 4, 4));
    palette.setColor(QColorGroup::Base, QColor(5, 5, 5));
    palette.setColor(QColorGroup::Text, QColor(6, 6, 6));
    palette.setColor(QColorGroup::Background, QColor(7, 7, 7));
    palette.setColor(QColorGroup::Highlight, QColor(8, 8, 8));
    palette.setColor(QColorGroup::HighlightedText, QColor(9, 9, 9));
    palette.setColor(QColorGroup::ButtonText, QColor(10, 10, 10));
    return palette;
}

} // namespace

TEST(WidgetBackground, TheModeChoosesTheRolesForBackAndForeground)
{
    const struct {
        Qt::BackgroundMode mode;
        int back, fore;
    } expected[] = {
        {Qt::PaletteBackground, 7, 1}, {Qt::PaletteBase, 5, 6},      {Qt::PaletteButton, 2, 10},
        {Qt::PaletteDark, 4, 3},       {Qt::PaletteHighlight, 8, 9},
    };
    QWidget widget;
    widget.setPalette(colourful());
    for (const auto& row : expected) {
        widget.setBackgroundMode(row.mode);
        EXPECT_EQ(row.mode, widget.backgroundMode());
        EXPECT_EQ(QColor(row.back, row.back, row.back), widget.paletteBackgroundColor());
        EXPECT_EQ(QColor(row.fore, row.fore, row.fore), widget.paletteForegroundColor());
        EXPECT_EQ(widget.paletteBackgroundColor(), widget.eraseColor());
    }
}

TEST(WidgetBackground, TheVisualModeMayDiffer)
{
    QWidget widget;
    widget.setPalette(colourful());
    widget.setBackgroundMode(Qt::PaletteBase, Qt::PaletteButton);
    EXPECT_EQ(Qt::PaletteBase, widget.backgroundMode());
    EXPECT_EQ(QColor(2, 2, 2), widget.paletteBackgroundColor());
    EXPECT_EQ(QColor(5, 5, 5), widget.eraseColor());
}

TEST(WidgetBackground, TheColourGoesIntoTheRoleOfTheModeAndNowhereElse)
{
    QWidget widget;
    const QPalette before = widget.palette();
    widget.setBackgroundMode(Qt::PaletteBase);
    widget.setPaletteBackgroundColor(Qt::red);
    EXPECT_EQ(QColor(Qt::red), widget.paletteBackgroundColor());
    for (int role = 0; role < QColorGroup::NColorRoles; ++role) {
        const auto colourRole = static_cast<QColorGroup::ColorRole>(role);
        EXPECT_EQ(colourRole == QColorGroup::Base ? QColor(Qt::red) : before.active().color(colourRole),
                  widget.palette().active().color(colourRole));
    }
    EXPECT_TRUE(widget.ownPalette());
}

TEST(WidgetBackground, AnEraseColourIsNotThePalettes)
{
    QWidget widget;
    widget.setEraseColor(Qt::red);
    EXPECT_EQ(Qt::FixedColor, widget.backgroundMode());
    EXPECT_EQ(QColor(Qt::red), widget.paletteBackgroundColor());
    EXPECT_FALSE(widget.ownPalette());
    widget.setBackgroundMode(Qt::PaletteBackground);
    EXPECT_EQ(QApplication::palette().active().background(), widget.eraseColor());
}

TEST(WidgetBackground, FixedModesComeWithTheirColourOnly)
{
    QWidget widget;
    widget.setBackgroundMode(Qt::FixedColor);
    EXPECT_EQ(Qt::PaletteBackground, widget.backgroundMode());
    widget.setBackgroundMode(Qt::NoBackground);
    EXPECT_EQ(Qt::NoBackground, widget.backgroundMode());
    EXPECT_NE(nullptr, widget.paletteBackgroundPixmap());
    widget.setPaletteBackgroundColor(Qt::green);
    EXPECT_EQ(Qt::FixedColor, widget.backgroundMode());
    EXPECT_EQ(nullptr, widget.paletteBackgroundPixmap());
    EXPECT_FALSE(widget.ownPalette());
}

TEST(WidgetBackground, OneSeesTheNewColourAfterTheEventLoop)
{
    QWidget window;
    window.setGeometry(100, 100, 20, 10);
    showAndActivate(&window);
    window.setPaletteBackgroundColor(Qt::red);
    EXPECT_EQ(0, Pixels::now(&window).count(red));
    EXPECT_EQ(200, Pixels::of(&window).count(red));
    window.setBackgroundColor(Qt::blue);
    EXPECT_EQ(200, Pixels::of(&window).count(blue));
    window.setDisabled(true);
    EXPECT_EQ(200, Pixels::of(&window).count(blue)) << "a fixed colour does not depend on the group";
}

TEST(WidgetBackground, DisabledWidgetsShowTheDisabledColours)
{
    QWidget window;
    window.setGeometry(100, 100, 20, 10);
    QPalette palette = window.palette();
    palette.setColor(QPalette::Disabled, QColorGroup::Background, Qt::red);
    window.setPalette(palette);
    showAndActivate(&window);
    EXPECT_EQ(0, Pixels::of(&window).count(red));
    window.setDisabled(true);
    EXPECT_EQ(200, Pixels::of(&window).count(red));
    window.setEnabled(true);
    EXPECT_EQ(0, Pixels::of(&window).count(red));
}

TEST(WidgetBackground, InactiveWindowsShowTheInactiveColours)
{
    QWidget window, other;
    window.setGeometry(100, 100, 20, 10);
    other.setGeometry(300, 100, 20, 10);
    QPalette palette = window.palette();
    palette.setColor(QPalette::Inactive, QColorGroup::Background, Qt::red);
    window.setPalette(palette);
    showAndActivate(&other);
    showAndWait(&window);
    EXPECT_EQ(200, Pixels::of(&window).count(red));
    window.setActiveWindow();
    EXPECT_TRUE(waitFor([&] { return window.isActiveWindow(); }));
    EXPECT_EQ(0, Pixels::of(&window).count(red));
    other.setActiveWindow();
    EXPECT_TRUE(waitFor([&] { return other.isActiveWindow(); }));
    EXPECT_EQ(200, Pixels::of(&window).count(red));
}

TEST(WidgetBackground, APixmapIsLaidAsTiles)
{
    QWidget window;
    window.setGeometry(100, 100, 16, 16);
    window.setErasePixmap(tile());
    EXPECT_EQ(Qt::FixedPixmap, window.backgroundMode());
    showAndActivate(&window);
    const Pixels pixels = Pixels::of(&window);
    EXPECT_EQ(4 * 16, pixels.count(red));
    EXPECT_EQ(red, pixels.at(8, 8));
    EXPECT_EQ(0xffffffu, pixels.at(12, 8));
}

TEST(WidgetBackground, TilesMayBeginAtTheParentsCorner)
{
    QWidget window;
    window.setGeometry(100, 100, 40, 40);
    QWidget child(&window);
    child.setGeometry(4, 4, 8, 8);
    child.setErasePixmap(tile());
    child.setBackgroundOrigin(QWidget::ParentOrigin);
    EXPECT_EQ(QPoint(4, 4), child.backgroundOffset());
    showAndActivate(&window);
    const Pixels pixels = Pixels::of(&child);
    EXPECT_EQ(0xffffffu, pixels.at(0, 0));
    EXPECT_EQ(red, pixels.at(4, 4));
}
