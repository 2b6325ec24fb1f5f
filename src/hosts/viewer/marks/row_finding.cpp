#include "hosts/viewer/marks/row_finding.h"

#include "runtime/run_time_error.h"

#include <algorithm>
#include <map>
#include <optional>
#include <unordered_map>

namespace viewer {

namespace {

using timeline::IndexRow;
using timeline::SourceNumber;
using timeline::Timeline;

constexpr std::size_t soughtAtOnce = 8;
constexpr std::size_t rowsAtOnce = 50'000;  ///< whose lines are compared in a millisecond or so
constexpr std::size_t mostOfAMoment = 1000; ///< whose texts are read to find one

/// One call of `findRows`.
class Finding {
public:
    explicit Finding(const Timeline& timeline, timeline::Record& record)
        : timeline_(timeline), record_(record)
    {}

    /// The row at its moment: on its line, else the first with its text.
    std::optional<IndexRow> atMoment(const RowIdentity& wanted, SourceNumber source)
    {
        if (source >= timeline_.sourceCount()) return std::nullopt;
        const timeline::SourceRows& rows = timeline_.rowsOf(source);
        const auto first = std::lower_bound(
            rows.begin(), rows.end(), wanted.moment,
            [](const IndexRow& row, timeline::Moment moment) { return row.moment < moment; });
        const auto end = std::upper_bound(
            first, rows.end(), wanted.moment,
            [](timeline::Moment moment, const IndexRow& row) { return moment < row.moment; });
        const auto line = std::partition_point(
            first, end, [&](const IndexRow& row) { return row.line < wanted.line; });
        for (auto row = line; row != end && row->line == wanted.line; ++row)
            if (says(*row, wanted)) return *row;
        if (static_cast<std::size_t>(end - first) > mostOfAMoment) return std::nullopt;
        for (auto row = first; row != end; ++row)
            if (says(*row, wanted)) return *row;
        return std::nullopt;
    }

    bool says(const IndexRow& row, const RowIdentity& wanted)
    {
        try {
            timeline_.record(row, record_);
        } catch (const RunTimeError&) {
            return false; // the row itself tells why
        }
        return textHash(record_) == wanted.hash;
    }

private:
    const Timeline& timeline_;
    timeline::Record& record_;
};

using ByLine = std::unordered_multimap<std::uint32_t, const WantedRow*>;

/// Walks over the rows of a source, and takes those that stand on a wanted line.
void findByLine(SharedTimeline& timeline, SourceNumber source, const ByLine& wanted,
                const NewestTask::GivenUp& givenUp, std::vector<FoundRow>& found)
{
    timeline::Record record;
    std::size_t next = 0;
    for (bool all = false; !all && !givenUp();)
        timeline.work([&](const Timeline& rows) {
            Finding finding(rows, record);
            const timeline::SourceRows& own = rows.rowsOf(source);
            const std::size_t end = std::min(own.size(), next + rowsAtOnce);
            for (; next < end; ++next) {
                const auto [first, last] = wanted.equal_range(own[next].line);
                for (auto one = first; one != last; ++one)
                    if (finding.says(own[next], one->second->identity))
                        found.push_back({one->second->number, own[next]});
            }
            all = next == own.size();
        });
}

} // namespace

std::vector<SourceNumber> sourcesOf(const Document& document, const std::string& file,
                                    const QString& name)
{
    std::vector<SourceNumber> sources;
    for (std::size_t source = 0; source < document.homes().size(); ++source)
        if (const SourceHome& home = document.homes()[source];
            home.file == file && QString::fromStdString(home.name) == name)
            sources.push_back(static_cast<SourceNumber>(source));
    return sources;
}

RowIdentity identityIn(Document& document, const IndexRow& row)
{
    if (row.source() >= document.homes().size()) throw RunTimeError(runTimeErrors::deviceIo);
    const QString name = QString::fromStdString(document.homes()[row.source()].name);
    RowIdentity identity;
    document.timeline().look([&](const Timeline& rows) {
        timeline::Record record;
        rows.record(row, record);
        identity = identityOf(name, row, record);
    });
    return identity;
}

std::vector<FoundRow> findRows(SharedTimeline& timeline, const std::vector<WantedRow>& wanted,
                               bool everyLine, const NewestTask::GivenUp& givenUp)
{
    std::vector<FoundRow> found;
    std::map<SourceNumber, ByLine> missing;
    timeline::Record record;
    for (std::size_t next = 0; next < wanted.size() && !givenUp();)
        timeline.work([&](const Timeline& rows) {
            Finding finding(rows, record);
            const std::size_t end = std::min(wanted.size(), next + soughtAtOnce);
            for (; next < end; ++next)
                for (const SourceNumber source : wanted[next].sources) {
                    if (const auto row = finding.atMoment(wanted[next].identity, source))
                        found.push_back({wanted[next].number, *row});
                    else if (source < rows.sourceCount())
                        missing[source].emplace(wanted[next].identity.line, &wanted[next]);
                }
        });
    if (!everyLine) return found;
    for (const auto& [source, lines] : missing) {
        if (givenUp()) break;
        findByLine(timeline, source, lines, givenUp, found);
    }
    return found;
}

} // namespace viewer
