#include "backends/windows/windows_machine.h"

#include "backends/windows/event_bytes.h"
#include "backends/windows/full_disk.h"
#include "backends/windows/test_resources.h"
#include "runtime/run_time_error.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

constexpr const wchar_t* hivePath = L"Software\\OrvanDiagnosticTests";
constexpr const wchar_t* failing = L"ORVAN_TEST_FAILS";

std::vector<std::string>& heardTexts()
{
    static std::vector<std::string> texts;
    return texts;
}

/// Hears what the program sends to its debugger.
LONG CALLBACK hear(EXCEPTION_POINTERS* exception)
{
    constexpr DWORD debugText = 0x40010006;
    const EXCEPTION_RECORD& record = *exception->ExceptionRecord;
    if (record.ExceptionCode != debugText) return EXCEPTION_CONTINUE_SEARCH;
    heardTexts().emplace_back(reinterpret_cast<const char*>(record.ExceptionInformation[1]));
    return EXCEPTION_CONTINUE_EXECUTION;
}

std::wstring programFolder()
{
    wchar_t path[MAX_PATH] = {};
    ::GetModuleFileNameW(nullptr, path, MAX_PATH);
    return fs::path(path).parent_path().wstring();
}

DWORD pacificTime(TIME_ZONE_INFORMATION& zone)
{
    zone.Bias = 480;
    zone.StandardDate = {0, 11, 0, 1, 2, 0, 0, 0};
    zone.DaylightDate = {0, 3, 0, 2, 2, 0, 0, 0};
    zone.DaylightBias = -60;
    return TIME_ZONE_ID_STANDARD;
}

DWORD mountainTime(TIME_ZONE_INFORMATION& zone)
{
    zone.Bias = 420;
    return TIME_ZONE_ID_UNKNOWN;
}

/// An application log of two records.
class TwoRecords final : public EventLogRecords {
public:
    std::uint32_t count() const override { return 2; }
    std::string_view next() override
    {
        return std::exchange(given_, true) ? std::string_view() : std::string_view(bytes_);
    }

private:
    std::string bytes_ = eventBytes({.inserts = {u"GA"}}) + eventBytes({.id = 10002});
    bool given_ = false;
};

std::unique_ptr<EventLogRecords> openTwoRecords(const std::string& name)
{
    if (::lstrcmpiA(name.c_str(), "Application") != 0)
        throw RunTimeError(runTimeErrors::fileNotFound);
    return std::make_unique<TwoRecords>();
}

} // namespace

/// Puts a key of the test's own in the place of the tool's hive.
class WindowsMachine::OwnHive {
public:
    OwnHive()
    {
        ::RegDeleteTreeW(HKEY_CURRENT_USER, hivePath);
        HKEY key = nullptr;
        ::RegCreateKeyExW(HKEY_CURRENT_USER, hivePath, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key,
                          nullptr);
        EXPECT_EQ(ERROR_SUCCESS, ::RegOverridePredefKey(HKEY_LOCAL_MACHINE, key));
        ::RegCloseKey(key);
    }
    ~OwnHive()
    {
        ::RegOverridePredefKey(HKEY_LOCAL_MACHINE, nullptr);
        ::RegDeleteTreeW(HKEY_CURRENT_USER, hivePath);
    }
};

/// Removes what a test leaves on the drives, and stands in the root of C: first.
class WindowsMachine::OwnDrives {
public:
    OwnDrives()
    {
        EXPECT_TRUE(fs::is_directory("D:\\")) << "the tests want an empty drive D:";
        ::SetEnvironmentVariableW(L"=C:", nullptr);
        ::SetEnvironmentVariableW(L"=D:", nullptr);
        ::SetCurrentDirectoryW(L"C:\\");
        before_ = present();
    }
    ~OwnDrives()
    {
        ::SetCurrentDirectoryW(L"C:\\");
        for (const std::wstring& path : present())
            if (before_.count(path) == 0) remove(path);
    }

private:
    static std::set<std::wstring> present()
    {
        std::set<std::wstring> paths;
        for (const wchar_t* drive : {L"\\\\?\\C:", L"\\\\?\\D:"}) addPathsIn(drive, paths);
        return paths;
    }

    static void addPathsIn(const std::wstring& folder, std::set<std::wstring>& paths)
    {
        WIN32_FIND_DATAW found{};
        const HANDLE search = ::FindFirstFileW((folder + L"\\*").c_str(), &found);
        if (search == INVALID_HANDLE_VALUE) return;
        do
            if (found.cFileName != std::wstring(L".") && found.cFileName != std::wstring(L".."))
                paths.insert(folder + L"\\" + found.cFileName);
        while (::FindNextFileW(search, &found));
        ::FindClose(search);
    }

