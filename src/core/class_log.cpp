#include "core/class_log.h"

#include "core/error_trap.h"
#include "platform/clock.h"
#include "platform/file_system.h"
#include "platform/host_module.h"
#include "platform/text_stream.h"
#include "runtime/dates.h"
#include "runtime/integer16.h"
#include "runtime/numbers.h"
#include "runtime/required_object.h"
#include "runtime/run_time_error.h"
#include "runtime/text.h"

#include <array>

namespace {

constexpr std::array<std::string_view, 4> levelWords = {"Info", "Warning", "ERROR", "VerInfo"};

constexpr std::size_t levelColumns = 7;
constexpr std::size_t procNameColumns = 50;
constexpr std::size_t lineHeadColumns = 70;
constexpr std::size_t dictionaryKeyColumns = 43;
constexpr std::size_t namelessBlanks = 20;
constexpr std::size_t ruleLength = 120;

/// The name under which the log tells of its own trouble in writing.
constexpr std::string_view logToFileName = "logToFile";

constexpr std::int64_t plentyOfSpace = 500'000'000;
constexpr std::int64_t littleSpace = 100'000'000;

/// How often the development host runs a failing statement of the log in all. What keeps the log
/// from writing, such as a full disk, may never pass, and nobody would see why the tool stands
/// still.
constexpr int mostTries = 10;

std::string_view levelWord(std::int32_t level)
{
    const auto index = static_cast<std::size_t>(level);
    if (index >= levelWords.size()) throw RunTimeError(runTimeErrors::subscriptOutOfRange);
    return levelWords[index];
}

std::string timerKey(std::string_view procName, int number)
{
    std::string key(procName);
    return key.append("_").append(numberText(std::int64_t{number}));
}

/// The first number that no open call of a routine has. Raises 6 past 32,767.
Integer16 firstFreeNumber(const Dictionary<float>& timers, std::string_view procName)
{
    Integer16 number;
    while (timers.exists(timerKey(procName, number))) ++number;
    return number;
}

int retentionDays(std::int64_t freeBytes)
{
    if (freeBytes > plentyOfSpace) return 30;
    return freeBytes < littleSpace ? 10 : 14;
}

double megabytes(std::int64_t bytes)
{
    return static_cast<double>(bytes) / 1'000'000;
}

} // namespace

classLog::classLog(Platform& platform) : platform_(platform)
{
    strLogFile_ = makeLogFileName();
    debugOutput_ = positionOf(lowerCase(platform_.module.commandLine()), "debug") > 0;
    checkSizeOfLogs();
}

classLog::~classLog() = default;

template <typename Statement>
bool classLog::attempt(std::string_view procName, Statement&& statement)
{
    for (int tries = 1;; ++tries) {
        try {
            statement();
            return true;
        } catch (const RunTimeError& error) {
            if (!retriesAfter(error, procName, tries)) return false;
        }
    }
}

bool classLog::retriesAfter(const RunTimeError& error, std::string_view procName, int tries)
{
    if (reportingOwnFailure_) return false;
    reportingOwnFailure_ = true;
    log(errorText(error), logLevel::error, procName);
    reportingOwnFailure_ = false;
    return DebugMode(tries) && tries < mostTries;
}

std::string classLog::makeLogFileName()
{
    logFolder_ = platform_.module.folder();
    if (logFolder_.empty() || logFolder_.back() != '\\') logFolder_ += '\\';
    logFolder_ += "LOGS";
    if (!platform_.files.folderExists(logFolder_)) platform_.files.createFolder(logFolder_);
    return logFolder_ + "\\" + platform_.module.name() + "_" + fileStamp(platform_.clock.now()) +
           ".LOG";
}

void classLog::log(std::string_view message, std::int32_t level, std::string_view procName)
{
    if (debugOutput_) {
        std::string text = platform_.module.name();
        text.append(":(").append(procName).append(") ").append(message);
        platform_.module.debugOutput(text);
    }
    if (level == logLevel::verbose && verbosity_ != 2) return;
    if (level == logLevel::info && verbosity_ < 2) return;
    logToFile(message, level, procName);
}

void classLog::logToFile(std::string_view message, std::int32_t level, std::string_view procName)
{
    if (!logStream_) {
        if (!attempt(logToFileName, [&] { openLogFile(); })) return;
        for (const std::string& text : bannerLines()) {
            if (!writeLine(text)) return;
        }
    }
    std::string line;
    if (!attempt(logToFileName, [&] { line = logLine(message, level, procName); })) return;
    if (!writeLine(line)) return;
    attempt(logToFileName, [&] { stream().flush(); });
}

void classLog::openLogFile()
{
    logStream_.reset();
    logStream_ = platform_.files.openForAppending(strLogFile_);
}

TextWriter& classLog::stream()
{
    return required(logStream_, runTimeErrors::objectRequired);
}

