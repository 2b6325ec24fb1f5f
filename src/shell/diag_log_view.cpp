#include "shell/diag_log_view.h"

#include "console/view.h"
#include "core/error_trap.h"
#include "core/localisation.h"
#include "core/utility.h"
#include "logreader/format_line.h"
#include "logreader/parse_diagnostic.h"
#include "platform/desktop.h"
#include "platform/file_system.h"
#include "runtime/numbers.h"
#include "runtime/required_object.h"
#include "runtime/text.h"

#include <memory>
#include <optional>
#include <string>

namespace {

using mdlSnapIn::largestShownLog;
constexpr int columnCount = 7;
constexpr int extendedColumnCount = 10;
constexpr int linesBetweenReports = 1000;
constexpr int keptWidth = 0; ///< in a header's row: the width stays as it is

struct Header {
    int position;
    TextId text;
    int width;
};

constexpr Header commonHeaders[] = {{2, TextId::timestamp, keptWidth},
                                    {3, TextId::source, keptWidth},
                                    {4, TextId::traceNumber, keptWidth},
                                    {5, TextId::component, keptWidth},
                                    {6, TextId::level, keptWidth}};
constexpr Header basicHeaders[] = {{7, TextId::trace, 400}};
constexpr Header extendedHeaders[] = {{7, TextId::thread, 40},
                                      {8, TextId::port, 30},
                                      {9, TextId::callId, 100},
                                      {10, TextId::trace, 400}};

void makeColumns(ErrorTrap& step, bool extended, ResultView& resultView)
{
    int missing = 0;
    const int present = step.value(0, [&] { return resultView.list().columnCount(); });
    if (present == 0) {
        missing = extended ? extendedColumnCount : columnCount;
    } else if (extended && present != extendedColumnCount) {
        missing = extendedColumnCount - columnCount;
    }
    for (int added = 0; added < missing; ++added) step([&] { resultView.list().addColumn(); });
}

template <std::size_t Count>
void setHeaders(ErrorTrap& step, ToolContext& tool, ResultView& resultView,
                const Header (&headers)[Count])
{
    for (const Header& header : headers) {
        step([&] {
            resultView.list().column(header.position).text = myLoadResString(tool, header.text);
        });
        if (header.width == keptWidth) continue;
        step([&] { resultView.list().column(header.position).width = header.width; });
    }
}

/// The key itself when it names a file, as an opened log's does, or else a file of the log folder.
std::string logPath(ErrorTrap& step, ToolContext& tool, ResultView& resultView)
{
    const std::string key = step.value("", [&] { return resultView.scopePaneItem().key(); });
    const bool isPath = step.value(false, [&] { return tool.platform.files.fileExists(key); });
    return isPath ? key : tool.g_strLogFolder + "\\" + key;
}

void sayNotFound(ErrorTrap& step, ToolContext& tool, const std::string& path)
{
    step([&] {
        tool.platform.desktop.messageBox(myLoadResString(tool, TextId::logFile) + path +
                                             myLoadResString(tool, TextId::canNotBeFound),
                                         myLoadResString(tool, TextId::logNotFound),
                                         MessageIcon::critical);
    });
}

void sayTooLarge(ErrorTrap& step, ToolContext& tool, const std::string& path)
{
    step([&] {
        std::string text = path + myLoadResString(tool, TextId::isTooLargeToDisplay);
        text.append(lineBreak).append(myLoadResString(tool, TextId::useTheGatherWizardToFormat));
        text.append(lineBreak).append(myLoadResString(tool, TextId::formattedLogCanBeViewed));
        tool.platform.desktop.messageBox(text, myLoadResString(tool, TextId::logTooLargeTitle),
                                         MessageIcon::critical);
    });
}

/// Reads a log into rows. What a line needs is kept from line to line, so that a line costs no
/// allocation but for the list's own growth.
class RowReader {
public:
    RowReader(ErrorTrap& step, ToolContext& tool, ResultView& resultView, View& view,
              std::int64_t fileSize)
        : step_(step), tool_(tool), resultView_(resultView), view_(view), fileSize_(fileSize)
    {}

