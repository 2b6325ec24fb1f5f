#include "core/localisation.h"

#include "core/registry_store.h"
#include "core/string_table.h"
#include "core/tool_context.h"
#include "runtime/run_time_error.h"
#include "support/test_tool.h"

#include <gtest/gtest.h>

namespace {

const std::string frenchLibrary = "C:\\OrvanDiagnostics\\ZMKbrandingres_FRA.dll";
const std::string germanLibrary = "C:\\OrvanDiagnostics\\ZMKbrandingres_DEU.dll";

using Codes = std::vector<std::string>;

class FontRecorder final : public FontTarget {
public:
    explicit FontRecorder(bool hasFont = true) : hasFont_(hasFont) {}

    void setFont(const LanguageFont& font) override
    {
        if (!hasFont_) throw RunTimeError(438, "Object doesn't support this property or method");
        charset = font.charset;
        name = font.name;
    }

    int charset = 0;
    std::string name = "none yet";

private:
    bool hasFont_;
};

class RecordingForm final : public OpenForm {
public:
    std::vector<FontTarget*> controls() override
    {
        if (error != 0) throw RunTimeError(error);
        return {&first, &withoutFont, &last};
    }
    void autoInit() override {}
    void refreshControls() override {}

    FontRecorder first;
    FontRecorder withoutFont{false};
    FontRecorder last;
    int error = 0;
};

std::vector<std::string> shown(const TestTool& tool)
{
    std::vector<std::string> texts;
    for (const auto& message : tool.desktop.messages()) texts.push_back(message.text);
    return texts;
}

} // namespace

TEST(MyLoadResString, ComesFromTheLibraryAndElseFromTheEnglishTable)
{
    TestTool tool;
    tool.languages.userDefault = 1036;
    tool.languages.with(frenchLibrary, {{1062, "D'accord"}, {1063, ""}, {2000, "seulement ici"}});
    InitalizeLanguages(tool.context);
    EXPECT_EQ("D'accord", myLoadResString(tool.context, TextId{1062}));
    EXPECT_EQ(englishText(TextId{1063}), myLoadResString(tool.context, TextId{1063}))
        << "an empty text is none";
    EXPECT_EQ(englishText(TextId{1064}), myLoadResString(tool.context, TextId{1064}))
        << "the library lacks it";
    EXPECT_EQ("seulement ici", myLoadResString(tool.context, TextId{2000}));
}

TEST(MyLoadResString, IsEnglishBeforeAnyLanguageWasChosen)
{
    TestTool tool;
    EXPECT_EQ("OK", myLoadResString(tool.context, TextId{1062}));
    EXPECT_EQ("Select the destination directory", myLoadResString(tool.context, TextId{1076}));
}

TEST(MyLoadResString, AnIdOutsideTheTableIsEmpty)
{
    TestTool tool;
    tool.languages.userDefault = 1036;
    tool.languages.with(frenchLibrary, {{1062, "D'accord"}});
    InitalizeLanguages(tool.context);
    for (const int id : {1150, 999, 0, -1, 100000})
        EXPECT_EQ("", myLoadResString(tool.context, TextId{id})) << id;
}

TEST(InitalizeLanguages, TakesTheUsersLanguageWhenNoneIsChosen)
{
    TestTool tool;
    tool.languages.userDefault = 1031;
    tool.languages.with(germanLibrary, {{1062, "Gut"}});
    InitalizeLanguages(tool.context);
    EXPECT_EQ(1031, tool.context.language.g_lngCurrentLanguage);
    EXPECT_EQ("Gut", myLoadResString(tool.context, TextId{1062}));
    EXPECT_EQ((Codes{germanLibrary}), tool.languages.loads());
}

TEST(InitalizeLanguages, KeepsAChosenLanguageAndFreesTheLibraryBefore)
{
    TestTool tool;
    tool.languages.with(germanLibrary, {{1062, "Gut"}}).with(frenchLibrary, {{1062, "D'accord"}});
    tool.context.language.g_lngCurrentLanguage = 1031;
    InitalizeLanguages(tool.context);
    const std::int32_t german = tool.context.language.g_hResourceLibrary;
    EXPECT_TRUE(tool.languages.freed().empty());

    tool.context.language.g_lngCurrentLanguage = 1036;
    InitalizeLanguages(tool.context);
    EXPECT_EQ((std::vector<std::int32_t>{german}), tool.languages.freed());
    EXPECT_EQ("D'accord", myLoadResString(tool.context, TextId{1062}));

    tool.context.language.g_lngCurrentLanguage = 1040;
    InitalizeLanguages(tool.context);
    EXPECT_EQ(0, tool.context.language.g_hResourceLibrary);
    EXPECT_EQ("OK", myLoadResString(tool.context, TextId{1062}));
}

