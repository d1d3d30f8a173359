// What the meta-object compiler reads, and what it refuses.
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

struct Result {
    int status;
    std::string code;
    std::string errors;
};

std::string contentsOf(const std::string& path)
{
    std::ostringstream text;
    text << std::ifstream(path).rdbuf();
    return text.str();
}

// Runs the compiler in a folder of its own.
class Moc : public testing::Test
{
protected:
    void SetUp() override
    {
        char path[] = "/tmp/moc_test_XXXXXX";
        ASSERT_TRUE(mkdtemp(path));
        folder = path;
    }

    void TearDown() override { EXPECT_EQ(std::system(("rm -rf " + folder).c_str()), 0); }

    Result run(const std::string& source, const std::string& options = "-i")
    {
        std::ofstream(folder + "/input.h") << source;
        return runOn("input.h", options);
    }

    Result runOn(const std::string& file, const std::string& options)
    {
        const std::string command =
            "cd " + folder + " && " ZELTK_MOC " " + options + " " + file + " >code 2>errors";
        const int status = std::system(command.c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, contentsOf(folder + "/code"),
                contentsOf(folder + "/errors")};
    }

    // The entries of a table in the code, one after the other.
    static std::string table(const Result& result, const std::string& name)
    {
        const size_t start = result.code.find(name + "[] = {");
        if (start == std::string::npos)
            return "none";
        std::istringstream lines(result.code.substr(start, result.code.find("};", start) - start));
        std::string entries;
        for (std::string line; std::getline(lines, line);) {
            const size_t open = line.find('"');
            if (open != std::string::npos)
                entries += line.substr(open + 1, line.rfind('"') - open - 1) + ";";
        }
        return entries;
    }

    std::string folder;
};

std::string inClass(const std::string& body)
{
    return "class A : public QObject\n{\n    Q_OBJECT\n" + body + "};\n";
}

} // namespace

TEST_F(Moc, SignalsAndSlotsKeepTheirOrder)
{
    const Result result = run(
        inClass("signals:\n void one();\n void two(int value);\npublic slots:\n void three();\n"
                "protected slots:\n int four(const QString& text);\nprivate slots:\n void five(bool) {}\n"));
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(table(result, "signalTable"), "one();two(int);");
    EXPECT_EQ(table(result, "slotTable"), "three();four(const QString&);five(bool);");
    EXPECT_NE(result.code.find("{\"four(const QString&)\", QMetaData::Protected}"), std::string::npos);
    EXPECT_NE(result.code.find("{\"five(bool)\", QMetaData::Private}"), std::string::npos);
}

TEST_F(Moc, BlanksAndNamesDoNotCount)
{
    const Result result =
        run(inClass("public slots:\n void a( const char *  text , unsigned   int x );\n"
                    " void b(const QValueList<QPair<int, int> > & list, Outer::Inner*);\n void c(void);\n"
                    " void d(unsigned x, struct Foo f);\n"));
    EXPECT_EQ(table(result, "slotTable"),
              "a(const char*,unsigned int);b(const "
              "QValueList<QPair<int,int>>&,Outer::Inner*);c();d(unsigned,struct Foo);");
}

TEST_F(Moc, ADefaultArgumentMakesAShorterSlotToo)
{
    const Result result =
        run(inClass("public slots:\n void move(int x, int y = f(1, 2), bool now = true);\n"));
    EXPECT_EQ(table(result, "slotTable"), "move(int);move(int,int);move(int,int,bool);");
}

TEST_F(Moc, SeveralClassesInOneFile)
{
    const Result result =
        run("namespace outer { namespace inner {\n" + inClass("signals:\n void s();\n") +
            "}}\n"
            "class Plain {};\nclass B : protected virtual Base<int, 3>, private C\n{ Q_OBJECT };\n");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_NE(result.code.find("QMetaObject* outer::inner::A::staticMetaObject()"), std::string::npos);
    EXPECT_NE(result.code.find("Base<int,3>::staticMetaObject()"), std::string::npos);
    EXPECT_EQ(result.code.find("Plain"), std::string::npos);
}

TEST_F(Moc, NestedClassesHaveTheirWholeName)
{
    const Result result = run("class Outer\n{\n    class Inner : public QObject\n    {\n        Q_OBJECT\n   "
                              " signals:\n        void s();\n    };\n};\n");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_NE(result.code.find("void Outer::Inner::s()"), std::string::npos);
}

