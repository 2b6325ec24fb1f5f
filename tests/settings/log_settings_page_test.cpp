#include "settings/log_settings_page.h"

#include "settings/settings_fixture.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

const std::string megabytesName = "System.LogMgr.MaxDiagnosticMegabytesSaved";
const std::string enabledName = "System.LogMgr.WritingEnabled";
const std::string timeSetName = "System.LogMgr.Broadcast.WritingEnabledTimeSet";

struct LogSettingsPage : SettingsTest {
    LogSettingsPage() { serve(tool, 400, true); }

    static void serve(TestTool& server, Value megabytes, Value enabled)
    {
        server.database.opened()
            .withConfiguration(megabytesName, std::move(megabytes), valueType::integer)
            .withConfiguration(enabledName, std::move(enabled), valueType::boolean)
            .withConfiguration(timeSetName, Date{1}, valueType::date);
        server.registry.withText(logManagerKey, "Output Path", "C:\\Logs");
    }

    /// The values written, as "name = value" under the parameter that took them.
    Texts written() const
    {
        Texts all;
        for (const auto& call : tool.database.calls())
            for (const auto& [parameter, value] : call.parameters)
                if (parameter.rfind("@Value", 0) == 0 && !isEmpty(value) && !isNull(value))
                    all.push_back(valueAsText(call.parameters.at("@FullName")) + " " + parameter +
                                  " '" + shown(value) + "'");
        return all;
    }

    static std::string shown(const Value& value)
    {
        if (const auto* date = std::get_if<Date>(&value)) return dateText(*date);
        return valueAsText(value);
    }

    std::string storedPath() const { return tool.registry.text(logManagerKey, "Output Path"); }
};

} // namespace

TEST_F(LogSettingsPage, ShowsItsTextsAndHidesThreeControls)
{
    const auto& page = open<ppgConfLogSettings>();
    EXPECT_EQ("ppgConfLogSettings", page.name());
    EXPECT_EQ("Browse...", page.cmdLogFileLocationBrowse.caption());
    EXPECT_EQ("Diagnostic Output", page.chkDiagnosticOutput.caption());
    EXPECT_EQ("Location of Log Files", page.lblLocationOfLogFiles.caption());
    EXPECT_EQ("Maximum Space for Diagnostic Files (MB)", page.lblMaxSpace.caption());
    EXPECT_EQ("Cycle Diagnostic Logs every", page.lblCycleDiagnosticLogs.caption());
    Texts hidden;
    for (const auto& declared : page.controls())
        if (!declared.control->visible()) hidden.push_back(declared.name);
    EXPECT_THAT(hidden, ElementsAre("chkDiagnosticOutput", "lblCycleDiagnosticLogs",
                                    "comboCycleDiagnosticLogs"));
}

TEST_F(LogSettingsPage, ShowsWhatTheServerStores)
{
    const auto& page = open<ppgConfLogSettings>();
    EXPECT_EQ(" 400", page.comboMaxSpace.text());
    EXPECT_TRUE(page.chkDiagnosticOutput.checked());
    EXPECT_EQ("C:\\Logs", page.txtLocationOfLogFiles.text());
    EXPECT_TRUE(tool.failures().empty());
}

