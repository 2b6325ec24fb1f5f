#include "hosts/mmc/sheets/control_views.h"

#include "console/wizard_sheet.h"
#include "hosts/mmc/sheets/every_control_page.h"
#include "hosts/mmc/sheets/sheet_on_show.h"

#include <gmock/gmock.h>

#include <cstring>

namespace mmc {

namespace {

using testing::ElementsAre;

/// A wizard of one page with a control of every kind.
struct ControlViewsTest : testing::Test {
    ControlViewsTest()
    {
        auto made = std::make_unique<EveryControlPage>();
        page = made.get();
        sheet->addPage(std::move(made), "Page title", false);
    }

    void show()
    {
        sheet->show();
        shown = std::make_unique<SheetOnShow>(tool, sheet);
    }

    HWND find(const wchar_t* kind, int number = 0) const { return shown->find(kind, number); }

    HWND button(const std::wstring& caption) const
    {
        for (const HWND window : childrenOf(shown->frame().page(), WC_BUTTONW))
            if (shownText(window) == caption) return window;
        ADD_FAILURE() << "no such button";
        return nullptr;
    }

    /// What windows tell their page of.
    void tell(HWND from, int code) const
    {
        SendMessageW(shown->frame().page(), WM_COMMAND, MAKEWPARAM(0, code),
                     reinterpret_cast<LPARAM>(from));
        settle();
    }

    void click(HWND button) const
    {
        SendMessageW(button, BM_CLICK, 0, 0);
        settle();
    }

    HTREEITEM item(UINT relation, HTREEITEM of = nullptr) const
    {
        return reinterpret_cast<HTREEITEM>(SendMessageW(find(WC_TREEVIEWW), TVM_GETNEXTITEM,
                                                        relation, reinterpret_cast<LPARAM>(of)));
    }
    HTREEITEM group() const { return item(TVGN_ROOT); }
    HTREEITEM leafOne() const { return item(TVGN_CHILD, group()); }
    HTREEITEM leafTwo() const { return item(TVGN_NEXT, leafOne()); }

    UINT state(HTREEITEM of, UINT mask) const
    {
        return static_cast<UINT>(SendMessageW(find(WC_TREEVIEWW), TVM_GETITEMSTATE,
                                              reinterpret_cast<WPARAM>(of), mask)) &
               mask;
    }
    bool ticked(HTREEITEM of) const
    {
        return state(of, TVIS_STATEIMAGEMASK) == INDEXTOSTATEIMAGEMASK(2);
    }

