#include "traces/macro_trace_catalogue.h"

#include "support/fakes/trace_database/fake_trace_database.h"
#include "traces/traces_fixture.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr const char* forcedExit =
    "Error count exceeded, forcing exit from [mdlTraces]initMacroTraces";

std::string group(const std::string& name, const std::string& content)
{
    return "<GA NAME='" + name + "'>" + content + "</GA>";
}

std::string trace(const std::string& name)
{
    return "<TRACE NAME='" + name + "'/>";
}

struct MacroTraceCatalogue : TracesTest {
    void build() { mdlTraces::initMacroTraces(tool.context); }

    XmlDocument& catalogue() { return *tool.context.g_domMacroTraces; }

    /// The catalogue as "group: trace=enabled trace=enabled".
    Texts contents()
    {
        Texts lines;
        for (const auto& each : catalogue().selectNodes("HYBRIDTRACES/GA")) {
            std::string line = each->attribute("NAME").value_or("(no name)") + ":";
            for (const auto& child : each->selectNodes("TRACE"))
                line += " " + child->attribute("NAME").value_or("(no name)") + "=" +
                        child->attribute("Enabled").value_or("(not marked)");
            lines.push_back(line);
        }
        return lines;
    }

    Texts ownFailures() { return tool.failures("[mdlTraces]initMacroTraces"); }

    /// `count` files that do not load, named to come between "HTa" and "HTz".
    void withBadFiles(int count)
    {
        for (int number = 0; number < count; ++number)
            withFile("HTm" + std::string(1, static_cast<char>('a' + number)) + ".xml", "<GA NAME");
    }
};

} // namespace

TEST_F(MacroTraceCatalogue, HasItsDocumentElementAloneForAnEmptyFolder)
{
    build();

    EXPECT_EQ("HYBRIDTRACES", catalogue().documentElement()->name());
    EXPECT_THAT(contents(), IsEmpty());
    EXPECT_THAT(tool.failures(), IsEmpty());
    EXPECT_TRUE(tool.logged("Entering [mdlTraces]initMacroTraces_0"));
    EXPECT_TRUE(tool.logged("Exiting [mdlTraces]initMacroTraces_0"));
}

TEST_F(MacroTraceCatalogue, IsEmptyAlsoWithoutTheFolder)
{
    tool.context.g_strMacroTraceFolder = "C:\\nowhere";

    build();

    EXPECT_THAT(contents(), IsEmpty());
    EXPECT_THAT(tool.failures(), IsEmpty());
}

TEST_F(MacroTraceCatalogue, ReadsTheFilesOfThePatternAlone)
{
    withFile("HTa.xml", group("A", trace("1")));
    withFile("htb.XML", group("B", trace("1")));
    withFile("XHTc.xml", group("C", trace("1")));
    withFile("HTd.txt", group("D", trace("1")));

    build();

    EXPECT_THAT(contents(), ElementsAre("A: 1=0", "B: 1=0"));
}

TEST_F(MacroTraceCatalogue, MarksWhatTheRegistryRecordsAsOn)
{
    withFile("HTa.xml", group("A", trace("on") + trace("off") + trace("never") + trace("odd")));
    recorded("A", "on", 1);
    recorded("A", "off", 0);
    recorded("A", "odd", 7);
    recorded("B", "never", 1);

    build();

    EXPECT_THAT(contents(), ElementsAre("A: on=1 off=0 never=0 odd=7"));
}

TEST_F(MacroTraceCatalogue, ReplacesAMarkThatAFileBrings)
{
    withFile("HTa.xml", group("A", "<TRACE NAME='T' Enabled='1'/>"));

    build();

    EXPECT_THAT(contents(), ElementsAre("A: T=0"));
}

TEST_F(MacroTraceCatalogue, PutsTheTracesOfTwoFilesOfOneGroupTogetherTheFirstFilesInFront)
{
    withFile("HTa.xml", group("A", trace("1") + trace("2")));
    withFile("HTb.xml", group("B", trace("3")));
    withFile("HTc.xml", group("A", trace("4")));
    recorded("A", "4", 1);

    build();

    EXPECT_THAT(contents(), ElementsAre("A: 1=0 2=0 4=1", "B: 3=0"));
}

