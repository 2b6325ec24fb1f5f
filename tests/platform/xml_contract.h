#pragma once

#include "platform/file_system.h"
#include "platform/xml.h"
#include "support/error_of.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

/// What every XmlService promises. A `Machine` has a default constructor that gives a drive C: and
/// a server whose encoding is Windows-1252, `XmlService& xml()` and `FileSystem& files()`, by which
/// documents are read.
template <typename Machine>
class XmlContract : public testing::Test {
protected:
    static constexpr int failure = -2147467259;

    XmlService& xml() { return machine.xml(); }

    bool load(const std::string& text)
    {
        const auto file = machine.files().createTextFile("C:\\a.xml");
        file->write(text);
        file->close();
        return document->load("C:\\a.xml");
    }

    std::vector<std::string> namesOf(const std::vector<XmlElementPtr>& elements)
    {
        std::vector<std::string> names;
        for (const auto& element : elements)
            names.push_back(element->attribute("name").value_or("?"));
        return names;
    }

    using Names = std::vector<std::string>;

    Machine machine;
    std::unique_ptr<XmlDocument> document = xml().newDocument();
};

TYPED_TEST_SUITE_P(XmlContract);

TYPED_TEST_P(XmlContract, ANewDocumentIsEmpty)
{
    const XmlDocument& loaded = *this->document;
    EXPECT_EQ(nullptr, loaded.documentElement());
    EXPECT_EQ(nullptr, loaded.selectSingleNode("G"));
    EXPECT_TRUE(loaded.selectNodes("//G").empty());
    EXPECT_TRUE(loaded.getElementsByTagName("G").empty());
}

TYPED_TEST_P(XmlContract, ADocumentIsReplacedByTheFileThatItLoads)
{
    EXPECT_TRUE(this->load("<first/>"));
    EXPECT_TRUE(this->load("<?xml version='1.0'?><second/>"));
    EXPECT_EQ("second", this->document->documentElement()->name());
}

TYPED_TEST_P(XmlContract, AFileThatDoesNotLoadLeavesTheDocumentEmpty)
{
    for (const char* text : {"", "no XML", "<G><D></G>", "<G/><G/>", "<G a='1' a='2'/>"}) {
        SCOPED_TRACE(text);
        ASSERT_TRUE(this->load("<G/>"));
        EXPECT_FALSE(this->load(text));
        EXPECT_EQ(nullptr, this->document->documentElement());
    }
    ASSERT_TRUE(this->load("<G/>"));
    EXPECT_FALSE(this->document->load("C:\\none.xml"));
    EXPECT_EQ(nullptr, this->document->documentElement());
}

TYPED_TEST_P(XmlContract, ADocumentIsReplacedByATextThatItLoads)
{
    EXPECT_TRUE(this->load("<ONE/>"));
    EXPECT_TRUE(this->document->loadText("<?xml version=\"1.0\" encoding=\"windows-1252\"?>"
                                         "<G n=\"\xC3\xA9\"/>"))
        << "a text is UTF-8, whatever it declares";
    EXPECT_EQ("\xC3\xA9", this->document->documentElement()->attribute("n"));
    EXPECT_FALSE(this->document->loadText("<G>"));
    EXPECT_EQ(nullptr, this->document->documentElement());
}

TYPED_TEST_P(XmlContract, AnEmptyDocumentTakesOneDocumentElement)
{
    const auto element = this->document->appendDocumentElement("HYBRIDTRACES");
    EXPECT_EQ("HYBRIDTRACES", element->name());
    EXPECT_EQ("HYBRIDTRACES", this->document->documentElement()->name());
    EXPECT_EQ(this->failure, errorOf([&] { this->document->appendDocumentElement("B"); }));
    EXPECT_EQ("HYBRIDTRACES", this->document->documentElement()->name());
}

TYPED_TEST_P(XmlContract, APathFromTheDocumentBeginsWithTheDocumentElement)
{
    ASSERT_TRUE(this->load("<G><D name='a'/></G>"));
    EXPECT_EQ("a", this->document->selectSingleNode("G/D")->attribute("name"));
    EXPECT_EQ(nullptr, this->document->selectSingleNode("D"));
}

