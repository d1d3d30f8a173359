// From the X server's key symbols to Qt's key codes.
#include "kernel/applicationdata.h"

#include <algorithm>
#include <cctype>

namespace zeltk
{

namespace
{

struct KeyName {
    unsigned long symbol;
    int key;
};

const KeyName keyNames[] = {
    {0xff1b, Qt::Key_Escape},     {0xff09, Qt::Key_Tab},      {0xfe20, Qt::Key_Backtab},
    {0xff08, Qt::Key_Backspace},  {0xff0d, Qt::Key_Return},   {0xff63, Qt::Key_Insert},
    {0xffff, Qt::Key_Delete},     {0xff0b, Qt::Key_Clear},    {0xff13, Qt::Key_Pause},
    {0xff61, Qt::Key_Print},      {0xff15, Qt::Key_SysReq},   {0xff50, Qt::Key_Home},
    {0xff57, Qt::Key_End},        {0xff51, Qt::Key_Left},     {0xff52, Qt::Key_Up},
    {0xff53, Qt::Key_Right},      {0xff54, Qt::Key_Down},     {0xff55, Qt::Key_Prior},
    {0xff56, Qt::Key_Next},       {0xffe1, Qt::Key_Shift},    {0xffe2, Qt::Key_Shift},
    {0xffe6, Qt::Key_Shift},      {0xffe3, Qt::Key_Control},  {0xffe4, Qt::Key_Control},
    {0xffe7, Qt::Key_Meta},       {0xffe8, Qt::Key_Meta},     {0xffe9, Qt::Key_Alt},
    {0xffea, Qt::Key_Alt},        {0xffe5, Qt::Key_CapsLock}, {0xff7f, Qt::Key_NumLock},
    {0xff14, Qt::Key_ScrollLock}, {0xffeb, Qt::Key_Super_L},  {0xffec, Qt::Key_Super_R},
    {0xff67, Qt::Key_Menu},       {0xffed, Qt::Key_Hyper_L},  {0xffee, Qt::Key_Hyper_R},
    {0xff6a, Qt::Key_Help},       {0xff80, Qt::Key_Space},    {0xff89, Qt::Key_Tab},
    {0xff8d, Qt::Key_Enter},      {0xff95, Qt::Key_Home},     {0xff96, Qt::Key_Left},
    {0xff97, Qt::Key_Up},         {0xff98, Qt::Key_Right},    {0xff99, Qt::Key_Down},
    {0xff9a, Qt::Key_Prior},      {0xff9b, Qt::Key_Next},     {0xff9c, Qt::Key_End},
    {0xff9d, Qt::Key_Clear},      {0xff9e, Qt::Key_Insert},   {0xff9f, Qt::Key_Delete},
    {0xffaa, Qt::Key_Asterisk},   {0xffab, Qt::Key_Plus},     {0xffac, Qt::Key_Comma},
    {0xffad, Qt::Key_Minus},      {0xffae, Qt::Key_Period},   {0xffaf, Qt::Key_Slash},
    {0xffbd, Qt::Key_Equal},
};

} // namespace

int keyCode(unsigned long keysym)
{
    if (keysym >= 0x20 && keysym <= 0xff) {
        const bool letter =
            (keysym >= 'a' && keysym <= 'z') || (keysym >= 0xe0 && keysym <= 0xfe && keysym != 0xf7);
        return static_cast<int>(letter ? keysym - 0x20 : keysym);
    }
    if (keysym >= 0xffbe && keysym <= 0xffe0) // F1 to F35
        return Qt::Key_F1 + static_cast<int>(keysym - 0xffbe);
    if (keysym >= 0xffb0 && keysym <= 0xffb9) // keypad digits
        return Qt::Key_0 + static_cast<int>(keysym - 0xffb0);
    const auto found = std::find_if(std::begin(keyNames), std::end(keyNames),
                                    [keysym](const KeyName& k) { return k.symbol == keysym; });
    return found == std::end(keyNames) ? 0 : found->key;
}

} // namespace zeltk
