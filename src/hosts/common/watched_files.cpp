#include "hosts/common/watched_files.h"

#include "hosts/common/gather/gather_report.h"
#include "hosts/common/tool_log_guard.h"
#include "runtime/run_time_error.h"

#include <optional>

namespace {

/// Reads a file, and tells the report when it lets go of it how the reading went.
class WatchedReader final : public TextReader {
public:
    WatchedReader(std::unique_ptr<TextReader> reader, const FileSystem& files, std::string path,
                  GatherReport& report)
        : reader_(std::move(reader)), files_(files), path_(std::move(path)), report_(report),
          sizeAtFirst_(sizeNow(vanishedAtFirst_))
    {
        report_.readingBegins(path_);
    }

    ~WatchedReader() override { tell(); }
    WatchedReader(const WatchedReader&) = delete;
    WatchedReader& operator=(const WatchedReader&) = delete;

    bool atEnd() override
    {
        const bool end = noting([&] { return reader_->atEnd(); });
        sight_.readToEnd = end;
        return end;
    }

    std::string_view readLine() override
    {
        const std::string_view line = noting([&] { return reader_->readLine(); });
        ++sight_.lines;
        mostBytes_ += static_cast<std::int64_t>(line.size()) + longestLineEnd;
        return line;
    }

    std::string readAll() override
    {
        std::string text = noting([&] { return reader_->readAll(); });
        mostBytes_ += static_cast<std::int64_t>(text.size());
        sight_.readToEnd = true;
        return text;
    }

    void close() override
    {
        tell();
        reader_->close();
    }

private:
    static constexpr int longestLineEnd = 2;

    template <typename Read>
    auto noting(Read&& read) -> decltype(read())
    {
        try {
            return read();
        } catch (const RunTimeError& error) {
            if (sight_.unread.empty()) sight_.unread = error.description();
            throw;
        }
    }

    /// The size of what lies at the path now; none when it can't be told.
    std::optional<std::int64_t> sizeNow(bool& vanished) const
    try {
        return files_.file(path_).size;
    } catch (const RunTimeError& error) {
        vanished = error.number() == runTimeErrors::fileNotFound;
        return {};
    }

    /// What a reading that did not come to the end left is known to its reader; a log that came to
    /// its end too early is not.
    void tell()
    {
        if (told_) return;
        told_ = true;
        if (sight_.readToEnd && sight_.unread.empty() && sizeAtFirst_) {
            const auto size = sizeNow(sight_.vanished);
            sight_.cut = mostBytes_ < *sizeAtFirst_ || (size && *size < *sizeAtFirst_);
        }
        report_.readingEnds(path_, std::move(sight_));
    }

    std::unique_ptr<TextReader> reader_;
    const FileSystem& files_;
    std::string path_;
    GatherReport& report_;
    LogSight sight_;
    bool vanishedAtFirst_ = false;
    std::optional<std::int64_t> sizeAtFirst_;
    std::int64_t mostBytes_ = 0; ///< that the lines read so far can have taken
    bool told_ = false;
};

} // namespace

bool WatchedFiles::fileExists(const std::string& path) const
{
    return files_.fileExists(path);
}

bool WatchedFiles::folderExists(const std::string& path) const
{
    return files_.folderExists(path);
}

FileInfo WatchedFiles::file(const std::string& path) const
{
    try {
        FileInfo info = files_.file(path);
        report_.seen(path);
        return info;
    } catch (const RunTimeError& error) {
        report_.notSeen(path, error.description());
        throw;
    }
}

std::int64_t WatchedFiles::folderSize(const std::string& path) const
{
    return files_.folderSize(path);
}

std::vector<FileInfo> WatchedFiles::entries(const std::string& folder) const
{
    return files_.entries(folder);
}

std::vector<std::string> WatchedFiles::matching(const std::string& pattern) const
{
    try {
        auto names = files_.matching(pattern);
        report_.listed(pattern, names);
        return names;
    } catch (const RunTimeError& error) {
        report_.notListed(pattern, error.description());
        throw;
    }
}

void WatchedFiles::createFolder(const std::string& path)
try {
    files_.createFolder(path);
} catch (const RunTimeError& error) {
    if (toolLog_.guards(path)) toolLog_.failed(error.description());
    throw;
}

void WatchedFiles::createPrivateFolder(const std::string& path)
{
    files_.createPrivateFolder(path);
}

void WatchedFiles::removeFolder(const std::string& path)
{
    files_.removeFolder(path);
}

void WatchedFiles::copyFile(const std::string& source, const std::string& target)
{
    files_.copyFile(source, target);
}

void WatchedFiles::deleteFile(const std::string& path)
{
    files_.deleteFile(path);
}

void WatchedFiles::clearAttributes(const std::string& path)
{
    files_.clearAttributes(path);
}

std::unique_ptr<TextReader> WatchedFiles::openForReading(const std::string& path) const
{
    return std::make_unique<WatchedReader>(files_.openForReading(path), files_, path, report_);
}

std::unique_ptr<TextWriter> WatchedFiles::openForAppending(const std::string& path)
{
    if (!toolLog_.guards(path)) return files_.openForAppending(path);
    try {
        return toolLog_.guarded(files_.openForAppending(path));
    } catch (const RunTimeError& error) {
        toolLog_.failed(error.description());
        throw;
    }
}

std::unique_ptr<TextWriter> WatchedFiles::createTextFile(const std::string& path)
{
    return files_.createTextFile(path);
}

std::string WatchedFiles::specialFolder(SpecialFolder folder) const
{
    return files_.specialFolder(folder);
}

std::string WatchedFiles::longPathName(const std::string& path) const
{
    return files_.longPathName(path);
}

std::string WatchedFiles::driveName(const std::string& path) const
{
    return files_.driveName(path);
}

DiskSpace WatchedFiles::diskSpace(const std::string& drive) const
{
    return files_.diskSpace(drive);
}

void WatchedFiles::changeDrive(const std::string& drive)
{
    files_.changeDrive(drive);
}

void WatchedFiles::changeFolder(const std::string& path)
{
    files_.changeFolder(path);
}
