#include "backends/windows/events/event_messages.h"

#include "backends/common/event_csv.h"
#include "system/windows/windows_calls.h"

#include <array>
#include <string_view>
#include <utility>

namespace {

/// The numbers that a sentence may name its texts by.
constexpr std::size_t mostInserts = 100;

/// The paths that a source has registered, variables resolved.
std::wstring registeredFiles(const std::wstring& log, const std::wstring& source)
{
    const std::wstring key =
        L"System\\CurrentControlSet\\Services\\EventLog\\" + log + L"\\" + source;
    DWORD size = 0;
    if (::RegGetValueW(HKEY_LOCAL_MACHINE, key.c_str(), L"EventMessageFile", RRF_RT_REG_SZ, nullptr,
                       nullptr, &size) != ERROR_SUCCESS)
        return {};
    std::wstring files(size / sizeof(wchar_t), L'\0');
    if (::RegGetValueW(HKEY_LOCAL_MACHINE, key.c_str(), L"EventMessageFile", RRF_RT_REG_SZ, nullptr,
                       files.data(), &size) != ERROR_SUCCESS)
        return {};
    files.resize(files.find(L'\0') == std::wstring::npos ? files.size() : files.find(L'\0'));
    return files;
}

std::vector<HMODULE> loadedFiles(std::wstring_view paths)
{
    std::vector<HMODULE> files;
    while (!paths.empty()) {
        const std::size_t end = paths.find(L';');
        const std::wstring path(paths.substr(0, end));
        paths.remove_prefix(end == std::wstring_view::npos ? paths.size() : end + 1);
        const HMODULE file = ::LoadLibraryExW(
            path.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE | LOAD_LIBRARY_AS_IMAGE_RESOURCE);
        if (file != nullptr) files.push_back(file);
    }
    return files;
}

std::wstring withoutLineEnd(std::wstring text)
{
    while (!text.empty() && (text.back() == L'\n' || text.back() == L'\r' || text.back() == L' '))
        text.pop_back();
    return text;
}

/// A message file's sentence; empty where it has none. A text that the sentence names and the event
/// lacks is empty.
std::wstring sentenceOf(HMODULE file, std::uint32_t id, const std::vector<std::wstring>& inserts)
{
    std::array<DWORD_PTR, mostInserts> arguments;
    arguments.fill(reinterpret_cast<DWORD_PTR>(L""));
    for (std::size_t index = 0; index < inserts.size() && index < mostInserts; ++index)
        arguments[index] = reinterpret_cast<DWORD_PTR>(inserts[index].c_str());
    wchar_t* text = nullptr;
    const DWORD length =
        ::FormatMessageW(FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_HMODULE |
                             FORMAT_MESSAGE_ARGUMENT_ARRAY,
                         file, id, 0, reinterpret_cast<wchar_t*>(&text), 0,
                         reinterpret_cast<va_list*>(arguments.data()));
    if (length == 0 || text == nullptr) return {};
    std::wstring sentence(text, length);
    ::LocalFree(text);
    return withoutLineEnd(std::move(sentence));
}

} // namespace

EventMessages::EventMessages(std::string logName) : logName_(std::move(logName)) {}

EventMessages::~EventMessages()
{
    for (const auto& source : files_)
        for (const HMODULE file : source.second) ::FreeLibrary(file);
}

const std::vector<HMODULE>& EventMessages::filesOf(const std::string& source)
{
    const auto known = files_.find(source);
    if (known != files_.end()) return known->second;
    return files_[source] = loadedFiles(registeredFiles(wideOf(logName_), wideOf(source)));
}

std::string EventMessages::messageOf(const EventRecord& event)
{
    const std::string_view own = toolEventSentence(event.source, event.number());
    if (!own.empty()) return eventMessage(own, event.inserts);
    std::vector<std::wstring> inserts;
    for (const auto& insert : event.inserts) inserts.push_back(wideOf(insert));
    for (const HMODULE file : filesOf(event.source)) {
        const std::wstring sentence = sentenceOf(file, event.id, inserts);
        if (!sentence.empty()) return utf8Of(sentence);
    }
    return eventMessage("", event.inserts);
}