TEST(InitalizeLanguages, RemembersTheChoiceInTheRegistry)
{
    TestTool tool;
    tool.context.language.g_lngCurrentLanguage = 1036;
    InitalizeLanguages(tool.context);
    EXPECT_EQ("1036", tool.registry.text(toolKey, "CurrentLocalizationLanguage"));
    tool.context.language.g_lngCurrentLanguage = 1028;
    InitalizeLanguages(tool.context);
    EXPECT_EQ("1028", tool.registry.text(toolKey, "CurrentLocalizationLanguage"));
}

TEST(InitalizeLanguages, ALanguageWithoutARowOfTheTableLoadsNoLibrary)
{
    for (const std::int32_t id : {1028, 1042, 2052}) {
        SCOPED_TRACE(id);
        TestTool tool;
        tool.languages.userDefault = id;
        InitalizeLanguages(tool.context);
        EXPECT_EQ((Codes{"C:\\OrvanDiagnostics\\ZMKbrandingres_ERROR.dll"}),
                  tool.languages.loads());
        EXPECT_EQ(0, tool.context.language.g_hResourceLibrary);
        EXPECT_EQ("OK", myLoadResString(tool.context, TextId{1062}));
        EXPECT_TRUE(tool.desktop.messages().empty());
    }
}

TEST(InitalizeLanguages, ListsTheCodesOfTheLibrariesBesideTheTool)
{
    struct Case {
        const char* because;
        Codes files;
        Codes expected;
    };
    const Case cases[] = {
        {"none found leaves one empty code", {"other.dll"}, {""}},
        {"one found looks the same from its bounds", {"ZMKbrandingres_FRA.dll"}, {"FRA"}},
        {"they come in the order of the listing",
         {"ZMKbrandingres_JPN.txt", "ZMKbrandingres_DEU.txt"},
         {"DEU", "JPN"}},
        {"the prefix has no case, a code keeps its own", {"zmkBRANDINGRES_fra.DLL"}, {"fra"}},
        {"no more than the prefix is an empty code", {"ZMKbrandingres_"}, {""}},
        {"a name that is a little shorter is another file", {"ZMKbrandingres"}, {""}},
        {"a code may be cut short by the name's end", {"ZMKbrandingres_X"}, {"X"}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        TestTool tool;
        for (const std::string& name : c.files) tool.files.with("C:\\OrvanDiagnostics\\" + name);
        InitalizeLanguages(tool.context);
        EXPECT_EQ(c.expected, tool.context.language.g_astrLanguages);
        InitalizeLanguages(tool.context);
        EXPECT_EQ(c.expected, tool.context.language.g_astrLanguages) << "built anew each time";
    }
}

TEST(InitalizeLanguages, AFolderOfALibrarysNameIsNone)
{
    TestTool tool;
    tool.files.withFolder("C:\\OrvanDiagnostics\\ZMKbrandingres_FRA");
    InitalizeLanguages(tool.context);
    EXPECT_EQ((Codes{""}), tool.context.language.g_astrLanguages);

    tool.files.with("C:\\OrvanDiagnostics\\ZMKbrandingres_JPN.dll");
    InitalizeLanguages(tool.context);
    EXPECT_EQ((Codes{"JPN"}), tool.context.language.g_astrLanguages) << "it hides none behind it";
}

TEST(InitalizeLanguages, ShowsEachFailureAndGoesOn)
{
    TestTool tool;
    RecordingForm form;
    tool.context.language.openForms = {&form};
    tool.context.language.g_lngCurrentLanguage = 1041;
    tool.registry.readOnly("Software");
    tool.files.failing("C:\\OrvanDiagnostics", 70);
    InitalizeLanguages(tool.context);
    EXPECT_EQ(
        (std::vector<std::string>{"Error in InitalizeLanguages: Unable to create the registry key",
                                  "Error in InitalizeLanguages: Permission denied"}),
        shown(tool));
    EXPECT_EQ((Codes{""}), tool.context.language.g_astrLanguages);
    EXPECT_EQ(128, form.last.charset);
    EXPECT_FALSE(tool.context.g_log.exists())
        << "the box is for the person, the log stays as it is";
}

TEST(InitalizeLanguages, AFormThatFailsDoesNotKeepTheNextFromItsFont)
{
    TestTool tool;
    RecordingForm broken;
    broken.error = 91;
    RecordingForm form;
    tool.context.language.openForms = {&broken, &form};
    tool.context.language.g_lngCurrentLanguage = 1042;
    InitalizeLanguages(tool.context);
    EXPECT_EQ((std::vector<std::string>{
                  "Error in InitalizeLanguages: Object variable or With block variable not set"}),
              shown(tool));
    EXPECT_EQ(129, form.first.charset);
}

TEST(InitalizeLanguages, ASavedLanguageGivesWayToTheUsersAtTheNextStart)
{
    TestTool tool;
    tool.registry.withText(toolKey, "CurrentLocalizationLanguage", "1041");
    tool.languages.userDefault = 1036;
    InitalizeLanguages(tool.context);
    EXPECT_EQ(1036, tool.context.language.g_lngCurrentLanguage);
    EXPECT_EQ("1036", tool.registry.text(toolKey, "CurrentLocalizationLanguage"));
}

TEST(InitalizeLanguages, ASavedJapaneseWithoutItsLibraryIsEnglishInTheJapaneseFont)
{
    TestTool tool;
    RecordingForm form;
    tool.registry.withText(toolKey, "CurrentLocalizationLanguage", "1041");
    tool.languages.with(frenchLibrary, {{1062, "D'accord"}});
    tool.context.language.openForms = {&form};
    tool.context.language.g_lngCurrentLanguage = 1041;
    InitalizeLanguages(tool.context);
    EXPECT_EQ("1041", tool.registry.text(toolKey, "CurrentLocalizationLanguage"));
    EXPECT_EQ((Codes{"C:\\OrvanDiagnostics\\ZMKbrandingres_JPN.dll"}), tool.languages.loads());
    EXPECT_EQ(0, tool.context.language.g_hResourceLibrary);
    EXPECT_EQ("OK", myLoadResString(tool.context, TextId{1062}));
    EXPECT_EQ(englishText(TextId{1048}), myLoadResString(tool.context, TextId{1048}));
    EXPECT_EQ(128, form.first.charset);
    EXPECT_EQ("ＭＳ Ｐゴシック", form.first.name);
    EXPECT_TRUE(tool.desktop.messages().empty());
}

TEST(ApplyLanguageFont, AnObjectWithoutAFontIsPassedOver)
{
    TestTool tool;
    tool.context.language.g_lngCurrentLanguage = 2052;
    RecordingForm form;
    applyLanguageFontToAll(tool.context, form.controls());
    EXPECT_EQ(134, form.first.charset);
    EXPECT_EQ("none yet", form.withoutFont.name);
    EXPECT_EQ("宋体", form.last.name);
    applyLanguageFont(tool.context, form.withoutFont);
    EXPECT_TRUE(tool.failures().empty());
}

TEST(UserLanguageCode, IsThatOfTheUserAndNotOfTheTool)
{
    TestTool tool;
    tool.languages.userDefault = 1036;
    tool.context.language.g_lngCurrentLanguage = 1031;
    EXPECT_EQ("FRA", userLanguageCode(tool.context));
    tool.languages.userDefault = 1042;
    EXPECT_EQ("ERROR", userLanguageCode(tool.context));
}

TEST(LanguageName, IsTheSystems)
{
    TestTool tool;
    tool.languages.names = {{1033, "Anglais"}, {1036, "Fran\u00e7ais"}};
    EXPECT_EQ("Fran\u00e7ais", languageName(tool.context, 1036));
    EXPECT_EQ("Fran\u00e7ais", languageNameFromCode(tool.context, "fra"));
    EXPECT_EQ("Anglais", languageNameFromCode(tool.context, "ZZZ")) << "a code without a row";
}

TEST(LanguageName, IsErrorWhereTheSystemGivesNone)
{
    TestTool tool;
    tool.languages.names.clear();
    EXPECT_EQ("(error)", languageName(tool.context, 1036));
    EXPECT_EQ("(error)", languageNameFromCode(tool.context, "FRA"));
}
