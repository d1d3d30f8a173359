// Colour groups and palettes.
#include "printers.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qpalette.h>

#include <string>

namespace
{

// The colours of the roles in their order, as six digits each; '*' after those that are not solid.
std::string rolesOf(const QColorGroup& group)
{
    std::string roles;
    for (int i = 0; i < QColorGroup::NColorRoles; ++i) {
        const QBrush& brush = group.brush(static_cast<QColorGroup::ColorRole>(i));
        roles += (i ? " " : "") + std::string(brush.color().name().latin1()).substr(1);
        if (brush.style() != Qt::SolidPattern)
            roles += '*';
    }
    return roles;
}

QColorGroup nineColors()
{
    return QColorGroup(QColor(1, 1, 1), QColor(200, 180, 160), QColor(250, 240, 230), QColor(90, 80, 70),
                       QColor(140, 130, 120), QColor(11, 22, 33), QColor(255, 255, 0), QColor(240, 240, 255),
                       QColor(190, 200, 210));
}

QPalette threeGroups()
{
    QColorGroup disabled = nineColors();
    disabled.setColor(QColorGroup::Base, Qt::black);
    return QPalette(nineColors(), disabled, nineColors());
}

} // namespace

TEST(ColorGroup, HasNoPatternsAtFirst)
{
    std::string expected = "000000*";
    for (int i = 1; i < QColorGroup::NColorRoles; ++i)
        expected += " 000000*";
    EXPECT_EQ(expected, rolesOf(QColorGroup()));
}

// Midlight lies between button and light; the rest is the same for all groups.
TEST(ColorGroup, DerivesTheRolesThatAreNotGiven)
{
    EXPECT_EQ("010101 c8b4a0 faf0e6 e1d2c3 5a5046 8c8278 0b1621 ffff00 0b1621 f0f0ff bec8d2 000000 000080 "
              "ffffff 0000ff ff00ff",
              rolesOf(nineColors()));
}

// The button's colour is the background too, and light is the bright text.
TEST(ColorGroup, SevenColoursAreEnough)
{
    const QColorGroup group(QColor(1, 1, 1), QColor(190, 200, 210), QColor(250, 240, 230), QColor(90, 80, 70),
                            QColor(140, 130, 120), QColor(11, 22, 33), QColor(240, 240, 255));
    EXPECT_EQ("010101 bec8d2 faf0e6 dcdcdc 5a5046 8c8278 0b1621 faf0e6 0b1621 f0f0ff bec8d2 000000 000080 "
              "ffffff 0000ff ff00ff",
              rolesOf(group));
}

TEST(ColorGroup, SettersChangeOneRoleOfOneCopy)
{
    QColorGroup group = nineColors();
    const QColorGroup copy(group);
    group.setBrush(QColorGroup::Mid, QBrush(Qt::blue, Qt::Dense4Pattern));
    EXPECT_EQ(Qt::blue, group.mid());
    EXPECT_EQ(Qt::Dense4Pattern, group.brush(QColorGroup::Mid).style());
    EXPECT_TRUE(group != copy);
    EXPECT_EQ(QColor(140, 130, 120), copy.mid());
    group.setBrush(QColorGroup::Mid, copy.brush(QColorGroup::Mid));
    EXPECT_TRUE(group == copy);
}

TEST(ColorGroup, EachRoleHasItsFunction)
{
    QColorGroup group;
    for (int i = 0; i < QColorGroup::NColorRoles; ++i)
        group.setColor(static_cast<QColorGroup::ColorRole>(i), QColor(i, 0, 0));
    const QColor roles[] = {
        group.foreground(), group.button(), group.light(),      group.midlight(),        group.dark(),
        group.mid(),        group.text(),   group.brightText(), group.buttonText(),      group.base(),
        group.background(), group.shadow(), group.highlight(),  group.highlightedText(), group.link(),
        group.linkVisited()};
    for (int i = 0; i < QColorGroup::NColorRoles; ++i)
        EXPECT_EQ(i, roles[i].red());
}

