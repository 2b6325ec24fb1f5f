#include "backends/xml/libxml_documents.h"

#include "runtime/required_object.h"
#include "support/error_of.h"
#include "support/test_tool.h"
#include "system/encoding_converter.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>

#include <libxml/xmlmemory.h>

namespace {

struct LibxmlDocumentsTest : testing::Test {
    bool load(const std::string& text)
    {
        tool.files.with("C:\\a.xml", text);
        return document->load("C:\\a.xml");
    }

    TestTool tool;
    LibxmlDocuments xml{tool.files};
    std::unique_ptr<XmlDocument> document = xml.newDocument();
};

TEST_F(LibxmlDocumentsTest, TakesLineEndsAndBlanksBetweenTagsForLayout)
{
    ASSERT_TRUE(load("<G>\r\n  <b>a &lt;&amp;&#65;</b>\r\n<!-- no text --></G>"));
    EXPECT_EQ("a <&A", document->documentElement()->text());
}

TEST_F(LibxmlDocumentsTest, IsEmptyAfterAFileThatDoesNotLoad)
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

TEST_F(LibxmlDocumentsTest, RefusesClosedNestingThatWouldOverflowTheStack)
{
    std::string deep;
    for (int i = 0; i < 2'000'000; ++i) deep += "<a>";
    for (int i = 0; i < 2'000'000; ++i) deep += "</a>";
    EXPECT_FALSE(load(deep));
    EXPECT_EQ(nullptr, document->documentElement());
}

std::string tagWith(int attributes)
{
    std::string tag = "<G";
    for (int number = 0; number < attributes; ++number)
        tag += " a" + std::to_string(number) + "='>'";
    return tag + "/>";
}

TEST_F(LibxmlDocumentsTest, RefusesATagWithMoreAttributesThanCanBeCompared)
{
    ASSERT_TRUE(load(tagWith(1000)));
    EXPECT_EQ(">", document->documentElement()->attribute("a999"));
    EXPECT_FALSE(load(tagWith(1001)));
    EXPECT_FALSE(load("<H>'<K/>" + tagWith(500'000) + "</H>"));
    EXPECT_EQ(nullptr, document->documentElement());
}

TEST_F(LibxmlDocumentsTest, CountsQuotesOfATagAlone)
{
    const std::string quotes(5000, '\'');
    for (const auto& text : {"<!--<a " + quotes + "--><G/>", "<G><![CDATA[<a " + quotes + "]]></G>",
                             "<G>" + quotes + "</G>", "<G a=\"" + quotes + "\"/>"})
        EXPECT_TRUE(load(text)) << text.substr(0, 20);
}

TEST_F(LibxmlDocumentsTest, RefusesWhatIsNotWellFormed)
{
    const struct {
        const char* because;
        std::string text;
    } cases[] = {
        {"two roots", "<G/><G/>"},
        {"text behind the root", "<G/>x"},
        {"text before the root", "x<G/>"},
        {"an attribute twice", "<G a='1' a='2'/>"},
        {"a bare &", "<G>this & that</G>"},
        {"a bare & in a value", "<G a='this & that'/>"},
        {"a < in a value", "<G a='a<b'/>"},
        {"a control character", "<G>\x01</G>"},
        {"one by its number", "<G>&#1;</G>"},
        {"a zero byte", std::string("<G>a\0b</G>", 11)},
        {"one behind the root", std::string("<G/>\0", 5)},
        {"an unknown entity", "<G>&nbsp;</G>"},
        {"an entity of its own", "<!DOCTYPE G [<!ENTITY e 'x'>]><G>&e;</G>"},
        {"one that another file may declare", "<!DOCTYPE G SYSTEM 'g.dtd'><G>a&e;b</G>"},
        {"the same in a value", "<!DOCTYPE G SYSTEM 'g.dtd'><G a='a&e;b'/>"},
        {"one that a part of another file may declare",
         "<!DOCTYPE G [<!ENTITY % p SYSTEM 'p.ent'> %p;]><G a='a&e;b'/>"},
        {"a value without quotes", "<G a=1/>"},
        {"no space between values", "<G a='1'b='2'/>"},
        {"names that differ in case", "<G></g>"},
        {"a name that begins with a digit", "<1/>"},
        {"two hyphens in a comment", "<G><!-- a -- b --></G>"},
        {"the end of a character section in text", "<G>]]></G>"},
        {"a declaration that is not in front", " <?xml version='1.0'?><G/>"},
        {"a comment alone", "<!-- no root -->"},
        {"a declared encoding that is unknown", "<?xml version='1.0' encoding='x-none'?><G/>"},
        {"bytes that the declared encoding lacks",
         "<?xml version='1.0' encoding='UTF-8'?><G a='caf\xE9'/>"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_FALSE(load(c.text));
        EXPECT_EQ(nullptr, document->documentElement());
    }
}

TEST_F(LibxmlDocumentsTest, LoadsDeclarationsOfEntitiesThatItDoesNotReferTo)
{
    for (const char* declarations :
         {"[<!ENTITY e 'x'>]", "SYSTEM 'g.dtd'", "[<!ENTITY e SYSTEM 'e.txt'>]",
          "[<!ENTITY lt '&#38;#60;'><!ENTITY amp '&#38;#38;'>]"}) {
        SCOPED_TRACE(declarations);
        ASSERT_TRUE(load("<!DOCTYPE G " + std::string(declarations) +
                         "><G a='1 &lt; 2'>3 &amp;&#32;4</G>"));
        EXPECT_EQ("1 < 2", document->documentElement()->attribute("a"));
        EXPECT_EQ("3 & 4", document->documentElement()->text());
    }
}

TEST_F(LibxmlDocumentsTest, ReadsTheDeclaredEncodingElseTheServersCodePage)
{
    CodePage::Table table{};
    table[0xE9] = 0x03B9;
    LibxmlDocuments greek(tool.files, CodePage(table));
    document = greek.newDocument();
    const struct {
        const char* because;
        std::string text;
        const char* expected;
    } cases[] = {
        {"declared", "<?xml version='1.0' encoding='windows-1252'?><G a='caf\xE9 \x80'/>",
         "caf\xC3\xA9 \xE2\x82\xAC"},
        {"in double quotes and capitals",
         "<?xml version=\"1.0\" encoding=\"ISO-8859-2\"?><G a='\xE9\xB1'/>", "\xC3\xA9\xC4\x85"},
        {"of several bytes a character",
         "<?xml version='1.0' encoding='Shift_JIS'?><G a='\x93\xFA\x96\x7B'/>",
         "\xE6\x97\xA5\xE6\x9C\xAC"},
        {"none declared", "<G a='caf\xE9'/>", "caf\xCE\xB9"},
        {"none declared, and UTF-8", "<G a='caf\xC3\xA9'/>", "caf\xC3\xA9"},
        {"UTF-8 that says otherwise",
         "<?xml version='1.0' encoding='windows-1252'?><G a='caf\xC3\xA9'/>", "caf\xC3\xA9"},
        {"UTF-8 with its mark", "\xEF\xBB\xBF<G a='caf\xC3\xA9'/>", "caf\xC3\xA9"},
        {"UTF-16", std::string("\xFF\xFE<\0G\0 \0a\0=\0'\0\xE9\0'\0/\0>\0", 22), "\xC3\xA9"},
        {"without its mark", std::string("\0<\0G\0 \0a\0=\0'\0\xE9\0'\0/\0>", 20), "\xC3\xA9"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        ASSERT_TRUE(load(c.text));
        EXPECT_EQ(c.expected, document->selectSingleNode("G")->attribute("a"));
        EXPECT_NE(nullptr, document->selectSingleNode("G[@a='" + std::string(c.expected) + "']"));
    }
}

TEST_F(LibxmlDocumentsTest, ReadsADeclaredEncodingWhoseBytesLookLikeAscii)
{
#ifdef _WIN32
    if (!EncodingConverter("ISO-2022-JP", "UTF-8").isKnown())
        GTEST_SKIP() << "this Windows has no table of the encoding";
#endif
    ASSERT_TRUE(load("<?xml version='1.0' encoding='ISO-2022-JP'?><G a='\x1B$BF|K\\\x1B(B'/>"));
    EXPECT_EQ("\xE6\x97\xA5\xE6\x9C\xAC", document->selectSingleNode("G")->attribute("a"));
}

TEST_F(LibxmlDocumentsTest, NamesAreWhatTheFileSays)
{
    ASSERT_TRUE(load("<G xmlns='urn:a' xmlns:p='urn:b'><p:T p:n='1' n='2' xml:id='x'/><T/></G>"));
    EXPECT_EQ(1u, document->selectNodes("G/T").size());
    const auto first = document->selectNodes("G/*").at(0);
    EXPECT_EQ("p:T", first->name());
    EXPECT_EQ("1", first->attribute("p:n"));
    EXPECT_EQ("2", first->attribute("n"));
    EXPECT_EQ("x", first->attribute("xml:id"));
    EXPECT_EQ(nullptr, document->selectSingleNode("G/*[@n='1']"));
    ASSERT_TRUE(load("<q:G a='1'/>")) << "a prefix need not be known";
    EXPECT_EQ("q:G", document->documentElement()->name());
}

TEST_F(LibxmlDocumentsTest, SetsAnAttributeToAnyText)
{
    ASSERT_TRUE(load("<G a='1' b='2'/>"));
    const auto element = document->documentElement();
    element->setAttribute("a", "<&amp;'\">");
    element->setAttribute("c", "");
    EXPECT_EQ("<&amp;'\">", element->attribute("a"));
    EXPECT_EQ("2", element->attribute("b"));
    EXPECT_EQ("", element->attribute("c"));
    EXPECT_EQ(std::nullopt, element->attribute("d"));
}

TEST_F(LibxmlDocumentsTest, GivesTheTextOfAnyFile)
{
    const struct {
        const char* because;
        std::string bytes;
        std::string expected;
    } cases[] = {
        {"nothing", "", ""},
        {"by its own encoding", "<?xml version='1.0' encoding='windows-1251'?>\xE9",
         "<?xml version='1.0' encoding='windows-1251'?>\xD0\xB9"},
        {"which it must know", "<?xml version='1.0' encoding='x-none'?>\xE9",
         "<?xml version='1.0' encoding='x-none'?>\xC3\xA9"},
        {"and must fit", "<?xml version='1.0' encoding='UTF-8'?>\xE9",
         "<?xml version='1.0' encoding='UTF-8'?>\xC3\xA9"},
        {"in the server's", "not even xml \x80", "not even xml \xE2\x82\xAC"},
        {"UTF-8", "caf\xC3\xA9", "caf\xC3\xA9"},
    };
    for (const auto& c : cases) EXPECT_EQ(c.expected, xml.textOf(c.bytes)) << c.because;
}

/// What a path finds, by the library's own evaluation too: a blank makes it no plain path.
void expectSameAsTheLibrary(const XmlDocument& document, const std::string& path)
{
    const auto attributes = [&](const std::string& asked) {
        std::vector<std::string> found;
        for (const auto& element : document.selectNodes(asked))
            found.push_back(element->name() + " " + element->attribute("i").value_or("none"));
        return found;
    };
    EXPECT_EQ(attributes(" " + path), attributes(path)) << path;
    const auto first = document.selectSingleNode(path);
    const auto expected = document.selectSingleNode(" " + path);
    EXPECT_EQ(expected == nullptr, first == nullptr) << path;
    if (first && expected) {
        EXPECT_EQ(expected->attribute("i"), first->attribute("i")) << path;
    }
}

TEST_F(LibxmlDocumentsTest, FollowsAPlainPathToWhatTheLibraryFinds)
{
    ASSERT_TRUE(
        load("<?xml version='1.0' encoding='UTF-8'?><G i='0'><D i='1' n='a'><L i='2' n='x'/>"
             "<L i='3'/></D>text<d i='4' n='a'/><!-- <D/> --><p:D i='5' n='a' xmlns:p='u'/>"
             "<D i='6' n=''/><D i='7' n='a'><L i='8' n='x'/><D i='9' n='a'/></D>"
             "<D i='10' n='&lt;\"&#233;&amp;'/><D i='11' n='a b'/><D i='12' p:n='a' "
             "xmlns:p='u'/></G>"));
    for (const char* path :
         {"G", "g", "D", "G/D", "G/D/L", "G/D[@n='a']", "G/D[@n='']", "G/D[@n='A']",
          "G/D[@n='a']/L", "G/D[@n='a']/L[@n='x']", "G/D[@n='a']/D[@n='a']", "G/D[@none='']",
          "G/D[@n='<\"\xC3\xA9&']", "G/D[@n='a b']", "G/d", "G/p", "G[@i='0']/D[@i='7']/L",
          "G/D[@n='\xFF']", "G/D[@n='a\t']"})
        expectSameAsTheLibrary(*document, path);
    for (const char* path : {"G/", "G//", "G/D[@n='a'", "G/D[@n=a]x", "G/D[@='a']", "G/D[@n='a'x]",
                             "G/1", "G/D[@n='\x01']"})
        EXPECT_EQ(-2147467259, errorOf([&] { document->selectNodes(path); })) << path;
    EXPECT_EQ(1u, document->selectNodes("/G").size());
    EXPECT_EQ(6u, document->selectNodes("//D[@n]").size());
}

std::size_t libraryAllocations = 0;

void* countedMalloc(std::size_t size)
{
    ++libraryAllocations;
    return std::malloc(size);
}

void* countedRealloc(void* block, std::size_t size)
{
    ++libraryAllocations;
    return std::realloc(block, size);
}

char* countedStrdup(const char* text)
{
    ++libraryAllocations;
    return ::strdup(text);
}

TEST_F(LibxmlDocumentsTest, MakesNoObjectForEachGroupThatALookUpPasses)
{
    std::string text = "<ALL>";
    for (int group = 0; group < 500; ++group)
        text += "<GA NAME='" + std::to_string(group) + "'><TRACE NAME='t'/></GA>";
    ASSERT_TRUE(load(text + "</ALL>"));
    ASSERT_EQ(0, xmlMemSetup(std::free, countedMalloc, countedRealloc, countedStrdup));
    libraryAllocations = 0;
    int found = 0;
    for (int group = 0; group < 500; ++group)
        if (document->selectSingleNode("ALL/GA[@NAME='" + std::to_string(group) +
                                       "']/TRACE[@NAME='t']"))
            ++found;
    const std::size_t made = libraryAllocations;
    xmlMemSetup(std::free, std::malloc, std::realloc, ::strdup);
    EXPECT_EQ(500, found);
    EXPECT_LE(made, 500u) << "no more than one for each look-up";
}

TEST(LibxmlDocumentsWithoutFiles, ReadTextsAlone)
{
    LibxmlDocuments xml;
    const auto document = xml.newDocument();
    EXPECT_FALSE(document->load("C:\\a.xml"));
    EXPECT_TRUE(document->loadText("<A><B/></A>"));
    EXPECT_EQ(1u, document->selectNodes("A/B").size());
}

TEST(RequiredElement, RaisesWhenALookUpFoundNone)
{
    EXPECT_EQ(91, errorOf([] { required(XmlElementPtr{}); }));
    EXPECT_EQ(91, errorOf([] { requiredAttribute({}, "NAME"); }));
}

} // namespace