TEST_F(LogSettingsPage, GivesTheCurrentSpaceItsPlaceInTheList)
{
    struct Case {
        const char* because;
        std::int32_t current;
        int count;
        int selected;
        const char* text;
    };
    const Case cases[] = {
        {"a step is itself", 400, 200, 3, " 400"},
        {"a value off the grid stands between its neighbours", 5050, 201, 50, " 5050"},
        {"100 comes twice and the second is selected", 100, 201, 1, " 100"},
        {"a value below comes before 100 and once more behind it", 50, 202, 2, " 50"},
        {"so does zero", 0, 202, 2, " 0"},
        {"and a value below zero, which has no blank", -7, 202, 2, "-7"},
        {"150 is found only once", 150, 201, 1, " 150"},
        {"20,000 is the last step", 20000, 200, 199, " 20000"},
        {"19,999 comes before it", 19999, 201, 199, " 19999"},
        {"a value above is not added, and 100 is selected", 20001, 200, 0, " 100"},
        {"however large", 2147483647, 200, 0, " 100"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        TestTool server;
        serve(server, c.current, true);
        ppgConfLogSettings page(server.context);
        page.IMMCPropertyPage_Initialize(nullptr, *sheet);
        EXPECT_EQ(c.count, page.comboMaxSpace.count());
        EXPECT_EQ(c.selected, page.comboMaxSpace.selectedIndex());
        EXPECT_EQ(c.text, page.comboMaxSpace.text());
    }
}

TEST_F(LogSettingsPage, TheListRunsFrom100To20000InStepsOf100)
{
    TestTool server;
    serve(server, 5050, true);
    ppgConfLogSettings page(server.context);
    page.IMMCPropertyPage_Initialize(nullptr, *sheet);
    Texts expected;
    for (int megabytes = 100; megabytes <= 20000; megabytes += 100) {
        expected.push_back(" " + std::to_string(megabytes));
        if (megabytes == 5000) expected.push_back(" 5050");
    }
    EXPECT_EQ(expected, page.comboMaxSpace.items());
}

TEST_F(LogSettingsPage, AValueOf100OrLessStandsTwiceAround100)
{
    struct Case {
        std::int32_t current;
        Texts start;
    };
    const Case cases[] = {
        {100, {" 100", " 100", " 200", " 300"}},
        {99, {" 99", " 100", " 99", " 200"}},
    };
    for (const auto& c : cases) {
        TestTool server;
        serve(server, c.current, true);
        ppgConfLogSettings page(server.context);
        page.IMMCPropertyPage_Initialize(nullptr, *sheet);
        const Texts& items = page.comboMaxSpace.items();
        EXPECT_EQ(c.start, Texts(items.begin(), items.begin() + 4));
    }
}

TEST_F(LogSettingsPage, TheHiddenListOffersTheHoursOfADay)
{
    const auto& page = open<ppgConfLogSettings>();
    const Texts& items = page.comboCycleDiagnosticLogs.items();
    ASSERT_EQ(24u, items.size());
    EXPECT_EQ("0 Hours - Default", items[0]);
    EXPECT_EQ("1 Hour", items[1]);
    for (std::size_t hours = 2; hours < 24; ++hours)
        EXPECT_EQ(std::to_string(hours) + " Hours", items[hours]);
    EXPECT_EQ(0, page.comboCycleDiagnosticLogs.selectedIndex());
}

TEST_F(LogSettingsPage, TicksTheHiddenBoxForTrueAlone)
{
    struct Case {
        const char* because;
        Value stored;
        std::int32_t type;
        bool ticked;
    };
    const Case cases[] = {
        {"true", true, valueType::boolean, true},
        {"false", false, valueType::boolean, false},
        {"a boolean is read from a number", std::int32_t{1}, valueType::boolean, true},
        {"a number equals true only as -1", std::int32_t{-1}, valueType::integer, true},
        {"so 1 does not", std::int32_t{1}, valueType::integer, false},
        {"a text is none", std::string("True"), valueType::text, false},
        {"nothing at all is not true", Null{}, valueType::null, false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        TestTool server;
        server.database.opened().withConfiguration(enabledName, c.stored, c.type);
        ppgConfLogSettings page(server.context);
        page.IMMCPropertyPage_Initialize(nullptr, *sheet);
        EXPECT_EQ(c.ticked, page.chkDiagnosticOutput.checked());
    }
}

TEST_F(LogSettingsPage, TakesTheLanguageThatTheRegistryNames)
{
    tool.context.language.g_lngCurrentLanguage = 1033;
    tool.languages.with("C:\\OrvanDiagnostics\\ZMKbrandingres_FRA.dll",
                        {{1051, "Emplacement"}, {1140, " heures"}, {1141, " par défaut"}});
    tool.registry.withText(toolKey, "CurrentLocalizationLanguage", "1036 (old)");
    const auto& page = open<ppgConfLogSettings>();
    EXPECT_EQ(1036, tool.context.language.g_lngCurrentLanguage);
    EXPECT_EQ("Emplacement", page.lblLocationOfLogFiles.caption());
    EXPECT_EQ("0 heures par défaut", page.comboCycleDiagnosticLogs.item(0));
    EXPECT_EQ("1036", tool.registry.text(toolKey, "CurrentLocalizationLanguage"));
}

TEST_F(LogSettingsPage, WithoutALanguageInTheRegistryTheUsersIsTaken)
{
    tool.languages.userDefault = 1041;
    tool.context.language.g_lngCurrentLanguage = 1036;
    const auto& page = open<ppgConfLogSettings>();
    EXPECT_EQ(1041, tool.context.language.g_lngCurrentLanguage);
    for (const auto& declared : page.controls())
        EXPECT_EQ(128, declared.control->font().charset) << declared.name;
}

TEST_F(LogSettingsPage, FillingIsAChangeButNotOneOfThePath)
{
    auto& page = open<ppgConfLogSettings>();
    EXPECT_TRUE(page.Changed()) << "selecting the current value raised the list's event";
    EXPECT_TRUE(sheet->canApply());
}

TEST_F(LogSettingsPage, ApplyingWithoutAChangeOfThePathWritesThreeValuesAndNoFolder)
{
    open<ppgConfLogSettings>();
    const auto before = tool.registry.written();
    sheet->apply();
    EXPECT_THAT(written(),
                ElementsAre(megabytesName + " @ValueLong ' 400'", enabledName + " @ValueBool '1'",
                            timeSetName + " @ValueDate '10/8/2005 3:23:07 PM'"));
    for (const auto& call : tool.database.calls())
        EXPECT_EQ("csp_ConfigurationModify", call.procedure);
    EXPECT_EQ(before, tool.registry.written());
    EXPECT_TRUE(tool.desktop.messages().empty());
}

TEST_F(LogSettingsPage, TheHiddenBoxCarriesTheOldValueThrough)
{
    TestTool server;
    serve(server, 400, false);
    ppgConfLogSettings page(server.context);
    page.IMMCPropertyPage_Initialize(nullptr, *sheet);
    page.chkDiagnosticOutput.click();
    page.PropertyPage_ApplyChanges();
    EXPECT_EQ(Value(std::int32_t{0}), server.database.calls().at(1).parameters.at("@ValueBool"))
        << "nobody can click what is hidden";
}

TEST_F(LogSettingsPage, EverySecondDeliveryOfAnApplyDoesNothing)
{
    auto& page = open<ppgConfLogSettings>();
    page.PropertyPage_ApplyChanges();
    EXPECT_EQ(3u, tool.database.calls().size());
    page.PropertyPage_ApplyChanges();
    EXPECT_EQ(3u, tool.database.calls().size());
    page.PropertyPage_ApplyChanges();
    EXPECT_EQ(6u, tool.database.calls().size());
}

TEST_F(LogSettingsPage, TwoAppliesOfTheSheetAreTwoSaves)
{
    auto& page = open<ppgConfLogSettings>();
    sheet->apply();
    EXPECT_FALSE(sheet->canApply());
    page.comboMaxSpace.chooseByPerson(9);
    EXPECT_TRUE(sheet->canApply());
    sheet->ok();
    EXPECT_EQ(6u, tool.database.calls().size());
    EXPECT_EQ(megabytesName + " @ValueLong ' 1000'", written().at(3));
    EXPECT_TRUE(sheet->closed());
}

TEST_F(LogSettingsPage, AChangedPathIsWrittenOnceAndAsksForAReboot)
{
    auto& page = open<ppgConfLogSettings>();
    page.txtLocationOfLogFiles.setByPerson("D:\\NewLogs");
    sheet->apply();
    EXPECT_EQ("D:\\NewLogs", storedPath());
    EXPECT_THAT(tool.desktop.messages(),
                ElementsAre(FakeDesktop::Message{
                    "You must reboot this server for these changes to take effect.",
                    "Reboot Required", MessageIcon::exclamation}));

    page.comboMaxSpace.chooseByPerson(0);
    sheet->apply();
    EXPECT_EQ(1u, tool.desktop.messages().size()) << "the path has not changed since";
}

TEST_F(LogSettingsPage, AnEmptyPathIsWrittenAsItStands)
{
    open<ppgConfLogSettings>().txtLocationOfLogFiles.setByPerson("");
    sheet->apply();
    EXPECT_TRUE(tool.registry.has(logManagerKey, "Output Path"));
    EXPECT_EQ("", storedPath());
    EXPECT_EQ(1u, tool.desktop.messages().size());
}

TEST_F(LogSettingsPage, NothingTestsWhatIsApplied)
{
    auto& page = open<ppgConfLogSettings>();
    page.comboMaxSpace.setByPerson("plenty");
    page.txtLocationOfLogFiles.setByPerson("no such folder");
    sheet->apply();
    EXPECT_EQ(megabytesName + " @ValueLong 'plenty'", written().front());
    EXPECT_EQ("no such folder", storedPath());
}

TEST_F(LogSettingsPage, BrowsingSetsThePathUnlessItIsCancelled)
{
    auto& page = open<ppgConfLogSettings>();
    page.cmdLogFileLocationBrowse.click();
    EXPECT_EQ("C:\\Logs", page.txtLocationOfLogFiles.text()) << "cancelled";

    tool.desktop.picks("D:\\Picked");
    page.cmdLogFileLocationBrowse.click();
    EXPECT_EQ("D:\\Picked", page.txtLocationOfLogFiles.text());
    sheet->apply();
    EXPECT_EQ("D:\\Picked", storedPath());
    EXPECT_EQ(1u, tool.desktop.messages().size());
    EXPECT_TRUE(tool.logged("Entering [ppgConfLogSettings]cmdLogFileLocationBrowse_Click"));
}

TEST_F(LogSettingsPage, ThePersonsChoicesMarkThePageAsChanged)
{
    auto& page = open<ppgConfLogSettings>();
    const std::pair<const char*, std::function<void()>> actions[] = {
        {"space chosen", [&] { page.comboMaxSpace.chooseByPerson(7); }},
        {"space typed", [&] { page.comboMaxSpace.setByPerson("8"); }},
        {"path", [&] { page.txtLocationOfLogFiles.setByPerson("E:\\"); }},
        {"hours", [&] { page.comboCycleDiagnosticLogs.setSelectedIndex(3); }},
        {"output", [&] { page.chkDiagnosticOutput.setChecked(false); }},
    };
    for (const auto& [name, act] : actions) {
        page.Changed(false);
        act();
        EXPECT_TRUE(page.Changed()) << name;
    }
}

TEST_F(LogSettingsPage, WhatCanNotBeReadLeavesItsControlEmpty)
{
    TestTool server;
    server.database.unreachable();
    ppgConfLogSettings page(server.context);
    page.IMMCPropertyPage_Initialize(nullptr, *sheet);
    EXPECT_EQ(" 0", page.comboMaxSpace.text());
    EXPECT_FALSE(page.chkDiagnosticOutput.checked());
    EXPECT_EQ("", page.txtLocationOfLogFiles.text());
    EXPECT_EQ((Texts{"Err.Number = 94 Err.Description = Invalid use of Null"}),
              server.failures("[ppgConfLogSettings]IMMCPropertyPage_Initialize"));
    EXPECT_TRUE(server.desktop.messages().empty()) << "failures show in the log alone";
}

TEST_F(LogSettingsPage, ARefusedWriteShowsInTheLogAloneAndTheOthersFollow)
{
    auto& page = open<ppgConfLogSettings>();
    page.txtLocationOfLogFiles.setByPerson("D:\\");
    tool.database.withProcedure(
        "csp_ConfigurationModify",
        {"@AuditAlias", "@AuditComponent", "@FullName", "@ValueLong", "@ValueBool", "@ValueDate"},
        [](const FakeDatabase::Call& call) {
            if (call.parameters.at("@FullName") == Value(megabytesName))
                throw RunTimeError(-2147217900, "refused");
        });
    sheet->apply();
    EXPECT_EQ(3u, tool.database.calls().size());
    EXPECT_EQ(1u, tool.failures("[mdlOrvanDatabase]SetConfigurationSetting").size());
    EXPECT_EQ("D:\\", storedPath());
    EXPECT_EQ(1u, tool.desktop.messages().size());
}

TEST_F(LogSettingsPage, TracesItsHandlers)
{
    open<ppgConfLogSettings>();
    sheet->ok();
    for (const char* routine : {"IMMCPropertyPage_Initialize", "PropertyPage_ApplyChanges"}) {
        EXPECT_TRUE(tool.logged(std::string("Entering [ppgConfLogSettings]") + routine));
        EXPECT_TRUE(tool.logged(std::string("Exiting [ppgConfLogSettings]") + routine));
    }
}