TEST_F(Moc, CommentsStringsAndTemplatesAreNoTrap)
{
    const Result result =
        run("// class X : public QObject { Q_OBJECT\n/* Q_OBJECT } */\n#define BRACE { \\\n  Q_OBJECT\n"
            "const char* text = \"class Y { Q_OBJECT \\\" \"; char quote = '\\''; char brace = '{';\n"
            "const char* raw = R\"x(}\" Q_OBJECT)x\";\n"
            "template <class T, int n = (1 > 0)> class Box { T items[n]; void f() { if (1) { } } };\n"
            "class Q_EXPORT Forward; enum class Kind : int { A, B }; struct Pod { int x; } pod = { 1 };\n"
            "extern \"C\" { int f(int); }\ninline int g() { struct Local { int y; }; return 1'000; }\n" +
            inClass("    int x; // signals:\npublic slots: /* here */\n    void ok(); typedef int Number; "
                    "enum { Few };\n"
                    "public:\n    A() : x(1) { }\n    bool operator==(const A&) const;\n"));
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(table(result, "slotTable"), "ok();");
}

TEST_F(Moc, ALineCommentEndsWithItsLineWhateverItSays)
{
    const Result result = run("//****************\n// what stands in /etc/*\n" +
                              inClass("  //* see below\npublic slots:\n    void ok();\n"));
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(table(result, "slotTable"), "ok();");
}

TEST_F(Moc, DirectivesHideNothingBehindThem)
{
    const Result result = run(
        "#define FILES \"/*\"\n#define QUOTE '\\\"'\n#error don't \" say so\n#define BACK \"\\\\\" // /*\n"
        "#define LONG /* goes\n on */ {\n#define JOINED \\\r\n {\r\n" +
        inClass("public slots:\n    void ok();\n"));
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(table(result, "slotTable"), "ok();");
}

TEST_F(Moc, LinesThatAreJoinedInAStringCount)
{
    const Result result = run("const char* text = \"one \\\n two \\\r\n three\";\n}");
    EXPECT_EQ(result.errors.substr(0, 10), "input.h:4:") << result.errors;
}

TEST_F(Moc, MacrosOfQtAreSkipped)
{
    const Result result = run(
        inClass("    Q_PROPERTY(int x READ x WRITE setX)\n    Q_ENUMS(Kind)\n    Q_CLASSINFO(\"a\", \"b\")\n"
                "Q_SIGNALS:\n void s();\npublic Q_SLOTS:\n void t();\n"));
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(table(result, "signalTable") + table(result, "slotTable"), "s();t();");
}

TEST_F(Moc, TheOptionsChooseWhatIsIncluded)
{
    const std::string source = inClass("");
    EXPECT_EQ(run(source, "-i").code.find("#include \"input.h\""), std::string::npos);
    EXPECT_NE(run(source, "").code.find("#include \"input.h\""), std::string::npos);
    EXPECT_NE(run(source, "-f").code.find("#include \"input.h\""), std::string::npos);
    EXPECT_NE(run(source, "-fother.h").code.find("#include \"other.h\""), std::string::npos);
    EXPECT_NE(run(source, "-p sub/folder").code.find("#include \"sub/folder/input.h\""), std::string::npos);
    EXPECT_EQ(run(source, "-i -o result").status, 0);
    EXPECT_NE(contentsOf(folder + "/result").find("A::staticMetaObject"), std::string::npos);
}

TEST_F(Moc, TheHeaderIsFoundFromTheFolderOfTheCode)
{
    ASSERT_EQ(std::system(("mkdir " + folder + "/made").c_str()), 0);
    EXPECT_EQ(run(inClass(""), "-o made/moc_input.cpp").status, 0);
    EXPECT_NE(contentsOf(folder + "/made/moc_input.cpp").find("#include \"../input.h\""), std::string::npos);
}

TEST_F(Moc, OnlyHeadersAreIncludedUnlessAskedFor)
{
    std::ofstream(folder + "/input.cpp") << inClass("");
    EXPECT_EQ(runOn("input.cpp", "").code.find("#include \"input.cpp\""), std::string::npos);
    EXPECT_NE(runOn("input.cpp", "-f").code.find("#include \"input.cpp\""), std::string::npos);
}

