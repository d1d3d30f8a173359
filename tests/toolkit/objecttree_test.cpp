// Parents, children, names and queries.
#include "messages.h"

#include <gtest/gtest.h>
#include <qapplication.h>
#include <qevent.h>
#include <qguardedptr.h>
#include <qlabel.h>
#include <qobjectlist.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace
{

std::vector<std::string> told;

std::string takeTold()
{
    std::string text;
    for (const std::string& line : told)
        text += (text.empty() ? "" : " ") + line;
    told.clear();
    return text;
}

class Node : public QObject
{
    Q_OBJECT

public:
    Node(QObject* parent, const char* name) : QObject(parent, name) {}
    ~Node() override { told.push_back(std::string("~") + name()); }

protected:
    void childEvent(QChildEvent* event) override
    {
        EXPECT_NE(event->inserted(), event->removed());
        told.push_back(std::string(name()) + (event->inserted() ? "+" : "-") + event->child()->name());
    }
};

std::string namesOf(const QObjectList* list)
{
    if (!list)
        return "null";
    std::string names;
    for (QObjectListIt it(*list); it.current(); ++it)
        names += std::string(names.empty() ? "" : " ") + it.current()->name();
    return names;
}

std::string query(const QObject& root, const char* className, const char* name, bool regexp = true,
                  bool recursive = true)
{
    const std::unique_ptr<QObjectList> list(root.queryList(className, name, regexp, recursive));
    return namesOf(list.get());
}

class ObjectTree : public testing::Test
{
protected:
    void SetUp() override
    {
        QApplication::sendPostedEvents();
        told.clear();
    }
};

} // namespace

TEST_F(ObjectTree, ChildrenStandInTheOrderOfTheirBirth)
{
    Node root(nullptr, "root");
    EXPECT_EQ(root.children(), nullptr);
    new Node(&root, "a");
    new Node(&root, "b");
    EXPECT_EQ(namesOf(root.children()), "a b");
    EXPECT_EQ(root.child("b")->parent(), &root);
}

TEST_F(ObjectTree, ChildrenDieWithTheirParent)
{
    auto* root = new Node(nullptr, "root");
    auto* a = new Node(root, "a");
    new Node(a, "aa");
    new Node(root, "b");
    delete root;
    EXPECT_EQ(takeTold(), "~root ~a ~aa ~b");
}

TEST_F(ObjectTree, ADeletedChildLeavesItsParent)
{
    Node root(nullptr, "root");
    auto* a = new Node(&root, "a");
    new Node(&root, "b");
    QApplication::sendPostedEvents();
    EXPECT_EQ(takeTold(), "root+a root+b");
    delete a;
    EXPECT_EQ(namesOf(root.children()), "b");
    EXPECT_EQ(takeTold(), "~a root-unnamed");
}

TEST_F(ObjectTree, InsertionIsToldLaterAndRemovalAtOnce)
{
    Node root(nullptr, "root");
    Node child(&root, "child");
    EXPECT_EQ(takeTold(), "");
    QApplication::sendPostedEvents();
    EXPECT_EQ(takeTold(), "root+child");
    root.removeChild(&child);
    EXPECT_EQ(takeTold(), "root-child");
    EXPECT_EQ(child.parent(), nullptr);
    EXPECT_EQ(root.children(), nullptr);
}

TEST_F(ObjectTree, AChildThatLeftBeforeItWasToldIsNotTold)
{
    Node root(nullptr, "root");
    Node child(&root, "child");
    root.removeChild(&child);
    EXPECT_EQ(takeTold(), "root-child");
    QApplication::sendPostedEvents();
    EXPECT_EQ(takeTold(), "");
}

TEST_F(ObjectTree, InsertingMovesFromOneParentToAnother)
{
    Node one(nullptr, "one");
    Node two(nullptr, "two");
    auto* child = new Node(&one, "child");
    QApplication::sendPostedEvents();
    takeTold();
    two.insertChild(child);
    QApplication::sendPostedEvents();
    EXPECT_EQ(takeTold(), "one-child two+child");
    EXPECT_EQ(child->parent(), &two);
    EXPECT_EQ(one.children(), nullptr);
}

TEST_F(ObjectTree, InsertingTwiceIsAWarning)
{
    Node root(nullptr, "root");
    auto* child = new Node(&root, "child");
    root.insertChild(child);
    EXPECT_EQ(takeMessages(), "QObject::insertChild: Object Node::child already in list\n");
    EXPECT_EQ(namesOf(root.children()), "child");
}

TEST_F(ObjectTree, NobodyIsPutIntoItself)
{
    Node root(nullptr, "root");
    auto* child = new Node(&root, "child");
    auto* inner = new Node(child, "inner");
    inner->insertChild(child);
    inner->insertChild(inner);
    root.insertChild(&root);
    EXPECT_EQ(takeMessages(), "QObject::insertChild: Node::child cannot be inside itself\n"
                              "QObject::insertChild: Node::inner cannot be inside itself\n"
                              "QObject::insertChild: Node::root cannot be inside itself\n");
    EXPECT_EQ(namesOf(root.children()), "child");
    EXPECT_EQ(namesOf(child->children()), "inner");
    EXPECT_EQ(inner->children(), nullptr);
}

