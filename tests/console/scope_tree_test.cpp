#include "console/scope_tree.h"

#include "controls/recording_observer.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Texts = std::vector<std::string>;

struct RecordingListener final : ScopeTreeListener {
    Texts heard;

    void itemAdded(ScopeItem& item) override { heard.push_back("added " + item.key()); }
    void itemChanged(ScopeItem& item) override { heard.push_back("changed " + item.key()); }
    void itemLeaving(ScopeItem& item) override { heard.push_back("leaving " + item.key()); }
    void itemRemoved(ScopeItem& item) override { heard.push_back("removed " + item.key()); }
};

struct ScopeTreeTest : testing::Test {
    RecordingListener listener;
    ScopeTree tree{listener};
    ScopeItem& root = tree.addRoot("root", "Static Node");

    Texts keys() const
    {
        Texts found;
        for (int position = 1; position <= tree.count(); ++position)
            found.push_back(tree.item(position).key());
        return found;
    }
};

} // namespace

TEST_F(ScopeTreeTest, CountsPositionsFromOneInTheOrderOfComing)
{
    ScopeItem& process = tree.addChild("nodeProcesses", "RoCsMgr", root);
    tree.addChild("nodeLogs", "log", process);
    tree.addChild("nodeProcesses", "RoLogMgr", root);

    EXPECT_EQ((Texts{"Static Node", "RoCsMgr", "log", "RoLogMgr"}), keys());
    EXPECT_EQ(9, errorNumberOf([&] { tree.item(0); }));
    EXPECT_EQ(9, errorNumberOf([&] { tree.item(5); }));
}

TEST_F(ScopeTreeTest, FindsAnItemByItsExactKey)
{
    ScopeItem& process = tree.addChild("nodeProcesses", "RoCsMgr", root);

    EXPECT_EQ(&process, &tree.item("RoCsMgr"));
    EXPECT_EQ(nullptr, tree.find("rocsmgr"));
    EXPECT_EQ(35601, errorNumberOf([&] { tree.item("rocsmgr"); }));
}

TEST_F(ScopeTreeTest, GivesTheKeysThatBeginWithATextInAnyCaseTheYoungestFirst)
{
    for (const char* key :
         {"diag_RoCsMgr_2", "RoCsMgr", "DIAG_rocsmgr_1", "diag_RoLogMgr_1", "diag_"})
        tree.addChild("nodeLogs", key, root);

    EXPECT_EQ((Texts{"DIAG_rocsmgr_1", "diag_RoCsMgr_2"}), tree.keysBeginningWith("Diag_RoCsMgr"));
    EXPECT_EQ(4U, tree.keysBeginningWith("diag_").size());
    EXPECT_EQ(Texts{}, tree.keysBeginningWith("diag_RoTelephony"));

    tree.remove("diag_RoCsMgr_2");
    tree.addChild("nodeLogs", "Diag_ROCSMGR_1", root);
    tree.remove("DIAG_rocsmgr_1");
    EXPECT_EQ(Texts{"Diag_ROCSMGR_1"}, tree.keysBeginningWith("diag_rocsmgr"));
}

TEST_F(ScopeTreeTest, RaisesTheConsolesOwnErrorForAKeyThatIsThereAlready)
{
    tree.addChild("nodeProcesses", "RoCsMgr", root);

    EXPECT_EQ(9511, errorNumberOf([&] { tree.addChild("nodeLogs", "RoCsMgr", root); }));
    EXPECT_EQ(2, tree.count());
    EXPECT_EQ(1u, root.children().size());
}

TEST_F(ScopeTreeTest, RemovesAnItemWithAllBelowItDeepestFirst)
{
    ScopeItem& process = tree.addChild("nodeProcesses", "process", root);
    tree.addChild("nodeProcesses", "other", root);
    ScopeItem& log = tree.addChild("nodeLogs", "log", process);
    tree.addChild("nodeLogs", "below", log);
    listener.heard.clear();

    tree.remove("process");

    EXPECT_EQ((Texts{"Static Node", "other"}), keys());
    EXPECT_EQ(1u, root.children().size());
    EXPECT_EQ((Texts{"leaving process", "removed below", "removed log", "removed process"}),
              listener.heard);
    EXPECT_EQ(35601, errorNumberOf([&] { tree.remove("log"); }));
}

TEST_F(ScopeTreeTest, LetsAKeyComeAgainAfterItsRemoval)
{
    tree.addChild("nodeLogs", "log", root);
    tree.remove("log");

    EXPECT_EQ("log", tree.addChild("nodeLogs", "log", root).key());
}

TEST_F(ScopeTreeTest, LeavesNothingOfARemovedItemToWhoKeepsItWeakly)
{
    const std::weak_ptr<ScopeItem> kept = tree.addChild("nodeLogs", "log", root).weak_from_this();

    tree.remove("log");

    EXPECT_TRUE(kept.expired());
}

TEST_F(ScopeTreeTest, TakesNoChildForAnItemThatIsOutOfTheTree)
{
    const auto kept = tree.addChild("nodeLogs", "log", root).shared_from_this();
    tree.remove("log");

    EXPECT_FALSE(kept->inTree());
    EXPECT_EQ(nullptr, kept->parent());
    EXPECT_EQ(5, errorNumberOf([&] { tree.addChild("nodeLogs", "new", *kept); }));
}

TEST_F(ScopeTreeTest, TellsOfChangesWhileTheItemIsInTheTree)
{
    const auto kept = tree.addChild("nodeLogs", "log", root).shared_from_this();
    listener.heard.clear();

    kept->name("log");
    kept->displayName("Current- log");
    kept->kind("LogFile");
    EXPECT_EQ((Texts{"changed log", "changed log", "changed log"}), listener.heard);

    tree.remove("log");
    listener.heard.clear();
    kept->displayName("log");
    EXPECT_TRUE(listener.heard.empty());
}
