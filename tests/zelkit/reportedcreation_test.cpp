// Programs may bring a logging library of their own: it is told of every child that could not be created.
#include <colordlg.h>
#include <colorgroupdlg.h>
#include <fontdlg.h>

#include "failedcreation.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qcombobox.h>
#include <qobjectlist.h>
#include <qwidgetlist.h>

#include <cstdarg>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace
{

// Ends the creation of a dialog instead of the program.
struct Report {
    std::string text;
    std::vector<int> entries; // of the combo boxes that the dialog had by then
};

// The combo boxes of the dialog with that name, as it is by now, in the order in which they were created.
std::vector<int> entriesOf(const char* name)
{
    std::vector<int> entries;
    QWidgetList* const windows = QApplication::topLevelWidgets();
    for (QWidgetListIt window(*windows); window.current(); ++window) {
        if (QString(window.current()->name()) != name)
            continue;
        QObjectList* const boxes = window.current()->queryList("QComboBox");
        for (QObjectListIt box(*boxes); box.current(); ++box)
            entries.push_back(static_cast<QComboBox*>(box.current())->count());
        delete boxes;
    }
    delete windows;
    return entries;
}

// What is reported when that creation fails; nothing if none fails.
template <class Dialog>
Report reportOf(int failing)
{
    QWidget* const none = nullptr;
    Dialog first(none, "first"); // sets up what all share
    FailedCreation failure("libzelkit.so", failing);
    try {
        Dialog second(none, "second");
    } catch (const Report& report) {
        return report;
    }
    return Report();
}

// How often each kind is reported, by a dialog of that file, when each of its creations fails in turn.
template <class Dialog>
std::map<std::string, int> kindsOf(const std::string& file)
{
    std::map<std::string, int> kinds;
    for (int i = 0;; ++i) {
        const std::string report = reportOf<Dialog>(i).text;
        if (report.empty())
            return kinds;
        char kind[32] = "";
        int line = 0;
        EXPECT_EQ(
            std::sscanf(report.c_str(), ("File: " + file + ", line: %d: %31[a-z ]").c_str(), &line, kind), 2)
            << report;
        EXPECT_GT(line, 0) << report;
        ++kinds[kind];
    }
}

typedef std::map<std::string, int> Kinds;

} // namespace

extern "C" void murmel_fatal(const char* format, ...);

extern "C" void murmel_fatal(const char* format, ...)
{
    char text[200];
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(text, sizeof text, format, arguments);
    va_end(arguments);
    throw Report{text, entriesOf("second")};
}

TEST(ReportedCreation, EveryChildOfTheColourDialog)
{
    EXPECT_EQ(kindsOf<ZelColorDlg>("colordlg.cpp"), (Kinds{{"push button creation failed", 2},
                                                           {"label creation failed", 3},
                                                           {"line edit creation failed", 3},
                                                           {"scroll bar creation failed", 3},
                                                           {"frame creation failed", 1}}));
}

TEST(ReportedCreation, EveryChildOfTheColourGroupDialog)
{
    EXPECT_EQ(kindsOf<ZelColorGroupDlg>("colorgroupdlg.cpp"), (Kinds{{"label creation failed", 10},
                                                                     {"frame creation failed", 10},
                                                                     {"push button creation failed", 2}}));
}

TEST(ReportedCreation, EveryChildOfTheFontDialog)
{
    EXPECT_EQ(kindsOf<ZelFontDlg>("fontdlg.cpp"), (Kinds{{"push button creation failed", 2},
                                                         {"combo box creation failed", 3},
                                                         {"check box creation failed", 3},
                                                         {"label creation failed", 4}}));
}

TEST(ReportedCreation, EachListIsFullBeforeTheNextPartIsMade)
{
    typedef std::vector<int> Entries;
    EXPECT_EQ(reportOf<ZelFontDlg>(3).entries, Entries({}));
    EXPECT_EQ(reportOf<ZelFontDlg>(4).entries, Entries({15}));
    EXPECT_EQ(reportOf<ZelFontDlg>(5).entries, Entries({15}));
    EXPECT_EQ(reportOf<ZelFontDlg>(6).entries, Entries({15, 10}));
    EXPECT_EQ(reportOf<ZelFontDlg>(7).entries, Entries({15, 10}));
    EXPECT_EQ(reportOf<ZelFontDlg>(8).entries, Entries({15, 10, 5}));
}
