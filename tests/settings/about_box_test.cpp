#include "settings/about_box.h"

#include "settings/settings_fixture.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const std::string folder = "C:\\OrvanDiagnostics\\ZMKbrandingres_";

/// Another window of the tool, which writes down what a new language makes of it.
class OtherForm final : public OpenForm {
public:
    Label label;
    Texts heard;
    int error = 0;

    std::vector<FontTarget*> controls() override
    {
        heard.push_back("font");
        return {&label};
    }
    void autoInit() override
    {
        heard.push_back("captions");
        if (error != 0) throw RunTimeError(error);
    }
    void refreshControls() override { heard.push_back("refresh"); }
};

struct CountingObserver final : ControlObserver {
    int refreshes = 0;
    void changed(Control&) override {}
    void refreshed(Control&) override { ++refreshes; }
};

/// A host that can't show what it is told to.
struct FailingObserver final : ControlObserver {
    void changed(Control&) override { throw RunTimeError(runTimeErrors::outOfMemory); }
};

struct AboutBox : SettingsTest {
    void withLibrary(const std::string& code, std::map<int, std::string> texts = {})
    {
        tool.files.with(folder + code + ".dll");
        tool.languages.with(folder + code + ".dll", std::move(texts));
    }

    static Texts captions(const frmAbout& form)
    {
        Texts all;
        for (const auto& item : form.mnuLanguageList()) all.push_back(item.caption);
        return all;
    }

    static Texts tags(const frmAbout& form)
    {
        Texts all;
        for (const auto& item : form.mnuLanguageList()) all.push_back(item.tag);
        return all;
    }

    Texts boxes() const
    {
        Texts all;
        for (const auto& message : tool.desktop.messages()) all.push_back(message.text);
        return all;
    }
};

} // namespace

TEST_F(AboutBox, ShowsItsTexts)
{
    frmAbout form(tool.context);
    form.show();
    EXPECT_EQ("Orvan Diagnostic Tool", form.caption());
    EXPECT_EQ("OK", form.cmdOK.caption());
    EXPECT_EQ("Version:", form.lblVersionTitle.caption());
    EXPECT_EQ("Copyright © Kelma Systems, Inc.  All rights reserved.", form.lblCopyright.caption());
    EXPECT_EQ("Kelma, Orvan and Kelma Orvan are trademarks of Kelma Systems, Inc.",
              form.lblTrademark.caption());
    EXPECT_EQ("Kelma Systems, Inc.", form.lblKelmaAddress1.caption());
    EXPECT_EQ("Orvan Voice Messaging Division", form.lblKelmaAddress2.caption());
    EXPECT_EQ("Diagnostics and Support", form.lblKelmaAddress3.caption());
    EXPECT_EQ("Change Language", form.lblChangeLanguage.caption());
    EXPECT_EQ("Select Language", form.mnuSelectLanguage());
}

TEST_F(AboutBox, ShowsTheVersionWithALeadingBlank)
{
    tool.module.major = 2;
    tool.module.minor = 1;
    tool.module.build = 23;
    frmAbout form(tool.context);
    form.show();
    EXPECT_EQ(" 2.1 Build 23", form.lblVersion.caption());
}

TEST_F(AboutBox, ListsEachLanguageByTheSystemsNameWhenThereAreTwoLibrariesOrMore)
{
    withLibrary("JPN");
    withLibrary("FRA");
    withLibrary("QQQ");
    frmAbout form(tool.context);
    form.show();
    EXPECT_THAT(captions(form),
                ElementsAre("French (France)", "Japanese (Japan)", "English (United States)"))
        << "in the order of the folder; a code without a row is English";
    EXPECT_THAT(tags(form), ElementsAre("1036", "1041", "1033"));
}

TEST_F(AboutBox, TakesALibrarysCodeWithoutRegardToCase)
{
    withLibrary("fra", {{1062, "D'accord"}});
    withLibrary("jpn");
    frmAbout form(tool.context);
    form.show();
    EXPECT_THAT(captions(form), ElementsAre("French (France)", "Japanese (Japan)"));
    EXPECT_THAT(tags(form), ElementsAre("1036", "1041"));

    form.mnuLanguageList_Click(0);
    EXPECT_EQ("D'accord", form.cmdOK.caption());
}

TEST_F(AboutBox, OneLibraryLooksLikeNone)
{
    for (const bool one : {false, true}) {
        if (one) withLibrary("FRA", {{1062, "D'accord"}});
        tool.context.language.g_lngCurrentLanguage = 1036;
        InitalizeLanguages(tool.context);
        frmAbout form(tool.context);
        form.show();
        EXPECT_THAT(captions(form), ElementsAre("No languages loaded"));
        EXPECT_THAT(tags(form), ElementsAre("1033"));
        EXPECT_EQ(one ? "D'accord" : "OK", form.cmdOK.caption());

        form.mnuLanguageList_Click(0);
        EXPECT_EQ(1033, tool.context.language.g_lngCurrentLanguage);
        EXPECT_EQ("OK", form.cmdOK.caption());
    }
}

