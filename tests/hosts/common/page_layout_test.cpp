#include "hosts/common/page_layout.h"

#include "controls/controls.h"
#include "controls/sheet_page.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace {

using Kind = PageRow::Kind;
using Width = PageRow::Width;

/// A page of the controls that a test declares, each named for what it is.
struct Page final : SheetPage {
    Page() : SheetPage("page") {}

    template <typename Made, typename... Arguments>
    Page& with(const std::string& name, ControlRole role, Arguments... arguments)
    {
        controls_.push_back(std::make_unique<Made>(arguments...));
        declare(name, role, *controls_.back());
        return *this;
    }

private:
    std::vector<std::unique_ptr<Control>> controls_;
};

/// A row in a text: its controls by name, "caption: field button", "+" in front of one that grows.
std::string textOf(const Page& page, const PageRow& row)
{
    std::string text = row.grows ? "+" : "";
    if (row.caption) text += page.controls()[*row.caption].name + ":";
    for (const std::size_t index : row.controls)
        text += (text.empty() || text == "+" ? "" : " ") + page.controls()[index].name;
    return text;
}

std::vector<std::string> rowsOf(const Page& page, bool banner = false)
{
    std::vector<std::string> rows;
    for (const PageRow& row : layoutOf(page, banner).rows) rows.push_back(textOf(page, row));
    return rows;
}

using Rows = std::vector<std::string>;

} // namespace

TEST(PageLayout, PutsTitleAndDescriptionOnTheBandThatAWizardHas)
{
    Page page;
    page.with<Label>("title", ControlRole::title)
        .with<Label>("description", ControlRole::description)
        .with<Label>("body", ControlRole::body);

    EXPECT_EQ((std::vector<std::size_t>{0, 1}), layoutOf(page, true).banner);
    EXPECT_EQ((Rows{"body"}), rowsOf(page, true));
    EXPECT_TRUE(layoutOf(page, false).banner.empty());
    EXPECT_EQ((Rows{"title", "description", "body"}), rowsOf(page));
}

TEST(PageLayout, PutsAFieldBesideItsCaptionWithTheFieldsAndTheButtonBehindIt)
{
    Page page;
    page.with<Label>("folder", ControlRole::fieldLabel)
        .with<TextBox>("path", ControlRole::field)
        .with<Button>("browse", ControlRole::action)
        .with<Label>("start", ControlRole::fieldLabel)
        .with<DateTimePicker>("date", ControlRole::field, PickerKind::date)
        .with<DateTimePicker>("time", ControlRole::field, PickerKind::time)
        .with<Label>("alone", ControlRole::fieldLabel)
        .with<CheckBox>("check", ControlRole::choice)
        .with<ComboBox>("uncaptioned", ControlRole::field);

    EXPECT_EQ((Rows{"folder: path browse", "start: date time", "alone:", "check", "uncaptioned"}),
              rowsOf(page));
    const auto rows = layoutOf(page, false).rows;
    EXPECT_EQ(Kind::field, rows[0].kind);
    EXPECT_EQ(Kind::field, rows[2].kind);
    EXPECT_EQ(Kind::alone, rows[3].kind);
    EXPECT_EQ(Kind::field, rows[4].kind);
}

TEST(PageLayout, TellsHowWideAFieldIs)
{
    Page page;
    page.with<Label>("duration", ControlRole::fieldLabel)
        .with<TextBox>("minutes", ControlRole::field)
        .with<SpinControl>("arrows", ControlRole::field, 1, 999)
        .with<Label>("start", ControlRole::fieldLabel)
        .with<DateTimePicker>("date", ControlRole::field, PickerKind::date)
        .with<Label>("folder", ControlRole::fieldLabel)
        .with<TextBox>("path", ControlRole::field);

    const auto rows = layoutOf(page, false).rows;
    ASSERT_EQ(3u, rows.size());
    EXPECT_EQ(Width::number, rows[0].width);
    EXPECT_EQ(Width::own, rows[1].width);
    EXPECT_EQ(Width::rest, rows[2].width);
}

TEST(PageLayout, LetsListsTreesAndSummariesGrow)
{
    Page page;
    page.with<Label>("languages", ControlRole::fieldLabel)
        .with<ListBox>("list", ControlRole::field)
        .with<TreeView>("tree", ControlRole::mainTree)
        .with<Label>("summary", ControlRole::summary)
        .with<ProgressBar>("bar", ControlRole::progress);

    EXPECT_EQ((Rows{"+languages: list", "+tree", "+summary", "bar"}), rowsOf(page));
}

TEST(PageLayout, PutsButtonsSideBySideAndOneControlIntoAFrame)
{
    Page page;
    page.with<Frame>("frame", ControlRole::frame)
        .with<Label>("framed", ControlRole::body)
        .with<Label>("below", ControlRole::body)
        .with<Button>("open", ControlRole::action)
        .with<Button>("launch", ControlRole::action);

    EXPECT_EQ((Rows{"frame framed", "below", "open launch"}), rowsOf(page));
    const auto rows = layoutOf(page, false).rows;
    EXPECT_EQ(Kind::frame, rows[0].kind);
    EXPECT_EQ(Kind::actions, rows[2].kind);
}

TEST(PageLayout, HasNoPlaceForATimer)
{
    Page page;
    page.with<Timer>("first", ControlRole::timer, 10, false)
        .with<Frame>("empty", ControlRole::frame)
        .with<Timer>("last", ControlRole::timer, 10, false);

    EXPECT_EQ((Rows{"empty"}), rowsOf(page));
    EXPECT_TRUE(rowsOf(Page()).empty());
}
