#include "timeline/timeline.h"

#include "support/temporary_folder.h"
#include "timeline/sources/log_source.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <algorithm>
#include <tuple>

namespace timeline {
namespace {

const std::vector<std::string> components = {"CallFlow", "Rule", "Store"};
const std::vector<std::string> words = {"call", "failed", "transfer", "done"};

/// A line as it is made, and what has to come of it.
struct MadeLine {
    enum Kind { row, dated, noTimeOfDay, withoutForm, likeARow, empty } kind = row;
    int second = 0; ///< of its day, or since a day for a dated one
    std::size_t component = 0;
    int level = 0;
    std::vector<std::size_t> saying;

    bool hasForm() const { return kind == row || kind == dated || kind == noTimeOfDay; }

    std::string text() const
    {
        std::string said;
        for (const std::size_t word : saying) said += words[word] + " ";
        if (kind == empty) return "";
        if (kind == withoutForm) return "  " + said;
        char stamp[40];
        const int clock = second % 86'400;
        if (kind == noTimeOfDay)
            std::snprintf(stamp, sizeof stamp, "%02d:%02d:60:000", clock / 3600, clock / 60 % 60);
        else if (kind != dated)
            std::snprintf(stamp, sizeof stamp, "%02d:%02d:%02d:000", clock / 3600, clock / 60 % 60,
                          clock % 60);
        else
            std::snprintf(stamp, sizeof stamp, "2025-02-%02d %02d:%02d:%02d", 10 + second / 86'400,
                          clock / 3600, clock / 60 % 60, clock % 60);
        if (kind == likeARow) return std::string(stamp) + " " + said;
        return std::string(stamp) + ",Conv,12," + components[component] + "," +
               std::to_string(level) + "," + said;
    }
};

/// A row that has to be there, with the number of its head among those of all lines.
struct ExpectedRow {
    Moment moment = noMoment;
    std::size_t source = 0;
    std::uint32_t line = 0;
    std::uint64_t number = 0; ///< among the lines that are not empty