    /// Where an item's tick is on the window.
    LPARAM tickOf(HTREEITEM of) const
    {
        RECT area{};
        std::memcpy(&area, &of, sizeof of);
        SendMessageW(find(WC_TREEVIEWW), TVM_GETITEMRECT, FALSE, reinterpret_cast<LPARAM>(&area));
        TVHITTESTINFO hit{};
        hit.pt.y = (area.top + area.bottom) / 2;
        for (hit.pt.x = area.left; hit.pt.x < area.right; ++hit.pt.x) {
            SendMessageW(find(WC_TREEVIEWW), TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
            if (hit.flags & TVHT_ONITEMSTATEICON) return MAKELPARAM(hit.pt.x + 3, hit.pt.y);
        }
        ADD_FAILURE() << "the item has no tick";
        return 0;
    }

    void clickTick(HTREEITEM of) const
    {
        const HWND tree = find(WC_TREEVIEWW);
        const LPARAM at = tickOf(of);
        PostMessageW(tree, WM_LBUTTONUP, 0, at);
        SendMessageW(tree, WM_LBUTTONDOWN, MK_LBUTTON, at);
        settle();
    }

    ToolSide tool;
    std::shared_ptr<WizardSheet> sheet = std::make_shared<WizardSheet>("Title");
    EveryControlPage* page = nullptr;
    std::unique_ptr<SheetOnShow> shown;
};

TEST_F(ControlViewsTest, TextsStandAsTheModelHasThem)
{
    show();
    std::vector<std::wstring> texts;
    for (const HWND label : childrenOf(shown->frame().page(), WC_STATICW))
        texts.push_back(shownText(label));
    EXPECT_THAT(texts, ElementsAre(L"Title", L"What the page is for", L"A & B \u00e9",
                                   L"In the frame", L"Text:", L"Choice:", L"Date:", L"List:", L""));
    EXPECT_NE(nullptr, button(L"Frame && box"));
    page->body.setCaption("Another\r\none");
    settle();
    EXPECT_EQ(L"Another\none", shownText(find(WC_STATICW, 2)));
}

TEST_F(ControlViewsTest, AnEmptyParagraphTakesNoRoomAndATextThatComesDoes)
{
    page->body.setCaption("");
    show();
    const auto topOf = [](HWND window) {
        RECT area{};
        GetWindowRect(window, &area);
        return area.top;
    };
    const auto before = topOf(button(L"Frame && box"));
    page->body.setCaption("Here");
    settle();
    EXPECT_GT(topOf(button(L"Frame && box")), before);
}

TEST_F(ControlViewsTest, ControlsThatAreHiddenOrDisabledShowSo)
{
    page->check.setVisible(false);
    page->button.setEnabled(false);
    show();
    EXPECT_FALSE(IsWindowVisible(button(L"Check")));
    EXPECT_FALSE(IsWindowEnabled(button(L"&Browse...")));
    page->check.setVisible(true);
    page->button.setEnabled(true);
    settle();
    EXPECT_TRUE(IsWindowVisible(button(L"Check")));
    EXPECT_TRUE(IsWindowEnabled(button(L"&Browse...")));
}

TEST_F(ControlViewsTest, ACheckBoxIsTickedByTheModel)
{
    show();
    click(button(L"Check"));
    EXPECT_TRUE(page->check.checked());
    EXPECT_EQ(BST_CHECKED, SendMessageW(button(L"Check"), BM_GETCHECK, 0, 0));
    page->check.onClick = [&] { page->check.setChecked(true); }; // the page wants it ticked
    click(button(L"Check"));
    EXPECT_EQ(BST_CHECKED, SendMessageW(button(L"Check"), BM_GETCHECK, 0, 0));
}

TEST_F(ControlViewsTest, OptionsShowTheChosenOne)
{
    show();
    EXPECT_EQ(BST_UNCHECKED, SendMessageW(button(L"First"), BM_GETCHECK, 0, 0));
    click(button(L"Second"));
    EXPECT_EQ(1, page->options.selected());
    page->options.select(0);
    settle();
    EXPECT_EQ(BST_CHECKED, SendMessageW(button(L"First"), BM_GETCHECK, 0, 0));
    EXPECT_EQ(BST_UNCHECKED, SendMessageW(button(L"Second"), BM_GETCHECK, 0, 0));
}

TEST_F(ControlViewsTest, AButtonIsClicked)
{
    int clicks = 0;
    page->button.onClick = [&] { ++clicks; };
    show();
    click(button(L"&Browse..."));
    EXPECT_EQ(1, clicks);
}

TEST_F(ControlViewsTest, ATextIsTypedAndTakenBackByThePage)
{
    page->text.setText("1");
    show();
    const HWND edit = find(WC_EDITW);
    EXPECT_EQ(L"1", shownText(edit));
    SetWindowTextW(edit, L"12\u00e9");
    settle();
    EXPECT_EQ("12\u00e9", page->text.text());
    page->text.onChange = [&] { page->text.setText("7"); };
    SetWindowTextW(edit, L"x");
    settle();
    EXPECT_EQ(L"7", shownText(edit));
}

TEST_F(ControlViewsTest, ThePageLooksAtEachKeyOfATextBox)
{
    page->text.onKeyPress = [](int code) { return code == 'a' ? 0 : code == 'b' ? 'B' : code; };
    show();
    const HWND edit = find(WC_EDITW);
    for (const wchar_t key : std::wstring(L"abc")) SendMessageW(edit, WM_CHAR, key, 0);
    settle();
    EXPECT_EQ(L"Bc", shownText(edit));
    EXPECT_EQ("Bc", page->text.text());
    SendMessageW(edit, WM_CHAR, VK_BACK, 0);
    settle();
    EXPECT_EQ("B", page->text.text());
}

TEST_F(ControlViewsTest, AReadOnlyTextTakesNoKeys)
{
    page->text.setText("fixed");
    page->text.setReadOnly(true);
    show();
    const HWND edit = find(WC_EDITW);
    EXPECT_TRUE(GetWindowLongPtrW(edit, GWL_STYLE) & ES_READONLY);
    SendMessageW(edit, WM_CHAR, 'x', 0);
    settle();
    EXPECT_EQ(L"fixed", shownText(edit));
}

TEST_F(ControlViewsTest, AComboBoxTakesChoicesAndTexts)
{
    page->combo.setSelectedIndex(0);
    show();
    const HWND combo = find(WC_COMBOBOXW);
    EXPECT_EQ(2, SendMessageW(combo, CB_GETCOUNT, 0, 0));
    EXPECT_EQ(L"one", shownText(combo));
    SendMessageW(combo, CB_SETCURSEL, 1, 0);
    tell(combo, CBN_SELCHANGE);
    EXPECT_EQ(1, page->combo.selectedIndex());
    EXPECT_EQ(L"two", shownText(combo));
    SetWindowTextW(combo, L"three");
    tell(combo, CBN_EDITCHANGE);
    EXPECT_EQ("three", page->combo.text());
    EXPECT_EQ(-1, page->combo.selectedIndex());
    EXPECT_EQ(L"three", shownText(combo));
}

TEST_F(ControlViewsTest, AListTakesAChoice)
{
    show();
    const HWND list = find(WC_LISTBOXW);
    EXPECT_EQ(2, SendMessageW(list, LB_GETCOUNT, 0, 0));
    EXPECT_EQ(LB_ERR, SendMessageW(list, LB_GETCURSEL, 0, 0));
    SendMessageW(list, LB_SETCURSEL, 1, 0);
    tell(list, LBN_SELCHANGE);
    EXPECT_EQ("FRA", page->list.text());
    page->list.clear();
    page->list.addItem("DEU");
    page->list.setSelectedIndex(0);
    settle();
    EXPECT_EQ(1, SendMessageW(list, LB_GETCOUNT, 0, 0));
    EXPECT_EQ(0, SendMessageW(list, LB_GETCURSEL, 0, 0));
}

TEST_F(ControlViewsTest, PickersTakeTheirPartOfAMoment)
{
    show();
    const auto pick = [&](int number, const SYSTEMTIME& moment) {
        const HWND picker = find(DATETIMEPICK_CLASSW, number);
        NMDATETIMECHANGE change{};
        change.nmhdr.hwndFrom = picker;
        change.nmhdr.code = static_cast<UINT>(DTN_DATETIMECHANGE);
        change.dwFlags = GDT_VALID;
        change.st = moment;
        SendMessageW(picker, DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&moment));
        SendMessageW(shown->frame().page(), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&change));
        settle();
    };
    SYSTEMTIME held{};
    SendMessageW(find(DATETIMEPICK_CLASSW, 1), DTM_GETSYSTEMTIME, 0,
                 reinterpret_cast<LPARAM>(&held));
    EXPECT_EQ(17, held.wHour);
    EXPECT_EQ(2025, held.wYear);

