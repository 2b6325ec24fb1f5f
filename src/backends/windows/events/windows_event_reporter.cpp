#include "backends/windows/events/windows_event_reporter.h"

#include "backends/windows/windows_error.h"
#include "platform/tool_events.h"
#include "runtime/run_time_error.h"

#include <limits>

namespace {

/// The longest text that the system takes, in characters.
constexpr std::size_t longestInsert = 31'839;

/// Owner of a source that events are reported by.
class OpenSource {
public:
    explicit OpenSource(const std::wstring& name)
        : handle_(::RegisterEventSourceW(nullptr, name.c_str()))
    {}
    ~OpenSource()
    {
        if (handle_ != nullptr) ::DeregisterEventSource(handle_);
    }
    OpenSource(const OpenSource&) = delete;
    OpenSource& operator=(const OpenSource&) = delete;

    HANDLE get() const { return handle_; }

private:
    HANDLE handle_;
};

WORD systemsType(int type)
{
    return type == toolEvents::traceChange ? EVENTLOG_INFORMATION_TYPE : static_cast<WORD>(type);
}

} // namespace

std::int32_t WindowsEventReporter::registerTool(const std::string&)
{
    return ++lastHandle_;
}

void WindowsEventReporter::report(const std::string& source, std::int32_t, int type,
                                  std::int32_t id, const std::vector<std::string>& inserts)
{
    const OpenSource opened(wideOf(source));
    if (opened.get() == nullptr) throw latestError(runTimeErrors::fileNotFound);
    std::vector<std::wstring> texts;
    for (const auto& insert : inserts) texts.push_back(wideOf(insert).substr(0, longestInsert));
    std::vector<const wchar_t*> pointers;
    for (const auto& text : texts) pointers.push_back(text.c_str());
    if (pointers.size() > std::numeric_limits<WORD>::max())
        throw RunTimeError(runTimeErrors::invalidCall);
    if (!::ReportEventW(opened.get(), systemsType(type), 0, static_cast<DWORD>(id), nullptr,
                        static_cast<WORD>(pointers.size()), 0, pointers.data(), nullptr))
        throw latestError(runTimeErrors::fileNotFound);
}

void WindowsEventReporter::formatTraceLine(std::string_view rawLine, std::string& formatted)
{
    if (!appendFormattedTraceLine(rawLine, fields_, formatted))
        throw RunTimeError(runTimeErrors::invalidCall);
}

std::string_view WindowsEventReporter::timeOfSoundLine(std::string_view rawLine) const
{
    return timeOfSoundTraceLine(rawLine, fields_);
}
