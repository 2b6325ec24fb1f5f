#include "settings/event_log_language.h"

#include "settings/settings_fixture.h"

using namespace mdlLanguage;

namespace {

const std::string englishFile = "C:\\Orvan\\Localize\\Messaging\\ENU\\x.dll";

using EventLogLanguage = SettingsTest;

} // namespace

TEST_F(EventLogLanguage, ReplacesTheThreeCharactersBehindTheFolderOfMessages)
{
    struct Case {
        const char* because;
        std::string path;
        const char* language;
        std::string expected;
    };
    const Case cases[] = {
        {"the language alone is swapped", englishFile, "JPN",
         "C:\\Orvan\\Localize\\Messaging\\JPN\\x.dll"},
        {"the first of two places counts",
         "Localize\\Messaging\\ENU\\Localize\\Messaging\\ENU\\x.dll", "FRA",
         "Localize\\Messaging\\FRA\\Localize\\Messaging\\ENU\\x.dll"},
        {"three characters are dropped whatever they are", "Localize\\Messaging\\E\\x.dll", "FRA",
         "Localize\\Messaging\\FRA.dll"},
        {"the path may end in its language", "Localize\\Messaging\\ENU", "FRA",
         "Localize\\Messaging\\FRA"},
        {"without the text 18 characters are kept and 3 dropped", "C:\\Windows\\System32\\abc.dll",
         "JPN", "C:\\Windows\\System3JPNbc.dll"},
        {"the case of the text counts", "c:\\localize\\messaging\\ENU\\x.dll", "JPN",
         "c:\\localize\\messagJPN\\ENU\\x.dll"},
        {"a text of 18 characters is kept whole", "123456789012345678", "JPN",
         "123456789012345678JPN"},
        {"a shorter one too", "abc", "JPN", "abcJPN"},
        {"of 21 characters nothing is left behind", "123456789012345678abc", "JPN",
         "123456789012345678JPN"},
        {"an empty path becomes the language alone", "", "JPN", "JPN"},
        {"characters are counted, not bytes", "C:\\Mélodies\\12345678ÄÖÜß.dll", "JPN",
         "C:\\Mélodies\\123456JPNÖÜß.dll"},
        {"characters before the language do not move it",
         "C:\\Données\\Localize\\Messaging\\ENU\\x", "FRA",
         "C:\\Données\\Localize\\Messaging\\FRA\\x"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.expected, replaceLanguage(tool.context, c.path, c.language));
    }
}

TEST_F(EventLogLanguage, IsTheThreeCharactersBehindTheFolderOfMessages)
{
    struct Case {
        const char* because;
        std::string path;
        const char* expected;
    };
    const Case cases[] = {
        {"as it is registered", englishFile, "ENU"},
        {"a path may end before it", "C:\\Orvan\\Localize\\Messaging\\", ""},
        {"or within it", "C:\\Orvan\\Localize\\Messaging\\EN", "EN"},
        {"without the text the same place is read", "C:\\Windows\\System32\\abc.dll", "2\\a"},
        {"which may lie behind the end", "", ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.expected, determineCurrentLanguage(tool.context, c.path));
    }
}

TEST_F(EventLogLanguage, IsThatOfTheSourcesWhoseEventFileLiesBelowTheFolderOfMessages)
{
    withSource("Server", englishFile, englishFile);
    withSource("Windows", "C:\\Windows\\x.dll", englishFile);
    withSource("Lower", "C:\\orvan\\localize\\messaging\\ENU\\x.dll", "");
    withSource("Bare", "C:\\Orvan\\Localize\\Messaging", "");
    tool.registry.withKey(sourceKey("Empty"));
    withSource("Adapter", englishFile, "");
    EXPECT_EQ((Texts{"Server", "Bare", "Adapter"}), getEventLogKeys(tool.context));
    EXPECT_TRUE(tool.failures().empty());
}

TEST_F(EventLogLanguage, HasNoSourcesWithoutKeys)
{
    EXPECT_EQ(Texts{}, getEventLogKeys(tool.context));
    EXPECT_EQ(1u, tool.failures("[mdlLanguage]getEventLogKeys").size())
        << "the list of a key that is not there has no bounds";

    tool.registry.withKey(eventSourcesKey);
    EXPECT_EQ(Texts{}, getEventLogKeys(tool.context));
    EXPECT_EQ(1u, tool.failures().size());
}

