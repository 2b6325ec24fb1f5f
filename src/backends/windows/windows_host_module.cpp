#include "backends/windows/windows_host_module.h"

#include "system/windows/windows_calls.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace {

/// How often a developer at a debugger has a statement run.
constexpr int mostTries = 10;

constexpr std::size_t longestPath = 32'768;

std::wstring pathOf(HMODULE module)
{
    std::wstring path(longestPath, L'\0');
    path.resize(::GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size())));
    return path;
}

} // namespace

WindowsHostModule::WindowsHostModule(WindowsHostFacts facts) : facts_(std::move(facts))
{
    const std::wstring path = pathOf(facts_.module);
    const std::size_t end = path.rfind(L'\\');
    folder_ = !facts_.folder.empty()
                  ? facts_.folder
                  : utf8Of(std::wstring_view(path).substr(0, end == std::wstring::npos ? 0 : end));
    readVersion(path);
}

/// A file's version has four numbers: the tool's revision is the third of them.
void WindowsHostModule::readVersion(const std::wstring& path)
{
    DWORD unused = 0;
    std::vector<BYTE> block(::GetFileVersionInfoSizeW(path.c_str(), &unused));
    void* value = nullptr;
    UINT size = 0;
    if (block.empty() ||
        !::GetFileVersionInfoW(path.c_str(), 0, static_cast<DWORD>(block.size()), block.data()) ||
        !::VerQueryValueW(block.data(), L"\\", &value, &size) || size < sizeof(VS_FIXEDFILEINFO))
        return;
    const auto* version = static_cast<const VS_FIXEDFILEINFO*>(value);
    major_ = HIWORD(version->dwFileVersionMS);
    minor_ = LOWORD(version->dwFileVersionMS);
    revision_ = HIWORD(version->dwFileVersionLS);
}

std::string WindowsHostModule::commandLine() const
{
    return utf8Of(::GetCommandLineW());
}

bool WindowsHostModule::isDevelopmentHost(int failuresInARow) const
{
    return facts_.developmentHost && failuresInARow < mostTries &&
           !(facts_.interrupted && facts_.interrupted());
}

void WindowsHostModule::debugOutput(const std::string& text)
{
    ::OutputDebugStringW(wideOf(text).c_str());
}
