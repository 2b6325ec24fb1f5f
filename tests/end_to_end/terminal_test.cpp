#include "end_to_end/terminal.h"

#include "end_to_end/sample_site.h"

#include <gmock/gmock.h>
#include <sqlite3.h>

#include <algorithm>
#include <cstdlib>
#include <sstream>

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using Words = std::vector<std::string>;

/// Bytes 1 to 255 in three parts, each short enough for the name of a file.
std::string bytes(int first, int last, const std::string& except)
{
    std::string text;
    for (int byte = first; byte <= last; ++byte)
        if (except.find(static_cast<char>(byte)) == std::string::npos)
            text += static_cast<char>(byte);
    return text;
}

const std::string separators = "/\\";
const std::string controls = bytes(1, 0x7F, separators);
const std::string strayBytes = bytes(0x80, 0xFF, "");

/// Characters past ASCII that act on a terminal of UTF-8.
const std::string characters = "\u0080\u0085\u009b\u009f\u200e\u202a\u202e\u2066\u2069\u061c\u2028";
const std::string everything[] = {controls, strayBytes, characters};

/// The first byte or character that a terminal acts on instead of showing it; empty when there is
/// none. Written without the program's own routine.
std::string acting(const std::string& written)
{
    for (std::size_t place = 0; place < written.size();) {
        const auto byte = static_cast<unsigned char>(written[place]);
        const std::size_t length = byte < 0x80 ? 1 : byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
        const std::string character = written.substr(place, length);
        const bool stray = (byte >= 0x80 && byte < 0xC2) ||
                           std::any_of(character.begin() + 1, character.end(), [](char c) {
                               return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
                           });
        const bool control = byte == 0x7F || (byte < ' ' && byte != '\n' && byte != '\t');
        const bool upperControl = byte == 0xC2 && static_cast<unsigned char>(character[1]) < 0xA0;
        const bool turns =
            length > 1 && character > "\u0085" && characters.find(character) != std::string::npos;
        if (stray || control || upperControl || turns)
            return testing::PrintToString(written.substr(place > 20 ? place - 20 : 0, 40));
        place += length;
    }
    return {};
}

struct Terminal : SampleSite {
    /// What a command writes as text and as JSON. A test failure when a byte of it acts.
    std::string expectSeen(Words words)
    {
        words.insert(words.begin(), {"--site", site.string()});
        std::string written = onTerminal(words, folder.string());
        EXPECT_EQ("", acting(written)) << testing::PrintToString(words);
        words.insert(words.begin(), "--json");
        EXPECT_EQ("", acting(onTerminal(words, folder.string()))) << testing::PrintToString(words);
        return written;
    }

    void change(const std::string& statement)
    {
        sqlite3* database = nullptr;
        ASSERT_EQ(SQLITE_OK, sqlite3_open((site / "OrvanDirDb.sqlite").c_str(), &database));
        EXPECT_EQ(SQLITE_OK, sqlite3_exec(database, statement.c_str(), nullptr, nullptr, nullptr))
            << sqlite3_errmsg(database);
        sqlite3_close(database);
    }

    /// A text as the database's language writes it.
    static std::string literal(const std::string& text)
    {
        std::string hexadecimal;
        for (const char c : text) {
            hexadecimal += "0123456789ABCDEF"[static_cast<unsigned char>(c) >> 4];
            hexadecimal += "0123456789ABCDEF"[static_cast<unsigned char>(c) & 15];
        }
        return "CAST(X'" + hexadecimal + "' AS TEXT)";
    }
};

TEST_F(Terminal, GetsNoByteThatActsFromALog)
{
    std::string log;
    for (int byte = 0; byte < 256; ++byte) {
        if (byte == '\n') continue;
        const std::string b(1, static_cast<char>(byte));
        log += "15:23:07:123,C" + b + "v,12" + b + ",Call" + b + "Flow,7,tra" + b + "ce\r\n";
        log += "2005-10-08" + b + " 22:23:07," + b + "\r\n";
        log += "*** " + b + "\r\n";
    }
    write(folder / "a.txt", log);
    const std::string written = expectSeen({"read", (folder / "a.txt").string()});
    EXPECT_THAT(written, HasSubstr("tra\\x1bce"));
    EXPECT_THAT(written, HasSubstr("tra\\u009dce")) << "decoded from the code page";
}

