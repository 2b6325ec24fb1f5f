#include "hosts/common/tool_log_guard.h"

#include "platform/text_stream.h"
#include "platform/trace_database.h"
#include "runtime/run_time_error.h"
#include "runtime/text.h"

#include <map>
#include <utility>

namespace {

/// The clock's place at the head of a line of the log.
constexpr std::size_t clockColumns = 8;

bool tellsOfNumber(std::string_view line, int number)
{
    return line.find("Err.Number = " + std::to_string(number) + " ") != line.npos;
}

bool tellsOfFullDisk(std::string_view line)
{
    return tellsOfNumber(line, runTimeErrors::diskFull) ||
           tellsOfNumber(line, traceDatabaseErrors::diskFull);
}

class GuardedWriter final : public TextWriter {
public:
    GuardedWriter(std::unique_ptr<TextWriter> writer, ToolLogGuard& guard)
        : writer_(std::move(writer)), guard_(guard)
    {}

    ~GuardedWriter() override
    {
        try {
            tellRepeats();
        } catch (const RunTimeError&) {
            // The first failure was told.
        }
    }

    GuardedWriter(const GuardedWriter&) = delete;
    GuardedWriter& operator=(const GuardedWriter&) = delete;

    void write(std::string_view text) override
    {
        if (!hasRoomFor(text.size())) return;
        noting([&] { writer_->write(text); });
    }

    void writeLine(std::string_view text) override
    {
        if (!isRepeat(text)) writeWhole(text);
    }

    void flush() override
    {
        noting([&] { writer_->flush(); });
    }

    void close() override
    {
        tellRepeats();
        noting([&] { writer_->close(); });
    }

private:
    void writeWhole(std::string_view text)
    {
        if (!hasRoomFor(text.size() + lineBreak.size())) return;
        noting([&] { writer_->writeLine(text); });
    }

    template <typename Statement>
    void noting(Statement&& statement)
    {
        try {
            statement();
        } catch (const RunTimeError& error) {
            guard_.failed(error.description());
            throw;
        }
    }

    bool isRepeat(std::string_view line)
    {
        if (line.size() <= clockColumns || !tellsOfFullDisk(line)) return false;
        return repeats_[std::string(line.substr(clockColumns))]++ > 0;
    }

    /// Whether a text goes to the file. What passes the bound is told in its place, once.
    bool hasRoomFor(std::size_t length)
    {
        if (full_) return false;
        written_ += static_cast<std::int64_t>(length);
        full_ = written_ > ToolLogGuard::bound;
        if (full_)
            noting([&] {
                writer_->writeLine("The log has reached its bound of 50 MB. Nothing more is "
                                   "written to it.");
            });
        return !full_;
    }

    void tellRepeats()
    {
        for (const auto& [line, count] : std::exchange(repeats_, {}))
            if (count > 1)
                writeWhole("Came " + std::to_string(count - 1) +
                           " times more: " + std::string(trim(line)));
    }

    std::unique_ptr<TextWriter> writer_;
    ToolLogGuard& guard_;
    std::map<std::string, std::int64_t> repeats_; ///< by line without its clock
    std::int64_t written_ = 0;
    bool full_ = false;
};

} // namespace

ToolLogGuard::ToolLogGuard(const std::string& toolFolder) : folder_(toolFolder)
{
    if (folder_.empty() || folder_.back() != '\\') folder_ += '\\';
    folder_ += "LOGS";
}

bool ToolLogGuard::guards(const std::string& path) const
{
    const std::size_t length = folder_.size();
    return equalIgnoringCase(path.substr(0, length), folder_) &&
           (path.size() == length || path[length] == '\\');
}

void ToolLogGuard::failed(const std::string& why)
{
    if (std::exchange(told_, true) || !listener_) return;
    listener_(why);
}

std::unique_ptr<TextWriter> ToolLogGuard::guarded(std::unique_ptr<TextWriter> writer)
{
    return std::make_unique<GuardedWriter>(std::move(writer), *this);
}