    static void remove(const std::wstring& path)
    {
        ::SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
        // A program that a test has not waited for may run for a moment yet.
        constexpr int tries = 100;
        for (int left = tries; left > 0; --left) {
            if (::DeleteFileW(path.c_str())) return;
            if ((::GetFileAttributesW(path.c_str()) & FILE_ATTRIBUTE_DIRECTORY) != 0) break;
            ::Sleep(20);
        }
        std::set<std::wstring> below;
        addPathsIn(path, below);
        for (const std::wstring& entry : below) remove(entry);
        ::RemoveDirectoryW(path.c_str());
    }

    std::set<std::wstring> before_;
};

WindowsMachine::WindowsMachine(bool extended)
    : drives_(std::make_unique<OwnDrives>()), timeZone_(pacificTime),
      zoneWithoutRule_(mountainTime), reporter_(extended ? LogFields::extended : LogFields::basic),
      exporter_(openTwoRecords), library_(loadModule()), module_({.module = library_}),
      developersModule_({.module = library_, .developmentHost = true})
{}

WindowsMachine::~WindowsMachine()
{
    if (listener_ != nullptr) ::RemoveVectoredExceptionHandler(listener_);
    if (held_ != INVALID_HANDLE_VALUE) ::CloseHandle(held_);
    ::SetEnvironmentVariableW(failing, nullptr);
    ::FreeLibrary(library_);
}

Registry& WindowsMachine::registry()
{
    if (!hive_) hive_ = std::make_unique<OwnHive>();
    return registry_;
}

HMODULE WindowsMachine::loadModule()
{
    fs::create_directory("C:\\OrvanDiagnostics");
    const wchar_t* path = L"C:\\OrvanDiagnostics\\OrvanDiagnostics.dll";
    // Another machine of the test's may have loaded it.
    const std::wstring model = programFolder() + L"\\test_module.dll";
    EXPECT_TRUE(fs::exists(path) || ::CopyFileW(model.c_str(), path, FALSE));
    return ::LoadLibraryExW(path, nullptr, DONT_RESOLVE_DLL_REFERENCES);
}

HostModule& WindowsMachine::developersModule()
{
    heardTexts().clear();
    if (listener_ == nullptr) listener_ = ::AddVectoredExceptionHandler(1, hear);
    return developersModule_;
}

std::string WindowsMachine::commandLine() const
{
    return ::GetCommandLineA();
}

std::string WindowsMachine::computer() const
{
    char name[MAX_PATH] = {};
    DWORD size = MAX_PATH;
    ::GetComputerNameA(name, &size);
    return name;
}

std::string WindowsMachine::user() const
{
    char name[MAX_PATH] = {};
    DWORD size = MAX_PATH;
    ::GetUserNameA(name, &size);
    return name;
}

std::vector<std::string> WindowsMachine::heard() const
{
    return heardTexts();
}

std::vector<std::string> WindowsMachine::inOrderOfStore(std::vector<std::string> names)
{
    std::sort(names.begin(), names.end());
    return names;
}

void WindowsMachine::makeReadOnly(const std::string& path)
{
    EXPECT_TRUE(::SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_READONLY));
}

void WindowsMachine::withRoomFor(std::int64_t bytes, const std::function<void()>& work)
{
    withFullDisk(bytes, work);
}

std::string WindowsMachine::program()
{
    fs::create_directory("C:\\My Tools");
    const std::wstring program = programFolder() + L"\\ending_program.exe";
    const wchar_t* path = L"C:\\My Tools\\cabmaker.exe";
    EXPECT_TRUE(fs::exists(path) || ::CopyFileW(program.c_str(), path, FALSE));
    return "C:\\My Tools\\cabmaker.exe";
}

void WindowsMachine::letProgramFail()
{
    ::SetEnvironmentVariableW(failing, L"1");
}

std::string WindowsMachine::forbiddenProgram()
{
    held_ = ::CreateFileW(L"C:\\other.exe", GENERIC_READ | GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                          FILE_ATTRIBUTE_NORMAL, nullptr);
    return "C:\\other.exe";
}

std::string WindowsMachine::add(const std::string& code, int id, const std::string& text)
{
    const std::string path = "C:\\OrvanDiagnostics\\ZMKbrandingres_" + code + ".dll";
    const std::u16string units = fs::u8path(text).u16string();
    makeResourceLibrary(programFolder() + L"\\test_module.dll", fs::path(path).wstring(), id,
                        {units.begin(), units.end()});
    return path;
}
