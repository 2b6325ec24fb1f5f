#include "timeline/counts/facets.h"

#include "timeline/counts/counted_logs.h"

namespace timeline {
namespace {

class Facets : public CountedLogs {
protected:
    /// "7=2 0=1"
    std::string by(Column column)
    {
        FacetCounter counter(timeline, column);
        count(counter);
        std::string text;
        for (const Facet& facet : counter.facets())
            text += (text.empty() ? "" : " ") + facet.value + "=" + std::to_string(facet.rows);
        return text;
    }
};

TEST_F(Facets, CountTheValuesOfEveryColumn)
{
    const char* const first = "15:00:00:000,Conv,12,t1,4,A,CallFlow,7,one\n"
                              "a line of its own form\n"
                              "15:00:00:001,Log,13,t1,5,B,Rule,200,two\n";
    const char* const second = "15:00:00:000,Conv,12,t2,4,A,CallFlow,7,three\n";
    const struct {
        Column column;
        const char* facets;
    } cases[] = {
        {Column::process, "KoCSMgr=2 KoNotify=1"},
        {Column::component, "CallFlow=2 Rule=1"},
        {Column::level, "7=2 200=1"},
        {Column::source, "Conv=2 Log=1"},
        {Column::traceNumber, "12=2 13=1"},
        {Column::thread, "t1=2 t2=1"},
        {Column::port, "4=2 5=1"},
        {Column::callId, "A=2 B=1"},
    };
    add("KoCSMgr", first, LineForm::extended);
    add("KoNotify", second, LineForm::extended);
    for (const auto& c : cases) EXPECT_EQ(c.facets, by(c.column)) << nameOf(c.column);
}

TEST_F(Facets, AreInUtf8)
{
    add("KoCSMgr", "15:00:00:000,Conv,12,caf\xE9,7,one\n15:00:00:000,Conv,12,caf\xE9,7,two\n"
                   "15:00:00:000,Conv,12,tea,7,three\n");
    EXPECT_EQ("caf\u00e9=2 tea=1", by(Column::component));
}

TEST_F(Facets, OfAsManyRowsStandInTheOrderOfTheirBytes)
{
    add("KoCSMgr", "15:00:00:000,Conv,12,b,7,one\n15:00:00:000,Conv,12,a,7,two\n");
    EXPECT_EQ("a=1 b=1", by(Column::component));
}

TEST_F(Facets, OfNothingAreNone)
{
    add("KoCSMgr", "no form\n");
    EXPECT_EQ("", by(Column::level));
}

} // namespace
} // namespace timeline
