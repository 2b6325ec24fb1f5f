#pragma once

#include "platform/platform.h"
#include "runtime/dictionary.h"

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

class RunTimeError;
class TextWriter;

/// The words that head a line of the tool's log.
namespace logLevel {
constexpr std::int32_t info = 0;
constexpr std::int32_t warning = 1;
constexpr std::int32_t error = 2;
constexpr std::int32_t verbose = 3;
} // namespace logLevel

/// The tool's own log: what it does, what went wrong, how long each traced routine took.
///
/// One file a run, in the folder LOGS beside the tool; making the object cleans out old files by
/// the free space of the disk. The file itself is made by the first line written. A routine is
/// named `[module]routine`.
class classLog {
public:
    /// Raises what stands in the way of the LOGS folder.
    explicit classLog(Platform& platform);
    ~classLog();

    /// Full path of the current log file.
    const std::string& strLogFile() const { return strLogFile_; }
    void strLogFile(const std::string& path) { strLogFile_ = path; }

    /// Writes one line, subject to `verbosity`, and hands it to the system at once. Raises nothing:
    /// what fails is logged where it can be, and the line is lost. A level without a word is such a
    /// failure.
    void log(std::string_view message, std::int32_t level, std::string_view procName);

    /// Whether the development environment hosts the tool; of a statement that has failed so often
    /// in a row, whether it runs again.
    bool DebugMode(int failuresInARow = 0) const;

    /// Logs the entry of a traced routine and indents what follows. Raises nothing: past 32,767
    /// open calls of one name the failure is logged alone.
    void enterProc(std::string_view procName);

    /// Logs its exit with the seconds since the entry. Raises 6 past 32,767 open calls of one name.
    void exitProc(std::string_view procName);

    /// Closes the file; the next line starts a new one. Raises 91 when no file is open, and what
    /// stands in the way of the LOGS folder.
    void closeLog();

    /// One line for each entry; what fails is passed over.
    void dumpDictionary(const Dictionary<std::string>& dictionary, std::string_view procName);

private:
    friend class ClassLogTest;

    void openLogFile();
    std::array<std::string, 3> bannerLines() const;
    void logToFile(std::string_view message, std::int32_t level, std::string_view procName);
    std::string logLine(std::string_view message, std::int32_t level,
                        std::string_view procName) const;
    std::string makeLogFileName();
    void checkSizeOfLogs();
    void setNestingDepth(std::int32_t depth);

    /// Runs a statement of the log's own and tells whether it succeeded. A failure is logged under
    /// `procName`; in the development host the statement runs again, though not for ever.
    template <typename Statement>
    bool attempt(std::string_view procName, Statement&& statement);

    /// Writes a line of text by the same rules. When the stream has gone (424), the file is opened
    /// anew and the text follows its banner.
    bool writeLine(const std::string& text);

    /// The open stream. Raises 424 when there is none.
    TextWriter& stream();

    bool retriesAfter(const RunTimeError& error, std::string_view procName, int tries);

    Platform& platform_;
    std::int32_t verbosity_ = 2;
    std::string strLogFile_;
    std::unique_ptr<TextWriter> logStream_;
    std::int32_t nestingDepth_ = 0;
    std::string indentText_;
    Dictionary<float> procTimers_;
    std::string logFolder_;
    bool debugOutput_ = false;
    bool reportingOwnFailure_ = false; ///< a failure while a failure is logged is dropped
};
