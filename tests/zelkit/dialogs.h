// What the tests of the dialogs share.
#ifndef TEST_DIALOGS_H
#define TEST_DIALOGS_H

#include "hands.h"
#include "printers.h"
#include "waiting.h"
#include "xinput.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qfont.h>
#include <qfontmetrics.h>
#include <qlineedit.h>
#include <qmetaobject.h>
#include <qobjectlist.h>
#include <qstrlist.h>

#include <algorithm>
#include <string>

// The font of widgets that are made while one of these exists.
class ApplicationFont
{
public:
    explicit ApplicationFont(const QFont& font) : m_before(QApplication::font())
    {
        QApplication::setFont(font);
    }
    ~ApplicationFont() { QApplication::setFont(m_before); }

private:
    ApplicationFont(const ApplicationFont&);
    ApplicationFont& operator=(const ApplicationFont&);

    QFont m_before;
};

// Fonts of three heights, the first of which is 13 pixels.
inline QFont dialogFont(int which)
{
    QFont font("DejaVu Sans");
    int pixels = 5;
    do
        font.setPixelSize(pixels++);
    while (QFontMetrics(font).height() < (which == 0 ? 13 : which == 1 ? 17 : 22));
    return font;
}

inline QRect place(QWidget* dialog, const char* child)
{
    QWidget* const widget = childNamed(dialog, child);
    return widget ? widget->geometry() : QRect();
}

// Parent, name, modality and flags are taken as QDialog takes them.
template <class Dialog>
void expectTakesDialogArguments()
{
    QWidget parent;
    const Dialog given(&parent, "dialog", true, Qt::WDestructiveClose);
    EXPECT_EQ(given.parentWidget(), &parent);
    EXPECT_STREQ(given.name(), "dialog");
    EXPECT_TRUE(given.isModal());
    EXPECT_TRUE(given.testWFlags(Qt::WDestructiveClose));
    const Dialog plain(nullptr, "dialog");
    EXPECT_EQ(plain.parentWidget(), static_cast<QWidget*>(nullptr));
    EXPECT_FALSE(plain.isModal());
    EXPECT_FALSE(plain.testWFlags(Qt::WDestructiveClose));
}

// "QLabel RLabel; ..." in the order in which they were created.
inline std::string childrenOf(QWidget* dialog)
{
    std::string all;
    QObjectListIt it(*dialog->children());
    for (; it.current(); ++it)
        if (it.current()->isWidgetType())
            all +=
                std::string(all.empty() ? "" : "; ") + it.current()->className() + " " + it.current()->name();
    return all;
}

inline std::string joined(const QStrList& texts)
{
    std::string all;
    for (QStrListIterator it(texts); it.current(); ++it)
        all += (all.empty() ? "" : " ") + std::string(it.current());
    return all;
}

// Types a colour into the fields of the toolkit's colour dialog.
inline void typeColor(QWidget* dialog, const QColor& color)
{
    const struct {
        const char* field;
        int value;
    } fields[] = {
        {"qt_red_edit", color.red()}, {"qt_grn_edit", color.green()}, {"qt_blue_edit", color.blue()}};
    for (const auto& each : fields) {
        QLineEdit* const edit = static_cast<QLineEdit*>(childNamed(dialog, each.field));
        edit->setFocus();
        edit->selectAll();
        xinput::typeText(std::to_string(each.value));
        settle();
    }
}

#endif
