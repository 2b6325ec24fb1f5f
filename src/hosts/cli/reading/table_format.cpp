#include "hosts/cli/reading/row_format.h"

#include "hosts/cli/reading/severity.h"
#include "hosts/cli/reading/table_fit.h"
#include "hosts/common/shown_width.h"
#include "text/code_page.h"
#include "text/visible_text.h"

#include <algorithm>
#include <limits>

namespace cli {

namespace {

constexpr std::size_t lengthOfDay = 10; ///< "2025-02-20"

constexpr std::string_view red = "\033[31m";
constexpr std::string_view yellow = "\033[33m";
constexpr std::string_view plain = "\033[0m";

class TableFormat final : public RowFormat {
public:
    explicit TableFormat(TableLook look) : look_(std::move(look))
    {
        for (const TableColumn& column : look_.columns)
            known_.push_back({column.column, column.header, column.least, std::nullopt});
    }

    std::size_t rowsToMeasure() const override
    {
        return look_.measuresAll ? std::numeric_limits<std::size_t>::max() : rowsMeasuredAtFirst;
    }

    void measure(const RowCells& row) override
    {
        const bool hasCells = row.raw.empty();
        for (KnownColumn& column : known_) {
            if (column.column == RowColumn::trace) continue;
            const std::string_view text = cell(row, column.column);
            column.width = std::max(column.width, shownWidth(text));
            if (!hasCells) continue;
            if (!anyMeasured_)
                column.inAllRows = text;
            else if (column.inAllRows && *column.inAllRows != text)
                column.inAllRows.reset();
        }
        anyMeasured_ = anyMeasured_ || hasCells;
    }

    void begin(std::string& text) override
    {
        chooseColumns();
        for (const std::string& note : table_.notes) {
            line_ = note;
            finishLine(text);
        }
        line_.clear();
        for (const auto& column : table_.columns) add(column.header, column);
        finishLine(text);
    }

    void row(const RowCells& row, const timeline::Record&, std::string& text) override
    {
        if (table_.daysApart) tellDay(row, text);
        line_.clear();
        for (const auto& column : table_.columns) add(cell(row, column.column), column);
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
        const bool hasDay = column == RowColumn::moment && cell_.size() > lengthOfDay;
        return std::string_view(cell_).substr(hasDay && table_.daysApart ? lengthOfDay + 1 : 0);
    }

    void chooseColumns()
    {
        if (look_.width && look_.fits) {
            if (!look_.knowsAllRows)
                for (KnownColumn& column : known_) column.inAllRows.reset();
            table_ = fitTable(std::move(known_), *look_.width);
            return;
        }
        for (KnownColumn& column : known_) {
            const std::size_t width = std::max(column.width, shownWidth(column.header));
            table_.columns.push_back({column.column, std::move(column.header), width});
        }
    }

    /// Writes the day of a row whose moment tells none, where it is another than that of the row
    /// before.
    void tellDay(const RowCells& row, std::string& text)
    {
        line_.clear();
        timeline::appendMomentText(line_, row.moment);
        line_.resize(std::min(line_.size(), lengthOfDay));
        if (line_.empty() || line_ == day_) return;
        day_ = line_;
        finishLine(text);
    }

    void add(std::string_view cell, const FittedTable::Column& column)
    {
        const std::size_t whole = shownWidth(cell);
        if (column.cut && whole > column.width) {
            line_.append(cell.substr(0, bytesInWidth(cell, column.width - 1))).append(1, '~');
        } else {
            line_ += cell;
        }
        if (&column == &table_.columns.back()) return;
        const std::size_t shown = std::min(whole, column.cut ? column.width : whole);
        line_.append(std::max(column.width, shown) - shown + gapOfColumns, ' ');
    }

    void cut()
    {
        if (look_.width) line_.resize(bytesInWidth(line_, *look_.width));
    }

    void finishLine(std::string& text)
    {
        cut();
        text.append(line_).append(1, '\n');
    }

    TableLook look_;
    std::vector<KnownColumn> known_; ///< until the first row is written
    FittedTable table_;
    bool anyMeasured_ = false;
    std::string day_; ///< that was told last
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
