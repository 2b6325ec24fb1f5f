#include "backends/windows/code_page.h"
#include "backends/windows/desktop/windows_desktop.h"
#include "backends/windows/event_bytes.h"
#include "backends/windows/events/event_messages.h"
#include "backends/windows/files/tool_path.h"
#include "backends/windows/windows_machine.h"
#include "support/error_of.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sddl.h>
#include <thread>

namespace {

class WindowsOnlyTest : public testing::Test {
protected:
    void write(const std::string& path, const std::string& content)
    {
        machine.files().createTextFile(path)->write(content);
    }

    std::string read(const std::string& path)
    {
        return machine.files().openForReading(path)->readAll();
    }

    WindowsMachine machine;
};

/// A file that another program has open.
class HeldFile {
public:
    HeldFile(const wchar_t* path, DWORD access, DWORD sharing)
        : handle_(::CreateFileW(path, access, sharing, nullptr, OPEN_ALWAYS, 0, nullptr))
    {
        EXPECT_NE(INVALID_HANDLE_VALUE, handle_);
    }
    ~HeldFile() { ::CloseHandle(handle_); }
    HeldFile(const HeldFile&) = delete;
    HeldFile& operator=(const HeldFile&) = delete;

    bool write(std::string_view text)
    {
        DWORD written = 0;
        return ::WriteFile(handle_, text.data(), static_cast<DWORD>(text.size()), &written,
                           nullptr) != FALSE;
    }

private:
    HANDLE handle_;
};

TEST_F(WindowsOnlyTest, PathsMayBeLongerThanTheSystemsOldLimit)
{
    std::string folder = "C:\\long";
    machine.files().createFolder(folder);
    for (int level = 0; level < 5; ++level) {
        folder += "\\" + std::string(80, static_cast<char>('a' + level));
        machine.files().createFolder(folder);
    }
    ASSERT_GT(folder.size(), 400u);
    write(folder + "\\diag_A_1.txt", "line");
    EXPECT_EQ("line", read(folder + "\\diag_A_1.txt"));
    EXPECT_EQ((std::vector<std::string>{"diag_A_1.txt"}),
              machine.files().matching(folder + "\\diag_*.txt"));
    machine.files().copyFile(folder + "\\diag_A_1.txt", folder + "\\copy.txt");
    EXPECT_EQ("line", read(folder + "\\copy.txt"));
    EXPECT_EQ(8, machine.files().folderSize("C:\\long"));
    machine.files().deleteFile(folder + "\\copy.txt");
    EXPECT_EQ(1u, machine.files().entries(folder).size());
}

TEST_F(WindowsOnlyTest, NamesMayHaveLettersThatTheCodePageLacks)
{
    const std::string name = "C:\\\u65E5\u672C\u0416.txt";
    write(name, "x");
    EXPECT_EQ("x", read(name));
    EXPECT_EQ((std::vector<std::string>{"\u65E5\u672C\u0416.txt"}),
              machine.files().matching("C:\\\u65E5*"));
}

TEST_F(WindowsOnlyTest, ALogIsReadWhileItsWriterGoesOn)
{
    HeldFile log(L"C:\\log.txt", GENERIC_WRITE, FILE_SHARE_READ);
    ASSERT_TRUE(log.write("one\r\n"));
    const auto reader = machine.files().openForReading("C:\\log.txt");
    EXPECT_EQ("one", reader->readLine());
    EXPECT_TRUE(log.write("two\r\n"));
    EXPECT_EQ("two", reader->readLine());
}

TEST_F(WindowsOnlyTest, ReadingKeepsNobodyFromWritingRenamingAndRemoving)
{
    write("C:\\log.txt", "one\r\n");
    const auto reader = machine.files().openForReading("C:\\log.txt");
    {
        HeldFile writer(L"C:\\log.txt", GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_DELETE);
        EXPECT_TRUE(writer.write("ONE"));
    }
    EXPECT_TRUE(::MoveFileW(L"C:\\log.txt", L"C:\\old.txt"));
    EXPECT_EQ("ONE", reader->readLine());
    EXPECT_TRUE(::DeleteFileW(L"C:\\old.txt"));
}

TEST_F(WindowsOnlyTest, AFileThatNobodyElseMayOpenRaises70)
{
    const HeldFile held(L"C:\\log.txt", GENERIC_WRITE, 0);
    EXPECT_EQ(70, errorOf([&] { machine.files().openForReading("C:\\log.txt"); }));
    EXPECT_EQ(70, errorOf([&] { machine.files().openForAppending("C:\\log.txt"); }));
    EXPECT_EQ(70, errorOf([&] { machine.files().copyFile("C:\\log.txt", "C:\\b.txt"); }));
    EXPECT_EQ(70, errorOf([&] { machine.files().deleteFile("C:\\log.txt"); }));
    EXPECT_TRUE(machine.files().fileExists("C:\\log.txt"));
}

TEST_F(WindowsOnlyTest, DevicesAndStreamsAreNoFiles)
{
    write("C:\\a.txt", "x");
    for (const char* device : {"CON", "C:\\NUL", "\\\\.\\pipe\\x", "\\\\?\\C:\\a.txt"}) {
        EXPECT_FALSE(machine.files().fileExists(device)) << device;
        EXPECT_EQ(70, errorOf([&] { machine.files().openForReading(device); })) << device;
        EXPECT_EQ(70, errorOf([&] { machine.files().createTextFile(device); })) << device;
    }
    EXPECT_FALSE(machine.files().fileExists("C:\\a.txt:stream"));
    EXPECT_EQ(52, errorOf([&] { machine.files().createTextFile("C:\\a.txt:stream"); }));
    EXPECT_EQ(52, errorOf([&] { machine.files().file(std::string("C:\\a.txt\0b", 10)); }));
}

TEST(ToolPath, KnowsRootsFoldersAndNames)
{
    EXPECT_EQ(L"\\\\?\\C:\\a\\b", systemPath("C:/a//b/"));
    EXPECT_EQ(L"\\\\?\\C:\\", systemPath("C:\\"));
    EXPECT_TRUE(isRootPath(systemPath("C:\\")));
    EXPECT_TRUE(isRootPath(systemPath("\\\\server\\share")));
    EXPECT_FALSE(isRootPath(systemPath("\\\\server\\share\\x")));
    EXPECT_EQ(L"\\\\?\\C:\\a\\", folderOf(systemPath("C:\\a\\b")));
    EXPECT_EQ(L"b", lastNameOf(systemPath("C:\\a\\b")));
    EXPECT_EQ("\\\\server\\share\\x", machinePath(systemPath("\\\\server\\share\\x")));
}

TEST_F(WindowsOnlyTest, AStoredTextWithoutItsZeroReadsBackWhole)
{
    machine.registry().createKey(registryRoot::localMachine, "A");
    HKEY key = nullptr;
    ASSERT_EQ(ERROR_SUCCESS, ::RegOpenKeyExW(HKEY_LOCAL_MACHINE, L"A", 0, KEY_SET_VALUE, &key));
    ::RegSetValueExW(key, L"v", 0, REG_SZ, reinterpret_cast<const BYTE*>(L"text"), 8);
    const std::wstring longText(5000, L'x');
    ::RegSetValueExW(key, L"long", 0, REG_SZ, reinterpret_cast<const BYTE*>(longText.c_str()),
                     10'002);
    ::RegCloseKey(key);
    const auto stored = machine.registry().value(registryRoot::localMachine, "A", "v");
    ASSERT_TRUE(stored);
    EXPECT_EQ((std::vector<std::uint8_t>{'t', 'e', 'x', 't', 0}), stored->bytes);
    EXPECT_EQ(5001u,
              machine.registry().value(registryRoot::localMachine, "A", "long")->bytes.size());
}

/// Leaves everybody the right to read a key of the tool's hive, and no other.
void letNobodyWrite(const wchar_t* path)
{
    PSECURITY_DESCRIPTOR readable = nullptr;
    ASSERT_TRUE(::ConvertStringSecurityDescriptorToSecurityDescriptorW(
        L"D:P(A;;KR;;;WD)", SDDL_REVISION_1, &readable, nullptr));
    HKEY key = nullptr;
    ASSERT_EQ(ERROR_SUCCESS,
              ::RegOpenKeyExW(HKEY_LOCAL_MACHINE, path, 0, KEY_READ | WRITE_DAC, &key));
    EXPECT_EQ(ERROR_SUCCESS, ::RegSetKeySecurity(key, DACL_SECURITY_INFORMATION, readable));
    ::RegCloseKey(key);
    ::LocalFree(readable);
}

TEST_F(WindowsOnlyTest, AKeyWithoutTheRightToWriteTakesNoValue)
{
    Registry& registry = machine.registry();
    const RegistryValue number{registryType::number, {1, 0, 0, 0}};
    registry.createKey(registryRoot::localMachine, "Mine");
    ASSERT_TRUE(registry.setValue(registryRoot::localMachine, "Mine", "v", number));
    letNobodyWrite(L"Mine");
    HKEY key = nullptr;
    if (::RegOpenKeyExW(HKEY_LOCAL_MACHINE, L"Mine", 0, KEY_WRITE, &key) == ERROR_SUCCESS) {
        ::RegCloseKey(key);
        GTEST_SKIP() << "this user may write to whatever key, or the system does not look";
    }
    EXPECT_FALSE(registry.setValue(registryRoot::localMachine, "Mine", "v",
                                   {registryType::number, {2, 0, 0, 0}}));
    EXPECT_EQ(number, registry.value(registryRoot::localMachine, "Mine", "v"));
}

TEST_F(WindowsOnlyTest, WhatIsNoKeyGivesAndTakesNothing)
{
    Registry& registry = machine.registry();
    EXPECT_FALSE(registry.keyExists(registryRoot::localMachine, std::string("A\0B", 3)));
    EXPECT_FALSE(registry.createKey(registryRoot::localMachine, std::string("A\0B", 3)));
    EXPECT_FALSE(registry.setValue(registryRoot::localMachine, "None", "v", {}));
    EXPECT_FALSE(registry.value(registryRoot::localMachine, "None", "v"));
}

TEST(WindowsTimeZoneTest, ReadsTheZoneThatTheMachineIsSetTo)
{
    TIME_ZONE_INFORMATION expected{};
    const DWORD state = ::GetTimeZoneInformation(&expected);
    TimeZoneInformation zone;
    EXPECT_EQ(static_cast<int>(state), static_cast<int>(WindowsTimeZone().read(zone)));
    EXPECT_EQ(expected.Bias, zone.bias);
    EXPECT_EQ(expected.DaylightBias, zone.daylightBias);
}

TEST(WindowsClockTest, AWaitOfAMillisecondIsNoLonger)
{
    constexpr int waits = 10;
    WindowsClock clock;
    // On a busy machine some take longer: the quickest tell.
    ULONGLONG quickest = ~0ULL;
    for (int round = 0; round < 10; ++round) {
        const ULONGLONG start = ::GetTickCount64();
        for (int wait = 0; wait < waits; ++wait) clock.sleep(1);
        quickest = std::min(quickest, ::GetTickCount64() - start);
    }
    EXPECT_LT(quickest, 120u) << "the system's usual step would take that long";
}

LRESULT CALLBACK answer(HWND window, UINT message, WPARAM first, LPARAM second)
{
    return message == WM_APP ? 42 : ::DefWindowProcW(window, message, first, second);
}

TEST(WindowsProcessesTest, AWaitLetsSentMessagesThrough)
{
    WNDCLASSW kind{};
    kind.lpfnWndProc = answer;
    kind.lpszClassName = L"OrvanTestWindow";
    ::RegisterClassW(&kind);
    const HWND window = ::CreateWindowExW(0, kind.lpszClassName, L"", 0, 0, 0, 0, 0, HWND_MESSAGE,
                                          nullptr, nullptr, nullptr);
    ASSERT_NE(nullptr, window);
    DWORD_PTR answered = 0;
    std::thread other(
        [&] { ::SendMessageTimeoutW(window, WM_APP, 0, 0, SMTO_NORMAL, 5000, &answered); });
    WindowsProcesses processes;
    const ULONGLONG start = ::GetTickCount64();
    EXPECT_TRUE(processes.wait(static_cast<std::int32_t>(::GetCurrentProcessId()), 700));
    EXPECT_GE(::GetTickCount64() - start, 690u) << "a message is no end of the wait";
    EXPECT_EQ(42u, answered);
    other.join();
    ::DestroyWindow(window);
}

TEST_F(WindowsOnlyTest, WhatIsNoProgramDoesNotStart)
{
    write("C:\\text.exe", "no program");
    EXPECT_EQ(5, errorOf([&] { machine.processes().start("C:\\text.exe", WindowStyle::hidden); }));
    for (const char* line : {"", "  "})
        EXPECT_EQ(53, errorOf([&] { machine.processes().start(line, WindowStyle::hidden); }));
}

TEST_F(WindowsOnlyTest, WhatIsNoLibraryHasNoHandle)
{
    write("C:\\text.dll", "no library");
    for (const char* path : {"C:\\text.dll", "", "C:\\"})
        EXPECT_EQ(0, machine.languages().loadLibrary(path)) << path;
}

/// A file that the build makes for the tool's folder.
std::string builtFile(const std::string& name)
{
    wchar_t path[MAX_PATH] = {};
    ::GetModuleFileNameW(nullptr, path, MAX_PATH);
    const std::string program = machinePath(path);
    const std::string folder = program.substr(0, program.rfind('\\'));
    return folder.substr(0, folder.rfind('\\')) + "\\data\\" + name;
}

TEST_F(WindowsOnlyTest, ALibraryForAnotherProcessorHasItsTexts)
{
    const std::string path = machine.add("ENU", 1015, "Kelma Orvan Diagnostics");
    std::string library = read(path);
    constexpr std::size_t placeOfHeader = 0x3C;
    const auto header = static_cast<std::size_t>(
        static_cast<unsigned char>(library[placeOfHeader]) + 256 * library[placeOfHeader + 1]);
    ASSERT_EQ("PE", library.substr(header, 2));
    library.replace(header + 4, 2, "\x64\xAA"); // ARM64
    write("C:\\OrvanDiagnostics\\other.dll", library);
    WindowsLanguages languages;
    const auto handle = languages.loadLibrary("C:\\OrvanDiagnostics\\other.dll");
    ASSERT_NE(0, handle);
    EXPECT_EQ("Kelma Orvan Diagnostics", languages.text(handle, 1015));
    languages.freeLibrary(handle);
}

TEST_F(WindowsOnlyTest, ALibraryThatIsCutOffBeforeTheEndOfItsTextsIsNone)
{
    const std::string whole = read(machine.add("ENU", 1015, "Kelma Orvan Diagnostics"));
    WindowsLanguages languages;
    for (const std::size_t length :
         {std::size_t{0}, std::size_t{1}, std::size_t{64}, std::size_t{300}, whole.size() / 2}) {
        write("C:\\cut.dll", whole.substr(0, length));
        EXPECT_EQ(0, languages.loadLibrary("C:\\cut.dll")) << length << " of " << whole.size();
    }
}

TEST_F(WindowsOnlyTest, WhatAStartedProgramWritesIsNotAmongWhatThisOneWrites)
{
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    const HANDLE output = ::CreateFileW(L"C:\\output.txt", GENERIC_WRITE, FILE_SHARE_READ,
                                        &inherited, CREATE_ALWAYS, 0, nullptr);
    const HANDLE before = ::GetStdHandle(STD_OUTPUT_HANDLE);
    ::SetStdHandle(STD_OUTPUT_HANDLE, output);
    WindowsProcesses processes;
    const std::int32_t process =
        processes.start("C:\\windows\\system32\\cmd.exe /c echo told", WindowStyle::hidden);
    EXPECT_TRUE(processes.wait(process, 20'000));
    ::SetStdHandle(STD_OUTPUT_HANDLE, before);
    ::CloseHandle(output);
    EXPECT_EQ(0, machine.files().file("C:\\output.txt").size);
}

TEST(ResourceLibraries, HaveTheTextsOfTheirCatalogues)
{
    WindowsLanguages languages;
    const auto french = languages.loadLibrary(builtFile("ZMKbrandingres_FRA.dll"));
    EXPECT_EQ(" mais les param\u00E8tres de journalisation indiquent le dossier ",
              languages.text(french, 1000));
    const auto english = languages.loadLibrary(builtFile("ZMKbrandingres_ENU.dll"));
    EXPECT_EQ("Select the destination directory", languages.text(english, 1076));
    EXPECT_EQ("Change Language", languages.text(english, 1012));
    EXPECT_FALSE(languages.text(english, 60'000));
    for (const char* code : {"DEU", "ESP", "JPN"})
        EXPECT_TRUE(languages.text(
            languages.loadLibrary(builtFile(std::string("ZMKbrandingres_") + code + ".dll")), 1149))
            << code;
}

/// A log's source that has registered a message file.
class RegisteredSource {
public:
    explicit RegisteredSource(const std::string& file)
    {
        const std::wstring text(file.begin(), file.end());
        HKEY key = nullptr;
        ::RegCreateKeyExW(HKEY_LOCAL_MACHINE, path, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key,
                          nullptr);
        ::RegSetValueExW(key, L"EventMessageFile", 0, REG_SZ,
                         reinterpret_cast<const BYTE*>(text.c_str()),
                         static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
        ::RegCloseKey(key);
    }

private:
    static constexpr const wchar_t* path =
        L"System\\CurrentControlSet\\Services\\EventLog\\Application\\Registered";
};

TEST_F(WindowsOnlyTest, AnEventIsTheSentenceOfItsMessageFileWithItsTexts)
{
    machine.registry();
    const RegisteredSource source("C:\\none.dll;" + builtFile("OrvanDiagnosticEvents.dll"));
    EventMessages messages("Application");
    EventRecord event;
    event.source = "Registered";
    event.id = 10004;
    event.inserts = {"GA - Calls"};
    EXPECT_EQ("The macro trace was turned on: GA - Calls", messages.messageOf(event));
    event.inserts.clear();
    EXPECT_EQ("The macro trace was turned on:", messages.messageOf(event)) << "a text is missing";
    event.id = 10002;
    EXPECT_EQ("The diagnostic tool was loaded.", messages.messageOf(event));
    event.id = 4711;
    event.inserts = {"a"};
    EXPECT_EQ("a", messages.messageOf(event));
}

TEST(WindowsEventLogs, AreTheMachinesOwn)
{
    EXPECT_EQ(53, errorOf([] { openEventLog("No Such Log"); }));
    EXPECT_EQ(53, errorOf([] { openEventLog(""); }));
    EXPECT_EQ(53, errorOf([] { openEventLog("Application\\x"); }));
    const auto log = openEventLog("APPLICATION");
    std::uint32_t seen = 0;
    for (auto records = log->next(); !records.empty(); records = log->next())
        while (const auto event = parseEventRecord(records)) {
            records.remove_prefix(event->length);
            ++seen;
        }
    EXPECT_LE(log->count(), seen);
}

TEST_F(WindowsOnlyTest, AnExportedLogHasTheCellsOfItsRecords)
{
    machine.exporter().exportEventLog("Application", "C:\\out.csv", 0);
    const auto reader = machine.files().openForReading("C:\\out.csv");
    reader->readLine();
    const std::string line(reader->readLine());
    EXPECT_EQ("2005-10-08 ", line.substr(0, 11));
    EXPECT_EQ(",Information,OrvanDiagnosticTool_MC,10004,VOICE01,The macro trace was turned on: GA",
              line.substr(line.find(',')));
}

TEST_F(WindowsOnlyTest, AnEventOfASourceWithoutSentencesIsItsTexts)
{
    EventMessages messages("Application");
    EventRecord event;
    event.source = "No Such Source";
    event.inserts = {"a", "b"};
    EXPECT_EQ("a, b", messages.messageOf(event));
}

TEST(WindowsCodePage, TellsTheCharacterOfEachByte)
{
    EXPECT_EQ(0x20AC, codePageOfMachine(1252).character('\x80'));
    EXPECT_EQ(u'A', codePageOfMachine(1252).character('A'));
    EXPECT_EQ(0x0416, codePageOfMachine(1251).character('\xC6'));
    EXPECT_EQ(0xFFFD, codePageOfMachine(932).character('\xE0')) << "it begins a longer character";
    EXPECT_EQ(u'z', machineCodePage().character('z'));
}

TEST(WindowsDesktopTest, PumpingHandlesWhatWaitsAndLeavesTheWishToEnd)
{
    WindowsDesktop desktop(nullptr);
    ::PostThreadMessageW(::GetCurrentThreadId(), WM_APP, 0, 0);
    desktop.pumpMessages();
    MSG message{};
    EXPECT_FALSE(::PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE));
    ::PostQuitMessage(7);
    desktop.pumpMessages();
    ASSERT_TRUE(::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE));
    EXPECT_EQ(static_cast<UINT>(WM_QUIT), message.message);
    EXPECT_EQ(7u, message.wParam);
}

TEST(WindowsDesktopTest, AHelpFileThatIsMissingIsNotShown)
{
    WindowsDesktop desktop(nullptr);
    EXPECT_EQ(0, desktop.showHelp("C:\\none.chm", 0));
}

} // namespace
