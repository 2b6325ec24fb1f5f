#include "timeline/filter/filter.h"

#include "runtime/run_time_error.h"
#include "text/code_page.h"

#include <gtest/gtest.h>

namespace timeline {
namespace {

Record row(Moment moment = 1000)
{
    Record record;
    record.moment = moment;
    record.hasForm = true;
    record.process = "KoCSMgr";
    record.source = "Conv";
    record.component = "CallFlow";
    record.level = 7;
    record.traceNumber = 1234;
    record.thread = "3072";
    record.port = "12";
    record.callId = "CF08-1";
    return record;
}

bool takes(Choice choice, const Record& record = row())
{
    return Filter(std::move(choice)).takesFields(record);
}

Choice oneOf(Column column, std::vector<std::string> values, bool excluded = false)
{
    Choice choice;
    choice.columns.push_back({column, std::move(values), excluded});
    return choice;
}

TEST(Columns, HaveNamesAndShortOnes)
{
    EXPECT_EQ("traceNumber", nameOf(Column::traceNumber));
    EXPECT_EQ(Column::traceNumber, columnOf("TraceNumber"));
    EXPECT_EQ(Column::traceNumber, columnOf("number"));
    EXPECT_EQ(Column::callId, columnOf("call"));
    EXPECT_EQ(Column::callId, columnOf("callid"));
    EXPECT_EQ(std::nullopt, columnOf("colour"));
}

TEST(Columns, HaveAValueOfEachRow)
{
    const Record record = row();
    EXPECT_EQ("7", valueOf(record, Column::level));
    EXPECT_EQ("1234", valueOf(record, Column::traceNumber));
    EXPECT_EQ("KoCSMgr", valueOf(record, Column::process));
    EXPECT_EQ("CF08-1", valueOf(record, Column::callId));
    const CodePage codePage = windows1252();
    Record western = record;
    western.source = "caf\xE9";
    western.codePage = &codePage;
    EXPECT_EQ("caf\u00e9", valueOf(western, Column::source));
    western.process = "KoCaf\u00e9";
    EXPECT_EQ("KoCaf\u00e9", valueOf(western, Column::process)) << "the name of a file";
}

TEST(Filter, LetsAllThroughWithoutAChoice)
{
    EXPECT_TRUE(Filter().letsAllThrough());
    EXPECT_TRUE(Filter(Choice{}).letsAllThrough());
    EXPECT_TRUE(takes({}));
    EXPECT_TRUE(takes({}, Record{}));
    EXPECT_FALSE(Filter(oneOf(Column::level, {"1"})).letsAllThrough());
}

TEST(Filter, TakesTheMomentsBetweenTwoWithBothOfThem)
{
    Choice choice;
    choice.since = 1000;
    choice.until = 2000;
    EXPECT_FALSE(takes(choice, row(999)));
    EXPECT_TRUE(takes(choice, row(1000)));
    EXPECT_TRUE(takes(choice, row(2000)));
    EXPECT_FALSE(takes(choice, row(2001)));
    EXPECT_FALSE(takes(choice, row(noMoment)));
}

TEST(Filter, TakesOneOfSeveralValuesInAnyCase)
{
    EXPECT_TRUE(takes(oneOf(Column::component, {"RuleEngine", "callflow"})));
    EXPECT_FALSE(takes(oneOf(Column::component, {"Call"})));
    EXPECT_TRUE(takes(oneOf(Column::process, {"KOCSMGR"})));
    EXPECT_TRUE(takes(oneOf(Column::port, {"12"})));
    EXPECT_TRUE(takes(oneOf(Column::callId, {"cf08-1"})));
    EXPECT_TRUE(takes(oneOf(Column::thread, {"3072"})));
    EXPECT_FALSE(takes(oneOf(Column::source, {"Log"})));
}

TEST(Filter, LeavesOutWhatIsExcluded)
{
    EXPECT_FALSE(takes(oneOf(Column::component, {"CallFlow"}, true)));
    EXPECT_TRUE(takes(oneOf(Column::component, {"RuleEngine"}, true)));
}

TEST(Filter, AsksForEachColumnThatIsGiven)
{
    Choice choice = oneOf(Column::component, {"CallFlow"});
    choice.columns.push_back({Column::level, {"0-6"}, false});
    EXPECT_FALSE(takes(choice));
    choice.columns.back().values.push_back("7");
    EXPECT_TRUE(takes(choice));
}

TEST(Filter, TakesNumbersAndRanges)
{
    EXPECT_TRUE(takes(oneOf(Column::level, {"7"})));
    EXPECT_TRUE(takes(oneOf(Column::level, {"0-7"})));
    EXPECT_FALSE(takes(oneOf(Column::level, {"8-9"})));
    EXPECT_TRUE(takes(oneOf(Column::traceNumber, {"1200-1299"})));
    Record data = row();
    data.level = -99;
    EXPECT_TRUE(takes(oneOf(Column::level, {"-99"}), data));
    EXPECT_TRUE(takes(oneOf(Column::level, {"-100--90"}), data));
}

TEST(Filter, RefusesWhatIsNoNumber)
{
    for (const char* value : {"", "x", "7x", "7-", "-", "9-7", "1-2-3"}) try {
            Filter(oneOf(Column::level, {value}));
            ADD_FAILURE() << value << " was taken";
        } catch (const RunTimeError& error) {
            EXPECT_EQ(runTimeErrors::invalidCall, error.number());
            EXPECT_EQ("level \"" + std::string(value) +
                          "\" is neither a number nor a range such as 0-3",
                      error.description());
        }
}

TEST(Filter, ComparesLettersOfTheCodePage)
{
    const CodePage codePage = windows1252();
    Record record = row();
    record.codePage = &codePage;
    record.component = "Caf\xE9";
    EXPECT_TRUE(takes(oneOf(Column::component, {"caf\u00e9"}), record));
    EXPECT_FALSE(takes(oneOf(Column::component, {"cafe"}), record));
}

TEST(Filter, HasNoFieldsOfALineWithoutAForm)
{
    Record without;
    without.moment = 1000;
    EXPECT_FALSE(takes(oneOf(Column::component, {"CallFlow"}, true), without));
    Choice choice;
    choice.since = 500;
    EXPECT_TRUE(takes(choice, without));
}

TEST(Filter, TakesTheLevelsOfAMacroTrace)
{
    Choice choice;
    choice.macroTrace = {{"RuleEngine", {1, 2}}, {"CallFlow", {3, 7}}};
    EXPECT_TRUE(takes(choice));
    Record other = row();
    other.level = 2;
    EXPECT_FALSE(takes(choice, other));
    other.component = "RuleEngine";
    EXPECT_TRUE(takes(choice, other));
    choice.macroTrace->clear();
    EXPECT_FALSE(takes(choice));
}

TEST(FilterSearch, AsksForEachPatternInAnyLineOfARow)
{
    Choice choice;
    choice.patterns.push_back(std::make_shared<TextPattern>(TextPattern::Kind::text, "first"));
    choice.patterns.push_back(
        std::make_shared<TextPattern>(TextPattern::Kind::expression, "sec.nd"));
    choice.without.push_back(std::make_shared<TextPattern>(TextPattern::Kind::text, "third"));
    const Filter filter(choice);
    Filter::Search search(filter, nullptr);
    EXPECT_FALSE(search.fits());
    search.look("the first line");
    EXPECT_FALSE(search.fits());
    search.look("the second line");
    EXPECT_TRUE(search.fits());
    search.look("the third line");
    EXPECT_FALSE(search.fits());
    search.begin();
    EXPECT_FALSE(search.fits());
    search.look("first and second");
    EXPECT_TRUE(search.fits());
}

TEST(Filter, KnowsProcessesInUtf8AndTheOtherColumnsInTheirCodePage)
{
    const CodePage codePage = windows1252();
    Record record = row();
    record.codePage = &codePage;
    record.process = "KoCaf\u00e9";
    record.source = "caf\xE9";
    record.component = "Fl\xFCsse";
    EXPECT_TRUE(takes(oneOf(Column::process, {"kocaf\u00e9"}), record));
    EXPECT_FALSE(takes(oneOf(Column::process, {"KoCaf\u00c3\u00a9"}), record));
    EXPECT_TRUE(takes(oneOf(Column::source, {"caf\u00e9"}), record));
    EXPECT_FALSE(takes(oneOf(Column::source, {"caf\xE9"}), record)) << "bytes are no text";
    Choice traced;
    traced.macroTrace = {{"fl\u00fcsse", {7}}};
    EXPECT_TRUE(takes(traced, record));
    traced.macroTrace = {{"Fl\xFCsse", {7}}};
    EXPECT_FALSE(takes(traced, record));
}

} // namespace
} // namespace timeline
