#include "core/registry_store.h"
#include "core/trapped_error_listener.h"
#include "hosts/cli/arguments.h"
#include "hosts/cli/commands/commands.h"
#include "hosts/cli/open_tool.h"
#include "hosts/cli/terminal/output.h"
#include "hosts/common/shown_width.h"
#include "platform/file_system.h"
#include "runtime/numbers.h"
#include "shell/snapin_names.h"
#include "text/visible_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <span>

namespace cli {

namespace {

/// A column of the view of a log.
struct Column {
    const char* name; ///< in JSON
    bool number;
};

/// The columns of a view, from the first.
constexpr Column basicColumns[] = {{"number", true},      {"timeStamp", false}, {"source", false},
                                   {"traceNumber", true}, {"component", false}, {"level", true},
                                   {"trace", false}};
constexpr Column extendedColumns[] = {
    {"number", true},     {"timeStamp", false}, {"source", false}, {"traceNumber", true},
    {"component", false}, {"level", true},      {"thread", false}, {"port", false},
    {"callId", false},    {"trace", false}};

/// Those that the view of a log has on this server.
std::span<const Column> columnsOf(const ToolContext& tool)
{
    if (tool.g_bExtendedLogFields) return extendedColumns;
    return basicColumns;
}

/// A number column's text, such as "000012", as its number; 0 for none.
std::int64_t wholeNumber(std::string_view text)
{
    std::int64_t number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

/// One JSON object a row, with the line itself where the columns can't show it. A log has tens of
/// thousands of rows, so one text buffer serves for all.
void printJson(Output& output, ListView& list, std::span<const Column> columns,
               const CodePage& codePage)
{
    std::string text;
    std::string cell;
    for (int index = 1; index <= list.itemCount(); ++index) {
        const ListItem row = list.shown(index);
        text.clear();
        for (std::size_t at = 0; at < columns.size(); ++at) {
            text.append(at == 0 ? "{\"" : ",\"").append(columns[at].name).append("\":");
            const std::string_view bytes = row.subItem(static_cast<int>(at) + 1);
            if (columns[at].number) {
                text += numberText(wholeNumber(bytes));
                continue;
            }
            cell.clear();
            codePage.appendUtf8(cell, bytes);
            appendJsonText(text, cell);
        }
        if (!row.note().empty()) {
            cell.clear();
            codePage.appendUtf8(cell, row.note());
            text.append(",\"raw\":");
            appendJsonText(text, cell);
        }
        text += "}\n";
        output.text(text);
    }
}

/// Appends the bytes of a log as they are printed.
void appendPrinted(std::string& line, std::string_view bytes, const CodePage& codePage)
{
    std::string decoded;
    codePage.appendUtf8(decoded, bytes);
    appendVisible(line, decoded);
}

/// The columns of a terminal that each byte of a log takes.
std::array<std::uint8_t, 256> widthsOfBytes(const CodePage& codePage)
{
    std::array<std::uint8_t, 256> widths{};
    for (std::size_t byte = 0; byte < widths.size(); ++byte) {
        const char letter = static_cast<char>(byte);
        std::string shown;
        appendPrinted(shown, {&letter, 1}, codePage);
        widths[byte] = static_cast<std::uint8_t>(shownWidth(shown));
    }
    return widths;
}

/// A line that the columns can't show stands where its trace would.
void printColumns(Output& output, ListView& list, const CodePage& codePage)
{
    const int count = list.columnCount();
    const auto ofByte = widthsOfBytes(codePage);
    const auto widthOf = [&](std::string_view bytes) {
        std::size_t width = 0;
        for (const char byte : bytes) width += ofByte[static_cast<unsigned char>(byte)];
        return width;
    };
    std::vector<std::size_t> widths;
    for (const auto& header : list.columns()) widths.push_back(shownWidth(header.text));
    for (int index = 1; index <= list.itemCount(); ++index)
        for (int column = 1; column < count; ++column) {
            std::size_t& widest = widths[static_cast<std::size_t>(column) - 1];
            widest = std::max(widest, widthOf(list.item(index).subItem(column)));
        }
    std::string line;
    const auto fill = [&](int column, std::size_t width) {
        if (column < count)
            line.append(widths[static_cast<std::size_t>(column) - 1] - width + 2, ' ');
    };
    for (int column = 1; column <= count; ++column) {
        const std::string& header = list.column(column).text;
        line += header;
        fill(column, shownWidth(header));
    }
    output.line(line);
    for (int index = 1; index <= list.itemCount(); ++index) {
        line.clear();
        const ListItem row = list.shown(index);
        for (int column = 1; column < count; ++column) {
            appendPrinted(line, row.subItem(column), codePage);
            fill(column, widthOf(row.subItem(column)));
        }
        appendPrinted(line, row.note().empty() ? row.subItem(count) : row.note(), codePage);
        output.line(line);
    }
}

class ReadCommand final : public Command {
public:
    std::string name() const override { return "read"; }

    std::string summary() const override { return "Show the lines of a log as columns"; }

    std::string explanation() const override
    {
        return "A bare name is looked for in the server's log folder, a path where it says. Raw "
               "lines\n"
               "are formatted on the way; the file is left as it is. A line of another form, such "
               "as\n"
               "those of data files, has 0 for its trace number and level and blanks in the other\n"
               "columns, and stands behind them as it is (with --json as \"raw\"). What would\n"
               "act on a terminal instead of being seen, such as an escape, is written out\n"
               "(\\x1b), in a pipe too; --json has every character as it is. Logs of more than "
               "2,500,000\n"
               "bytes are not shown: gather them, and read the formatted copy in an editor.\n\n"
               "  orvandiag logs KoCSMgr\n"
               "  orvandiag read diag_KoCSMgr_20250219_144115.txt | less -S\n"
               "  orvandiag --json read ./old.txt | grep '\"level\":2'";
    }

    void declare(Arguments& arguments) override
    {
        arguments.add("LOG", log_, "a log's name, or a path to one").required();
    }

    void run(const GlobalOptions& options, Output& output) override
    {
        std::string path;
        OpenTool tool(options, ToolUse::look, [&](OpenTool& opened) { path = location(opened); });
        std::string failure;
        {
            const TrappedErrorListener listener(
                tool.context(), [&](const RunTimeError& error, std::string_view procName) {
                    if (failure.empty() && procName == "[mdlSnapIn]populateListViewDiagLog")
                        failure = log_ + " could not be read: " + error.description();
                });
            tool.desktop().answerPickers(path);
            tool.console().clickMenuItem(snapinItem::openLogFile);
        }
        if (!tool.desktop().failures().empty() || !failure.empty()) throw CommandFailure(failure);
        ListView& list = tool.console().currentView().selectedScopePaneItem().resultView().list();
        if (output.json())
            printJson(output, list, columnsOf(tool.context()), tool.codePage());
        else
            printColumns(output, list, tool.codePage());
        tool.close();
    }

private:
    /// Where the log lies, as the tool knows it: a bare name in the log folder, or a path. Raises
    /// CommandFailure for a log that is not there.
    std::string location(OpenTool& tool) const
    {
        const bool bare = log_.find_first_of("/\\:") == std::string::npos;
        const auto& files = tool.context().platform.files;
        const std::string folder = getRegistryText(tool.context(), logManagerKey, logFolderValue);
        if (bare && !log_.empty() && files.fileExists(folder + "\\" + log_)) return log_;
        std::string path = tool.toolPath(log_);
        if (log_.empty() || !files.fileExists(path))
            throw CommandFailure("the log \"" + log_ + "\" can not be found" +
                                 (bare ? ", neither here nor in " + folder : ""));
        return path;
    }

    std::string log_;
};

} // namespace

std::unique_ptr<Command> makeReadCommand()
{
    return std::make_unique<ReadCommand>();
}

} // namespace cli
