// The plugin for Qt Designer as Designer calls it.
#include <qwidgetplugin.h>

#include <gtest/gtest.h>
#include <qimage.h>
#include <qobjectlist.h>
#include <qwidget.h>

#include <fstream>
#include <memory>
#include <sstream>

namespace
{

class DesignerPlugin : public testing::Test
{
protected:
    std::unique_ptr<QWidgetPlugin> plugin{newPlugin()};
    QStringList keys = plugin->keys();
};

std::string textOf(const QString& header)
{
    std::ostringstream text;
    text << std::ifstream(std::string(ZELKIT_HEADERS) + header.latin1()).rdbuf();
    return text.str();
}

TEST_F(DesignerPlugin, OffersAllFifteenClasses)
{
    EXPECT_EQ(15u, keys.count());
    for (const QString& key : keys)
        EXPECT_EQ(1u, keys.contains(key)) << key.latin1();
}

TEST_F(DesignerPlugin, CreatesEachClassWithItsParentAndName)
{
    for (const QString& key : keys) {
        QWidget parent;
        QWidget* widget = plugin->create(key, &parent, "chosen");
        ASSERT_TRUE(widget) << key.latin1();
        EXPECT_STREQ(key.latin1(), widget->className());
        EXPECT_EQ(&parent, widget->parentWidget()) << key.latin1();
        EXPECT_STREQ("chosen", widget->name()) << key.latin1();
    }
}

TEST_F(DesignerPlugin, NamesTheHeaderThatHasTheClass)
{
    for (const QString& key : keys)
        EXPECT_NE(
            std::string::npos,
            textOf(plugin->includeFile(key)).find("class ZELKIT_EXPORT " + std::string(key.latin1()) + " :"))
            << key.latin1();
}

TEST_F(DesignerPlugin, ExplainsEachClass)
{
    for (const QString& key : keys) {
        EXPECT_STREQ("zelkit", plugin->group(key).latin1());
        EXPECT_STREQ(key.latin1(), plugin->toolTip(key).latin1());
        EXPECT_TRUE(plugin->whatsThis(key).contains(' ')) << key.latin1();
        EXPECT_EQ(key == "ZelFrame", plugin->isContainer(key)) << key.latin1();
    }
}

TEST_F(DesignerPlugin, ShowsEachClassInItsIcon)
{
    for (const QString& key : keys) {
        const QPixmap icon = plugin->iconSet(key).pixmap();
        EXPECT_EQ(QSize(22, 22), icon.size()) << key.latin1();
    }
    const QImage button = plugin->iconSet("ZelPushButton").pixmap().convertToImage();
    EXPECT_NE(button.pixel(0, 0), button.pixel(11, 11));
}

TEST_F(DesignerPlugin, KnowsNothingOfOtherClasses)
{
    EXPECT_FALSE(plugin->create("QLabel", nullptr, "other"));
    EXPECT_TRUE(plugin->group("QLabel").isEmpty());
    EXPECT_TRUE(plugin->iconSet("QLabel").isNull());
    EXPECT_TRUE(plugin->includeFile("QLabel").isEmpty());
    EXPECT_TRUE(plugin->toolTip("QLabel").isEmpty());
    EXPECT_TRUE(plugin->whatsThis("QLabel").isEmpty());
    EXPECT_FALSE(plugin->isContainer("QLabel"));
}

} // namespace