// Light, mid and dark are made from the button; text is black on bright backgrounds and white on dark ones.
TEST(Palette, IsMadeFromAButtonAndABackground)
{
    const struct {
        QColor button, background;
        const char* active;
    } cases[] = {
        {QColor(200, 180, 160), QColor(200, 180, 160),
         "000000 c8b4a0 fffcf9 e3d8cc 645a50 85786a 000000 ffffff 000000 ffffff c8b4a0"},
        {QColor(200, 180, 160), QColor(0, 0, 0),
         "ffffff c8b4a0 fffcf9 e3d8cc 645a50 85786a ffffff ffffff ffffff 000000 000000"},
        {QColor(30, 40, 50), QColor(128, 0, 0),
         "ffffff 1e2832 2d3c4b 25323e 0f1419 141a21 ffffff ffffff ffffff 000000 800000"},
        {QColor(255, 255, 255), QColor(239, 239, 239),
         "000000 ffffff ffffff ffffff 7f7f7f aaaaaa 000000 ffffff 000000 ffffff efefef"},
    };
    const std::string derived = " 000000 000080 ffffff 0000ff ff00ff";
    for (const auto& each : cases) {
        const QPalette palette(each.button, each.background);
        EXPECT_EQ(each.active + derived, rolesOf(palette.active()));
        EXPECT_TRUE(palette.active() == palette.inactive());
        EXPECT_EQ(Qt::darkGray, palette.disabled().text());
        EXPECT_EQ(Qt::darkGray, palette.disabled().buttonText());
        EXPECT_EQ(palette.active().base(), palette.disabled().base());
    }
    EXPECT_TRUE(QPalette(QColor(30, 40, 50)) == QPalette(QColor(30, 40, 50), QColor(30, 40, 50)));
}

TEST(Palette, KeepsThreeGroups)
{
    QPalette palette = threeGroups();
    EXPECT_EQ(Qt::black, palette.disabled().base());
    EXPECT_EQ(QColor(240, 240, 255), palette.inactive().base());
    EXPECT_TRUE(palette.normal() == palette.active());
    palette.setNormal(palette.disabled());
    EXPECT_EQ(Qt::black, palette.active().base());
    EXPECT_EQ(QColor(240, 240, 255), palette.inactive().base());
    palette.setInactive(palette.disabled());
    palette.setDisabled(nineColors());
    EXPECT_EQ(Qt::black, palette.inactive().base());
    EXPECT_EQ(QColor(240, 240, 255), palette.disabled().base());
}

TEST(Palette, SetsRolesInOneGroupOrInAll)
{
    QPalette palette = threeGroups();
    palette.setColor(QColorGroup::Text, Qt::red);
    EXPECT_EQ(Qt::red, palette.active().text());
    EXPECT_EQ(Qt::red, palette.inactive().text());
    EXPECT_EQ(Qt::red, palette.disabled().text());
    palette.setColor(QPalette::Disabled, QColorGroup::Text, Qt::blue);
    EXPECT_EQ(Qt::blue, palette.color(QPalette::Disabled, QColorGroup::Text));
    EXPECT_EQ(Qt::red, palette.active().text());
    palette.setBrush(QPalette::Inactive, QColorGroup::Button, QBrush(Qt::cyan));
    EXPECT_EQ(Qt::cyan, palette.brush(QPalette::Inactive, QColorGroup::Button).color());
    EXPECT_EQ(QColor(200, 180, 160), palette.active().button());
}

TEST(Palette, CopiesShareUntilOneChanges)
{
    QPalette palette = threeGroups();
    QPalette copy(palette);
    EXPECT_TRUE(copy.isCopyOf(palette));
    EXPECT_EQ(palette.serialNumber(), copy.serialNumber());
    EXPECT_FALSE(palette.copy().isCopyOf(palette));
    EXPECT_TRUE(palette.copy() == palette);
    copy.setColor(QColorGroup::Base, Qt::red);
    EXPECT_FALSE(copy.isCopyOf(palette));
    EXPECT_TRUE(copy != palette);
    EXPECT_NE(palette.serialNumber(), copy.serialNumber());
    EXPECT_EQ(QColor(240, 240, 255), palette.active().base());
    palette = copy;
    EXPECT_TRUE(palette.isCopyOf(copy));
}

TEST(Palette, TheApplicationIsGrey)
{
    const QPalette palette = QApplication::palette();
    EXPECT_EQ(Qt::lightGray, palette.active().background());
    EXPECT_EQ(Qt::darkGray, palette.active().dark());
    EXPECT_EQ(Qt::gray, palette.active().mid());
    EXPECT_EQ(QColor(0xdf, 0xdf, 0xdf), palette.active().midlight());
    EXPECT_EQ(Qt::white, palette.active().base());
    EXPECT_EQ(Qt::lightGray, palette.disabled().base());
    EXPECT_EQ(Qt::darkGray, palette.disabled().text());
}

TEST(Palette, BackgroundModesAreRoles)
{
    const struct {
        Qt::BackgroundMode mode;
        QColorGroup::ColorRole background, foreground;
    } cases[] = {
        {Qt::PaletteBackground, QColorGroup::Background, QColorGroup::Foreground},
        {Qt::PaletteBase, QColorGroup::Base, QColorGroup::Text},
        {Qt::PaletteButton, QColorGroup::Button, QColorGroup::ButtonText},
        {Qt::PaletteDark, QColorGroup::Dark, QColorGroup::Light},
        {Qt::PaletteHighlight, QColorGroup::Highlight, QColorGroup::HighlightedText},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(each.background, QPalette::backgroundRoleFromMode(each.mode));
        EXPECT_EQ(each.foreground, QPalette::foregroundRoleFromMode(each.mode));
    }
}
