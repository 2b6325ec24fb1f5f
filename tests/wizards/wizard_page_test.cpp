#include "wizards/wizard_page.h"

#include "wizards/wizards_fixture.h"

namespace {

/// A page that lets a test at what pages share.
struct PlainPage final : WizardPage {
    PlainPage(ToolContext& context, std::shared_ptr<classTraceObject> object)
        : WizardPage(context, "plainPage", std::move(object))
    {
        declare("lblTitle", ControlRole::title, lblTitle);
        declare("chkChoice", ControlRole::choice, chkChoice);
        declare("tmrDelay", ControlRole::timer, tmrDelay);
    }

    using WizardPage::applyFontToControls;
    using WizardPage::applyFontToPage;
    using WizardPage::enableFinishButton;
    using WizardPage::enableNextButton;
    using WizardPage::enableNextButtonAfterChoice;
    using WizardPage::finishButtonBeforeChoice;
    using WizardPage::nextButtonBeforeChoice;
    using WizardPage::SelectedControls;
    using WizardPage::setCaptions;

    Label lblTitle;
    CheckBox chkChoice;
    Timer tmrDelay{500, false};
};

struct WizardPageTest : WizardTest {
    PlainPage& page = add<PlainPage>();
};

TEST_F(WizardPageTest, SetsCaptionsByTheirTextsId)
{
    page.setCaptions({{page.lblTitle, TextId{1024}}, {page.chkChoice, TextId{1036}}});
    EXPECT_EQ("Configure Macro Traces", page.lblTitle.caption());
    EXPECT_EQ("Reset to Default Traces", page.chkChoice.caption());
}

TEST_F(WizardPageTest, TakesCaptionsFromTheLanguageInForce)
{
    tool.languages.with("C:\\fr.dll", {{1024, "Configurer les macro-traces"}});
    tool.context.language.g_hResourceLibrary = tool.languages.loadLibrary("C:\\fr.dll");
    page.setCaptions({{page.lblTitle, TextId{1024}}, {page.chkChoice, TextId{1036}}});
    EXPECT_EQ("Configurer les macro-traces", page.lblTitle.caption());
    EXPECT_EQ("Reset to Default Traces", page.chkChoice.caption()) << "English where it has none";
}

TEST_F(WizardPageTest, GivesTheLanguagesFontToPageAndControls)
{
    tool.context.language.g_lngCurrentLanguage = 1041;
    page.applyFontToPage();
    EXPECT_EQ(128, page.font().charset);
    EXPECT_EQ(1, page.lblTitle.font().charset);
    page.applyFontToControls();
    EXPECT_EQ(128, page.lblTitle.font().charset);
    EXPECT_EQ(128, page.chkChoice.font().charset);
}

TEST_F(WizardPageTest, TheForwardButtonWaitsForAChoiceOutsideTheDevelopmentHost)
{
    EXPECT_EQ(wizardButton::nextDisabled, page.nextButtonBeforeChoice());
    EXPECT_EQ(wizardButton::finishDisabled, page.finishButtonBeforeChoice());
    tool.context.g_bDebugMode = true;
    EXPECT_EQ(wizardButton::nextEnabled, page.nextButtonBeforeChoice());
    EXPECT_EQ(wizardButton::finishEnabled, page.finishButtonBeforeChoice());
}

TEST_F(WizardPageTest, AChoiceEnablesTheButtonsThroughTheSheetOfTheSharedObject)
{
    shared->m_PropertySheet(*sheet);
    page.enableNextButton();
    EXPECT_EQ((WizardButtons{true, wizardButton::nextEnabled, ""}), sheet->buttons());
    page.enableFinishButton();
    EXPECT_EQ((WizardButtons{true, wizardButton::finishEnabled, ""}), sheet->buttons());
}

TEST_F(WizardPageTest, AChoiceDoesNotTouchTheButtonInTheDevelopmentHost)
{
    shared->m_PropertySheet(*sheet);
    tool.context.g_bDebugMode = true;
    page.enableNextButtonAfterChoice();
    EXPECT_EQ(WizardButtons{}, sheet->buttons());
}

TEST_F(WizardPageTest, RaisesWithoutSheetOrSharedObject)
{
    EXPECT_EQ(424, errorOf([&] { page.enableNextButton(); }));
    EXPECT_EQ(9, errorOf([&] { page.SelectedControls(1); }));
    PlainPage alone(tool.context, nullptr);
    EXPECT_EQ(424, errorOf([&] { alone.SelectedControls(0); }));
}

TEST_F(WizardPageTest, ListsItsControlsAndTimersByName)
{
    EXPECT_EQ("plainPage", page.name());
    EXPECT_EQ(&page.chkChoice, page.control("chkChoice"));
    EXPECT_EQ(nullptr, page.control("chkOther"));
    EXPECT_EQ((std::vector<Timer*>{&page.tmrDelay}), page.timers());
    EXPECT_EQ(ControlRole::title, page.controls().front().role);
}

} // namespace
