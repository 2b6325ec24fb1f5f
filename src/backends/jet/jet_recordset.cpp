#include "backends/jet/jet_recordset.h"

#include "runtime/run_time_error.h"
#include "runtime/text.h"

#include <charconv>
#include <limits>

namespace jet {

namespace {

using namespace traceDatabaseErrors;

[[noreturn]] void raiseClosed()
{
    throw RunTimeError(objectClosed, "Object invalid or no longer set.");
}

[[noreturn]] void raiseConversion()
{
    throw RunTimeError(conversion, "Data type conversion error.");
}

[[noreturn]] void raiseTooSmall(const Column& column)
{
    throw RunTimeError(fieldTooSmall, "The field '" + column.name +
                                          "' is too small to accept the amount of data you "
                                          "attempted to add.");
}

/// A whole number, with blanks around it perhaps.
std::optional<std::int32_t> numberOf(std::string_view text)
{
    text = trim(text);
    std::int32_t number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    if (read.ec != std::errc{} || read.ptr != text.data() + text.size()) return std::nullopt;
    return number;
}

bool fitsColumn(const Column& column, std::int32_t number)
{
    if (column.type == ColumnType::byte) return number >= 0 && number <= 255;
    if (column.type != ColumnType::integer) return true;
    return number >= std::numeric_limits<std::int16_t>::min() &&
           number <= std::numeric_limits<std::int16_t>::max();
}

/// The characters that a text column holds.
std::size_t capacity(const Column& column)
{
    return column.type == ColumnType::memo ? longValue::longest / 2 : column.length / 2u;
}

/// The value of a default such as `0` or `"new"`. Other expressions give Null.
Cell defaultCell(const Column& column)
{
    Cell cell;
    const std::string& expression = column.defaultValue;
    if (expression.empty()) return cell;
    if (!column.isText()) {
        if (const auto number = numberOf(expression); number && fitsColumn(column, *number)) {
            cell.kind = Cell::Kind::number;
            cell.number = *number;
        }
        return cell;
    }
    const bool quoted =
        expression.size() >= 2 && expression.front() == '"' && expression.back() == '"';
    if (quoted || numberOf(expression)) {
        cell.text.assignUtf8(quoted ? expression.substr(1, expression.size() - 2) : expression);
        if (cell.text.characters() <= capacity(column)) cell.kind = Cell::Kind::text;
    }
    return cell;
}

} // namespace

void JetField::setText(std::string_view text)
{
    recordset_.requireAdding(noAddInProgress);
    if (!column_.isText()) return takeNumberOf(text);
    const std::size_t most = capacity(column_);
    if (text.empty() || text.size() > most) {
        checkCharacters(text.size());
        text = text.substr(0, most);
    }
    cell_.text.assign(text, recordset_.codePage());
    cell_.kind = Cell::Kind::text;
}

void JetField::setUtf8(std::string_view text)
{
    recordset_.requireAdding(noAddInProgress);
    if (!column_.isText()) return takeNumberOf(text);
    // No text has more characters than bytes; what begins with a mark may have none.
    constexpr char startOfMark = '\xEF';
    if (!text.empty() && text.front() != startOfMark && text.size() <= capacity(column_)) {
        cell_.text.assignUtf8(text);
        cell_.kind = Cell::Kind::text;
        return;
    }
    TextValue value;
    value.assignUtf8(text);
    checkCharacters(value.characters());
    value.cutTo(capacity(column_));
    cell_.text = std::move(value);
    cell_.kind = Cell::Kind::text;
}

void JetField::setNumber(std::int32_t number)
{
    recordset_.requireAdding(noAddInProgress);
    if (column_.isText()) {
        const std::string digits = std::to_string(number);
        if (digits.size() > capacity(column_)) raiseTooSmall(column_);
        return setText(digits);
    }
    if (!fitsColumn(column_, number)) raiseConversion();
    cell_.number = number;
    cell_.kind = Cell::Kind::number;
}

void JetField::takeNumberOf(std::string_view text)
{
    const auto number = numberOf(text);
    if (!number) raiseConversion();
    setNumber(*number);
}

void JetField::checkCharacters(std::size_t count) const
{
    if (count == 0 && !column_.allowZeroLength)
        throw RunTimeError(zeroLength,
                           "Field '" + column_.name + "' cannot be a zero-length string.");
    if (column_.isLongValue() && count > capacity(column_)) raiseTooSmall(column_);
}

std::string_view JetField::text() const
{
    recordset_.requireAdding(noCurrentRecord);
    if (cell_.kind == Cell::Kind::null) return {};
    if (cell_.kind == Cell::Kind::text) return cell_.text.source();
    numberText_ = std::to_string(cell_.number);
    return numberText_;
}

bool JetField::isNull() const
{
    recordset_.requireAdding(noCurrentRecord);
    return cell_.kind == Cell::Kind::null;
}

JetRecordset::JetRecordset(std::shared_ptr<Session> session, const TableDefinition& table)
    : session_(std::move(session)), table_(table), cells_(table_.columns.size())
{
    appender_.emplace(*session_->database, table_);
    fields_.reserve(table_.columns.size());
    for (std::size_t index = 0; index < table_.columns.size(); ++index) {
        const Column& column = table_.columns[index];
        fields_.emplace_back(*this, column, cells_[index]);
        defaults_.push_back(defaultCell(column));
        if (column.required) required_.push_back(index);
    }
}

std::string JetRecordset::utf8Of(std::string_view text) const
{
    std::string utf8;
    codePage().appendUtf8(utf8, text);
    return utf8;
}

TraceField& JetRecordset::field(std::string_view name)
{
    requireOpen();
    const int index = table_.find(name);
    if (index < 0) throw RunTimeError(noSuchField, "Item not found in this collection.");
    return fields_[static_cast<std::size_t>(index)];
}

void JetRecordset::addNew()
{
    requireOpen();
    for (std::size_t index = 0; index < cells_.size(); ++index) {
        cells_[index].kind = Cell::Kind::null;
        if (defaults_[index].kind != Cell::Kind::null) cells_[index] = defaults_[index];
    }
    adding_ = true;
}

void JetRecordset::update()
{
    requireAdding(noAddInProgress);
    checkRequired();
    appender_->append(cells_);
    adding_ = false;
}

void JetRecordset::close()
{
    requireOpen();
    appender_.reset();
    adding_ = false;
}

void JetRecordset::requireAdding(int otherwise) const
{
    if (adding_ && session_->database) return;
    requireOpen();
    if (otherwise == noCurrentRecord) throw RunTimeError(noCurrentRecord, "No current record.");
    throw RunTimeError(noAddInProgress, "Update or CancelUpdate without AddNew or Edit.");
}

void JetRecordset::checkRequired() const
{
    for (const std::size_t index : required_) {
        if (cells_[index].kind == Cell::Kind::null)
            throw RunTimeError(requiredField, "The field '" + table_.columns[index].name +
                                                  "' cannot contain a Null value.");
    }
}

void JetRecordset::requireOpen() const
{
    if (!appender_ || !session_->database) raiseClosed();
}

} // namespace jet