TYPED_TEST_P(XmlContract, APathFromAnElementBeginsInIt)
{
    ASSERT_TRUE(this->load("<G><D name='a'><L name='b'/></D><L name='c'/></G>"));
    const auto element = this->document->selectSingleNode("G/D");
    EXPECT_EQ("b", element->selectSingleNode("L")->attribute("name"));
    EXPECT_EQ(nullptr, element->selectSingleNode("G/D"));
    EXPECT_EQ("c", element->selectSingleNode("../L")->attribute("name"));
}

TYPED_TEST_P(XmlContract, APathMayAskForAnAttribute)
{
    ASSERT_TRUE(this->load("<G><D name='a'/><D name='b'/></G>"));
    EXPECT_EQ((typename TestFixture::Names{"b"}),
              this->namesOf(this->document->selectNodes("G/D[@name='b']")));
    EXPECT_TRUE(this->document->selectNodes("G/D[@name='B']").empty()) << "texts match exactly";
}

TYPED_TEST_P(XmlContract, ElementsComeInDocumentOrder)
{
    ASSERT_TRUE(this->load("<G><D name='1'><D name='2'/></D><E name='3'/><D name='4'/></G>"));
    const XmlDocument& loaded = *this->document;
    EXPECT_EQ((typename TestFixture::Names{"1", "2", "4"}),
              this->namesOf(loaded.selectNodes("//D")));
    EXPECT_EQ((typename TestFixture::Names{"1", "3", "4"}),
              this->namesOf(loaded.selectNodes("G/E | G/D")));
    EXPECT_EQ("1", loaded.selectSingleNode("G/E | G/D")->attribute("name"));
    EXPECT_EQ((typename TestFixture::Names{"1", "2", "4"}),
              this->namesOf(loaded.getElementsByTagName("D")));
    EXPECT_EQ((typename TestFixture::Names{"1", "4"}),
              this->namesOf(loaded.documentElement()->selectNodes("D")));
}

TYPED_TEST_P(XmlContract, NamesMatchExactly)
{
    ASSERT_TRUE(this->load("<G Name='a'><D/></G>"));
    EXPECT_EQ(nullptr, this->document->selectSingleNode("g"));
    EXPECT_TRUE(this->document->selectNodes("G/d").empty());
    EXPECT_TRUE(this->document->getElementsByTagName("d").empty());
    EXPECT_EQ(std::nullopt, this->document->documentElement()->attribute("name"));
}

TYPED_TEST_P(XmlContract, APathThatIsNoneRaises)
{
    ASSERT_TRUE(this->load("<G/>"));
    const auto element = this->document->documentElement();
    for (const char* path : {"G/D[@name='O'Brien']", "", "G[", "count(G)", "$none", "none()"}) {
        SCOPED_TRACE(path);
        EXPECT_EQ(this->failure, errorOf([&] { this->document->selectSingleNode(path); }));
        EXPECT_EQ(this->failure, errorOf([&] { this->document->selectNodes(path); }));
        EXPECT_EQ(this->failure, errorOf([&] { element->selectSingleNode(path); }));
        EXPECT_EQ(this->failure, errorOf([&] { element->selectNodes(path); }));
    }
}

TYPED_TEST_P(XmlContract, AnAttributeThatIsMissingIsNothingAndAnEmptyOneIsNot)
{
    ASSERT_TRUE(this->load("<G a='' b='x &lt;&amp;&#233;'/>"));
    const auto element = this->document->documentElement();
    EXPECT_EQ("", element->attribute("a"));
    EXPECT_EQ("x <&\xC3\xA9", element->attribute("b")) << "in UTF-8";
    EXPECT_EQ(std::nullopt, element->attribute("c"));
}

