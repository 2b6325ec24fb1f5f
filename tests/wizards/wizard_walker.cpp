#include "wizards/wizard_walker.h"

#include "controls/controls.h"
#include "runtime/run_time_error.h"

#include <gtest/gtest.h>

#include <iostream>

namespace {

const char* nameOf(Press press)
{
    return press == Press::back ? "back" : press == Press::next ? "next" : "finish";
}

bool enabledOf(const WizardSheet& sheet, Press press)
{
    if (press == Press::back) return sheet.canGoBack();
    return press == Press::next ? sheet.canGoNext() : sheet.canFinish();
}

bool pressed(WizardSheet& sheet, Press press)
{
    if (press == Press::back) return sheet.back();
    return press == Press::next ? sheet.next() : sheet.finish();
}

} // namespace

void WizardWalker::walk(int actions)
{
    open();
    for (int action = 0; action < actions && !testing::Test::HasFailure(); ++action) {
        if (sheet_->closed()) open();
        SheetPage& page = sheet_->currentPage();
        trail_.push_back(page.name());
        act();
        if (!sheet_->closed()) wizard_.check(sheet_->currentPage());
    }
    if (testing::Test::HasFailure())
        for (const auto& step : trail_) std::cerr << step << "\n";
}

void WizardWalker::open()
{
    trail_.assign({"opened"});
    sheet_ = wizard_.make();
    work_ = wizard_.workDone();
    sheet_->show();
    EXPECT_EQ(1, sheet_->currentPosition());
    EXPECT_FALSE(sheet_->canGoBack()) << "the first page has none before it";
    expectArrival();
    expectWork(0);
}

void WizardWalker::act()
{
    const int choice = below(100);
    if (choice < 30) return press(Press::next);
    if (choice < 45) return press(Press::back);
    if (choice < 50) return press(Press::finish);
    if (choice < 52) return cancel();
    if (choice < 60) return tickTimer();
    const auto& controls = sheet_->currentPage().controls();
    use(*controls[static_cast<std::size_t>(below(static_cast<int>(controls.size())))].control);
}

void WizardWalker::press(Press press)
{
    trail_.back() += std::string(" ") + nameOf(press);
    const bool enabled = enabledOf(*sheet_, press);
    const int place = sheet_->currentPosition();
    const WizardButtons before = sheet_->buttons();
    const bool works = enabled && wizard_.works(sheet_->currentPage(), press);

    EXPECT_EQ(enabled, pressed(*sheet_, press));
    expectWork(works ? 1 : 0);
    if (enabled && press == Press::finish) {
        EXPECT_TRUE(sheet_->closed());
    } else if (sheet_->currentPosition() != place) {
        EXPECT_TRUE(enabled);
        expectArrival();
    } else {
        EXPECT_EQ(before, sheet_->buttons()) << "who stays keeps the buttons";
    }
}

void WizardWalker::use(Control& control)
{
    trail_.back() += " uses a control";
    const int place = sheet_->currentPosition();
    if (auto* tree = dynamic_cast<TreeView*>(&control)) {
        if (tree->count() == 0) return;
        TreeNode& node = tree->item(1 + below(tree->count()));
        const int what = below(4);
        if (what == 0)
            tree->expandByPerson(node, below(2) == 0);
        else
            tree->checkByPerson(node, what > 1);
    } else if (auto* box = dynamic_cast<CheckBox*>(&control)) {
        box->click();
    } else if (auto* options = dynamic_cast<OptionButtonGroup*>(&control)) {
        options->click(below(options->count()));
    } else if (auto* button = dynamic_cast<Button*>(&control)) {
        button->click();
    } else {
        enter(control);
    }
    EXPECT_EQ(place, sheet_->currentPosition()) << "no control leaves the page";
    expectWork(0);
}

/// What a page makes of an entry that it can't use, it may raise to its host.
void WizardWalker::enter(Control& control)
try {
    if (auto* text = dynamic_cast<TextBox*>(&control)) {
        const char* const typed[] = {"", "0", "1", "24", "5x", "1000"};
        text->setByPerson(typed[below(6)]);
    } else if (auto* spin = dynamic_cast<SpinControl*>(&control)) {
        below(2) == 0 ? spin->stepUp() : spin->stepDown();
    } else if (auto* picker = dynamic_cast<DateTimePicker*>(&control)) {
        picker->setByPerson(addHours(picker->value(), below(200) - 100));
    }
} catch (const RunTimeError&) {
    trail_.back() += " in vain";
}

void WizardWalker::tickTimer()
{
    trail_.back() += " ticks";
    const auto timers = sheet_->timers();
    if (timers.empty()) return;
    const int place = sheet_->currentPosition();
    sheet_->tick(*timers[static_cast<std::size_t>(below(static_cast<int>(timers.size())))]);
    work_ = wizard_.workDone();
    if (!sheet_->closed() && sheet_->currentPosition() != place) expectArrival();
}

void WizardWalker::cancel()
{
    trail_.back() += " cancel";
    sheet_->cancel();
    EXPECT_TRUE(sheet_->closed());
    EXPECT_FALSE(sheet_->next());
    EXPECT_FALSE(sheet_->back());
    EXPECT_FALSE(sheet_->finish());
    EXPECT_TRUE(sheet_->timers().empty());
    expectWork(0);
}

void WizardWalker::expectArrival()
{
    const SheetPage& page = sheet_->currentPage();
    arrivals_.insert(page.name());
    const bool waits = wizard_.waitForChoice.count(page.name()) > 0;
    EXPECT_EQ(!waits, sheet_->canGoNext() || sheet_->canFinish()) << "on " << page.name();
    for (const PageControl& declared : page.controls())
        if (declared.role == ControlRole::title) {
            EXPECT_NE("", dynamic_cast<CaptionedControl&>(*declared.control).caption());
        }
}

void WizardWalker::expectWork(int expected)
{
    EXPECT_EQ(work_ + expected, wizard_.workDone()) << trail_.back();
    work_ = wizard_.workDone();
}