TEST_F(AboutBox, AChoiceOfLanguageReachesEveryOpenForm)
{
    withLibrary("FRA", {{1062, "D'accord"}, {1107, "Outil"}, {1071, "Choisir"}});
    withLibrary("JPN");
    OtherForm other;
    tool.context.language.openForms.push_back(&other);
    frmAbout form(tool.context);
    form.show();
    CountingObserver observer;
    form.lblTrademark.observe(&observer);
    other.heard.clear();

    form.mnuLanguageList_Click(0);
    EXPECT_EQ(1036, tool.context.language.g_lngCurrentLanguage);
    EXPECT_EQ("1036", tool.registry.text(toolKey, "CurrentLocalizationLanguage"));
    EXPECT_EQ("D'accord", form.cmdOK.caption());
    EXPECT_EQ("Outil", form.caption());
    EXPECT_EQ("Choisir", form.mnuSelectLanguage());
    EXPECT_THAT(other.heard, ElementsAre("font", "font", "captions", "refresh"))
        << "the fonts are set once by the loading of the language";
    EXPECT_EQ(1, observer.refreshes);

    form.mnuLanguageList_Click(1);
    EXPECT_EQ(128, other.label.font().charset);
    EXPECT_EQ(128, form.cmdOK.font().charset);
    EXPECT_EQ("OK", form.cmdOK.caption()) << "the library has no text of its own";

    form.mnuLanguageList_Click(0);
    EXPECT_EQ((ControlFont{1, ""}), other.label.font()) << "of a language without a font";
    EXPECT_EQ((ControlFont{1, ""}), form.cmdOK.font());
    form.lblTrademark.observe(nullptr);
}

TEST_F(AboutBox, AFormThatFailsDoesNotKeepTheNextFromItsTexts)
{
    withLibrary("FRA", {{1062, "D'accord"}});
    withLibrary("JPN");
    OtherForm broken;
    broken.error = 91;
    tool.context.language.openForms.push_back(&broken);
    frmAbout form(tool.context);
    form.show();
    form.mnuLanguageList_Click(0);
    EXPECT_EQ("refresh", broken.heard.back());
    EXPECT_EQ("D'accord", form.cmdOK.caption());
    EXPECT_EQ(1u, tool.failures("[frmAbout]mnuLanguageList_Click").size());
}

TEST_F(AboutBox, ThePointerIsAnHourglassWhileTheLanguageChanges)
{
    withLibrary("FRA");
    withLibrary("JPN");
    frmAbout form(tool.context);
    form.show();
    std::vector<int> pointers;
    form.onChanged = [&] { pointers.push_back(form.mousePointer()); };
    form.mnuLanguageList_Click(1);
    ASSERT_EQ(3u, pointers.size());
    EXPECT_THAT(pointers, ElementsAre(11, 11, 0)) << "set, captions, set back";
}

TEST_F(AboutBox, AnEntryThatIsNotThereIsLoggedAndTheLanguageStays)
{
    frmAbout form(tool.context);
    form.show();
    for (const int index : {1, -1}) form.mnuLanguageList_Click(index);
    EXPECT_EQ(1033, tool.context.language.g_lngCurrentLanguage);
    EXPECT_EQ(2u, tool.failures("[frmAbout]mnuLanguageList_Click").size());
    EXPECT_EQ(frmAbout::defaultPointer, form.mousePointer());
}

TEST_F(AboutBox, OkHidesTheFormAndLeavesItOpen)
{
    frmAbout form(tool.context);
    EXPECT_FALSE(form.visible());
    EXPECT_THAT(tool.context.language.openForms, IsEmpty());
    form.show();
    EXPECT_TRUE(form.visible());
    form.cmdOK.click();
    EXPECT_FALSE(form.visible());
    EXPECT_THAT(tool.context.language.openForms, ElementsAre(&form));
}

TEST_F(AboutBox, IsLoadedOnceHoweverOftenItIsShown)
{
    frmAbout form(tool.context);
    form.show();
    withLibrary("FRA");
    withLibrary("JPN");
    form.cmdOK_Click();
    form.show();
    EXPECT_THAT(captions(form), ElementsAre("No languages loaded"));
    EXPECT_THAT(tool.context.language.openForms, ElementsAre(&form));
}

TEST_F(AboutBox, LeavesTheOpenFormsAtItsEnd)
{
    {
        frmAbout form(tool.context);
        form.show();
    }
    EXPECT_THAT(tool.context.language.openForms, IsEmpty());
}

TEST_F(AboutBox, ThePopUpMenuIsTheHosts)
{
    frmAbout form(tool.context);
    form.show();
    form.lblChangeLanguage_Click();
    int popUps = 0;
    form.onPopupMenu = [&] { ++popUps; };
    form.lblChangeLanguage_Click();
    EXPECT_EQ(1, popUps);
}

TEST_F(AboutBox, FailuresOfLoadingAreShownAndNotLogged)
{
    tool.files.failingAll(70);
    frmAbout form(tool.context);
    form.show();
    EXPECT_THAT(boxes(), ElementsAre("Error in InitalizeLanguages: Permission denied"));
    EXPECT_THAT(captions(form), ElementsAre("No languages loaded"));
    EXPECT_TRUE(form.visible());
    EXPECT_FALSE(tool.context.g_log.exists());
}

TEST_F(AboutBox, AStepOfItsLoadingThatFailsIsShownAndTheNextOnesRun)
{
    frmAbout form(tool.context);
    FailingObserver observer;
    form.lblVersion.observe(&observer);
    form.show();
    EXPECT_THAT(boxes(), ElementsAre("Error in FormLoad routine:Out of memory"));
    EXPECT_THAT(captions(form), ElementsAre("No languages loaded"));
    form.lblVersion.observe(nullptr);
}
