// Compiled without access control: these members are private.
#include "members.h"

#include <cstddef>

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

namespace
{

#define MEMBER(name) #name, offsetof(C, name), sizeof(C::name)

template <class C>
std::vector<Member> membersOf()
{
    return {};
}

template <>
std::vector<Member> membersOf<ZelActiveLabel>()
{
    using C = ZelActiveLabel;
    return {{MEMBER(text)}, {MEMBER(state)}, {MEMBER(alignment)}, {MEMBER(textTop)}};
}

template <>
std::vector<Member> membersOf<ZelActiveLabel2>()
{
    using C = ZelActiveLabel2;
    return {{MEMBER(text)}, {MEMBER(state)}};
}

template <>
std::vector<Member> membersOf<ZelLabel>()
{
    using C = ZelLabel;
    return {
        {MEMBER(active)}, {MEMBER(on)}, {MEMBER(hoverColor)}, {MEMBER(normalColor)}, {MEMBER(currentColor)}};
}

template <>
std::vector<Member> membersOf<ZelColorButton>()
{
    using C = ZelColorButton;
    return {{MEMBER(color)}, {MEMBER(state)}};
}

template <>
std::vector<Member> membersOf<ZelPushButton>()
{
    using C = ZelPushButton;
    return {{MEMBER(color)}};
}

template <>
std::vector<Member> membersOf<ZelEdge>()
{
    using C = ZelEdge;
    return {{MEMBER(normalColor)}, {MEMBER(pressedColor)}};
}

template <>
std::vector<Member> membersOf<ZelLineEditInt>()
{
    using C = ZelLineEditInt;
    return {{MEMBER(minimum)}, {MEMBER(maximum)}};
}

template <>
std::vector<Member> membersOf<ZelGraph>()
{
    using C = ZelGraph;
    return {{MEMBER(minY)},       {MEMBER(maxY)},       {MEMBER(hGridCount)}, {MEMBER(vGridStep)},
            {MEMBER(modeFlags)},  {MEMBER(graphColor)}, {MEMBER(gridColor)},  {MEMBER(backgroundColor)},
            {MEMBER(writePos)},   {MEMBER(capacity)},   {MEMBER(count)},      {MEMBER(history)},
            {MEMBER(prevTime)},   {MEMBER(lastTime)},   {MEMBER(prevInput)},  {MEMBER(lastInput)},
            {MEMBER(firstValue)}, {MEMBER(mouseX)},     {MEMBER(mouseY)},     {MEMBER(readoutText)},
            {MEMBER(readoutRect)}};
}

template <>
std::vector<Member> membersOf<ZelColorDlg>()
{
    using C = ZelColorDlg;
    return {{MEMBER(rEdit)},   {MEMBER(gEdit)},   {MEMBER(bEdit)},  {MEMBER(panel)},
            {MEMBER(rScroll)}, {MEMBER(gScroll)}, {MEMBER(bScroll)}};
}

template <>
std::vector<Member> membersOf<ZelColorGroupDlg>()
{
    using C = ZelColorGroupDlg;
    return {{MEMBER(foregroundColorEdit)}, {MEMBER(backgroundColorEdit)},
            {MEMBER(lightColorEdit)},      {MEMBER(darkColorEdit)},
            {MEMBER(midColorEdit)},        {MEMBER(textColorEdit)},
            {MEMBER(baseColorEdit)},       {MEMBER(shadowColorEdit)},
            {MEMBER(highlightColorEdit)},  {MEMBER(highlightedTextColorEdit)},
            {MEMBER(colorGroup)}};
}

template <>
std::vector<Member> membersOf<ZelFontDlg>()
{
    using C = ZelFontDlg;
    return {{MEMBER(familyEdit)},    {MEMBER(sizeEdit)},      {MEMBER(weightEdit)}, {MEMBER(italicEdit)},
            {MEMBER(underlineEdit)}, {MEMBER(strikeOutEdit)}, {MEMBER(panel)}};
}

template <class C, class Base>
Class describe(const char* name, const char* base)
{
    return {name, base, sizeof(C), sizeof(Base), C::staticMetaObject(), membersOf<C>()};
}

#define CLASS(name, base) describe<name, base>(#name, #base)

} // namespace

std::vector<Class> allClasses()
{
    return {
        CLASS(ZelActiveLabel, QWidget), CLASS(ZelActiveLabel2, QWidget),   CLASS(ZelLabel, QLabel),
        CLASS(ZelColorButton, QWidget), CLASS(ZelPushButton, QPushButton), CLASS(ZelPushButton2, QPushButton),
        CLASS(ZelFrame, QFrame),        CLASS(ZelEdge, QWidget),           CLASS(ZelLineEdit, QLineEdit),
        CLASS(ZelComboBox, QComboBox),  CLASS(ZelLineEditInt, QLineEdit),  CLASS(ZelGraph, QFrame),
        CLASS(ZelColorDlg, QDialog),    CLASS(ZelColorGroupDlg, QDialog),  CLASS(ZelFontDlg, QDialog),
    };
}
