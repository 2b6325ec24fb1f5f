#include "hosts/viewer/document/row_asking.h"

#include "timeline/counts/counted_logs.h"

#include <gmock/gmock.h>

#include <chrono>

namespace viewer {
namespace {

using timeline::Choice;
using timeline::Column;
using timeline::Letters;
using timeline::TextPattern;

std::string line(int second, const std::string& source, const std::string& component, int level,
                 const std::string& trace)
{
    char stamp[24];
    std::snprintf(stamp, sizeof stamp, "00:00:%02d:000", second);
    return std::string(stamp) + "," + source + ",12," + component + "," + std::to_string(level) +
           "," + trace + "\n";
}

class RowAskingTest : public CountedLogs {
protected:
    RowAskingTest()
    {
        add("KoCSMgr", line(1, "Conv", "CallFlow", 3, "call begins") +
                           line(3, "Rules", "RuleEngine", 2, "rule fits") +
                           line(5, "Conv", "CallFlow", 0, "call failed") + "  at the transfer\n" +
                           line(9, "Conv", "Sch\xf6n", 3, "odd"));
        add("KoNotify", "a line without a form\n" + line(2, "Mail", "NotifyMail", 3, "mail sent") +
                            line(4, "Mail", "CallFlow", 1, "call noted"));
        timeline::Progress progress;
        timeline.read(timeline::Filter(), progress);
        auto made = std::make_shared<RowOrder>(timeline);
        made->build(timeline, 100);
        order = made;
    }

    std::unique_ptr<RowAsking> asked(Choice choice)
    {
        auto asking =
            std::make_unique<RowAsking>(timeline, order, std::move(choice), names, namesKnown);
        EXPECT_TRUE(asking->ask(timeline, std::chrono::steady_clock::time_point::max()));
        return asking;
    }

    /// The same logs, of which the timeline itself reads what a choice takes.
    std::unique_ptr<timeline::Timeline> readWith(const Choice& choice) const
    {
        auto read = std::make_unique<timeline::Timeline>();
        for (const char* process : {"KoCSMgr", "KoNotify"}) {
            timeline::LogFacts facts;
            facts.source.process = process;
            facts.source.name = std::string(process) + ".txt";
            facts.opened = timeline::dayOf(2025, 2, 20);
            read->add(std::make_unique<timeline::LogSource>(
                facts, std::make_shared<timeline::KeptFile>(
                           std::make_shared<timeline::OpenFiles>(4), folder / facts.source.name)));
        }
        timeline::Progress progress;
        read->read(timeline::Filter(choice), progress);
        return read;
    }

    /// The traces that a choice takes; the same with names and without.
    std::vector<std::string> taken(const Choice& choice)
    {
        names = RowNames();
        namesKnown = false;
        std::vector<std::string> first;
        for (const bool known : {false, true}) {
            if (known) learn();
            const auto asking = asked(choice);
            std::vector<std::string> traces;
            timeline::Record record;
            for (std::size_t place = 0; place < asking->taken().count(); ++place) {
                timeline.record(*order->from(timeline, asking->taken().at(place)).next(), record);
                traces.emplace_back(record.trace);
            }
            if (known) {
                EXPECT_EQ(first, traces);
            }
            first = traces;
        }
        return first;
    }

    void learn()
    {
        while (!names.learn(timeline)) {
        }
        namesKnown = true;
    }

    static std::shared_ptr<const TextPattern> text(const std::string& pattern)
    {
        return std::make_shared<const TextPattern>(TextPattern::Kind::text, pattern,
                                                   Letters::inAnyCase);
    }

