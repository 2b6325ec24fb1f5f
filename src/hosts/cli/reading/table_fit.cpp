#include "hosts/cli/reading/table_fit.h"

#include "hosts/common/shown_width.h"
#include "text/utf8.h"

#include <algorithm>

namespace cli {

namespace {

constexpr std::size_t roomForTrace = 30;
constexpr std::size_t widthOfClock = 12; ///< "15:23:07.123"

constexpr std::size_t shortestHeader = 3;

/// A cell is cut no shorter than what still tells one name from another.
constexpr std::size_t shortestCell = 8;

class Fitting {
public:
    Fitting(std::vector<KnownColumn> columns, std::size_t width) : width_(width)
    {
        for (KnownColumn& column : columns) {
            const std::size_t widest = std::max(column.width, shownWidth(column.header));
            columns_.push_back({std::move(column), widest});
        }
    }

    FittedTable fit()
    {
        leaveOutEmpty();
        shortenHeaders();
        takeDaysApart();
        leaveOutSame();
        leaveOut({RowColumn::thread, RowColumn::traceNumber, RowColumn::source});
        cutCells();
        leaveOut({RowColumn::port, RowColumn::callId});
        return take();
    }

private:
    struct Part {
        KnownColumn known;
        std::size_t width;
        bool cut = false;
    };

    bool hasRoom() const
    {
        if (columns_.empty() || columns_.back().known.column != RowColumn::trace) return true;
        std::size_t taken = 0;
        for (const Part& part : columns_)
            if (&part != &columns_.back()) taken += part.width + gapOfColumns;
        return taken + roomForTrace <= width_;
    }

    static bool isTrace(const Part& part) { return part.known.column == RowColumn::trace; }

    void leaveOutEmpty()
    {
        if (hasRoom()) return;
        std::erase_if(columns_, [](const Part& part) {
            return !isTrace(part) && part.known.inAllRows && part.known.inAllRows->empty();
        });
    }

    void shortenHeaders()
    {
        for (Part& part : columns_) {
            if (hasRoom()) return;
            const RowColumn column = part.known.column;
            if (column != RowColumn::traceNumber && column != RowColumn::level) continue;
            part.width = std::max(part.known.width, shortestHeader);
        }
    }

    void takeDaysApart()
    {
        for (Part& part : columns_) {
            if (hasRoom()) return;
            if (part.known.column != RowColumn::moment) continue;
            daysApart_ = true;
            part.width = widthOfClock;
        }
    }

    void leaveOutSame()
    {
        for (const RowColumn column :
             {RowColumn::source, RowColumn::process, RowColumn::component, RowColumn::level,
              RowColumn::traceNumber, RowColumn::thread, RowColumn::port, RowColumn::callId}) {
            const auto part = find(column);
            if (hasRoom() || part == columns_.end() || !part->known.inAllRows) continue;
            same_.append(same_.empty() ? "" : ", ").append(part->known.header);
            same_.append(" ").append(*part->known.inAllRows);
            columns_.erase(part);
        }
    }

    void leaveOut(std::initializer_list<RowColumn> columns)
    {
        for (const RowColumn column : columns) {
            const auto part = find(column);
            if (hasRoom() || part == columns_.end()) continue;
            leftOut_.append(leftOut_.empty() ? "" : ", ").append(part->known.header);
            columns_.erase(part);
        }
    }

    /// The widest loses first, so that all keep as much as there is room for.
    void cutCells()
    {
        while (!hasRoom()) {
            Part* widest = nullptr;
            for (Part& part : columns_)
                if (mayBeCut(part) && (widest == nullptr || part.width > widest->width))
                    widest = &part;
            if (widest == nullptr) return;
            --widest->width;
            widest->cut = true;
        }
    }

    static bool mayBeCut(const Part& part)
    {
        const RowColumn column = part.known.column;
        return part.width > std::max(shortestCell, shownWidth(part.known.header)) &&
               !isNumber(column) && column != RowColumn::moment && column != RowColumn::timeStamp &&
               column != RowColumn::trace;
    }

    std::vector<Part>::iterator find(RowColumn column)
    {
        return std::find_if(columns_.begin(), columns_.end(),
                            [&](const Part& part) { return part.known.column == column; });
    }

    FittedTable take()
    {
        FittedTable table;
        table.daysApart = daysApart_;
        if (!same_.empty()) table.notes.push_back("In all rows: " + same_);
        if (!leftOut_.empty()) table.notes.push_back("Left out (--wide has it): " + leftOut_);
        for (Part& part : columns_) {
            std::string& header = part.known.header;
            const bool isShort = part.width < shownWidth(header);
            if (isShort && part.known.column == RowColumn::traceNumber) header = "No.";
            if (!isTrace(part)) header.resize(bytesInWidth(header, part.width));
            table.columns.push_back({part.known.column, std::move(header), part.width, part.cut});
        }
        return table;
    }

    std::vector<Part> columns_;
    std::size_t width_;
    bool daysApart_ = false;
    std::string same_;
    std::string leftOut_;
};

} // namespace

FittedTable fitTable(std::vector<KnownColumn> columns, std::size_t width)
{
    return Fitting(std::move(columns), width).fit();
}

std::size_t bytesInWidth(std::string_view text, std::size_t width)
{
    if (text.size() <= width) return text.size();
    std::size_t shown = 0;
    std::size_t at = 0;
    while (at < text.size()) {
        const std::string_view rest = text.substr(at);
        const std::size_t length = std::max<std::size_t>(utf8CharacterLength(rest), 1);
        shown += rest.front() == '\t' ? 1 : shownWidth(rest.substr(0, length));
        if (shown > width) break;
        at += length;
    }
    return at;
}

} // namespace cli