    pick(0, {2024, 12, 0, 31, 1, 2, 3, 0});
    pick(1, {2020, 1, 0, 1, 8, 9, 10, 0});
    EXPECT_EQ(dateOf(2024, 12, 31, 17, 42, 5), page->date.value());
    EXPECT_EQ(dateOf(2025, 2, 20, 8, 9, 10), page->time.value());
}

TEST_F(ControlViewsTest, ArrowsCountInTheModel)
{
    page->spin.setValue(5);
    page->spin.onChange = [&] { page->text.setText(std::to_string(page->spin.value())); };
    show();
    const HWND arrows = find(UPDOWN_CLASSW);
    const auto turn = [&](int steps) {
        NMUPDOWN change{};
        change.hdr.hwndFrom = arrows;
        change.hdr.code = static_cast<UINT>(UDN_DELTAPOS);
        change.iDelta = steps;
        SendMessageW(shown->frame().page(), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&change));
        settle();
    };
    turn(1);
    turn(1);
    turn(-1);
    EXPECT_EQ(6, page->spin.value());
    EXPECT_EQ(L"6", shownText(find(WC_EDITW)));
}

TEST_F(ControlViewsTest, ABarShowsItsShare)
{
    page->bar.setMaximum(4);
    page->bar.setValue(1);
    show();
    const HWND bar = find(PROGRESS_CLASSW);
    EXPECT_EQ(250, SendMessageW(bar, PBM_GETPOS, 0, 0));
    page->bar.setValue(3);
    page->bar.refresh(); // no message is handled meanwhile
    EXPECT_EQ(750, SendMessageW(bar, PBM_GETPOS, 0, 0));
}

TEST_F(ControlViewsTest, ASummaryKeepsItsLines)
{
    page->summary.setCaption("one\ntwo");
    show();
    const HWND summary = find(WC_EDITW, 1);
    EXPECT_EQ(L"one\r\ntwo", shownText(summary));
    EXPECT_EQ(2, SendMessageW(summary, EM_GETLINECOUNT, 0, 0));
}