    /// A read that fails ends the log: a device that has failed would fail for ever.
    void readAll(TextReader* reader)
    {
        for (;;) {
            bool read = false;
            step_([&] {
                if (required(reader).atEnd()) return;
                line_.assign(reader->readLine());
                read = true;
            });
            if (!read) return;
            if (!line_.empty()) addLine();
        }
    }

private:
    void addLine()
    {
        known_ = false;
        step_([&] { known_ = mdlDiagnostics::formatLineSafe(tool_, line_, formatted_); });
        charactersRead_ += static_cast<std::int64_t>(line_.size());
        if (lineNumber_ == 1 || lineNumber_ % linesBetweenReports == 0) reportProgress();
        step_([&] { mdlDiagnostics::parseDiagnostic(tool_, formatted_, line_, false, record_); });
        step_([&] { number_ = padNumber(lineNumber_, 6); });
        addRow();
        ++lineNumber_;
    }

    void addRow()
    {
        std::optional<ListItem> row;
        step_([&] { row = resultView_.list().addItem(lineNumber_, formatted_); });
        int column = 0;
        const auto add = [&](std::string_view text) {
            ++column;
            step_([&] { required(row ? &*row : nullptr).addSubItem(column, text); });
        };
        add(number_);
        add(record_.timeStamp);
        add(record_.source);
        add(numberText(std::int64_t{record_.traceNumber}));
        add(record_.component);
        add(numberText(std::int64_t{record_.traceLevel}));
        if (tool_.g_bExtendedLogFields) {
            add(record_.thread);
            add(record_.port);
            add(record_.callId);
        }
        add(record_.trace);
        // The columns of such a line are blank: the line itself goes with its row.
        if (!known_ && row) step_([&] { row->setNote(line_); });
    }

    void reportProgress()
    {
        step_([&] {
            view_.statusBarText(myLoadResString(tool_, TextId::formattingLog) + " " +
                                numberText(fileSize_ - charactersRead_) + " " +
                                myLoadResString(tool_, TextId::bytesLeft));
        });
    }

    ErrorTrap& step_;
    ToolContext& tool_;
    ResultView& resultView_;
    View& view_;
    std::int64_t fileSize_;
    std::int64_t charactersRead_ = 0;
    std::int32_t lineNumber_ = 1;
    std::string line_;
    std::string formatted_;
    bool known_ = false; ///< whether the line has a form that the formatter knows
    std::string number_;
    DiagnosticLine record_;
};

} // namespace

void mdlSnapIn::nameLogLineColumns(ToolContext& tool, ResultView& resultView)
{
    ErrorTrap step{tool, "mdlSnapIn", "populateListViewDiagLog"};

    setHeaders(step, tool, resultView, commonHeaders);
    if (tool.g_bExtendedLogFields) {
        setHeaders(step, tool, resultView, extendedHeaders);
    } else {
        setHeaders(step, tool, resultView, basicHeaders);
    }
}

void mdlSnapIn::populateListViewDiagLog(ToolContext& tool, ResultView& resultView, View& view)
{
    ErrorTrap step{tool, "mdlSnapIn", "populateListViewDiagLog"};
    FileSystem& files = tool.platform.files;

    step.enterProc();
    step([&] { view.statusBarText(myLoadResString(tool, TextId::formattingLog)); });
    makeColumns(step, tool.g_bExtendedLogFields, resultView);
    nameLogLineColumns(tool, resultView);

    const std::string path = logPath(step, tool, resultView);
    const bool exists = step.value(false, [&] { return files.fileExists(path); });
    if (!exists) return sayNotFound(step, tool, path);
    const std::int64_t size = step.value(0, [&] { return files.file(path).size; });
    if (size > largestShownLog) return sayTooLarge(step, tool, path);

    const auto reader = step.value(nullptr, [&] { return files.openForReading(path); });
    RowReader(step, tool, resultView, view, size).readAll(reader.get());
    step([&] { required(reader).close(); });
    step([&] { view.statusBarText(myLoadResString(tool, TextId::formatCompleted)); });
    step.exitProc();
}