TEST_F(ObjectTree, TheOldParentMayDoAnythingWhenAChildMovesAway)
{
    std::function<void()> action;
    struct Old : QObject {
        explicit Old(std::function<void()>* a) : does(a) {}
        void childEvent(QChildEvent* event) override
        {
            if (event->removed() && *does)
                (*does)();
        }
        std::function<void()>* does;
    } old(&action);
    QGuardedPtr<QObject> next = new Node(nullptr, "next");
    QGuardedPtr<QObject> child = new Node(&old, "child");
    action = [&] { delete static_cast<QObject*>(next); };
    next->insertChild(child);
    EXPECT_TRUE(next.isNull());
    ASSERT_FALSE(child.isNull());
    EXPECT_EQ(child->parent(), nullptr);

    next = new Node(nullptr, "next");
    action = nullptr;
    old.insertChild(child);
    action = [&] { delete static_cast<QObject*>(child); };
    next->insertChild(child);
    EXPECT_TRUE(child.isNull());
    EXPECT_EQ(next->children(), nullptr);

    Node third(nullptr, "third");
    child = new Node(&old, "child");
    action = [&] { third.insertChild(child); };
    next->insertChild(child);
    EXPECT_EQ(child->parent(), &third) << "what was done last";
    EXPECT_EQ(next->children(), nullptr);
    delete static_cast<QObject*>(next);
}

TEST_F(ObjectTree, AWidgetInSomethingElseHasNoParentWidget)
{
    Node root(nullptr, "root");
    QWidget widget(nullptr, "widget");
    root.insertChild(&widget);
    EXPECT_EQ(widget.parent(), &root);
    EXPECT_EQ(widget.parentWidget(), nullptr);
    widget.show();
    EXPECT_TRUE(widget.isVisible());
    root.removeChild(&widget);
}

TEST_F(ObjectTree, RemovingAStrangerDoesNothing)
{
    Node root(nullptr, "root");
    Node other(nullptr, "other");
    root.removeChild(&other);
    EXPECT_EQ(takeTold(), "");
}

TEST_F(ObjectTree, ObjectsWithoutParentAreListed)
{
    Node root(nullptr, "root");
    Node child(&root, "child");
    const auto listed = [](const QObject* object) {
        return const_cast<QObjectList*>(QObject::objectTrees())->findRef(object) >= 0;
    };
    EXPECT_TRUE(listed(&root));
    EXPECT_FALSE(listed(&child));
    root.removeChild(&child);
    EXPECT_TRUE(listed(&child));
}

TEST_F(ObjectTree, QueriesSelectByClassNameAndDepth)
{
    Node root(nullptr, "root");
    auto* a = new Node(&root, "alpha");
    new QObject(a, "alpine");
    new QObject(&root, "beta");
    EXPECT_EQ(query(root, nullptr, nullptr), "alpha alpine beta");
    EXPECT_EQ(query(root, "Node", nullptr), "alpha");
    EXPECT_EQ(query(root, "QObject", "al"), "alpha alpine");
    EXPECT_EQ(query(root, nullptr, "^a.*e$"), "alpine");
    EXPECT_EQ(query(root, nullptr, "al", false), "");
    EXPECT_EQ(query(root, nullptr, "alpine", false), "alpine");
    EXPECT_EQ(query(root, nullptr, nullptr, true, false), "alpha beta");
    EXPECT_EQ(query(root, "QWidget", nullptr), "");
}

TEST_F(ObjectTree, AChildIsFoundByItsWholeName)
{
    Node root(nullptr, "root");
    auto* a = new Node(&root, "a");
    auto* deep = new QObject(a, "deep");
    EXPECT_EQ(root.child("deep"), deep);
    EXPECT_EQ(root.child("dee"), nullptr);
    EXPECT_EQ(root.child("deep", nullptr, false), nullptr);
    EXPECT_EQ(root.child("deep", "Node"), nullptr);
    EXPECT_EQ(root.child(nullptr, "Node"), a);
}

TEST_F(ObjectTree, NamesMayBeMissing)
{
    QObject object;
    EXPECT_STREQ(object.name(), "unnamed");
    EXPECT_STREQ(object.name("other"), "other");
    EXPECT_EQ(object.name(nullptr), nullptr);
    object.setName("thing");
    EXPECT_STREQ(object.name("other"), "thing");
    object.setName("");
    EXPECT_STREQ(object.name("other"), "");
    object.setName(nullptr);
    EXPECT_STREQ(object.name(), "unnamed");
}

TEST_F(ObjectTree, OnlyWidgetsAreWidgets)
{
    QObject object;
    QLabel label(nullptr);
    EXPECT_FALSE(object.isWidgetType());
    EXPECT_TRUE(label.isWidgetType());
}

#include "objecttree_test.moc"