    std::shared_ptr<const RowOrder> order;
    RowNames names;
    bool namesKnown = false;
};

using Traces = std::vector<std::string>;

TEST_F(RowAskingTest, TakesEveryRowWhereNothingIsChosen)
{
    EXPECT_EQ(8u, asked({})->taken().count());
    EXPECT_EQ(order->size(), asked({})->taken().size());
}

TEST_F(RowAskingTest, TakesRowsByTheValuesOfColumns)
{
    const struct {
        const char* because;
        Column column;
        std::vector<std::string> values;
        bool excluded;
        Traces taken;
    } rows[] = {
        {"a component of the index",
         Column::component,
         {"callflow"},
         false,
         {"call begins", "call noted", "call failed", "  at the transfer"}},
        {"a component past ASCII", Column::component, {"Sch\u00f6n"}, false, {"odd"}},
        {"components left out, and what has none",
         Column::component,
         {"CallFlow", "NotifyMail", "RuleEngine"},
         true,
         {"odd"}},
        {"levels as a range",
         Column::level,
         {"0-1"},
         false,
         {"call noted", "call failed", "  at the transfer"}},
        {"a process", Column::process, {"KoNotify"}, false, {"mail sent", "call noted"}},
        {"a source left out",
         Column::source,
         {"Conv"},
         true,
         {"mail sent", "rule fits", "call noted"}},
        {"a column that the index knows nothing of", Column::traceNumber, {"13"}, false, {}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.because);
        Choice choice;
        choice.columns.push_back({row.column, row.values, row.excluded});
        EXPECT_EQ(row.taken, taken(choice));
    }
}

TEST_F(RowAskingTest, TakesRowsByTheirTextsWithTheLinesThatBelongToThem)
{
    Choice choice;
    choice.patterns.push_back(text("TRANSFER"));
    EXPECT_EQ((Traces{"call failed", "  at the transfer"}), taken(choice));
    choice = {};
    choice.without.push_back(text("call"));
    EXPECT_EQ((Traces{"a line without a form", "mail sent", "rule fits", "odd"}), taken(choice));
}

TEST_F(RowAskingTest, TakesWhatAMacroTraceTurnsOn)
{
    Choice choice;
    choice.macroTrace = std::vector<timeline::ComponentLevels>{{"CallFlow", {1, 3}}, {"None", {0}}};
    EXPECT_EQ((Traces{"call begins", "call noted"}), taken(choice));
}

TEST_F(RowAskingTest, TakesRowsOfATimeFrame)
{
    Choice choice;
    choice.since = timeline::dayOf(2025, 2, 20) + 3000;
    choice.until = timeline::dayOf(2025, 2, 20) + 4000;
    EXPECT_EQ((Traces{"rule fits", "call noted"}), taken(choice));
}

TEST_F(RowAskingTest, AnswersAsTheFilterOfTheTimelineDoes)
{
    std::vector<Choice> choices(6);
    choices[0].columns = {{Column::component, {"CallFlow"}, false}, {Column::level, {"3"}, true}};
    choices[1].columns = {{Column::process, {"kocsmgr"}, true}};
    choices[2].columns = {{Column::source, {"Conv", "Mail"}, false}};
    choices[2].patterns = {text("call")};
    choices[3].columns = {{Column::level, {"2-9"}, false}, {Column::component, {"x"}, true}};
    choices[4].without = {text("mail")};
    choices[4].columns = {{Column::traceNumber, {"12"}, false}};
    choices[5].since = timeline::dayOf(2025, 2, 20) + 2000;
    for (std::size_t at = 0; at < choices.size(); ++at) {
        SCOPED_TRACE(at);
        std::vector<std::string> read;
        timeline::Record record;
        const auto filtered = readWith(choices[at]);
        for (auto cursor = filtered->begin(); const timeline::IndexRow* row = cursor.next();) {
            filtered->record(*row, record);
            read.emplace_back(record.trace);
        }
        EXPECT_EQ(read, taken(choices[at]));
    }
}

TEST_F(RowAskingTest, CountsValuesOfTheRowsThatAllElseTakes)
{
    learn();
    Choice choice;
    choice.columns = {{Column::component, {"CallFlow"}, false}, {Column::level, {"1"}, true}};
    const RowCounts counts = asked(choice)->counts();
    const auto of = [&](std::size_t facet) {
        std::vector<std::string> told;
        for (const timeline::Facet& value : counts.facets[facet].value())
            told.push_back(value.value + " " + std::to_string(value.rows));
        return told;
    };
    EXPECT_EQ((Traces{"KoCSMgr 2"}), of(0));
    EXPECT_EQ((Traces{"CallFlow 2", "NotifyMail 1", "RuleEngine 1", "Sch\u00f6n 1"}), of(1))
        << "whatever is chosen of components";
    EXPECT_EQ((Traces{"Conv 2"}), of(2));
    EXPECT_EQ((Traces{"0 1", "1 1", "3 1"}), of(3)) << "whatever is chosen of levels";
    ASSERT_TRUE(counts.histogram.has_value());
    std::uint64_t rows = 0;
    for (const auto& bucket : counts.histogram->buckets()) rows += bucket.rows;
    EXPECT_EQ(2u, rows) << "which the choice takes, without the line that belongs to one";
}

TEST_F(RowAskingTest, CountsNoNamesBeforeAllAreKnown)
{
    const RowCounts counts = asked({})->counts();
    EXPECT_FALSE(counts.facets[0].has_value());
    EXPECT_TRUE(counts.facets[1].has_value());
    EXPECT_FALSE(counts.facets[2].has_value());
}

TEST_F(RowAskingTest, GoesOnWhereItStopped)
{
    RowAsking asking(timeline, order, {}, names, false);
    while (!asking.ask(timeline, std::chrono::steady_clock::time_point::min())) {
    }
    EXPECT_EQ(8u, asking.taken().count());
}

/// A log whose lines have no form is a single row with all of them.
class RowOfManyLines : public CountedLogs {
protected:
    /// How often the asking of a log's only row stopped before it was through.
    std::size_t stops(std::size_t lines, const std::string& line, Choice choice)
    {
        std::string bytes;
        for (std::size_t at = 0; at < lines; ++at)
            bytes += line + " " + std::to_string(at) + " of it\n";
        add("KoCSMgr", bytes);
        timeline::Progress progress;
        timeline.read(timeline::Filter(), progress);
        auto order = std::make_shared<RowOrder>(timeline);
        order->build(timeline, lines);
        RowAsking asking(timeline, order, std::move(choice), names, false);
        std::size_t stops = 0;
        while (!asking.ask(timeline, std::chrono::steady_clock::time_point::min())) {
            ++stops;
            EXPECT_EQ(0u, asking.taken().size()) << "nobody knows before its last line";
        }
        EXPECT_EQ(lines, asking.taken().size());
        taken = asking.taken().count();
        return stops;
    }