TEST_F(MacroTraceCatalogue, KeepsTheFirstFilesDescription)
{
    withFile("HTa.xml", group("A", "<DESCRIPTION>first</DESCRIPTION>"));
    withFile("HTb.xml", group("A", "<DESCRIPTION>second</DESCRIPTION>" + trace("1")));

    build();

    const auto found = catalogue().selectNodes("HYBRIDTRACES/GA/DESCRIPTION");
    ASSERT_EQ(1u, found.size());
    EXPECT_EQ("first", found[0]->text());
}

TEST_F(MacroTraceCatalogue, KeepsAGroupHiddenThatItsFirstFileHides)
{
    withFile("HTa.xml", "<GA NAME='A' DONTSHOW=''/>");
    withFile("HTb.xml", group("A", trace("1")));
    withFile("HTc.xml", group("B", trace("2")));
    withFile("HTd.xml", "<GA NAME='B' DONTSHOW='1'><TRACE NAME='3'/></GA>");

    build();

    EXPECT_NE(nullptr, catalogue().selectSingleNode("HYBRIDTRACES/GA[@NAME='A'][@DONTSHOW]"));
    EXPECT_EQ(nullptr, catalogue().selectSingleNode("HYBRIDTRACES/GA[@NAME='B'][@DONTSHOW]"))
        << "a later file hides nothing";
    EXPECT_THAT(contents(), ElementsAre("A: 1=0", "B: 2=0 3=0"));
}

TEST_F(MacroTraceCatalogue, KeepsBothOfTwoTracesOfOneNameTheFirstInFront)
{
    withFile("HTa.xml", group("A", "<TRACE NAME='T'><DIAG GROUP='first'/></TRACE>"));
    withFile("HTb.xml", group("A", "<TRACE NAME='T'><DIAG GROUP='second'/></TRACE>"));

    build();

    EXPECT_THAT(contents(), ElementsAre("A: T=0 T=0"));
    EXPECT_EQ("first", catalogue()
                           .selectSingleNode("HYBRIDTRACES/GA[@NAME='A']/TRACE[@NAME='T']/DIAG")
                           ->attribute("GROUP"));
}

TEST_F(MacroTraceCatalogue, IsBuiltAnewEachTime)
{
    withFile("HTa.xml", group("A", trace("1")));
    withFile("HTb.xml", group("B", trace("2")));
    build();
    tool.files.deleteFile("C:\\OrvanDiagnostics\\ZMKXML\\HTb.xml");
    recorded("A", "1", 1);
    EXPECT_THAT(contents(), ElementsAre("A: 1=0", "B: 2=0")) << "nothing changes between calls";

    build();

    EXPECT_THAT(contents(), ElementsAre("A: 1=1"));
}

TEST_F(MacroTraceCatalogue, MovesWholeElementsWithAllTheyHold)
{
    const std::string full = "<TRACE NAME='T'><DESCRIPTION>a &amp; \xC3\xA9</DESCRIPTION>"
                             "<DIAG GROUP='C'><FLAG ID='3'/><FLAG ID='4'/></DIAG></TRACE>";
    withFile("HTa.xml", group("A", trace("1")));
    withFile("HTb.xml", group("A", full));

    build();

    const auto moved = catalogue().selectSingleNode("HYBRIDTRACES/GA/TRACE[@NAME='T']");
    ASSERT_NE(nullptr, moved);
    EXPECT_EQ("a & \xC3\xA9", moved->selectSingleNode("DESCRIPTION")->text());
    EXPECT_EQ(2u, moved->selectNodes("DIAG/FLAG").size());
}

