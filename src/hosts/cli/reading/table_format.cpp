#include "hosts/cli/reading/row_format.h"

#include "hosts/cli/reading/severity.h"
#include "hosts/common/shown_width.h"
#include "text/code_page.h"
#include "text/utf8.h"
#include "text/visible_text.h"

#include <algorithm>
#include <limits>

namespace cli {

namespace {

constexpr std::size_t rowsMeasuredAtFirst = 10'000;
constexpr std::size_t gap = 2; ///< between columns

constexpr std::string_view red = "\033[31m";
constexpr std::string_view yellow = "\033[33m";
constexpr std::string_view plain = "\033[0m";

/// Leaves of a line without control characters what so many columns of a terminal show.
void cutToWidth(std::string& line, std::size_t width)
{
    if (line.size() <= width) return;
    std::size_t shown = 0;
    std::size_t at = 0;
    while (at < line.size()) {
        const std::string_view rest = std::string_view(line).substr(at);
        const std::size_t length = std::max<std::size_t>(utf8CharacterLength(rest), 1);
        shown += rest.front() == '\t' ? 1 : shownWidth(rest.substr(0, length));
        if (shown > width) break;
        at += length;
    }
    line.resize(at);
}

class TableFormat final : public RowFormat {
public:
    explicit TableFormat(TableLook look) : look_(std::move(look))
    {
        for (const TableColumn& column : look_.columns)
            widths_.push_back(std::max(shownWidth(column.header), column.least));
    }

    std::size_t rowsToMeasure() const override
    {
        return look_.measuresAll ? std::numeric_limits<std::size_t>::max() : rowsMeasuredAtFirst;
    }

    void measure(const RowCells& row) override
    {
        for (std::size_t at = 0; at + 1 < widths_.size(); ++at)
            widths_[at] = std::max(widths_[at], shownWidth(cell(row, look_.columns[at].column)));
    }

    void begin(std::string& text) override
    {
        line_.clear();
        for (std::size_t at = 0; at < widths_.size(); ++at) add(look_.columns[at].header, at);
        finishLine(text);
    }

    void row(const RowCells& row, const timeline::Record&, std::string& text) override
    {
        line_.clear();
        for (std::size_t at = 0; at < widths_.size(); ++at)
            add(cell(row, look_.columns[at].column), at);
        const Severity severity = look_.colours ? severityOf(row) : Severity::none;
        if (severity != Severity::none) text += severity == Severity::error ? red : yellow;
        if (severity == Severity::none) return finishLine(text);
        cut();
        text.append(line_).append(plain).append(1, '\n');
    }

private:
    /// A cell as it is shown, until the next call.
    std::string_view cell(const RowCells& row, RowColumn column)
    {
        decoded_.clear();
        if (column == RowColumn::trace && !row.raw.empty())
            appendDecoded(decoded_, row.raw, row.codePage);
        else
            appendCell(decoded_, row, column);
        cell_.clear();
        appendVisible(cell_, decoded_);
        return cell_;
    }

    void add(std::string_view cell, std::size_t column)
    {
        line_ += cell;
        if (column + 1 == widths_.size()) return;
        const std::size_t width = shownWidth(cell);
        line_.append(std::max(widths_[column], width) - width + gap, ' ');
    }

    void cut()
    {
        if (look_.width) cutToWidth(line_, *look_.width);
    }

    void finishLine(std::string& text)
    {
        cut();
        text.append(line_).append(1, '\n');
    }

    TableLook look_;
    std::vector<std::size_t> widths_;
    std::string line_;
    std::string decoded_;
    std::string cell_;
};

} // namespace

std::unique_ptr<RowFormat> makeTableFormat(TableLook look)
{
    return std::make_unique<TableFormat>(std::move(look));
}

} // namespace cli
