// The classes of the library, each with a way to make one.
#ifndef TEST_ALLCLASSES_H
#define TEST_ALLCLASSES_H

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

#include <vector>

struct NamedClass {
    const char* name;
    QWidget* (*make)(QWidget* parent);
};

inline const std::vector<NamedClass>& allClasses()
{
    static const std::vector<NamedClass> classes = {
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
    return classes;
}

#endif