TEST_F(Terminal, GetsNoByteThatActsFromTheExtendedFieldsOfALog)
{
    const fs::path other = folder / "extended";
    ASSERT_EQ(
        0, orvandiag({"sample", other.string(), "--lines", "500", "--fields", "extended"}).status);
    site = other;
    std::string log;
    for (int byte = 0; byte < 256; ++byte) {
        if (byte == '\n') continue;
        const std::string b(1, static_cast<char>(byte));
        log += "15:23:07:123,C,1,7" + b + ",1" + b + ",00ff" + b + ",Call,7,trace\r\n";
    }
    write(folder / "a.txt", log);
    EXPECT_THAT(expectSeen({"read", (folder / "a.txt").string()}), HasSubstr("00ff\\x1b"));
}

TEST_F(Terminal, KeepsTheColumnsOfALogInLineWhateverTheyHold)
{
    write(folder / "a.txt", "15:23:07:123,Co\x1Bnv,1,Call,7,first\r\n"
                            "15:23:07:124,caf\xE9,2,Call,7,second\r\n");
    const std::string written = expectSeen({"read", (folder / "a.txt").string()});
    const auto columnOf = [&](const std::string& text) {
        const auto place = written.find(text);
        const std::string before = written.substr(0, place);
        const std::string line = before.substr(before.rfind('\n') + 1);
        return std::count_if(line.begin(), line.end(),
                             [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; });
    };
    EXPECT_EQ(columnOf("first"), columnOf("second")) << written;
}

TEST_F(Terminal, GetsNoByteThatActsFromTheNameOfALog)
{
    for (const std::string& part : everything) {
        const std::string name = "diag_KoCSMgr_20250220_1_" + part + ".txt";
        fs::copy_file(drive("KelmaOrvan/Logs/" + currentLog()), drive("KelmaOrvan/Logs/" + name));
        expectSeen({"read", name});
        expectSeen({"gather", "logs", "--log", name, "--to", target.string()});
        expectSeen({"gather", "logs", "--log", name, "--dry-run"});
    }
    EXPECT_THAT(expectSeen({"logs", "KoCSMgr"}), HasSubstr("\\x1b"));
    EXPECT_THAT(expectSeen({"tree"}), HasSubstr("\\x1b"));
}

TEST_F(Terminal, GetsNoByteThatActsFromAFolderToGatherInto)
{
    for (const std::string& part : everything) {
        const std::string place = (folder / ("to" + part)).string();
        EXPECT_THAT(expectSeen({"gather", "standard", "--to", place}), HasSubstr("Gathered into"));
        expectSeen(
            {"gather", "frame", "--from", "2025-02-20 16:42", "--hours", "1", "--to", place});
        expectSeen({"gather", "standard", "--to", place + "/nowhere/deeper"});
    }
}

TEST_F(Terminal, GetsNoByteThatActsFromTheSettingsOfAServer)
{
    for (const std::string& part : everything) {
        expectSeen({"settings", "--log-folder", "C:\\" + part});
        for (const char* command : {"settings", "status", "tree"}) expectSeen({command});
        expectSeen({"read", "nothing"});
    }
}

TEST_F(Terminal, GetsNoByteThatActsFromAProcessOfTheRegistry)
{
    const fs::path registry = site / "registry.reg";
    const std::string whole = read(registry);
    for (const std::string& part : everything) {
        std::string name = part;
        std::erase_if(name, [](char c) { return c == ']' || c == '\n' || c == '\r'; });
        write(registry, whole +
                            "\r\n[HKEY_LOCAL_MACHINE\\Software\\Kelma Systems\\Kelma Orvan\\"
                            "RoLogMgr\\Process\\Ko" +
                            name + "]\r\n\"CurrentLogFile\"=\"diag_" + characters + ".txt\"\r\n");
        for (const char* command : {"status", "tree"}) expectSeen({command});
        expectSeen({"logs", "Ko" + name});
    }
}

TEST_F(Terminal, GetsNoByteThatActsFromTheDatabase)
{
    for (const std::string& part : everything) {
        change("UPDATE tbl_LoggerDiagnosticGrid SET Name = " + literal("A" + part) +
               ", ObjectId = " + literal("B" + part) +
               " WHERE Name = (SELECT MIN(Name) FROM tbl_LoggerDiagnosticGrid)");
        EXPECT_THAT(expectSeen({"flags"}), HasSubstr("A\\"));
        expectSeen({"flags", "A" + part});
        expectSeen({"micro"});
        expectSeen({"micro", "A" + part});
    }
}