TEST_F(Moc, OperatorsWithABodyHideNothingBehindThem)
{
    const Result result = run(
        inClass("    A& operator=(const A& other) { return *this; }\n    bool operator()(int x) { return x; "
                "}\n    void operator delete(void*) { }\nsignals:\n void s();\n"));
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(table(result, "signalTable"), "s();");
}

TEST_F(Moc, PublicBasesCanBeCastTo)
{
    const Result result = run("class A : public QObject, public Printable, Hidden, protected Guarded\n"
                              "{\n    Q_OBJECT\n};\n");
    EXPECT_NE(result.code.find("(Printable*)this"), std::string::npos);
    EXPECT_EQ(result.code.find("Hidden"), std::string::npos);
    EXPECT_EQ(result.code.find("Guarded"), std::string::npos);
}

TEST_F(Moc, AFileWithoutClassesIsAWarningOnly)
{
    const Result result = run("int x;\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "input.h:1: warning: no class has Q_OBJECT\n");
}

TEST_F(Moc, SignalsWithoutTheMacroAreAWarning)
{
    const Result result = run("class A : public QObject {\nsignals:\n void s();\n};\n");
    EXPECT_EQ(result.status, 0);
    EXPECT_NE(result.errors.find("input.h:1: warning: the class A has signals or slots, but no Q_OBJECT\n"),
              std::string::npos);
}

TEST_F(Moc, WhatCannotBeReadIsAnErrorWithItsPlace)
{
    const struct {
        const char* source;
        const char* error;
    } cases[] = {
        {"class A\n{\n  Q_OBJECT\n};\n", "input.h:1: error: the class A has Q_OBJECT, but no base class\n"},
        {"class A : public QObject\n{\n  Q_OBJECT\n",
         "input.h:1: error: the '}' of the class A is missing\n"},
        {"template <class T> class A : public QObject { Q_OBJECT };\n",
         "input.h:1: error: a template class cannot have Q_OBJECT\n"},
        {"int f() {\n class A : public QObject { Q_OBJECT };\n}\n",
         "input.h:2: error: a class inside a function cannot have Q_OBJECT\n"},
        {"class A : public QObject {\n Q_OBJECT\nsignals:\n int s();\n};\n",
         "input.h:4: error: a signal returns void\n"},
        {"class A : public QObject {\n Q_OBJECT\nsignals:\n void s() {}\n};\n",
         "input.h:4: error: a signal has no body of its own\n"},
        {"class A : public QObject {\n Q_OBJECT\nsignals:\n void s(int x = 1);\n};\n",
         "input.h:4: error: a signal's arguments cannot have default values\n"},
        {"class A : public QObject {\n Q_OBJECT\npublic slots:\n int number;\n};\n",
         "input.h:4: error: a slot is expected here\n"},
        {"class A : public QObject {\n Q_OBJECT\npublic slots:\n void s(int x[2]);\n};\n",
         "input.h:4: error: arrays, functions and ellipses cannot be arguments of signals and slots\n"},
        {"class A : public QObject {\n Q_OBJECT\npublic signals:\n void s();\n};\n",
         "input.h:3: error: signals have no access of their own\n"},
        {"const char* s = \"open\n;\n", "input.h:1: error: the string does not end\n"},
        {"int x;\n/* open\n", "input.h:2: error: the comment does not end\n"},
        {"}\n", "input.h:1: error: '}' without '{'\n"},
    };
    for (const auto& c : cases) {
        const Result result = run(c.source);
        EXPECT_NE(result.status, 0) << c.source;
        EXPECT_EQ(result.errors, c.error) << c.source;
        EXPECT_EQ(result.code, "") << c.source;
    }
}

TEST_F(Moc, FilesThatCannotBeReadOrWrittenAreErrors)
{
    EXPECT_EQ(runOn("nowhere.h", "-i").status, 1);
    EXPECT_EQ(runOn("nowhere.h", "-i").errors, "zeltk-moc: nowhere.h: cannot be read\n");
    EXPECT_EQ(runOn(".", "-i").errors, "zeltk-moc: .: cannot be read\n");
    EXPECT_EQ(run(inClass(""), "-o no/such/folder/x").errors,
              "zeltk-moc: no/such/folder/x: cannot be written\n");
    EXPECT_EQ(runOn("", "").status, 1);
    EXPECT_NE(runOn("", "--strange").errors.find("usage: zeltk-moc"), std::string::npos);
}
