#include "end_to_end/site_record.h"
#include "hosts/common/look/notice_bar.h"
#include "hosts/desktop/log/list_table.h"
#include "hosts/desktop/log/log_view.h"
#include "hosts/desktop/sheets/sheet_dialog.h"
#include "hosts/desktop/support/open_program.h"
#include "hosts/desktop/support/outside_view.h"
#include "hosts/desktop/support/person.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QTreeView>

#include <gmock/gmock.h>

#include <unistd.h>

namespace desktop {

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::IsEmpty;

/// Takes the leave to write from a folder, and root's own from the process, until it goes: the
/// superuser may write everywhere.
class WithoutLeave {
public:
    explicit WithoutLeave(const std::string& folder) : folder_(folder)
    {
        change(fs::perm_options::remove);
        if (!superuser_) return;
        constexpr uid_t nobody = 65534;
        EXPECT_EQ(0, ::setegid(nobody));
        EXPECT_EQ(0, ::seteuid(nobody));
    }
    ~WithoutLeave()
    {
        if (superuser_) {
            EXPECT_EQ(0, ::seteuid(0));
            EXPECT_EQ(0, ::setegid(0));
        }
        change(fs::perm_options::add);
    }
    WithoutLeave(const WithoutLeave&) = delete;
    WithoutLeave& operator=(const WithoutLeave&) = delete;

private:
    void change(fs::perm_options how) const
    {
        const auto write =
            fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
        const auto read = fs::perms::group_read | fs::perms::others_read | fs::perms::group_exec |
                          fs::perms::others_exec;
        fs::permissions(fs::path(folder_).parent_path(), read, fs::perm_options::add);
        for (const auto& entry : fs::recursive_directory_iterator(folder_)) {
            fs::permissions(entry.path(), read, fs::perm_options::add);
            fs::permissions(entry.path(), write, how);
        }
        fs::permissions(folder_, read, fs::perm_options::add);
        fs::permissions(folder_, write, how);
    }

    std::string folder_;
    bool superuser_ = ::geteuid() == 0;
};

/// A program that opens a sample server anew when nothing in it may be written.
struct ReadOnlySite : testing::Test {
    ReadOnlySite()
    {
        shown.program.close();
        locked = std::make_unique<WithoutLeave>(shown.server.site());
        shown.program.openSite(shown.server.site());
        settle();
    }

    std::string problem() { return shown.window().problem().toStdString(); }

    OpenProgram shown;
    OutsideView site{shown.server.site()};
    std::unique_ptr<WithoutLeave> locked;
};

TEST_F(ReadOnlySite, IsReadAndSaysWhatCannotBeDone)
{
    EXPECT_THAT(problem(), HasSubstr("read-only"));
    EXPECT_THAT(problem(), HasSubstr("open a copy"));
    EXPECT_EQ(shown.server.site(), shown.program.tool()->site().folder());
    shown.showLog("KoCSMgr");
    EXPECT_GT(shown.log().model().rowCount(), 10);
    person::press(QKeySequence("F5"));
    EXPECT_GT(shown.log().model().rowCount(), 10);
    EXPECT_THAT(problem(), HasSubstr("read-only"));
}

TEST_F(ReadOnlySite, StaysAsItIsWhateverIsTried)
{
    const auto before = recordOf(shown.server.site());
    const auto flags = site.flags();
    const std::string registry = site.text("registry.reg");
    for (const char* key : {"Ctrl+1", "Ctrl+2"}) {
        SCOPED_TRACE(key);
        person::press(QKeySequence(QLatin1String(key)));
        person::clickButton(shown.sheet(), "Next >");
        QTreeView* tree = nullptr;
        for (auto* view : shown.sheet().findChildren<QTreeView*>())
            if (view->isVisible()) tree = view;
        ASSERT_NE(nullptr, tree);
        person::clickTick(*tree, tree->model()->index(0, 0));
        person::clickButton(shown.sheet(), "Next >");
        person::clickButton(shown.sheet(), "Finish");
        EXPECT_EQ(nullptr, shown.pane().sheet());
    }
    person::press(QKeySequence("Ctrl+4"));
    person::press(QKeySequence("Ctrl+6"));
    shown.sheet().findChild<QComboBox*>()->setFocus();
    person::press(Qt::Key_Down);
    person::clickButton(shown.sheet(), "OK");
    EXPECT_EQ(nullptr, shown.pane().sheet());

    EXPECT_EQ(flags, site.flags());
    EXPECT_EQ(registry, site.text("registry.reg"));
    EXPECT_THAT(problem(), HasSubstr("read-only"));
    shown.program.close();
    EXPECT_EQ(before, recordOf(shown.server.site()));
    EXPECT_TRUE(shown.window().isVisible());
}

TEST_F(ReadOnlySite, SaysSoAgainInPlaceOfATextThatSoundsLikeADeed)
{
    auto* notice = shown.window().findChild<NoticeBar*>();
    for (const bool byCard : {false, true}) {
        SCOPED_TRACE(byCard ? "card" : "key");
        person::click(*notice->findChild<QAbstractButton*>());
        ASSERT_FALSE(notice->isVisible());
        byCard ? shown.clickCard("4") : person::press(QKeySequence("Ctrl+4"));
        EXPECT_EQ(QString(), shown.window().statusText());
        EXPECT_TRUE(notice->isVisible());
        EXPECT_THAT(problem(), HasSubstr("read-only"));
    }
}

TEST_F(ReadOnlySite, IsGatheredToAFolderElsewhere)
{
    const std::string target = shown.server.folder() / "gathered";
    locked.reset();
    fs::create_directories(target);
    fs::permissions(target, fs::perms::all);
    locked = std::make_unique<WithoutLeave>(shown.server.site());
    shown.clickCard("5");
    person::pickNext(target);
    person::clickButton(shown.sheet(), "Browse...");
    person::clickButton(shown.sheet(), "Next >");
    EXPECT_TRUE(waitUntil(
        [&] { return fs::exists(target + "/System.csv") && !shown.pane().sheetAtWork(); }));
    const auto files = std::distance(fs::directory_iterator(target), fs::directory_iterator());
    EXPECT_EQ(3, files);
    person::press(Qt::Key_Escape);
}

TEST_F(ReadOnlySite, BecomesWritableAtTheNextF5)
{
    locked.reset();
    const auto before = site.text("registry.reg");
    person::press(QKeySequence("F5"));
    EXPECT_THAT(problem(), IsEmpty());
    person::press(QKeySequence("Ctrl+4"));
    EXPECT_NE(before, site.text("registry.reg")) << "new log files are asked for";
}

} // namespace

} // namespace desktop
