#include "controls/tree_view.h"

#include "controls/recording_observer.h"

#include <gtest/gtest.h>

TEST(TreeView, NodesKnowTheirRelatives)
{
    TreeView tree;
    TreeNode& group = tree.add("Group");
    TreeNode& first = tree.addChild(group, "first");
    TreeNode& second = tree.addChild(group, "second");
    TreeNode& other = tree.add("Other");

    EXPECT_EQ(nullptr, group.parent());
    EXPECT_EQ(&first, group.child());
    EXPECT_EQ(&other, group.next());
    EXPECT_EQ(2, group.children());
    EXPECT_EQ(&group, second.parent());
    EXPECT_EQ(&second, first.next());
    EXPECT_EQ(nullptr, second.next());
    EXPECT_EQ(nullptr, second.child());
    EXPECT_EQ(0, second.children());
    EXPECT_EQ(nullptr, other.next());
    EXPECT_EQ((std::vector<TreeNode*>{&group, &other}), tree.roots());
}

TEST(TreeView, CountsNodesFrom1InTheOrderOfTheirAddition)
{
    TreeView tree;
    TreeNode& group = tree.add("Group");
    TreeNode& other = tree.add("Other");
    TreeNode& child = tree.addChild(group, "child");
    EXPECT_EQ(3, tree.count());
    EXPECT_EQ(&group, &tree.item(1));
    EXPECT_EQ(&other, &tree.item(2));
    EXPECT_EQ(&child, &tree.item(3));
    EXPECT_EQ(35600, errorNumberOf([&] { tree.item(0); }));
    EXPECT_EQ(35600, errorNumberOf([&] { tree.item(4); }));
}

TEST(TreeView, FindsANodeByItsKey)
{
    TreeView tree;
    TreeNode& node = tree.add("RoCsMgr", "key");
    EXPECT_EQ(&node, &tree.item("key"));
    EXPECT_EQ(35601, errorNumberOf([&] { tree.item("KEY"); })) << "keys heed their case";
    node.setKey("another");
    EXPECT_EQ(&node, &tree.item("another"));
    EXPECT_EQ(35601, errorNumberOf([&] { tree.item("key"); }));
}

TEST(TreeView, ASecondNodeWithAKeyRaises35602)
{
    TreeView tree;
    tree.add("a", "key");
    EXPECT_EQ(35602, errorNumberOf([&] { tree.add("b", "key"); }));
    EXPECT_EQ(1, tree.count());

    TreeNode& late = tree.add("c");
    EXPECT_EQ(35602, errorNumberOf([&] { late.setKey("key"); }));
    EXPECT_EQ("", late.key()) << "the node stays without a key";
    EXPECT_EQ(2, tree.count());
}

TEST(TreeView, ManyNodesMayHaveNoKeyAndOneMayKeepItsOwn)
{
    TreeView tree;
    TreeNode& node = tree.add("a");
    tree.add("a");
    node.setKey("key");
    node.setKey("key");
    node.setKey("");
    tree.add("b", "key");
    EXPECT_EQ(3, tree.count());
}

TEST(TreeNode, ItsFullPathJoinsTheTextsFromTheRoot)
{
    TreeView tree;
    TreeNode& root = tree.add("Orvan Logs");
    TreeNode& process = tree.addChild(root, "RoCsMgr");
    TreeNode& log = tree.addChild(process, "diag_RoCsMgr_20051008_152307.txt");
    EXPECT_EQ("Orvan Logs", root.fullPath());
    EXPECT_EQ("Orvan Logs\\RoCsMgr\\diag_RoCsMgr_20051008_152307.txt", log.fullPath());
}

TEST(TreeNode, EnsureVisibleOpensTheNodesAboveAndNotTheNodeItself)
{
    TreeView tree;
    TreeNode& root = tree.add("root");
    TreeNode& middle = tree.addChild(root, "middle");
    TreeNode& leaf = tree.addChild(middle, "leaf");
    EXPECT_EQ(nullptr, tree.nodeInSight());
    leaf.ensureVisible();
    EXPECT_TRUE(root.expanded());
    EXPECT_TRUE(middle.expanded());
    EXPECT_FALSE(leaf.expanded());
    EXPECT_EQ(&leaf, tree.nodeInSight());
}

TEST(TreeNode, EachChangeOfAPropertyIsTheTreesChange)
{
    TreeView tree;
    TreeNode& node = tree.add();
    RecordingObserver observer;
    tree.observe(&observer);
    node.setText("text");
    node.setBold(true);
    node.setExpanded(true);
    node.setChecked(true);
    node.setKey("key");
    EXPECT_EQ(5, observer.changes);
    EXPECT_EQ(&tree, observer.last);
    node.setBold(true);
    EXPECT_EQ(5, observer.changes);
    EXPECT_TRUE(node.bold() && node.expanded() && node.checked());
}