TYPED_TEST_P(XmlContract, AnAttributeIsSetOverAnOldOne)
{
    ASSERT_TRUE(this->load("<G a='old'/>"));
    const auto element = this->document->documentElement();
    element->setAttribute("a", "<new> & \"\xC3\xA9\"");
    element->setAttribute("b", "");
    EXPECT_EQ("<new> & \"\xC3\xA9\"", this->document->documentElement()->attribute("a"));
    EXPECT_EQ("", element->attribute("b"));
}

TYPED_TEST_P(XmlContract, TheTextOfAnElementHoldsThatOfThoseInIt)
{
    ASSERT_TRUE(this->load("<G>one <b>two</b><![CDATA[ <three>]]><!-- none --></G>"));
    EXPECT_EQ("one two <three>", this->document->documentElement()->text());
}

TYPED_TEST_P(XmlContract, AnElementIsMovedToTheEndOfAnothersChildren)
{
    ASSERT_TRUE(this->load("<G><D name='a'><L/></D><D name='b'/></G>"));
    const auto moved = this->document->selectSingleNode("G/D[@name='a']");
    this->document->documentElement()->appendChild(moved);
    EXPECT_EQ((typename TestFixture::Names{"b", "a"}),
              this->namesOf(this->document->selectNodes("G/D")));
    EXPECT_NE(nullptr, this->document->selectSingleNode("G/D[@name='a']/L"));
}

TYPED_TEST_P(XmlContract, AHandleOfAMovedElementMeansTheMovedOne)
{
    ASSERT_TRUE(this->load("<G><T n='1'><D/></T><T n='2'/></G>"));
    const auto other = this->xml().newDocument();
    const auto moved = this->document->selectSingleNode("G/T[@n='1']");
    moved->setAttribute("Enabled", "1");
    other->appendDocumentElement("ALL")->appendChild(moved);
    EXPECT_EQ(nullptr, this->document->selectSingleNode("G/T[@n='1']"));
    EXPECT_EQ("1", other->selectSingleNode("ALL/T")->attribute("Enabled"));
    EXPECT_NE(nullptr, other->selectSingleNode("ALL/T/D"));
    moved->setAttribute("Enabled", "0");
    EXPECT_EQ("0", other->selectSingleNode("ALL/T")->attribute("Enabled"));
    this->document.reset();
    EXPECT_EQ("1", other->selectSingleNode("ALL/T")->attribute("n")) << "the first one is gone";
}

TYPED_TEST_P(XmlContract, ATextIsReadInItsOwnEncodingElseInTheServers)
{
    const XmlService& xml = this->xml();
    EXPECT_EQ("<G>\xC3\xA9</G>", xml.textOf("<G>\xC3\xA9</G>")) << "UTF-8";
    EXPECT_EQ("<G>\xC3\xA9</G>", xml.textOf("<G>\xE9</G>")) << "what is no UTF-8";
    const std::string cyrillic = "<?xml version=\"1.0\" encoding=\"windows-1251\"?><G>\xE9</G>";
    EXPECT_NE(std::string::npos, xml.textOf(cyrillic).find("<G>\xD0\xB9</G>")) << "as declared";
    EXPECT_EQ("not <well-formed", xml.textOf("not <well-formed"));
    EXPECT_EQ("", xml.textOf(""));
}

REGISTER_TYPED_TEST_SUITE_P(
    XmlContract, ANewDocumentIsEmpty, ADocumentIsReplacedByTheFileThatItLoads,
    AFileThatDoesNotLoadLeavesTheDocumentEmpty, ADocumentIsReplacedByATextThatItLoads,
    AnEmptyDocumentTakesOneDocumentElement, APathFromTheDocumentBeginsWithTheDocumentElement,
    APathFromAnElementBeginsInIt, APathMayAskForAnAttribute, ElementsComeInDocumentOrder,
    NamesMatchExactly, APathThatIsNoneRaises, AnAttributeThatIsMissingIsNothingAndAnEmptyOneIsNot,
    AnAttributeIsSetOverAnOldOne, TheTextOfAnElementHoldsThatOfThoseInIt,
    AnElementIsMovedToTheEndOfAnothersChildren, AHandleOfAMovedElementMeansTheMovedOne,
    ATextIsReadInItsOwnEncodingElseInTheServers);
