// Palettes and fonts go from parents to children.
#include "printers.h"
#include "waiting.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qwidget.h>

#include <string>
#include <vector>

namespace
{

std::vector<std::string> calls;

// Notes the virtual functions that a change of palette or font goes through.
class Noting : public QWidget
{
public:
    Noting(QWidget* parent, const char* name) : QWidget(parent, name) { calls.clear(); }
    void setPaletteBackgroundColor(const QColor& colour) override
    {
        note("setPaletteBackgroundColor");
        QWidget::setPaletteBackgroundColor(colour);
    }
    void setPalette(const QPalette& palette) override
    {
        note("setPalette");
        QWidget::setPalette(palette);
    }

protected:
    void paletteChange(const QPalette& old) override
    {
        EXPECT_NE(old, palette());
        note("paletteChange");
        QWidget::paletteChange(old);
    }
    void fontChange(const QFont& old) override
    {
        EXPECT_NE(old, font());
        note("fontChange");
        QWidget::fontChange(old);
    }

private:
    void note(const char* what) { calls.push_back(std::string(name()) + ' ' + what); }
};

std::string takeCalls()
{
    std::string all;
    for (const std::string& call : calls)
        all += (all.empty() ? "" : "; ") + call;
    calls.clear();
    return all;
}

} // namespace

TEST(WidgetInheritance, ChildrenTakeTheParentsPalette)
{
    QWidget window;
    QWidget child(&window), inner(&child);
    child.setPaletteBackgroundColor(Qt::green);
    EXPECT_EQ(QColor(Qt::green), inner.paletteBackgroundColor());
    EXPECT_FALSE(inner.ownPalette());
    QWidget late(&child);
    EXPECT_EQ(QColor(Qt::green), late.paletteBackgroundColor());
    window.setPaletteBackgroundColor(Qt::red);
    EXPECT_EQ(QColor(Qt::green), child.paletteBackgroundColor()) << "it has its own";
    EXPECT_EQ(QColor(Qt::green), inner.paletteBackgroundColor());
    child.unsetPalette();
    EXPECT_EQ(QColor(Qt::red), child.paletteBackgroundColor());
    EXPECT_EQ(QColor(Qt::red), inner.paletteBackgroundColor());
}

TEST(WidgetInheritance, AWindowWithAParentKeepsTheApplicationsColours)
{
    QWidget window;
    window.setPaletteBackgroundColor(Qt::green);
    QWidget dialog(&window, "dialog", Qt::WType_Dialog);
    EXPECT_EQ(QApplication::palette().active().background(), dialog.paletteBackgroundColor());
}

TEST(WidgetInheritance, AnotherParentBringsOtherColours)
{
    QWidget window, other;
    other.setPaletteBackgroundColor(Qt::yellow);
    QWidget* child = new QWidget(&window);
    child->reparent(&other, QPoint(0, 0));
    EXPECT_EQ(QColor(Qt::yellow), child->paletteBackgroundColor());
    child->reparent(&window, QPoint(0, 0));
    EXPECT_EQ(window.paletteBackgroundColor(), child->paletteBackgroundColor());
}

TEST(WidgetInheritance, ChangesGoThroughTheVirtualFunctionsChildrenFirst)
{
    Noting window(0, "window");
    Noting child(&window, "child");
    window.setPaletteBackgroundColor(Qt::red);
    EXPECT_EQ("window setPaletteBackgroundColor; window setPalette; child setPalette; child paletteChange; "
              "window paletteChange",
              takeCalls());
    window.setPaletteBackgroundColor(Qt::red);
    EXPECT_EQ("window setPaletteBackgroundColor; window setPalette", takeCalls());
    child.setPaletteBackgroundColor(Qt::blue);
    takeCalls();
    window.setPaletteForegroundColor(Qt::white);
    EXPECT_EQ("window setPalette; window paletteChange", takeCalls());
}

TEST(WidgetInheritance, TheGroupFollowsTheState)
{
    QWidget window;
    showAndActivate(&window);
    EXPECT_EQ(window.palette().active(), window.colorGroup());
    window.setDisabled(true);
    EXPECT_EQ(window.palette().disabled(), window.colorGroup());
}

TEST(WidgetInheritance, TheApplicationsPaletteReachesThoseWithoutTheirOwn)
{
    const QPalette before = QApplication::palette();
    QWidget window;
    QWidget child(&window), own(&window);
    own.setPaletteBackgroundColor(Qt::red);
    QApplication::setPalette(QPalette(QColor(100, 150, 200)), true);
    EXPECT_EQ(QColor(100, 150, 200), window.paletteBackgroundColor());
    EXPECT_EQ(QColor(100, 150, 200), child.paletteBackgroundColor());
    EXPECT_EQ(QColor(Qt::red), own.paletteBackgroundColor());
    QApplication::setPalette(before, true);
    EXPECT_EQ(before.active().background(), child.paletteBackgroundColor());
}

TEST(WidgetInheritance, ChildrenTakeTheParentsFont)
{
    const QFont large("DejaVu Sans", 18), small("DejaVu Sans", 7);
    QWidget window;
    QWidget child(&window), inner(&child);
    EXPECT_EQ(QApplication::font(), window.font());
    window.setFont(large);
    EXPECT_EQ(large, window.font());
    EXPECT_EQ(large, inner.font());
    EXPECT_FALSE(inner.ownFont());
    child.setFont(small);
    window.setFont(QFont("DejaVu Sans", 20));
    EXPECT_EQ(small, inner.font());
    QWidget late(&child);
    EXPECT_EQ(small, late.font());
    child.unsetFont();
    EXPECT_EQ(20, inner.font().pointSize());
    EXPECT_EQ(20, child.fontInfo().pointSize());
}

TEST(WidgetInheritance, FontChangesAreTold)
{
    Noting window(0, "window");
    Noting child(&window, "child");
    window.setFont(QFont("DejaVu Sans", 18));
    EXPECT_EQ("child fontChange; window fontChange", takeCalls());
    window.setFont(QFont("DejaVu Sans", 18));
    EXPECT_EQ("", takeCalls());
}