bool classLog::writeLine(const std::string& text)
{
    return attempt(logToFileName, [&] {
        try {
            stream().writeLine(text);
        } catch (const RunTimeError& error) {
            if (error.number() != runTimeErrors::objectRequired) throw;
            openLogFile();
            for (const std::string& bannerLine : bannerLines()) stream().writeLine(bannerLine);
            stream().writeLine(text);
        }
    });
}

std::array<std::string, 3> classLog::bannerLines() const
{
    const HostModule& module = platform_.module;
    const std::string rule(ruleLength, '*');
    std::string title = module.name() + " Version: ";
    title += numberText(std::int64_t{module.majorVersion()}) + ".";
    title += numberText(std::int64_t{module.minorVersion()}) + ".";
    title += numberText(std::int64_t{module.revision()}) + "   Started: ";
    appendDateText(title, platform_.clock.now());
    return {std::string(lineBreak) + rule, title, rule};
}

std::string classLog::logLine(std::string_view message, std::int32_t level,
                              std::string_view procName) const
{
    const std::string_view word = levelWord(level);
    const std::string blanks(namelessBlanks, ' ');
    const std::string_view name =
        (procName.empty() ? std::string_view(blanks) : procName).substr(0, procNameColumns);

    std::string line;
    line.reserve(lineHeadColumns + indentText_.size() + message.size());
    line.append(clockTime(platform_.clock.now()));
    line.append(1 + levelColumns - word.size(), ' ').append(word).append(":(");
    line.append(procNameColumns - name.size(), ' ').append(name).append(") ");
    return line.append(indentText_).append(message);
}

bool classLog::DebugMode(int failuresInARow) const
{
    return platform_.module.isDevelopmentHost(failuresInARow);
}

void classLog::setNestingDepth(std::int32_t depth)
{
    nestingDepth_ = depth < 0 ? 0 : depth;
    indentText_.assign(static_cast<std::size_t>(nestingDepth_) * 2, ' ');
}

void classLog::enterProc(std::string_view procName)
{
    constexpr std::string_view self = "enterProc";
    float start = 0;
    std::string key;
    if (!attempt(self, [&] { start = platform_.clock.timer(); })) return;
    if (!attempt(self, [&] { key = timerKey(procName, firstFreeNumber(procTimers_, procName)); })) {
        return;
    }
    if (!attempt(self, [&] { procTimers_.add(key, start); })) return;
    log("Entering " + key, logLevel::info, procName);
    setNestingDepth(nestingDepth_ + 1);
}

void classLog::exitProc(std::string_view procName)
{
    const int number = firstFreeNumber(procTimers_, procName) - 1;
    const float end = platform_.clock.timer();
    setNestingDepth(nestingDepth_ - 1);

    const std::string key = timerKey(procName, number);
    std::string message = "Exiting " + key;
    if (const float* start = procTimers_.find(key)) {
        message += " Start: " + numberText(*start) + " End: " + numberText(end);
        message += " - Elapsed: " + maskElapsedSeconds(static_cast<double>(end - *start));
        procTimers_.remove(key);
    }
    log(message, logLevel::info, procName);
}

void classLog::closeLog()
{
    required(logStream_).close();
    logStream_.reset();
    strLogFile_ = makeLogFileName();
}

void classLog::dumpDictionary(const Dictionary<std::string>& dictionary, std::string_view procName)
{
    for (const std::string& key : dictionary.keys()) {
        log(rightAlign(key, dictionaryKeyColumns) + "    " + *dictionary.find(key), logLevel::info,
            procName);
    }
}

void classLog::checkSizeOfLogs()
{
    constexpr std::string_view self = "[classLog]checkSizeOfLogs";
    const FileSystem& files = platform_.files;
    std::string drive;
    DiskSpace space;
    Date cutOff;
    std::vector<FileInfo> candidates;

    attempt(self, [&] { drive = files.driveName(logFolder_); });
    attempt(self, [&] { space = files.diskSpace(drive + "\\"); });
    attempt(self,
            [&] { cutOff = addDays(platform_.clock.now(), -retentionDays(space.freeBytes)); });
    attempt(self, [&] {
        std::string message = "Removing logs older than ";
        appendDateText(message, cutOff);
        message += " - Log Directory Size: ";
        message += maskOneDecimal(megabytes(files.folderSize(logFolder_))) + " MB   ";
        message += maskThousands(megabytes(space.freeBytes)) + " MB Free   ";
        message += maskThousands(megabytes(space.totalBytes)) + " MB Total ";
        log(message, logLevel::info, self);
    });
    attempt(self, [&] { candidates = files.entries(logFolder_); });
    for (const FileInfo& file : candidates) {
        bool old = false;
        attempt(self, [&] {
            old = !file.folder && positionOf(file.name, "LOG") > 0 &&
                  wholeSeconds(file.modified) < wholeSeconds(cutOff);
        });
        if (old) attempt(self, [&] { platform_.files.deleteFile(logFolder_ + "\\" + file.name); });
    }
}