    static Choice with(const std::string& text)
    {
        Choice choice;
        choice.patterns.push_back(
            std::make_shared<const TextPattern>(TextPattern::Kind::text, text, Letters::inAnyCase));
        return choice;
    }

    RowNames names;
    std::size_t taken = 0;
};

TEST_F(RowOfManyLines, IsAskedInSteps)
{
    EXPECT_GT(stops(5000, "no form", with("form 4999")), 70u);
    EXPECT_EQ(5000u, taken);
}

TEST_F(RowOfManyLines, IsAskedInStepsWhereNoLineFits)
{
    EXPECT_GT(stops(5000, "no form", with("form 5000")), 70u);
    EXPECT_EQ(0u, taken);
}

TEST_F(RowOfManyLines, IsAskedInShorterStepsTheLongerTheyAre)
{
    EXPECT_GT(stops(20, std::string(200'000, 'x'), with("form")), 15u);
    EXPECT_EQ(0u, taken);
}

TEST_F(RowOfManyLines, IsAskedInStepsWhereNoTextIsAskedFor)
{
    EXPECT_GT(stops(5000, "no form", {}), 70u);
    EXPECT_EQ(5000u, taken);
}

TEST_F(RowAskingTest, NamesOfALogWhoseOlderRowsCameAreLearnedAnew)
{
    learn();
    EXPECT_NE(RowNames::unknown, names.source(0, 0));
    names.check(timeline);
    EXPECT_NE(RowNames::unknown, names.source(0, 0));
    timeline.forgetRows();
    names.check(timeline);
    EXPECT_EQ(RowNames::unknown, names.source(0, 0));
}

} // namespace
} // namespace viewer
