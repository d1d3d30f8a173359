// What the X server keeps for the program, as the X-Resource extension counts it, before and after many
// widgets have come and gone. RESOURCE_ROUNDS in the environment says how many of each class (100).
#include <colordlg.h>
#include <colorgroupdlg.h>
#include <fontdlg.h>
#include <zelactivelabel.h>
#include <zelactivelabel2.h>
#include <zelcolorbutton.h>
#include <zelcombobox.h>
#include <zeledge.h>
#include <zelframe.h>
#include <zelgraph.h>
#include <zellabel.h>
#include <zellineedit.h>
#include <zellineeditint.h>
#include <zelpushbutton.h>
#include <zelpushbutton2.h>

#include "serverresources.h"
#include "waiting.h"

#include <gtest/gtest.h>
#include <qapplication.h>

#include <cstdlib>
#include <map>
#include <string>

namespace
{

typedef std::map<std::string, unsigned> Resources;

std::string text(const Resources& resources)
{
    std::string all;
    for (const auto& each : resources)
        all += each.first + " " + std::to_string(each.second) + "\n";
    return all;
}

// What is kept for later use may grow up to its limit: contexts and pixmaps by the toolkit, pictures of the
// colours of texts by Xft, in places that it chooses at random. What a class leaves behind grows with the
// rounds.
const struct {
    const char* resource;
    unsigned limit;
} kept[] = {{"GC", 24}, {"PIXMAP", 4}, {"PICTURE", 16}};

void expectSame(const Resources& before, Resources now)
{
    for (const auto& each : kept) {
        const auto then = before.find(each.resource);
        const unsigned count = then == before.end() ? 0 : then->second;
        if (now[each.resource] <= count + each.limit)
            now[each.resource] = count;
        if (then == before.end() && count == now[each.resource])
            now.erase(each.resource);
    }
    EXPECT_EQ(text(before), text(now));
}

int rounds()
{
    const char* wanted = std::getenv("RESOURCE_ROUNDS");
    return wanted ? std::atoi(wanted) : 100;
}

typedef QWidget* (*Maker)(QWidget* parent);
const struct {
    const char* name;
    Maker make;
} classes[] = {
    {"ZelActiveLabel", [](QWidget* p) -> QWidget* { return new ZelActiveLabel("text", p, "w"); }},
    {"ZelActiveLabel2", [](QWidget* p) -> QWidget* { return new ZelActiveLabel2(p, "w"); }},
    {"ZelLabel", [](QWidget* p) -> QWidget* { return new ZelLabel("text", p, "w", true, 0); }},
    {"ZelColorButton", [](QWidget* p) -> QWidget* { return new ZelColorButton(p, "w"); }},
    {"ZelPushButton", [](QWidget* p) -> QWidget* { return new ZelPushButton(Qt::red, p, "w"); }},
    {"ZelPushButton2", [](QWidget* p) -> QWidget* { return new ZelPushButton2("text", p, "w"); }},
    {"ZelFrame", [](QWidget* p) -> QWidget* { return new ZelFrame(p, "w", 0); }},
    {"ZelEdge", [](QWidget* p) -> QWidget* { return new ZelEdge(p, "w"); }},
    {"ZelLineEdit", [](QWidget* p) -> QWidget* { return new ZelLineEdit(p, "w"); }},
    {"ZelComboBox", [](QWidget* p) -> QWidget* { return new ZelComboBox(true, p, "w"); }},
    {"ZelLineEditInt", [](QWidget* p) -> QWidget* { return new ZelLineEditInt(p, "w", 0, 9); }},
    {"ZelGraph", [](QWidget* p) -> QWidget* { return new ZelGraph(p, "w", true, 0); }},
    {"ZelColorDlg", [](QWidget* p) -> QWidget* { return new ZelColorDlg(Qt::red, p, "w"); }},
    {"ZelColorGroupDlg", [](QWidget* p) -> QWidget* { return new ZelColorGroupDlg(p, "w", false, 0); }},
    {"ZelFontDlg", [](QWidget* p) -> QWidget* { return new ZelFontDlg(p, "w", false, 0); }},
};

void liveOnce(Maker make, QWidget* parent)
{
    QWidget* widget = make(parent);
    widget->show();
    QApplication::syncX(); // so that what paints it is there
    qApp->processEvents();
    delete widget;
}

} // namespace

TEST(ServerResources, ComeBackToWhereTheyWere)
{
    QWidget window(nullptr, "window");
    window.setGeometry(100, 100, 300, 200);
    showAndWait(&window);
    // What all share is made once, and the store of graphics contexts fills up.
    for (int i = 0; i < 3; ++i)
        for (const auto& each : classes)
            liveOnce(each.make, &window);
    for (const auto& each : classes) {
        settle();
        const Resources before = serverResources(window.winId());
        ASSERT_GT(before.count("WINDOW"), 0u);
        for (int i = 0; i < rounds(); ++i)
            liveOnce(each.make, &window);
        settle();
        SCOPED_TRACE(each.name);
        expectSame(before, serverResources(window.winId()));
    }
}
