#include "hosts/desktop/support/open_program.h"
#include "hosts/desktop/support/person.h"

#include <QAbstractButton>

#include <gmock/gmock.h>

#include <fstream>

namespace desktop {

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::IsEmpty;

/// A window on a site of a French user whose catalogue is not as it should be.
struct BadCatalogue : testing::Test {
    OpenProgram shown;
    std::string catalogue =
        shown.server.site() + "/drive_c/OrvanDiagnostics/ZMKbrandingres_FRA.txt";

    std::string problem() { return shown.window().problem().toStdString(); }

    QString card() { return shown.pane().findChild<QAbstractButton*>("task-1")->text(); }

    void openForFrenchUser()
    {
        std::ofstream(shown.server.site() + "/site.ini") << "[site]\nlanguage=1036\n";
        shown.program.openSite(shown.server.site());
        settle();
    }

    void write(const std::string& bytes)
    {
        std::ofstream(catalogue, std::ios::binary | std::ios::trunc) << bytes;
    }
};

TEST_F(BadCatalogue, AWholeOneIsUsed)
{
    openForFrenchUser();
    EXPECT_EQ(QStringLiteral("Configurer les macro-traces"), card());
    EXPECT_THAT(problem(), IsEmpty());
}

TEST_F(BadCatalogue, ADamagedOneIsSaidAndTheWindowSpeaksEnglish)
{
    struct Case {
        const char* because;
        std::string bytes;
    };
    const Case cases[] = {
        {"no line of a catalogue", "what is this\n"},
        {"bytes of another kind", std::string("\x7f"
                                              "ELF\x02\x01\x01\0\0\xff\xfe",
                                              11)},
        {"an id that is none", "1024 = Configurer\nnone = x\n"},
        {"cut in the middle of a letter", "1024 = Configurer les traces \xc3"},
        {"a text twice", "1024 = Configurer\n1024 = Encore\n"},
    };
    openForFrenchUser();
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        write(c.bytes);
        shown.program.openSite(shown.server.site());
        EXPECT_TRUE(shown.window().isVisible());
        EXPECT_EQ(QStringLiteral("Configure Macro Traces"), card());
        EXPECT_THAT(problem(), HasSubstr("missing or damaged"));
        EXPECT_THAT(problem(), HasSubstr("1036"));
    }
}

TEST_F(BadCatalogue, AFolderInItsPlaceIsSaidToo)
{
    fs::remove(catalogue);
    fs::create_directory(catalogue);
    openForFrenchUser();
    EXPECT_EQ(QStringLiteral("Configure Macro Traces"), card());
    EXPECT_THAT(problem(), HasSubstr("missing or damaged"));
}

TEST_F(BadCatalogue, OneThatIsDamagedWhenItIsChosenIsSaid)
{
    write("what is this\n");
    EXPECT_TRUE(person::chooseLanguage("French"));
    EXPECT_THAT(problem(), HasSubstr("missing or damaged"));
    EXPECT_EQ(QStringLiteral("Configure Macro Traces"), card());
}

} // namespace

} // namespace desktop