TEST_F(ControlViewsTest, ATreeShowsNodesTicksAndWhatIsOpen)
{
    page->tree.item(1).setExpanded(true);
    show();
    EXPECT_EQ(5, SendMessageW(find(WC_TREEVIEWW), TVM_GETCOUNT, 0, 0));
    EXPECT_EQ(TVIS_BOLD, state(group(), TVIS_BOLD));
    EXPECT_EQ(TVIS_EXPANDED, state(group(), TVIS_EXPANDED));
    EXPECT_EQ(0U, state(item(TVGN_NEXT, group()), TVIS_EXPANDED));
    EXPECT_FALSE(ticked(leafOne()));
    EXPECT_TRUE(ticked(leafTwo()));

    page->tree.item(1).setExpanded(false);
    page->tree.item(2).setChecked(true);
    settle();
    EXPECT_EQ(0U, state(group(), TVIS_EXPANDED));
    EXPECT_TRUE(ticked(leafOne()));
    page->fillTree();
    settle();
    EXPECT_EQ(5, SendMessageW(find(WC_TREEVIEWW), TVM_GETCOUNT, 0, 0));
    EXPECT_FALSE(ticked(leafOne()));
}

TEST_F(ControlViewsTest, ANodeThatComesInSightLeavesTheTicksThere)
{
    const std::string longText(300, 'x');
    page->tree.addChild(page->tree.item(1), longText).ensureVisible();
    show();
    RECT area{};
    const HTREEITEM shownLast = item(TVGN_NEXT, leafTwo());
    std::memcpy(&area, &shownLast, sizeof shownLast);
    ASSERT_TRUE(
        SendMessageW(find(WC_TREEVIEWW), TVM_GETITEMRECT, TRUE, reinterpret_cast<LPARAM>(&area)));
    EXPECT_GT(area.left, 30) << "there is no room for a tick before the text";
}

TEST_F(ControlViewsTest, ALongCaptionLeavesItsFieldMostOfTheWidth)
{
    page->comboLabel.setCaption("A caption that is much longer than a caption beside a field is");
    show();
    RECT whole{};
    RECT field{};
    GetWindowRect(shown->frame().page(), &whole);
    GetWindowRect(find(WC_COMBOBOXW), &field);
    EXPECT_GT(2 * (field.right - field.left), whole.right - whole.left);
}

TEST_F(ControlViewsTest, ACaptionTakesNoMoreWidthThanItsLinesNeed)
{
    constexpr int caption = 5;
    page->comboLabel.setCaption("Maximum Space for Diagnostic Files (MB)");
    show();
    const HWND label = find(WC_STATICW, caption);
    ASSERT_EQ(L"Maximum Space for Diagnostic Files (MB)", shownText(label));
    RECT area{};
    GetClientRect(label, &area);
    const auto font = reinterpret_cast<HFONT>(SendMessageW(label, WM_GETFONT, 0, 0));
    const std::wstring text = shownText(label);
    EXPECT_EQ(area.bottom, textSize(font, text, area.right, 0).cy) << "the caption is cut";
    EXPECT_GT(textSize(font, text, area.right - 1, 0).cy, area.bottom)
        << "a narrower one has as many lines";
}

/// The form of a date that the person chose in Windows, until the end.
class ChosenDateForm {
public:
    explicit ChosenDateForm(const wchar_t* form)
    {
        GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SSHORTDATE, before_, most);
        SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SSHORTDATE, form);
    }
    ~ChosenDateForm() { SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SSHORTDATE, before_); }
    ChosenDateForm(const ChosenDateForm&) = delete;
    ChosenDateForm& operator=(const ChosenDateForm&) = delete;

private:
    static constexpr int most = 80;
    wchar_t before_[most] = L"";
};

TEST_F(ControlViewsTest, APickerHasRoomForTheFormOfDateThatThePersonChose)
{
    const ChosenDateForm form(L"yyyy'. year, month 'MM', day 'dd");
    show();
    const HWND picker = find(DATETIMEPICK_CLASSW);
    RECT area{};
    GetClientRect(picker, &area);
    const auto font = reinterpret_cast<HFONT>(SendMessageW(picker, WM_GETFONT, 0, 0));
    EXPECT_GT(area.right, textSize(font, L"2025. year, month 02, day 20", 0, 0).cx);
}

/// Counts the messages of a kind that a window is sent.
LRESULT CALLBACK countMessages(HWND window, UINT message, WPARAM first, LPARAM second,
                               UINT_PTR counted, DWORD_PTR count)
{
    if (message == counted) ++*reinterpret_cast<int*>(count);
    return DefSubclassProc(window, message, first, second);
}