TEST_F(Terminal, GetsNoByteThatActsFromADefinition)
{
    const std::string hidden = "&#9;&#10;&#13;&#127;&#155;&#x202e;&#x2066;";
    write(drive("OrvanDiagnostics/ZMKXML/HTZ.xml"),
          "<?xml version=\"1.0\"?>\n<GA NAME=\"Z" + hidden + "\"><TRACE NAME=\"T" + hidden +
              "\"><DESCRIPTION>D" + hidden + "</DESCRIPTION><DIAG GROUP=\"G" + hidden +
              "\"><FLAG ID=\"2\"/></DIAG></TRACE></GA>");
    EXPECT_THAT(expectSeen({"macro"}), HasSubstr("\\u202e"));
    const std::string decoded = "\t\n\r\x7F\u009b\u202e\u2066";
    EXPECT_THAT(expectSeen({"macro", "set", "--on", "Z" + decoded + " - T" + decoded}),
                HasSubstr("\\u202e"));
    for (const std::string& part : everything)
        write(drive("OrvanDiagnostics/ZMKXML/HT" + part + ".xml"), "no definition");
    EXPECT_THAT(expectSeen({"macro"}), HasSubstr("is passed over"));
}

TEST_F(Terminal, GetsNoByteThatActsFromTheLanguagesOfTheEventLog)
{
    for (const std::string& part : everything)
        fs::copy(drive("KelmaOrvan/Localize/Messaging/ENU"),
                 drive("KelmaOrvan/Localize/Messaging/L" + part));
    EXPECT_THAT(expectSeen({"event-language"}), HasSubstr("\\x1b"));
    expectSeen({"event-language", "L" + controls});
}

TEST_F(Terminal, GetsNoByteThatActsBackFromAnArgument)
{
    for (const std::string& part : everything) {
        const Words cases[] = {
            {part},
            {"--" + part},
            {"--site", part, "status"},
            {"logs", part},
            {"read", part},
            {"flags", part},
            {"micro", part},
            {"micro", "set", "--on", part},
            {"micro", "set", "--on", part + ":2"},
            {"micro", "set", "--on", part + ":2", "--off", part + ":2"},
            {"macro", "set", "--on", part},
            {"macro", "set", "--on", part, "--off", part},
            {"event-language", part},
            {"language", part},
            {"settings", "--max-megabytes", part},
            {"completion", part},
            {"sample", (folder / "nowhere" / part / part).string()},
            {"sample", "x", "--fields", part},
            {"gather", part},
            {"gather", "logs", "--log", part},
            {"gather", "logs", "--event-log", part},
            {"gather", "frame", "--from", part, "--hours", "1"},
            {"gather", "frame", "--from", "2025-02-20 16:42", "--hours", part},
        };
        for (const Words& words : cases) expectSeen(words);
    }
}

TEST_F(Terminal, ReadsTheSameValuesFromJsonAsTheLogHolds)
{
    write(folder / "a.txt", "15:23:07:123,Conv,1,Call,7,a\x1B\x7F\x9D\t\xE9z\r\n");
    const auto row = runJson({"read", (folder / "a.txt").string()}).json();
    EXPECT_EQ("a\x1B\x7F\u009d\t\u00e9z ", row["trace"]);
}

TEST_F(Terminal, WritesTheSameIntoAPipe)
{
    write(folder / "a.txt", "15:23:07:123,Conv,1,Call,7,a\x1B[2Jz\r\n");
    EXPECT_THAT(run({"read", (folder / "a.txt").string()}).out, HasSubstr("a\\x1b[2Jz"));
}

/// A variable of the environment that programs are started in, while it lives.
class Variable {
public:
    Variable(const char* name, const char* value) : name_(name) { setenv(name, value, 1); }
    ~Variable() { unsetenv(name_); }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

private:
    const char* name_;
};

struct ReadingTerminal : Terminal {
    const std::string log = "diag_KoCSMgr_20250220_152307.txt"; ///< with a day in its name

    std::string shown(Words words)
    {
        words.insert(words.begin(), {"--site", site.string(), "read"});
        return onTerminal(words, folder.string());
    }
};

