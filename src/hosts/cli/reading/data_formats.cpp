#include "hosts/cli/reading/row_format.h"

#include "hosts/cli/terminal/output.h"
#include "runtime/spreadsheet_cell.h"
#include "text/visible_text.h"

#include <charconv>

namespace cli {

namespace {

class RawFormat final : public RowFormat {
public:
    explicit RawFormat(bool forTerminal) : forTerminal_(forTerminal) {}

    void row(const RowCells& row, const timeline::Record& record, std::string& text) override
    {
        if (record.whole.empty()) {
            appendFormatted(row, record);
        } else if (!forTerminal_) {
            text.append(record.whole).append(1, '\n');
            return;
        } else {
            line_.clear();
            appendDecoded(line_, record.whole, record.codePage);
        }
        if (forTerminal_)
            appendVisible(text, line_);
        else
            text += line_;
        text += '\n';
    }

private:
    void appendFormatted(const RowCells& row, const timeline::Record& record)
    {
        line_.clear();
        timeline::appendMomentText(line_, row.moment);
        line_ += " (";
        appendCell(line_, row, RowColumn::source);
        line_ += ',';
        appendCell(line_, row, RowColumn::traceNumber);
        line_ += ',';
        appendCell(line_, row, RowColumn::component);
        line_ += ',';
        appendCell(line_, row, RowColumn::level);
        line_ += ") ";
        appendDecoded(line_, record.trace, record.codePage);
    }

    bool forTerminal_;
    std::string line_;
};

void appendNumber(std::string& text, std::int64_t number)
{
    char shown[24];
    text.append(shown, std::to_chars(shown, shown + sizeof shown, number).ptr);
}

class JsonFormat final : public RowFormat {
public:
    explicit JsonFormat(std::vector<RowColumn> columns) : columns_(std::move(columns)) {}

    void row(const RowCells& row, const timeline::Record&, std::string& text) override
    {
        object_.clear();
        for (const RowColumn column : columns_) {
            object_.append(object_.empty() ? "{\"" : ",\"").append(nameOf(column)).append("\":");
            if (isNumber(column)) {
                appendNumber(object_, numberIn(row, column));
                continue;
            }
            cell_.clear();
            appendCell(cell_, row, column);
            appendJsonText(object_, cell_);
        }
        if (!row.raw.empty()) {
            cell_.clear();
            appendDecoded(cell_, row.raw, row.codePage);
            object_ += ",\"raw\":";
            appendJsonText(object_, cell_);
        }
        object_ += '}';
        appendVisible(text, object_);
        text += '\n';
    }

private:
    std::vector<RowColumn> columns_;
    std::string object_;
    std::string cell_;
};

class CsvFormat final : public RowFormat {
public:
    explicit CsvFormat(CsvLook look) : look_(std::move(look)) {}

    void begin(std::string& text) override
    {
        line_.clear();
        for (const RowColumn column : look_.columns) addCell(nameOf(column));
        finishLine(text);
    }

    void row(const RowCells& row, const timeline::Record&, std::string& text) override
    {
        line_.clear();
        for (const RowColumn column : look_.columns) {
            cell_.clear();
            if (column == RowColumn::trace && !row.raw.empty())
                appendDecoded(cell_, row.raw, row.codePage);
            else if (isNumber(column))
                appendNumber(cell_, numberIn(row, column));
            else
                appendCell(cell_, row, column);
            if (look_.withoutFormulas) cell_ = withoutFormulas(cell_);
            addCell(cell_);
        }
        finishLine(text);
    }

private:
    void addCell(std::string_view cell)
    {
        if (!firstOfLine_) line_ += ',';
        firstOfLine_ = false;
        appendCsvCell(line_, cell);
    }

    void finishLine(std::string& text)
    {
        if (look_.forTerminal)
            appendVisible(text, line_);
        else
            text += line_;
        text += look_.forTerminal ? "\n" : "\r\n";
        firstOfLine_ = true;
    }

    CsvLook look_;
    std::string line_;
    std::string cell_;
    bool firstOfLine_ = true;
};

} // namespace

std::unique_ptr<RowFormat> makeRawFormat(bool forTerminal)
{
    return std::make_unique<RawFormat>(forTerminal);
}

std::unique_ptr<RowFormat> makeJsonFormat(std::vector<RowColumn> columns)
{
    return std::make_unique<JsonFormat>(std::move(columns));
}

void appendCsvCell(std::string& line, std::string_view cell)
{
    if (cell.find_first_of(",\"\r\n") == std::string_view::npos) {
        line += cell;
        return;
    }
    line += '"';
    for (const char character : cell) line.append(character == '"' ? 2 : 1, character);
    line += '"';
}

std::unique_ptr<RowFormat> makeCsvFormat(CsvLook look)
{
    return std::make_unique<CsvFormat>(std::move(look));
}

} // namespace cli