TEST_F(MacroTraceCatalogue, PassesOverAFileThatDoesNotLoad)
{
    struct Case {
        const char* because;
        const char* content;
    };
    const Case cases[] = {
        {"cut off", "<GA NAME='Bad'><TRACE NAME='x'"},
        {"empty", ""},
        {"no XML", "\x01\x02\xFF<<<>>>"},
        {"an element that is never closed", "<GA NAME='Bad'><TRACE></GA>"},
        {"another document element", "<ga NAME='Bad'><TRACE NAME='x'/></ga>"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        withFile("HTa.xml", group("A", trace("1")));
        withFile("HTm.xml", c.content);
        withFile("HTz.xml", group("Z", trace("2")));

        build();

        EXPECT_THAT(contents(), ElementsAre("A: 1=0", "Z: 2=0"));
    }
    EXPECT_THAT(ownFailures(), testing::Each(notSet));
    EXPECT_EQ(std::size(cases), ownFailures().size()) << "one failing access each";
}

TEST_F(MacroTraceCatalogue, LogsThreeFailingAccessesOfABadFileThatComesFirst)
{
    withFile("HTa.xml", "no xml");
    withFile("HTb.xml", group("B", trace("1")));

    build();

    EXPECT_THAT(contents(), ElementsAre("B: 1=0"));
    EXPECT_THAT(ownFailures(), ElementsAre(notSet, notSet, notSet));
}

TEST_F(MacroTraceCatalogue, SurvivesTenBadFiles)
{
    withFile("HTa.xml", group("A", trace("1")));
    withBadFiles(10);
    withFile("HTz.xml", group("Z", trace("2")));

    build();

    EXPECT_THAT(contents(), ElementsAre("A: 1=0", "Z: 2=0"));
    EXPECT_EQ(10u, ownFailures().size());
}

TEST_F(MacroTraceCatalogue, GivesUpOnTheEleventhBadFileAndKeepsWhatItHas)
{
    withFile("HTa.xml", group("A", trace("1")));
    withBadFiles(11);
    withFile("HTz.xml", group("Z", trace("2")));

    build();

    EXPECT_THAT(contents(), ElementsAre("A: 1=0"));
    EXPECT_EQ(12u, ownFailures().size());
    EXPECT_EQ(forcedExit, ownFailures().back());
    EXPECT_FALSE(tool.logged("Exiting [mdlTraces]initMacroTraces_0"));
}

TEST_F(MacroTraceCatalogue, CountsAFileWithoutANameToTheGroupBeforeIt)
{
    withFile("HTa.xml", group("A", trace("1")));
    withFile("HTb.xml", "<GA><TRACE NAME='2'/></GA>");
    recorded("A", "2", 1);

    build();

    EXPECT_THAT(contents(), ElementsAre("A: 1=0 2=1"));
    EXPECT_THAT(ownFailures(), ElementsAre(notSet));
}

TEST_F(MacroTraceCatalogue, KeepsATraceWithoutANameMarkedLikeTheOneBeforeIt)
{
    withFile("HTa.xml", group("A", trace("1") + "<TRACE/>" + trace("2")));
    recorded("A", "1", 1);

    build();

    EXPECT_THAT(contents(), ElementsAre("A: 1=1 (no name)=1 2=0"));
    EXPECT_THAT(ownFailures(), ElementsAre(notSet));
}

TEST_F(MacroTraceCatalogue, CannotLookUpAGroupWithAQuoteAndAddsItEachTime)
{
    withFile("HTa.xml", "<GA NAME=\"Caller's\"><TRACE NAME='1'/></GA>");
    withFile("HTb.xml", "<GA NAME=\"Caller's\"><TRACE NAME='2'/></GA>");

    build();

    EXPECT_THAT(contents(), ElementsAre("Caller's: 1=0", "Caller's: 2=0"));
    EXPECT_THAT(ownFailures(), ElementsAre(testing::StartsWith("Err.Number = -2147467259 "),
                                           testing::StartsWith("Err.Number = -2147467259 ")));
}

TEST_F(MacroTraceCatalogue, CountsAGroupThatCannotBeLookedUpToTheGroupFoundBeforeIt)
{
    withFile("HTa.xml", group("A", trace("1")));
    withFile("HTb.xml", group("A", trace("2")));
    withFile("HTc.xml", "<GA NAME=\"Caller's\"><TRACE NAME='3'/></GA>");
    recorded("Caller's", "3", 1);

    build();

    EXPECT_THAT(contents(), ElementsAre("A: 1=0 2=0 3=1"));
    EXPECT_THAT(ownFailures(), ElementsAre(testing::StartsWith("Err.Number = -2147467259 ")));
}

TEST_F(MacroTraceCatalogue, LogsAMarkThatHasNoElement)
{
    mdlTraces::appendEnabledAttribute(tool.context, nullptr, "A", "1");

    EXPECT_THAT(tool.failures("[mdlTraces]appendEnabledAttribute"), ElementsAre(notSet));
}

namespace {

struct StoreMacroTraceFiles : MacroTraceCatalogue {
    FakeTraceDatabaseEngine engine;
    std::unique_ptr<TraceDatabase> database = engine.openDatabase("C:\\a.mdb");
    std::unique_ptr<TraceRecordset> target = database->openRecordset("tblMacroTraces");

    void store() { mdlTraces::storeMacroTraceFiles(tool.context, *target); }
    const std::vector<FakeTraceRow>& rows() const { return engine.rows("tblMacroTraces"); }
};

} // namespace

TEST_F(StoreMacroTraceFiles, AddsARowForEachFileWithItsWholeText)
{
    const std::string text = "<GA NAME='A'>\r\n\xC3\xA9</GA>\r\n";
    withFile("HTa.xml", text);
    withFile("HTb.xml", "not even xml");
    withFile("other.xml", "<GA/>");

    store();

    EXPECT_THAT(rows(), ElementsAre(FakeTraceRow{{"Name", "HTa.xml"}, {"Data", text}},
                                    FakeTraceRow{{"Name", "HTb.xml"}, {"Data", "not even xml"}}));
}

TEST_F(StoreMacroTraceFiles, ReadsATextInItsOwnEncodingElseInTheServersCodePage)
{
    const std::string cyrillic = "<?xml version='1.0' encoding='windows-1251'?>";
    const std::string unknown = "<?xml version='1.0' encoding='x-none'?>";
    withFile("HTa.xml", cyrillic + "\xE9");
    withFile("HTb.xml", cyrillic + "\xC3\xA9");
    withFile("HTc.xml", unknown + "\xE9");
    withFile("HTd.xml", "\xE9");

    store();

    EXPECT_THAT(rows(),
                ElementsAre(FakeTraceRow{{"Name", "HTa.xml"}, {"Data", cyrillic + "\xD0\xB9"}},
                            FakeTraceRow{{"Name", "HTb.xml"}, {"Data", cyrillic + "\xC3\xA9"}},
                            FakeTraceRow{{"Name", "HTc.xml"}, {"Data", unknown + "\xC3\xA9"}},
                            FakeTraceRow{{"Name", "HTd.xml"}, {"Data", "\xC3\xA9"}}));
}

TEST_F(StoreMacroTraceFiles, AddsNoneForAnEmptyFolder)
{
    store();

    EXPECT_THAT(rows(), IsEmpty());
}

TEST_F(StoreMacroTraceFiles, LetsEveryErrorReachItsCallerAndKeepsTheRowsBeforeIt)
{
    struct Case {
        const char* because;
        std::function<void(StoreMacroTraceFiles&)> fail;
        int number;
    };
    const Case cases[] = {
        {"a file without any text", [](auto& test) { test.withFile("HTb.xml", ""); }, 62},
        {"a file that may not be read",
         [](auto& test) { test.tool.files.failing("C:\\OrvanDiagnostics\\ZMKXML\\HTb.xml", 70); },
         70},
        {"a row that can't be stored",
         [](auto& test) { test.engine.failing("update tblMacroTraces", 2, 3183); }, 3183},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        StoreMacroTraceFiles* fresh = this;
        withFile("HTa.xml", "a");
        withFile("HTb.xml", "b");
        const std::size_t before = rows().size();
        c.fail(*fresh);

        EXPECT_EQ(c.number, errorOf([&] { store(); }));

        EXPECT_EQ(before + 1, rows().size());
        tool.files.mended("C:\\OrvanDiagnostics\\ZMKXML\\HTb.xml");
    }
    EXPECT_THAT(tool.failures(), IsEmpty()) << "it logs nothing itself";
}
