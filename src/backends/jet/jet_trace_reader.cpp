#include "backends/jet/jet_trace_reader.h"

#include "backends/jet/pages/file_pages.h"
#include "backends/jet/reader.h"

#include <utility>

namespace jet {

namespace {

class JetTraceRows final : public TraceRows {
public:
    JetTraceRows(const Reader& reader, const TableDefinition& table)
        : rows_(reader.rows(table)), texts_(table.columns.size())
    {}

    bool next() override
    {
        ++moves_;
        return rows_.next();
    }
    bool goTo(std::uint64_t place) override
    {
        ++moves_;
        return rows_.goTo(place);
    }
    std::uint64_t place() const override { return rows_.place(); }

    std::string_view text(std::size_t column) override
    {
        Text& text = texts_[column];
        if (text.moves != moves_) {
            text.view = rows_.textView(column, text.room);
            text.moves = moves_;
        }
        return text.view;
    }
    std::int64_t number(std::size_t column) override { return rows_.number(column); }
    std::uint64_t done() const override { return rows_.pagesBegun(); }
    std::uint64_t total() const override { return rows_.pageCount(); }

private:
    /// A cell's text, made once for each row that it is asked of, so that it stays where it is.
    struct Text {
        std::uint64_t moves = 0;
        std::string_view view;
        std::string room;
    };

    Rows rows_;
    std::uint64_t moves_ = 0;
    std::vector<Text> texts_;
};

class JetTraceTables final : public TraceTables {
public:
    explicit JetTraceTables(std::shared_ptr<const StoredBytes> bytes)
        : pages_(std::move(bytes), FilePages::fewestBlocks),
          reader_(pages_.pages(), Damage::passedOver)
    {
        for (const TableDefinition& table : reader_.tables()) {
            TraceTable& told = tables_.emplace_back();
            told.name = table.name;
            told.rowCount = table.rowCount;
            for (const Column& column : table.columns) told.columns.push_back(column.name);
        }
    }

    const std::vector<TraceTable>& tables() const override { return tables_; }
    const std::vector<std::string>& damage() const override { return reader_.passedOver(); }

    std::unique_ptr<TraceRows> rows(const TraceTable& table) const override
    {
        const auto number = static_cast<std::size_t>(&table - tables_.data());
        return std::make_unique<JetTraceRows>(reader_, reader_.tables()[number]);
    }

private:
    FilePages pages_;
    Reader reader_;
    std::vector<TraceTable> tables_; ///< in the reader's order
};

} // namespace

bool JetTraceReader::isDatabase(std::string_view head) const
{
    // The mark at its place, whatever the version: what can't be read of it is to be told.
    return head.size() > 4 && head.substr(4).starts_with("Standard Jet DB");
}

std::unique_ptr<TraceTables> JetTraceReader::open(std::shared_ptr<const StoredBytes> bytes) const
{
    return std::make_unique<JetTraceTables>(std::move(bytes));
}

} // namespace jet
