#include "core/page_texts.h"

#include "controls/controls.h"
#include "core/localisation.h"
#include "support/test_tool.h"

#include <gtest/gtest.h>

namespace {

struct TwoControls final : SheetPage {
    TwoControls() : SheetPage("TwoControls")
    {
        declare("cmdOK", ControlRole::action, cmdOK);
        declare("comboSpace", ControlRole::field, comboSpace);
    }

    Button cmdOK;
    ComboBox comboSpace;
};

} // namespace

TEST(SetCaptions, TakesTheTextsOfTheCurrentLanguage)
{
    TestTool tool;
    tool.languages.userDefault = 1036;
    tool.languages.with("C:\\OrvanDiagnostics\\ZMKbrandingres_FRA.dll", {{1062, "D'accord"}});
    InitalizeLanguages(tool.context);
    Label first;
    Button second;
    setCaptions(tool.context, {{first, TextId::ok}, {second, TextId::changeLanguage}});
    EXPECT_EQ("D'accord", first.caption());
    EXPECT_EQ("Change Language", second.caption());
}

TEST(ApplyFontToControls, GivesEachControlTheFontAndLeavesThePage)
{
    TestTool tool;
    tool.context.language.g_lngCurrentLanguage = 1042;
    TwoControls page;
    applyFontToControls(tool.context, page);
    EXPECT_EQ(129, page.cmdOK.font().charset);
    EXPECT_EQ("\uad74\ub9bc", page.comboSpace.font().name);
    EXPECT_EQ(1, page.font().charset);
}
