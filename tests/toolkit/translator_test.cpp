// Texts in the user's language.
#include "waiting.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qtranslator.h>
#include <qwidget.h>

#include <string>

namespace
{

class Greeter : public QWidget
{
    Q_OBJECT

public:
    explicit Greeter(QWidget* parent = nullptr) : QWidget(parent) {}
    std::string hello() const { return tr("Hello").latin1(); }
    std::string helloWithComment() const { return tr("Hello", "a comment").latin1(); }
    int changes = 0;

protected:
    bool event(QEvent* event) override
    {
        changes += event->type() == QEvent::LanguageChange ? 1 : 0;
        return QWidget::event(event);
    }
};

class LoudGreeter : public Greeter
{
    Q_OBJECT

public:
    std::string loudHello() const { return tr("Hello").latin1(); }
};

// Translates one text in all contexts.
class OneText : public QTranslator
{
public:
    OneText(const char* text, const char* translation) : source(text), result(translation) {}
    QTranslatorMessage findMessage(const char* context, const char* sourceText,
                                   const char* comment) const override
    {
        if (source != sourceText)
            return QTranslatorMessage();
        return QTranslatorMessage(context, sourceText, comment, result);
    }

private:
    QCString source;
    QString result;
};

std::string translated(const char* text)
{
    return qApp->translate("Context", text).latin1();
}

std::string found(const QTranslator& translator, const char* context, const char* text,
                  const char* comment = nullptr)
{
    const QString translation = translator.find(context, text, comment);
    EXPECT_EQ(translator.contains(context, text, comment), !translation.isNull());
    return translation.isNull() ? "null" : translation.latin1();
}

} // namespace

TEST(Translator, FindsByContextTextAndComment)
{
    QTranslator translator;
    EXPECT_TRUE(translator.isEmpty());
    translator.insert(QTranslatorMessage("C", "one", "", "uno"));
    translator.insert(QTranslatorMessage("C", "one", "special", "uno especial"));
    translator.insert(QTranslatorMessage("C", "four", "only with", "cuatro"));
    translator.insert("D", "one", "eins");
    EXPECT_FALSE(translator.isEmpty());
    EXPECT_EQ(found(translator, "C", "one"), "uno");
    EXPECT_EQ(found(translator, "C", "one", "special"), "uno especial");
    EXPECT_EQ(found(translator, "C", "one", "unknown"), "uno");
    EXPECT_EQ(found(translator, "D", "one"), "eins");
    EXPECT_EQ(found(translator, "E", "one"), "null");
    EXPECT_EQ(found(translator, "C", "ONE"), "null");
    EXPECT_EQ(found(translator, "C", "four"), "null");
    EXPECT_EQ(found(translator, "C", "four", "only with"), "cuatro");
}

TEST(Translator, ANewTranslationReplacesTheOldOne)
{
    QTranslator translator;
    translator.insert("C", "one", "uno");
    translator.insert("C", "one", "un");
    EXPECT_EQ(found(translator, "C", "one"), "un");
    EXPECT_EQ(translator.messages().count(), 1u);
    translator.remove("C", "one");
    EXPECT_EQ(found(translator, "C", "one"), "null");
    translator.insert("C", "one", "uno");
    translator.clear();
    EXPECT_TRUE(translator.isEmpty());
}

TEST(Translator, MessagesAreEqualWhateverTheirTranslation)
{
    const QTranslatorMessage one("C", "one", "comment", "uno"), same("C", "one", "comment", "eins");
    EXPECT_TRUE(one == same);
    EXPECT_EQ(one.hash(), same.hash());
    EXPECT_TRUE(one != QTranslatorMessage("C", "one", ""));
    EXPECT_TRUE(one != QTranslatorMessage("D", "one", "comment"));
    QTranslatorMessage copy(one);
    copy.setTranslation("ein");
    EXPECT_EQ(copy.translation(), QString("ein"));
    EXPECT_EQ(one.translation(), QString("uno"));
    EXPECT_STREQ(one.context(), "C");
    EXPECT_STREQ(one.sourceText(), "one");
    EXPECT_STREQ(one.comment(), "comment");
}

TEST(Translator, TheClassOfTheCallIsTheContext)
{
    QTranslator translator;
    translator.insert("Greeter", "Hello", "Hola");
    translator.insert(QTranslatorMessage("Greeter", "Hello", "a comment", "Buenas"));
    translator.insert("LoudGreeter", "Hello", "HOLA");
    LoudGreeter greeter;
    EXPECT_EQ(greeter.hello(), "Hello");
    qApp->installTranslator(&translator);
    EXPECT_EQ(greeter.hello(), "Hola");
    EXPECT_EQ(greeter.helloWithComment(), "Buenas");
    EXPECT_EQ(greeter.loudHello(), "HOLA");
    qApp->removeTranslator(&translator);
    EXPECT_EQ(greeter.hello(), "Hello");
}

TEST(Translator, TheLastOneInstalledIsAskedFirst)
{
    OneText first("word", "first"), second("word", "second"), other("else", "other");
    for (QTranslator* translator : {&first, &second, &other})
        qApp->installTranslator(translator);
    EXPECT_EQ(translated("word"), "second");
    EXPECT_EQ(translated("else"), "other");
    EXPECT_EQ(translated("nothing"), "nothing");
    qApp->removeTranslator(&second);
    EXPECT_EQ(translated("word"), "first");
    qApp->removeTranslator(&first);
    qApp->removeTranslator(&other);
    EXPECT_EQ(translated("word"), "word");
}

TEST(Translator, RemovingOnceUndoesEveryInstallation)
{
    OneText translator("word", "Wort");
    qApp->installTranslator(&translator);
    qApp->installTranslator(&translator);
    qApp->removeTranslator(&translator);
    EXPECT_EQ(translated("word"), "word");
}

TEST(Translator, ADeadOneIsNotAsked)
{
    auto* translator = new OneText("word", "Wort");
    qApp->installTranslator(translator);
    delete translator;
    EXPECT_EQ(translated("word"), "word");
    qApp->installTranslator(nullptr);
    qApp->removeTranslator(nullptr);
}

TEST(Translator, UntranslatedTextIsReadAsSaid)
{
    EXPECT_EQ(qApp->translate("C", "\xe9"), QString(QChar(0xe9)));
    EXPECT_EQ(qApp->translate("C", "\xc3\xa9", nullptr, QApplication::UnicodeUTF8), QString(QChar(0xe9)));
    EXPECT_EQ(qApp->translate("C", "\xc3\xa9"), QString("\xc3\xa9"));
    EXPECT_TRUE(qApp->translate("C", nullptr).isNull());
    EXPECT_EQ(qApp->translate("C", ""), QString(""));
}

TEST(Translator, WindowsAndTheirChildrenHearOfTheChange)
{
    Greeter window;
    Greeter child(&window);
    settle();
    window.changes = child.changes = 0;
    OneText translator("word", "Wort");
    qApp->installTranslator(&translator);
    EXPECT_EQ(window.changes, 0);
    EXPECT_TRUE(waitFor([&] { return child.changes == 1; }));
    EXPECT_EQ(window.changes, 1);
    qApp->removeTranslator(&translator);
    EXPECT_TRUE(waitFor([&] { return child.changes == 2; }));
}

#include "translator_test.moc"
