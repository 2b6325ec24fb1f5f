#include "timeline/sources/event_csv_reader.h"

#include "text/utf8.h"

namespace timeline {

void CsvRecord::begin()
{
    count_ = 0;
    place_ = Place::cellBegins;
    whole_.clear();
    broken = false;
    beginCell();
}

void CsvRecord::beginCell()
{
    if (count_ == cells_.size()) cells_.emplace_back();
    cells_[count_++].clear();
    place_ = Place::cellBegins;
}

bool CsvRecord::take(std::string_view text)
{
    if (place_ == Place::inQuotes) {
        whole_ += '\n';
        cells_[count_ - 1] += '\n';
    }
    whole_ += text;
    for (const char character : text) take(character);
    return place_ != Place::inQuotes;
}

void CsvRecord::take(char character)
{
    std::string& cell = cells_[count_ - 1];
    switch (place_) {
    case Place::inQuotes:
        if (character == '"')
            place_ = Place::behindQuotes;
        else
            cell += character;
        return;
    case Place::behindQuotes:
        if (character == '"') {
            cell += character;
            place_ = Place::inQuotes;
            return;
        }
        break;
    case Place::cellBegins:
        if (character == '"') {
            place_ = Place::inQuotes;
            return;
        }
        break;
    case Place::inCell:
        break;
    }
    if (character == ',') {
        beginCell();
        return;
    }
    cell += character;
    place_ = Place::inCell;
}

EventCsvReader::EventCsvReader(const FileDescriptor& file, std::uint64_t offset,
                               std::uint32_t lines)
    : reader_(file, offset), lines_(lines)
{}

bool EventCsvReader::next(CsvRecord& record)
{
    if (!takeLines(record)) return false;
    return record.broken ? takeAsItIs(record) : true;
}

bool EventCsvReader::at(std::uint64_t offset, bool broken, CsvRecord& record)
{
    reader_.goTo(offset);
    brokenUntil_ = broken ? offset + 1 : 0;
    return next(record);
}

/// A line without the bytes that are no UTF-8.
std::string_view EventCsvReader::utf8Of(std::string_view line)
{
    if (isUtf8(line)) return line;
    room_ = validUtf8(line);
    return room_;
}

/// Takes the lines of a record; one whose quotes stay open is left broken.
bool EventCsvReader::takeLines(CsvRecord& record)
{
    FileLine line;
    record.offset = reader_.offset();
    if (!reader_.next(line)) return false;
    record.line = ++lines_;
    record.begin();
    bool whole = record.take(utf8Of(line.text));
    if (record.offset >= brokenUntil_) {
        while (!whole && record.whole().size() <= longestRecord && reader_.next(line)) {
            ++lines_;
            whole = record.take(utf8Of(line.text));
        }
        if (!whole) brokenUntil_ = reader_.offset();
    }
    record.broken = !whole;
    return true;
}

/// Takes the first line of a broken record alone, and goes on behind it.
bool EventCsvReader::takeAsItIs(CsvRecord& record)
{
    reader_.goTo(record.offset);
    FileLine line;
    if (!reader_.next(line)) return false;
    lines_ = record.line;
    record.begin();
    record.whole_ = utf8Of(line.text);
    record.cells_[0] = record.whole_;
    record.broken = true;
    return true;
}

} // namespace timeline