TEST_F(ReadingTerminal, HasRowsInThePagerOfThePerson)
{
    write(folder / log, "15:23:07:123,Conv,1,Call,7,one\n15:23:07:123,Conv,1,Call,7,two\n");
    const std::string plain = shown({log});
    const Variable pager("PAGER", "sed s/^/P:/");
    EXPECT_EQ(plain, shown({log})) << "its own one comes first";
    std::string paged = plain;
    for (auto place = paged.rfind('\n', paged.size() - 2); place != std::string::npos;
         place = place == 0 ? place : paged.rfind('\n', place - 1))
        paged.insert(place + 1, "P:");
    paged.insert(0, "P:");
    {
        const Variable own("ORVAN_PAGER", "");
        EXPECT_EQ(paged, shown({log}));
        EXPECT_EQ(plain, shown({log, "--no-pager"}));
    }
    const Variable own("ORVAN_PAGER", "head -n 2");
    EXPECT_EQ(plain.substr(0, plain.find('\n', plain.find('\n') + 1) + 1), shown({log}))
        << "a pager that is left is no failure";
}

TEST_F(ReadingTerminal, HasRowsAlsoWhereThePagerOfThePersonIsNotThere)
{
    write(folder / log, "15:23:07:123,Conv,1,Call,7,one\n15:23:07:123,Conv,1,Call,7,two\n");
    const std::string plain = shown({log, "--no-pager"});
    for (const char* command : {"/no/such/pager -R", "no-such-pager"}) {
        const Variable own("ORVAN_PAGER", command);
        EXPECT_EQ(plain, shown({log})) << command;
    }
}

TEST_F(ReadingTerminal, HasColoursByLevelWhereItIsWished)
{
    write(folder / log, "15:23:07:123,Conv,1,Call,0,bad\n15:23:07:123,Conv,1,Call,1,poor\n"
                        "15:23:07:123,Conv,1,Call,2,good\nno form\n");
    const std::string plain = shown({log});
    EXPECT_EQ(std::string::npos, plain.find('\x1B'));
    const std::string coloured = shown({log, "--color", "always"});
    EXPECT_THAT(coloured, testing::ContainsRegex("\x1B\\[31m000001 [^\n]*bad \x1B\\[0m\n"));
    EXPECT_THAT(coloured, testing::ContainsRegex("\x1B\\[33m000002 [^\n]*poor \x1B\\[0m\n"));
    EXPECT_EQ(4, std::count(coloured.begin(), coloured.end(), '\x1B'));
    const Variable noneOf("NO_COLOR", "");
    const Variable kind("TERM", "xterm");
    EXPECT_EQ(coloured, shown({log}));
    EXPECT_EQ(plain, shown({log, "--color", "never"}));
    EXPECT_EQ(plain, run({"read", log}).out) << "a pipe has none";
}

TEST_F(ReadingTerminal, HasRowsCutToItsWidthUnlessTheyAreWished)
{
    constexpr std::size_t width = 200;
    const std::string trace(300, 'x');
    write(folder / log, "15:23:07:123,Conv,1,Call,7," + trace +
                            "\n15:23:07:123,Conv,1,Call,7,\xE9\x1B" + trace + "\n");
    std::istringstream lines(shown({log}));
    std::string line;
    std::getline(lines, line);
    for (int row = 0; row < 2; ++row) {
        std::getline(lines, line);
        EXPECT_EQ(width,
                  static_cast<std::size_t>(std::count_if(line.begin(), line.end(), [](char c) {
                      return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
                  })));
    }
    EXPECT_THAT(shown({log, "--wide"}), HasSubstr(trace + " \n"));
}

TEST_F(ReadingTerminal, GetsNoByteThatActsInAnyFormat)
{
    std::string content;
    for (int byte = 0; byte < 256; ++byte) {
        if (byte == '\n') continue;
        const std::string b(1, static_cast<char>(byte));
        content +=
            "15:23:07:123,C" + b + "v,12,Call" + b + "Flow,7,tra" + b + "ce\r\n*** " + b + "\n";
    }
    write(folder / log, content);
    for (const char* format : {"table", "raw", "json", "csv", "otlp"})
        EXPECT_EQ("", acting(shown({log, "--format", format}))) << format;
    EXPECT_EQ("", acting(shown({log, "--count-by", "component"})));
    EXPECT_EQ("", acting(shown({log, "--count-by", "component", "--format", "csv"})));
}

} // namespace
