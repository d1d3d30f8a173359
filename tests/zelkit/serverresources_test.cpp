// What the X server keeps for the program, as the X-Resource extension counts it, before and after many
// widgets have come and gone. RESOURCE_ROUNDS in the environment says how many of each class (100).
#include "allclasses.h"
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

void liveOnce(const NamedClass& type, QWidget* parent)
{
    QWidget* widget = type.make(parent);
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
        for (const NamedClass& each : allClasses())
            liveOnce(each, &window);
    for (const NamedClass& each : allClasses()) {
        settle();
        const Resources before = serverResources(window.winId());
        ASSERT_GT(before.count("WINDOW"), 0u);
        for (int i = 0; i < rounds(); ++i)
            liveOnce(each, &window);
        settle();
        SCOPED_TRACE(each.name);
        expectSame(before, serverResources(window.winId()));
    }
}