TEST_F(EventLogLanguage, ChangesBothFilesOfEachSource)
{
    withSource("A", englishFile, englishFile);
    withSource("B", englishFile, "C:\\Windows\\System32\\abc.dll");
    withSource("C", englishFile, "");
    changeEventLogLanguage(tool.context, "JPN", {"A", "B", "C"});
    for (const char* source : {"A", "B", "C"})
        EXPECT_EQ("C:\\Orvan\\Localize\\Messaging\\JPN\\x.dll", eventFile(source)) << source;
    EXPECT_EQ("C:\\Orvan\\Localize\\Messaging\\JPN\\x.dll", categoryFile("A"));
    EXPECT_EQ("C:\\Windows\\System3JPNbc.dll", categoryFile("B"));
    EXPECT_EQ("JPN", categoryFile("C")) << "an empty value becomes the language alone";
    EXPECT_EQ(sourceKey("A") + "\\EventMessageFile", tool.registry.written().at(0));
    EXPECT_EQ(sourceKey("A") + "\\CategoryMessageFile", tool.registry.written().at(1));
}

TEST_F(EventLogLanguage, AMissingCategoryFileIsMadeOfTheLanguageAlone)
{
    tool.registry.withText(sourceKey("A"), "EventMessageFile", englishFile);
    changeEventLogLanguage(tool.context, "JPN", {"A"});
    EXPECT_EQ("JPN", categoryFile("A"));
}

TEST_F(EventLogLanguage, AFileThatStaysTheSameIsNotWritten)
{
    const std::string key = sourceKey("Expanded");
    const std::string stored = englishFile + '\0';
    constexpr int expandable = 2;
    tool.registry.withText(key, "CategoryMessageFile", "C:\\Windows\\System3ENUbc.dll")
        .withValue(key, "EventMessageFile", {expandable, {stored.begin(), stored.end()}});
    changeEventLogLanguage(tool.context, "ENU", {"Expanded"});
    EXPECT_TRUE(tool.registry.written().empty());
    changeEventLogLanguage(tool.context, "FRA", {"Expanded"});
    EXPECT_EQ((std::vector<std::string>{key + "\\EventMessageFile", key + "\\CategoryMessageFile"}),
              tool.registry.written());
}

TEST_F(EventLogLanguage, TheEmptyLanguageChangesNothing)
{
    withSource("A", englishFile, "");
    changeEventLogLanguage(tool.context, "", {"A"});
    EXPECT_TRUE(tool.registry.written().empty());
    EXPECT_EQ(englishFile, eventFile("A"));
}

TEST_F(EventLogLanguage, ASourceThatMayNotBeWrittenIsPassedOverInSilence)
{
    withSource("A", englishFile, englishFile);
    withSource("B", englishFile, englishFile);
    tool.registry.readOnly(sourceKey("A"));
    changeEventLogLanguage(tool.context, "FRA", {"A", "B", "Gone"});
    EXPECT_EQ(englishFile, eventFile("A"));
    EXPECT_EQ("C:\\Orvan\\Localize\\Messaging\\FRA\\x.dll", eventFile("B"));
    EXPECT_FALSE(tool.registry.has(sourceKey("Gone"), "EventMessageFile"));
    EXPECT_TRUE(tool.failures().empty());
}

TEST_F(EventLogLanguage, IsRememberedUnderAKeyThatIsMadeWhenItIsMissing)
{
    recordOriginalLanguage(tool.context, "ENU");
    EXPECT_EQ("ENU", remembered());
    EXPECT_EQ("ENU", originalLanguage(tool.context));
    recordOriginalLanguage(tool.context, "");
    EXPECT_EQ("", originalLanguage(tool.context));

    TestTool closed;
    closed.registry.closed("Software");
    recordOriginalLanguage(closed.context, "ENU");
    EXPECT_EQ("", originalLanguage(closed.context));
    EXPECT_EQ(1u, closed.failures("[mdlLanguage]recordOriginalLanguage").size());
}

TEST_F(EventLogLanguage, TellsEachRoutineInTheLog)
{
    changeEventLogLanguage(tool.context, "", {});
    getEventLogKeys(tool.context);
    replaceLanguage(tool.context, "", "");
    determineCurrentLanguage(tool.context, "");
    recordOriginalLanguage(tool.context, "");
    for (const char* routine : {"changeEventLogLanguage", "getEventLogKeys", "replaceLanguage",
                                "determineCurrentLanguage", "recordOriginalLanguage"}) {
        EXPECT_TRUE(tool.logged(std::string("Entering [mdlLanguage]") + routine)) << routine;
        EXPECT_TRUE(tool.logged(std::string("Exiting [mdlLanguage]") + routine)) << routine;
    }
}
