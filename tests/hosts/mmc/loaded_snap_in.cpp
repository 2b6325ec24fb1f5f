#include "hosts/mmc/loaded_snap_in.h"

#include "hosts/common/places.h"
#include "hosts/mmc/console/wide_text.h"
#include "sample/sample_server.h"

namespace stand_in {

const CLSID SiteModule::snapIn = {
    0x1F0B3C52, 0x6E1D, 0x4B7A, {0x9C, 0x41, 0x2D, 0x75, 0x0A, 0xE8, 0x33, 0x10}};
const CLSID SiteModule::about = {
    0x1F0B3C52, 0x6E1D, 0x4B7A, {0x9C, 0x41, 0x2D, 0x75, 0x0A, 0xE8, 0x33, 0x11}};
const GUID SiteModule::staticNode = {
    0x1F0B3C52, 0x6E1D, 0x4B7A, {0x9C, 0x41, 0x2D, 0x75, 0x0A, 0xE8, 0x33, 0x12}};

SiteModule& SiteModule::get()
{
    static SiteModule module;
    return module;
}

SiteModule::SiteModule()
{
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    wchar_t program[MAX_PATH] = {};
    GetModuleFileNameW(nullptr, program, MAX_PATH);
    path_ = program;
    path_.replace(path_.rfind(L'\\') + 1, std::wstring::npos, L"site_snap_in.dll");
    module_ = LoadLibraryW(path_.c_str());
}

HRESULT SiteModule::make(REFCLSID asked, REFIID id, void** object) const
{
    using Entry = HRESULT(WINAPI*)(REFCLSID, REFIID, void**);
    const auto entry = reinterpret_cast<Entry>(
        reinterpret_cast<void*>(GetProcAddress(module_, "DllGetClassObject")));
    if (!entry) return E_FAIL;
    Held<IClassFactory> factory;
    const HRESULT found =
        entry(asked, IID_IClassFactory, reinterpret_cast<void**>(factory.place()));
    return FAILED(found) ? found : factory->CreateInstance(nullptr, id, object);
}

HRESULT SiteModule::callWithout(const char* entryPoint) const
{
    using Entry = HRESULT(WINAPI*)();
    const auto entry =
        reinterpret_cast<Entry>(reinterpret_cast<void*>(GetProcAddress(module_, entryPoint)));
    return entry ? entry() : E_FAIL;
}

SnapInTest::SnapInTest(std::size_t lines)
{
    SampleOptions options;
    options.folder = folder_ / "site";
    options.dataFolder = places::installedData();
    options.lines = lines;
    makeSampleServer(options);
    SetEnvironmentVariableW(L"ORVAN_TEST_SITE", widen(options.folder).c_str());
}

SnapInTest::~SnapInTest()
{
    close();
    EXPECT_EQ(S_OK, SiteModule::get().callWithout("DllCanUnloadNow"))
        << "an object of the snap-in is still there";
    if (toolsHaveGone()) return;
    ADD_FAILURE() << "a tool outlives its console";
    // A folder with open files can't be removed; it would be tried without end.
    static_cast<void>(held_.release());
}

bool SnapInTest::toolsHaveGone() const
{
    const std::filesystem::path logs = folder_ / "site/drive_c/OrvanDiagnostics/LOGS";
    if (!std::filesystem::exists(logs)) return true;
    for (const auto& entry : std::filesystem::directory_iterator(logs)) {
        constexpr DWORD sharedWithNobody = 0;
        const HANDLE file = CreateFileW(entry.path().c_str(), GENERIC_READ, sharedWithNobody,
                                        nullptr, OPEN_EXISTING, 0, nullptr);
        if (file == INVALID_HANDLE_VALUE) return false;
        CloseHandle(file);
    }
    return true;
}

std::unique_ptr<Console> SnapInTest::another(ConsoleOptions options)
{
    auto console = std::make_unique<Console>(
        [](REFIID id, void** object) {
            return SiteModule::get().make(SiteModule::snapIn, id, object);
        },
        SiteModule::snapIn, options);
    EXPECT_TRUE(console->load());
    // The node has its name from when it is opened on.
    console->expand(console->nodeAt("Processes*"));
    return console;
}

Console& SnapInTest::open(ConsoleOptions options)
{
    SiteModule::get();
    close();
    console_ = another(options);
    return *console_;
}

void SnapInTest::close()
{
    if (!console_) return;
    expectObedience(*console_);
    console_.reset();
}

void SnapInTest::expectObedience(Console& console)
{
    console.close();
    EXPECT_THAT(console.breaches(), testing::IsEmpty());
}

namespace {

/// What `endWhen` waits for: a timer that belongs to no window is given nothing.
struct {
    Console* console = nullptr;
    std::function<bool()> holds;
} ending;

void CALLBACK endConsole(HWND, UINT, UINT_PTR timer, DWORD)
{
    if (!ending.holds()) return;
    KillTimer(nullptr, timer);
    ending.console->end();
}

} // namespace

void SnapInTest::endWhen(std::function<bool()> holds)
{
    ending = {console_.get(), std::move(holds)};
    SetTimer(nullptr, 0, USER_TIMER_MINIMUM, endConsole);
}

void SnapInTest::writeLog(const std::string& name, const std::string& lines) const
{
    folder_.write("site/drive_c/KelmaOrvan/Logs/" + name, lines);
}

} // namespace stand_in
