#include "backends/portable/pugi_xml.h"

#include "support/error_of.h"
#include "support/test_tool.h"

#include <gtest/gtest.h>

namespace {

struct PugiXmlTest : testing::Test {
    bool load(const std::string& text)
    {
        tool.files.with("C:\\a.xml", text);
        return document->load("C:\\a.xml");
    }

    TestTool tool;
    PugiXml xml{tool.files};
    std::unique_ptr<XmlDocument> document = xml.newDocument();
};

TEST_F(PugiXmlTest, FindsElementsByPathFromTheDocument)
{
    ASSERT_TRUE(load("<G><D name='a' text='one'/><D name='b'><L/><L/></D></G>"));
    EXPECT_EQ("one", document->selectSingleNode("G/D[@name='a']")->attribute("text"));
    EXPECT_EQ(2u, document->selectSingleNode("G/D[@name='b']")->selectNodes("L").size());
    EXPECT_EQ(nullptr, document->selectSingleNode("G/D[@name='A']")) << "names match exactly";
    EXPECT_EQ(std::nullopt, document->selectSingleNode("G")->attribute("name"));
    EXPECT_EQ(4u, document->getElementsByTagName("D").size() +
                      document->getElementsByTagName("L").size());
}

TEST_F(PugiXmlTest, RaisesForAPathThatIsNone)
{
    ASSERT_TRUE(load("<G/>"));
    EXPECT_NE(0, errorOf([&] { document->selectSingleNode("G/D[@name='O'Brien']"); }));
}

TEST_F(PugiXmlTest, GivesTheTextOfAnElementAndOfThoseInIt)
{
    ASSERT_TRUE(load("<G>one <b>two</b><![CDATA[ <three>]]></G>"));
    EXPECT_EQ("one two <three>", document->documentElement()->text());
}

TEST_F(PugiXmlTest, MovesAnElementIntoAnotherDocument)
{
    ASSERT_TRUE(load("<G><T n='1'><D/></T><T n='2'/></G>"));
    auto other = xml.newDocument();
    auto top = other->appendDocumentElement("ALL");
    auto moved = document->selectSingleNode("G/T[@n='1']");
    moved->setAttribute("Enabled", "1");
    top->appendChild(moved);
    EXPECT_EQ(nullptr, document->selectSingleNode("G/T[@n='1']"));
    EXPECT_EQ("1", other->selectSingleNode("ALL/T")->attribute("Enabled"));
    EXPECT_NE(nullptr, other->selectSingleNode("ALL/T/D"));
    moved->setAttribute("Enabled", "0");
    EXPECT_EQ("0", other->selectSingleNode("ALL/T")->attribute("Enabled"));
    document.reset();
    EXPECT_EQ("T", other->selectSingleNode("ALL/T")->name()) << "outlives the first document";
}

TEST_F(PugiXmlTest, TakesOneDocumentElementAlone)
{
    document->appendDocumentElement("A");
    EXPECT_NE(0, errorOf([&] { document->appendDocumentElement("B"); }));
}

TEST_F(PugiXmlTest, IsEmptyAfterAFileThatDoesNotLoad)
{
    struct Case {
        const char* because;
        std::string text;
    };
    std::string bomb = "<!DOCTYPE x [<!ENTITY a 'aaaaaaaaaa'>";
    for (char c = 'b'; c < 'k'; ++c)
        bomb += std::string("<!ENTITY ") + c + " '&" + char(c - 1) + ";&" + char(c - 1) + ";'>";
    const Case cases[] = {
        {"an empty file", ""},
        {"no XML at all", std::string("\0\xff\xfe garbage", 12)},
        {"an end tag is missing", "<G><D></G>"},
        {"fifty megabytes of nesting",
         [] {
             std::string deep;
             for (int i = 0; i < 12'500'000; ++i) deep += "<a>";
             return deep;
         }()},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        ASSERT_TRUE(load("<G/>"));
        EXPECT_FALSE(load(c.text));
        EXPECT_EQ(nullptr, document->documentElement());
    }
    EXPECT_FALSE(document->load("C:\\none.xml"));
    load(bomb + "]><G>&k;</G>");
    const auto element = document->documentElement();
    EXPECT_TRUE(!element || element->text().size() < 100) << "entities are not expanded";
}

TEST_F(PugiXmlTest, RefusesClosedNestingThatWouldOverflowTheStack)
{
    std::string deep;
    for (int i = 0; i < 2'000'000; ++i) deep += "<a>";
    for (int i = 0; i < 2'000'000; ++i) deep += "</a>";
    EXPECT_FALSE(load(deep));
    EXPECT_EQ(nullptr, document->documentElement());
}

TEST(RequiredElement, RaisesWhenALookUpFoundNone)
{
    EXPECT_EQ(91, errorOf([] { required(XmlElementPtr{}); }));
    EXPECT_EQ(91, errorOf([] { requiredAttribute({}, "NAME"); }));
}

} // namespace
