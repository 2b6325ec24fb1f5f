#include "require.h"

#include "backends/xml/libxml_documents.h"
#include "backends/xml/xml_text.h"
#include "runtime/run_time_error.h"
#include "text/utf8.h"

#include "support/fakes/fake_clock.h"
#include "support/fakes/files/fake_file_system.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace {

/// The names, texts and attributes "name" of all elements, in document order.
std::vector<std::string> contentsOf(const XmlDocument& document)
{
    std::vector<std::string> contents;
    for (const auto& element : document.selectNodes("//*")) {
        contents.push_back(element->name());
        contents.push_back(element->text());
        contents.push_back(element->attribute("name").value_or("none"));
    }
    return contents;
}

/// Each way to ask for elements finds the same ones.
void checkDocument(XmlDocument& document, const std::string& wanted)
{
    const auto root = document.documentElement();
    require(root != nullptr && !root->name().empty());
    std::map<std::string, std::size_t> counts;
    for (const auto& element : document.selectNodes("//*")) ++counts[element->name()];
    for (const auto& [name, count] : counts)
        require(document.getElementsByTagName(name).size() == count);

    const std::string path = "//*[@name='" + wanted.substr(0, 24) + "']";
    try {
        const auto found = document.selectNodes(path);
        const auto first = document.selectSingleNode(path);
        require((first == nullptr) == found.empty());
        if (first) require(first->name() == found.front()->name());
    } catch (const RunTimeError& error) {
        require(error.number() == -2147467259);
    }
}

/// An element that moves to another document takes all it holds with it.
void checkMove(LibxmlDocuments& documents, XmlDocument& document)
{
    const auto target = documents.newDocument();
    const auto home = target->appendDocumentElement("Home");
    const auto moved = document.documentElement();
    const std::string text = moved->text();
    const std::string name = moved->name();
    home->appendChild(moved);
    moved->setAttribute("name", "a<&\"");
    require(document.documentElement() == nullptr);
    require(moved->attribute("name") == "a<&\"");
    require(moved->text() == text && moved->name() == name && home->text() == text);
}

} // namespace

/// Any bytes are a document or are refused; one in UTF-8 and in UTF-16 is the same document.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const auto text = xmlText(bytes, windows1252());
    if (text) {
        require(isUtf8(*text));
        require(xmlText("\xEF\xBB\xBF" + *text, windows1252()) == text);
        // A zero after the mark of UTF-16 makes that of UTF-32.
        if (!text->starts_with('\0'))
            require(xmlText("\xFF\xFE" + utf16LittleEndian(*text), windows1252()) == text);
    }

    const FakeClock clock;
    FakeFileSystem files(clock);
    files.with("C:\\a.xml", bytes);
    LibxmlDocuments documents(files);
    require(isUtf8(documents.textOf(bytes)));
    const auto document = documents.newDocument();
    if (!document->load("C:\\a.xml")) {
        require(document->documentElement() == nullptr);
        return 0;
    }
    require(text.has_value());
    files.with("C:\\b.xml", "\xFF\xFE" + utf16LittleEndian(*text));
    const auto other = documents.newDocument();
    require(other->load("C:\\b.xml") && contentsOf(*document) == contentsOf(*other));
    checkDocument(*document, bytes);
    checkMove(documents, *document);
    return 0;
}