TEST(TreeView, OnlyThePersonsTickIsAnEvent)
{
    TreeView tree;
    tree.setCheckBoxes(true);
    TreeNode& node = tree.add("a");
    std::vector<TreeNode*> ticked;
    tree.onNodeCheck = [&](TreeNode& which) { ticked.push_back(&which); };

    node.setChecked(true);
    EXPECT_TRUE(ticked.empty());
    tree.checkByPerson(node, false);
    EXPECT_EQ(std::vector<TreeNode*>{&node}, ticked);
    EXPECT_FALSE(node.checked());
    tree.checkByPerson(node, false);
    EXPECT_EQ(1U, ticked.size()) << "it is clear already";
}

TEST(TreeView, ThePersonCantTickWithoutBoxesOrInAHiddenTree)
{
    TreeView tree;
    TreeNode& node = tree.add("a");
    tree.checkByPerson(node, true);
    EXPECT_FALSE(node.checked());
    tree.setCheckBoxes(true);
    tree.setVisible(false);
    tree.checkByPerson(node, true);
    EXPECT_FALSE(node.checked());
}

TEST(TreeView, ThePersonOpensAndClosesNodes)
{
    TreeView tree;
    TreeNode& node = tree.add("a");
    tree.expandByPerson(node, true);
    EXPECT_TRUE(node.expanded());
    tree.expandByPerson(node, false);
    EXPECT_FALSE(node.expanded());
}

TEST(TreeView, ThePointerFindsNodesThroughTheHost)
{
    TreeView tree;
    TreeNode& node = tree.add("a", "the key");
    EXPECT_EQ(nullptr, tree.hitTest(1, 1));
    tree.hitTester = [&](int, int y) { return y < 20 ? &node : nullptr; };
    tree.onMouseMove = [&](int x, int y) {
        if (const TreeNode* under = tree.hitTest(x, y)) tree.setToolTip(under->key());
    };
    tree.mouseMove(5, 30);
    EXPECT_EQ("", tree.toolTip());
    tree.mouseMove(5, 10);
    EXPECT_EQ("the key", tree.toolTip());
}

TEST(TreeView, AClearedTreeTakesTheSameKeysAgain)
{
    TreeView tree;
    tree.addChild(tree.add("a", "a"), "b", "b").ensureVisible();
    tree.clear();
    EXPECT_EQ(0, tree.count());
    EXPECT_TRUE(tree.roots().empty());
    EXPECT_EQ(nullptr, tree.nodeInSight());
    tree.add("a", "a");
    EXPECT_EQ(1, tree.count());
}

TEST(TreeView, TenThousandNodesKeepTheirOrder)
{
    TreeView tree;
    TreeNode& root = tree.add("root");
    for (int index = 0; index < 10'000; ++index)
        tree.addChild(root, "node", "key" + std::to_string(index));
    EXPECT_EQ(10'000, root.children());
    int walked = 0;
    for (TreeNode* node = root.child(); node; node = node->next()) {
        EXPECT_EQ("key" + std::to_string(walked), node->key());
        ++walked;
    }
    EXPECT_EQ(10'000, walked);
}

TEST(TreeView, ANodeHeldPastAClearingHasNoRelativesAndRefusesChanges)
{
    TreeView tree;
    TreeNode& root = tree.add("root");
    tree.addChild(root, "leaf");
    tree.add("other");
    const std::shared_ptr<TreeNode> held = tree.hold(2);
    const std::shared_ptr<TreeNode> heldRoot = tree.hold(1);
    tree.clear();

    EXPECT_EQ("leaf", held->text());
    EXPECT_EQ(nullptr, held->parent());
    EXPECT_EQ(nullptr, heldRoot->next());
    EXPECT_EQ(0, heldRoot->children());
    EXPECT_EQ(35605, errorNumberOf([&] { held->setBold(true); }));
    EXPECT_EQ(35605, errorNumberOf([&] { held->setKey("key"); }));
    EXPECT_EQ(35605, errorNumberOf([&] { held->ensureVisible(); }));
    EXPECT_EQ(35605, errorNumberOf([&] { held->fullPath(); }));
}

TEST(TreeView, ATreeThatIsFilledAnewTellsItselfFromTheOneBefore)
{
    TreeView tree;
    tree.add("a");
    const unsigned before = tree.generation();
    tree.add("b");
    tree.item(1).setText("c");
    EXPECT_EQ(before, tree.generation()) << "the same nodes, and one more";

    tree.clear();
    tree.add("c");
    tree.add("b");
    EXPECT_NE(before, tree.generation());
}

TEST(TreeView, ANodeMayOutliveItsTree)
{
    std::shared_ptr<TreeNode> held;
    {
        TreeView tree;
        tree.add("a");
        held = tree.hold(1);
    }
    EXPECT_EQ(35605, errorNumberOf([&] { held->setText("b"); }));
}
