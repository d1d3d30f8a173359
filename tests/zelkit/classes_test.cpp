// What all fifteen classes have in common: their names, what they derive from, and the context of their
// texts.
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

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qmetaobject.h>
#include <qtranslator.h>

#include <string>

namespace
{

typedef QString (*Translation)(const char*, const char*);

struct Class {
    QMetaObject* meta;
    const char* name;
    const char* base;
    const char* signalNames; // in their order
    const char* slotNames;
    Translation tr;
    Translation trUtf8;
};

#define CLASS(name, base, signalNames, slotNames)                                                            \
    {                                                                                                        \
        name::staticMetaObject(), #name, base, signalNames, slotNames, name::tr, name::trUtf8                \
    }

const char* const mouseSignals = "mousePress(QMouseEvent*) mouseRelease(QMouseEvent*) "
                                 "mouseDoubleClick(QMouseEvent*) mouseMove(QMouseEvent*) ";

const std::string labelSignals = std::string(mouseSignals) + "clicked(ZelLabel*) ";
const std::string frameSignals =
    std::string(mouseSignals) + "mousePressEx(QMouseEvent*,ZelFrame*) mouseReleaseEx(QMouseEvent*,ZelFrame*) "
                                "mouseDoubleClickEx(QMouseEvent*,ZelFrame*) "
                                "mouseMoveEx(QMouseEvent*,ZelFrame*) ";
const std::string graphSignals = std::string(mouseSignals) + "keyPress(QKeyEvent*) ";

std::vector<Class> allClasses()
{
    return {
        CLASS(ZelActiveLabel, "QWidget", "clicked() ", ""),
        CLASS(ZelActiveLabel2, "QWidget", "clicked() pressed() ", ""),
        CLASS(ZelLabel, "QLabel", labelSignals.c_str(), ""),
        CLASS(ZelColorButton, "QWidget", "clicked() ", ""),
        CLASS(ZelPushButton, "QPushButton", "", ""),
        CLASS(ZelPushButton2, "QPushButton", "escapePressed() ", ""),
        CLASS(ZelFrame, "QFrame", frameSignals.c_str(), ""),
        CLASS(ZelEdge, "QWidget",
              "mousePress(QMouseEvent*) mouseRelease(QMouseEvent*) mouseMove(QMouseEvent*) ", ""),
        CLASS(ZelLineEdit, "QLineEdit", "leave(QEvent*) focusOut() escapePressed() ", ""),
        CLASS(ZelComboBox, "QComboBox", "leave() focusOut() escapePressed() ", ""),
        CLASS(ZelLineEditInt, "QLineEdit", "valueChanged(int) ", ""),
        CLASS(ZelGraph, "QFrame", graphSignals.c_str(), "setValue(int) "),
        CLASS(ZelColorDlg, "QDialog", nullptr, nullptr),
        CLASS(ZelColorGroupDlg, "QDialog", nullptr, nullptr),
        CLASS(ZelFontDlg, "QDialog", nullptr, nullptr),
    };
}

// What the classes say before there is an application.
struct BeforeMain {
    std::vector<std::string> latin1, utf8;
    BeforeMain()
    {
        for (const Class& c : allClasses()) {
            latin1.push_back(c.tr("\xfc", nullptr).latin1());
            utf8.push_back(c.trUtf8("\xc3\xbc", nullptr).latin1());
        }
    }
} beforeMain;

// Answers with the context, the text and the comment that it was asked for.
class Echo : public QTranslator
{
public:
    Echo() : QTranslator(nullptr, "echo") {}
    QTranslatorMessage findMessage(const char* context, const char* text, const char* comment) const override
    {
        const QString answer = QString(context) + "/" + QString(text) + "/" + QString(comment);
        return QTranslatorMessage(context, text, comment, answer);
    }
};

} // namespace

TEST(Classes, HaveTheirNamesAndTheirBases)
{
    EXPECT_EQ(allClasses().size(), 15U);
    for (const Class& c : allClasses()) {
        EXPECT_STREQ(c.meta->className(), c.name);
        EXPECT_STREQ(c.meta->superClassName(), c.base);
        EXPECT_STREQ(c.meta->superClass()->className(), c.base);
        EXPECT_TRUE(c.meta->inherits("QWidget")) << c.name;
    }
}

TEST(Classes, DeclareTheirSignalsAndSlotsInTheirOrder)
{
    for (const Class& c : allClasses()) {
        if (!c.signalNames)
            continue;
        std::string names;
        for (int i = 0; i < c.meta->numSignals(); ++i)
            names += std::string(c.meta->signal(i)->name) + " ";
        EXPECT_EQ(names, c.signalNames) << c.name;
        names = "";
        for (int i = 0; i < c.meta->numSlots(); ++i)
            names += std::string(c.meta->slot(i)->name) + " ";
        EXPECT_EQ(names, c.slotNames) << c.name;
    }
}

TEST(Classes, AreTranslatedInTheirOwnContext)
{
    Echo echo;
    qApp->installTranslator(&echo);
    for (const Class& c : allClasses()) {
        EXPECT_STREQ(c.tr("text", "comment").latin1(), (std::string(c.name) + "/text/comment").c_str());
        EXPECT_STREQ(c.trUtf8("text", "comment").latin1(), (std::string(c.name) + "/text/comment").c_str());
    }
    qApp->removeTranslator(&echo);
}

TEST(Classes, ReadTheirTextsAsTheyAreWithoutATranslation)
{
    for (const Class& c : allClasses()) {
        EXPECT_STREQ(c.tr("\xfc", nullptr).latin1(), "\xfc") << c.name;
        EXPECT_STREQ(c.trUtf8("\xc3\xbc", nullptr).latin1(), "\xfc") << c.name;
    }
    for (const std::string& text : beforeMain.latin1)
        EXPECT_EQ(text, "\xfc");
    for (const std::string& text : beforeMain.utf8)
        EXPECT_EQ(text, "\xfc");
    EXPECT_EQ(beforeMain.latin1.size(), 15U);
}