    auto operator<=>(const ExpectedRow&) const = default;
};

rc::Gen<MadeLine> anyLine()
{
    return rc::gen::build<MadeLine>(
        rc::gen::set(&MadeLine::kind,
                     rc::gen::weightedElement<MadeLine::Kind>({{6, MadeLine::row},
                                                               {1, MadeLine::dated},
                                                               {1, MadeLine::noTimeOfDay},
                                                               {2, MadeLine::withoutForm},
                                                               {1, MadeLine::likeARow},
                                                               {1, MadeLine::empty}})),
        rc::gen::set(&MadeLine::second, rc::gen::inRange(0, 3 * 86'400)),
        rc::gen::set(&MadeLine::component, rc::gen::inRange<std::size_t>(0, components.size())),
        rc::gen::set(&MadeLine::level, rc::gen::inRange(0, 4)),
        rc::gen::set(&MadeLine::saying, rc::gen::container<std::vector<std::size_t>>(
                                            rc::gen::inRange<std::size_t>(0, words.size()))));
}

const Moment opened = dayOf(2025, 2, 10) + 12 * 3'600'000;

/// What the choice asks, as a plain loop asks it.
struct PlainChoice {
    std::optional<Moment> since;
    std::optional<Moment> until;
    std::optional<std::size_t> component;
    std::optional<int> level;
    std::optional<std::size_t> without;
    std::optional<std::size_t> word;
    bool beginningIsKnown = false; ///< whether the expression needs a text

    Choice choice() const
    {
        Choice made;
        made.since = since;
        made.until = until;
        if (component) made.columns.push_back({Column::component, {components[*component]}, false});
        if (level) made.columns.push_back({Column::level, {std::to_string(*level)}, true});
        if (word) {
            const std::string known = words[*word].substr(0, 3) + "[a-z]* ";
            const std::string loose = words[*word].substr(0, 2) + ".*" + words[*word].back();
            made.patterns.push_back(std::make_shared<TextPattern>(
                TextPattern::Kind::expression, beginningIsKnown ? known : loose));
        }
        if (without)
            made.without.push_back(
                std::make_shared<TextPattern>(TextPattern::Kind::text, words[*without]));
        return made;
    }

    bool takes(Moment moment, const std::vector<const MadeLine*>& lines) const
    {
        const MadeLine& head = *lines.front();
        const bool form = head.hasForm();
        if ((since && moment < *since) || (until && moment > *until)) return false;
        if ((component || level) && !form) return false;
        if (component && head.component != *component) return false;
        if (level && head.level == *level) return false;
        bool found = false;
        for (const MadeLine* line : lines) {
            const auto& said = line->saying;
            if (without && std::count(said.begin(), said.end(), *without) > 0) return false;
            if (!word) continue;
            if (beginningIsKnown) {
                found = found || std::count(said.begin(), said.end(), *word) > 0;
                continue;
            }
            const std::string text = line->text();
            const std::size_t start = text.find(words[*word].substr(0, 2));
            found = found || (start != std::string::npos &&
                              text.find(words[*word].back(), start + 2) != std::string::npos);
        }
        return !word || found;
    }
};

/// The rows of one log by a plain loop.
void expectRows(const std::vector<MadeLine>& lines, std::size_t source, const PlainChoice& choice,
                std::vector<ExpectedRow>& rows)
{
    Moment day = dayOf(opened);
    Moment moment = noMoment;
    Moment last = 12 * 3600;
    std::vector<const MadeLine*> group;
    std::vector<ExpectedRow> rowsOfGroup;
    std::uint64_t notEmpty = 0;
    Moment groupMoment = noMoment;
    const auto endGroup = [&] {
        if (!group.empty() && choice.takes(groupMoment, group))
            rows.insert(rows.end(), rowsOfGroup.begin(), rowsOfGroup.end());
        group.clear();
        rowsOfGroup.clear();
    };
    for (std::size_t at = 0; at < lines.size(); ++at) {
        const MadeLine& line = lines[at];
        if (line.kind == MadeLine::empty) continue;
        if (line.hasForm()) {
            endGroup();
            const int clock = line.second % 86'400;
            if (line.kind == MadeLine::dated)
                day = dayOf(2025, 2, 10 + line.second / 86'400);
            else if (line.kind == MadeLine::row && clock < last)
                day += millisecondsPerDay;
            if (line.kind != MadeLine::noTimeOfDay) {
                last = clock;
                moment = day + Moment{clock} * 1000;
            }
            groupMoment = moment;
        }
        group.push_back(&line);
        rowsOfGroup.push_back(
            {groupMoment, source, static_cast<std::uint32_t>(at + 1), ++notEmpty});
    }
    endGroup();
}

void add(Timeline& timeline, const TemporaryFolder& folder, std::size_t number,
         const std::vector<MadeLine>& lines, std::uint64_t partBytes)
{
    std::string bytes;
    for (const MadeLine& line : lines) bytes += line.text() + (line.level == 0 ? "\r\n" : "\n");
    LogFacts facts;
    facts.opened = opened;
    const auto path = folder.write("log" + std::to_string(number), bytes);
    auto log = std::make_unique<LogSource>(
        facts, std::make_shared<KeptFile>(std::make_shared<OpenFiles>(2), path));
    log->readInParts({partBytes, partBytes});
    timeline.add(std::move(log));
}

/// A value or none.
template <typename Value>
std::optional<Value> perhaps(const rc::Gen<Value>& gen)
{
    if (!*rc::gen::arbitrary<bool>()) return std::nullopt;
    return *gen;
}

std::vector<ExpectedRow> rowsOf(const Timeline& timeline)
{
    std::vector<ExpectedRow> rows;
    for (auto cursor = timeline.begin(); const IndexRow* row = cursor.next();)
        rows.push_back(
            {row->moment, row->source(), row->line, timeline.source(row->source()).numberOf(*row)});
    return rows;
}

TEST(TimelineModel, AFilteredTimelineIsAllRowsOfAPlainLoopSortedByMomentSourceAndLine)
{
    const TemporaryFolder folder;
    EXPECT_TRUE(rc::check("rows", [&] {
        auto sources =
            *rc::gen::resize(40, rc::gen::container<std::vector<std::vector<MadeLine>>>(
                                     rc::gen::container<std::vector<MadeLine>>(anyLine())));
        // Of most logs the clock goes back at midnight alone.
        for (auto& lines : sources)
            if (*rc::gen::arbitrary<bool>())
                std::sort(lines.begin(), lines.end(),
                          [](const MadeLine& one, const MadeLine& other) {
                              return one.second < other.second;
                          });
        const auto moment = rc::gen::map(rc::gen::inRange(0, 5 * 86'400), [](int second) {
            return dayOf(opened) + Moment{second} * 1000;
        });
        PlainChoice choice;
        choice.since = perhaps(moment);
        choice.until = perhaps(moment);
        choice.component = perhaps(rc::gen::inRange<std::size_t>(0, 3));
        choice.level = perhaps(rc::gen::inRange(0, 4));
        choice.word = perhaps(rc::gen::inRange<std::size_t>(0, 4));
        choice.beginningIsKnown = *rc::gen::arbitrary<bool>();
        choice.without = perhaps(rc::gen::inRange<std::size_t>(0, 4));

        const auto partBytes = *rc::gen::inRange<std::uint64_t>(20, 1000);
        Timeline timeline;
        std::vector<ExpectedRow> expected;
        for (std::size_t number = 0; number < sources.size(); ++number) {
            add(timeline, folder, number, sources[number], partBytes);
            expectRows(sources[number], number, choice, expected);
        }
        std::stable_sort(expected.begin(), expected.end());
        Progress progress;
        timeline.read(Filter(choice.choice()), progress, *rc::gen::element(2U, 50U));
        RC_ASSERT(timeline.failures().empty());
        RC_ASSERT(rowsOf(timeline) == expected);
        if (choice.since || expected.empty()) return;
        const Moment from = expected[expected.size() / 2].moment;
        std::vector<ExpectedRow> later;
        for (const ExpectedRow& row : expected)
            if (row.moment >= from) later.push_back(row);
        std::vector<ExpectedRow> found;
        for (auto cursor = timeline.from(from); const IndexRow* row = cursor.next();)
            found.push_back({row->moment, row->source(), row->line,
                             timeline.source(row->source()).numberOf(*row)});
        RC_ASSERT(found == later);
    }));
}

} // namespace
} // namespace timeline