TEST_F(ControlViewsTest, ControlsHearThatTheColoursOfTheSystemHaveChanged)
{
    show();
    int heard = 0;
    for (const wchar_t* kind : {WC_TREEVIEWW, DATETIMEPICK_CLASSW, PROGRESS_CLASSW})
        SetWindowSubclass(find(kind), countMessages, WM_SYSCOLORCHANGE,
                          reinterpret_cast<DWORD_PTR>(&heard));
    SendMessageW(shown->frame().page(), WM_SYSCOLORCHANGE, 0, 0);
    EXPECT_EQ(3, heard);
}

TEST_F(ControlViewsTest, AClickOnATickTicksAndThePageMayGoOn)
{
    page->tree.item(1).setExpanded(true);
    std::vector<std::string> heard;
    page->tree.onNodeCheck = [&](TreeNode& node) {
        heard.push_back(node.text());
        if (node.child()) node.child()->setChecked(node.checked());
    };
    show();
    clickTick(leafTwo());
    EXPECT_FALSE(page->tree.item(3).checked());
    EXPECT_FALSE(ticked(leafTwo()));
    clickTick(group());
    EXPECT_TRUE(ticked(group()));
    EXPECT_TRUE(ticked(leafOne()));
    EXPECT_THAT(heard, ElementsAre("Leaf two", "Group"));
}

TEST_F(ControlViewsTest, TheSpaceBarTicksTheNodeThatTheKeyboardIsAt)
{
    page->tree.item(1).setExpanded(true);
    show();
    const HWND tree = find(WC_TREEVIEWW);
    SendMessageW(tree, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(leafOne()));
    SendMessageW(tree, WM_KEYDOWN, VK_SPACE, 0);
    settle();
    EXPECT_TRUE(page->tree.item(2).checked());
    EXPECT_TRUE(ticked(leafOne()));
}

TEST_F(ControlViewsTest, WhatThePersonOpensIsOpenInTheModel)
{
    show();
    const HWND tree = find(WC_TREEVIEWW);
    SendMessageW(tree, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(group()));
    SendMessageW(tree, WM_KEYDOWN, VK_RIGHT, 0);
    settle();
    EXPECT_TRUE(page->tree.item(1).expanded());
    SendMessageW(tree, WM_KEYDOWN, VK_LEFT, 0);
    settle();
    EXPECT_FALSE(page->tree.item(1).expanded());
}

TEST_F(ControlViewsTest, ThePointerOverATreeIsToldAndANodeFoundBelowIt)
{
    page->tree.item(1).setExpanded(true);
    std::string over;
    page->tree.onMouseMove = [&](int x, int y) {
        const TreeNode* node = page->tree.hitTest(x, y);
        over = node ? node->text() : "none";
    };
    show();
    SendMessageW(find(WC_TREEVIEWW), WM_MOUSEMOVE, 0, tickOf(leafTwo()));
    EXPECT_EQ("Leaf two", over);
    SendMessageW(find(WC_TREEVIEWW), WM_MOUSEMOVE, 0, MAKELPARAM(2, 3000));
    EXPECT_EQ("none", over);
}

TEST_F(ControlViewsTest, ABusyToolTakesNothingAndTheWindowsShowItsState)
{
    page->tree.item(1).setExpanded(true);
    page->text.setText("kept");
    show();
    tool.busy = true;
    click(button(L"Check"));
    click(button(L"Second"));
    SetWindowTextW(find(WC_EDITW), L"lost");
    clickTick(leafOne());
    settle();
    EXPECT_FALSE(page->check.checked());
    EXPECT_EQ(-1, page->options.selected());
    EXPECT_EQ(BST_UNCHECKED, SendMessageW(button(L"Second"), BM_GETCHECK, 0, 0));
    EXPECT_EQ(L"kept", shownText(find(WC_EDITW)));
    EXPECT_FALSE(ticked(leafOne()));
}

TEST_F(ControlViewsTest, ALanguagesFontShowsAndGoesAgain)
{
    show();
    const auto charsetOf = [](HWND window) {
        LOGFONTW font{};
        GetObjectW(reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0)), sizeof font,
                   &font);
        return static_cast<int>(font.lfCharSet);
    };
    const int usual = charsetOf(button(L"Check"));
    page->check.setFont({SHIFTJIS_CHARSET, "MS PGothic"});
    settle();
    EXPECT_EQ(SHIFTJIS_CHARSET, charsetOf(button(L"Check")));
    EXPECT_EQ(usual, charsetOf(button(L"First")));
    page->check.setFont({});
    settle();
    EXPECT_EQ(usual, charsetOf(button(L"Check")));
}

} // namespace

} // namespace mmc
