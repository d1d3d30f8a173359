// What is in the dialogs belongs to them.
#include <colordlg.h>
#include <colorgroupdlg.h>
#include <fontdlg.h>

#include <gtest/gtest.h>
#include <qobjectlist.h>
#include <qwidget.h>

namespace
{

void expectInside(const QWidget& dialog, int count)
{
    ASSERT_NE(dialog.children(), nullptr);
    int widgets = 0;
    for (QObjectListIt each(*dialog.children()); each.current(); ++each) {
        if (!each.current()->isWidgetType())
            continue;
        const QWidget* const child = static_cast<QWidget*>(each.current());
        ++widgets;
        EXPECT_FALSE(child->isTopLevel()) << child->className() << " " << child->name();
        EXPECT_EQ(child->parentWidget(), &dialog);
    }
    EXPECT_EQ(widgets, count);
}

} // namespace

TEST(DialogChildren, AreInsideOfTheDialog)
{
    QWidget* const none = nullptr;
    const ZelColorDlg color(none, "color");
    expectInside(color, 12);
    const ZelColorGroupDlg group(none, "group");
    expectInside(group, 22);
    const ZelFontDlg font(none, "font");
    expectInside(font, 12);
}
