#include "backends/xml/libxml_documents.h"

#include "backends/xml/xml_path.h"
#include "backends/xml/xml_text.h"
#include "platform/file_system.h"
#include "runtime/out_of_memory.h"
#include "runtime/run_time_error.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <new>
#include <string_view>
#include <utility>

#include <libxml/parser.h>
#include <libxml/xpath.h>
#include <libxml/xpathInternals.h>

namespace {

constexpr int xmlFailure = -2147467259;

using Tree = std::shared_ptr<xmlDoc>;

void* noted(void* memory)
{
    if (memory == nullptr) noteOutOfMemory();
    return memory;
}

/// The library calls a document that it has no memory for malformed, or leaves a part of it out:
/// its requests are to be looked at one by one.
void useNotedMemory()
{
    static const int result = xmlMemSetup(
        std::free, [](std::size_t size) { return noted(std::malloc(size)); },
        [](void* old, std::size_t size) { return noted(std::realloc(old, size)); },
        [](const char* text) { return static_cast<char*>(noted(strdup(text))); });
    if (result != 0) throw std::bad_alloc();
}

const xmlChar* chars(const std::string& text)
{
    return reinterpret_cast<const xmlChar*>(text.c_str());
}

std::string textOf(const xmlChar* characters)
{
    return characters == nullptr ? std::string() : reinterpret_cast<const char*>(characters);
}

Tree newTree()
{
    Tree tree(xmlNewDoc(nullptr), xmlFreeDoc);
    if (!tree) throw std::bad_alloc();
    return tree;
}

/// The node after `node` in document order, inside `top`; null at the end. Goes into elements
/// alone, without recursion, so that nesting costs no stack.
xmlNode* nextNode(xmlNode* node, const xmlNode* top)
{
    const bool isHolder = node->type == XML_ELEMENT_NODE || node == top;
    if (isHolder && node->children != nullptr) return node->children;
    for (; node != top; node = node->parent)
        if (node->next != nullptr) return node->next;
    return nullptr;
}

/// The node that stands for a whole document where nodes are asked for.
xmlNode* asNode(const Tree& tree)
{
    return reinterpret_cast<xmlNode*>(tree.get());
}

/// Puts the prefix of a name back into it.
template <typename Node>
void nameAsWritten(Node* node)
{
    if (node->ns == nullptr) return;
    const std::string prefix = textOf(node->ns->prefix);
    const std::string name = textOf(node->name);
    node->ns = nullptr;
    if (!prefix.empty())
        xmlNodeSetName(reinterpret_cast<xmlNode*>(node), chars(prefix + ":" + name));
}

void nameAllAsWritten(const Tree& tree)
{
    for (xmlNode* node = asNode(tree); node; node = nextNode(node, asNode(tree))) {
        if (node->type != XML_ELEMENT_NODE) continue;
        nameAsWritten(node);
        for (xmlAttr* each = node->properties; each; each = each->next) nameAsWritten(each);
    }
}

/// Takes no notice of an entity that a document declares.
void passOverEntity(void*, const xmlChar*, int, const xmlChar*, const xmlChar*, xmlChar*) {}

/// Refuses a document that refers to an entity other than those of XML itself. The parser would let
/// it pass, without the text it stands for, where a definition elsewhere might declare it. Among
/// declarations the parser asks for each entity that it has just read, which is no reference.
xmlEntity* refuseEntity(void* context, const xmlChar*)
{
    auto* parser = static_cast<xmlParserCtxt*>(context);
    if (parser->inSubset == 0) parser->wellFormed = 0;
    return nullptr;
}

/// Whether a tag has more attributes than any document of a server has. The parser compares each
/// with all before it, and takes minutes for a tag of a megabyte.
bool hasCrowdedTag(std::string_view text)
{
    constexpr int most = 1000;
    const auto past = [&](std::string_view end, std::size_t from) {
        return std::min(text.find(end, from), text.size());
    };
    for (auto at = past("<", 0); at < text.size(); at = past("<", at + 1)) {
        if (text.substr(at, 4) == "<!--") {
            at = past("-->", at + 4);
        } else if (text.substr(at, 9) == "<![CDATA[") {
            at = past("]]>", at + 9);
        } else {
            int values = 0;
            for (at = std::min(text.find_first_of("\"'>", at), text.size());
                 at < text.size() && text[at] != '>';
                 at = std::min(text.find_first_of("\"'>", at + 1), text.size())) {
                if (++values > most) return true;
                at = past(text.substr(at, 1), at + 1);
            }
        }
        if (at >= text.size()) return false;
    }
    return false;
}

/// The document of a text in UTF-8; null when it is not well-formed, or has a crowded tag.
Tree parsed(const std::string& text)
{
    if (text.size() > static_cast<std::size_t>(std::numeric_limits<int>::max())) return nullptr;
    if (text.find('\0') != std::string::npos) return nullptr; // where the parser would stop
    if (hasCrowdedTag(text)) return nullptr;
    const std::unique_ptr<xmlParserCtxt, decltype(&xmlFreeParserCtxt)> parser(xmlNewParserCtxt(),
                                                                              xmlFreeParserCtxt);
    if (!parser) throw std::bad_alloc();
    parser->sax->entityDecl = passOverEntity;
    parser->sax->getEntity = refuseEntity;
    constexpr int options = XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING |
                            XML_PARSE_NODICT | XML_PARSE_IGNORE_ENC;
    Tree tree(xmlCtxtReadMemory(parser.get(), text.data(), static_cast<int>(text.size()), nullptr,
                                "UTF-8", options),
              xmlFreeDoc);
    if (!tree) return nullptr;
    nameAllAsWritten(tree);
    // Nobody asks for elements by their ids, and the table would go on to name those that moved.
    xmlFreeIDTable(static_cast<xmlIDTablePtr>(tree->ids));
    tree->ids = nullptr;
    return tree;
}

/// Whether a node is text of its element: line ends and blanks alone between tags are layout.
bool isText(const xmlNode& node)
{
    if (node.type == XML_CDATA_SECTION_NODE) return true;
    return node.type == XML_TEXT_NODE &&
           textOf(node.content).find_first_not_of(" \t\r\n") != std::string::npos;
}

xmlAttr* attributeOf(const xmlNode& element, const std::string& name)
{
    for (xmlAttr* each = element.properties; each; each = each->next)
        if (textOf(each->name) == name) return each;
    return nullptr;
}

/// Keeps off standard error what is wrong with a path: the error raised tells it.
void saySilently(void*, const char*, ...) {}

constexpr std::size_t all = std::numeric_limits<std::size_t>::max();

/// The elements that a path finds from a node, in document order: the first `most`, or more. Raises
/// for a path that is none.
std::vector<xmlNode*> nodesOf(const Tree& tree, xmlNode* from, const std::string& path,
                              std::size_t most)
{
    if (const auto plain = XmlPath::plain(path)) return plain->nodesOf(*from, most);
    const std::unique_ptr<xmlXPathContext, decltype(&xmlXPathFreeContext)> context(
        xmlXPathNewContext(tree.get()), xmlXPathFreeContext);
    if (!context) throw std::bad_alloc();
    context->node = from;
    context->error = [](void*, xmlErrorPtr) {};
    xmlSetGenericErrorFunc(nullptr, saySilently);
    const std::unique_ptr<xmlXPathObject, decltype(&xmlXPathFreeObject)> found(
        xmlXPathEval(chars(path), context.get()), xmlXPathFreeObject);
    if (!found || found->type != XPATH_NODESET)
        throw RunTimeError(xmlFailure, "Expression must evaluate to a node-set.");

    std::vector<xmlNode*> nodes;
    if (found->nodesetval == nullptr) return nodes;
    xmlXPathNodeSetSort(found->nodesetval);
    for (int index = 0; index < found->nodesetval->nodeNr; ++index)
        if (found->nodesetval->nodeTab[index]->type == XML_ELEMENT_NODE)
            nodes.push_back(found->nodesetval->nodeTab[index]);
    return nodes;
}

std::vector<XmlElementPtr> elementsOf(const Tree& tree, xmlNode* from, const std::string& path);
XmlElementPtr firstElementOf(const Tree& tree, xmlNode* from, const std::string& path);

class LibxmlElement final : public XmlElement {
public:
    LibxmlElement(Tree tree, xmlNode* node) : tree_(std::move(tree)), node_(node) {}

    std::string name() const override { return textOf(node_->name); }

    std::optional<std::string> attribute(const std::string& name) const override
    {
        const xmlAttr* found = attributeOf(*node_, name);
        if (found == nullptr) return std::nullopt;
        std::string value;
        for (const xmlNode* part = found->children; part; part = part->next)
            if (part->type == XML_TEXT_NODE) value += textOf(part->content);
        return value;
    }

    void setAttribute(const std::string& name, const std::string& value) override
    {
        if (xmlAttr* found = attributeOf(*node_, name)) xmlRemoveProp(found);
        xmlNewProp(node_, chars(name), chars(value));
    }

    std::string text() const override
    {
        std::string text;
        for (xmlNode* node = node_; node; node = nextNode(node, node_))
            if (isText(*node)) text += textOf(node->content);
        return text;
    }

    XmlElementPtr selectSingleNode(const std::string& path) const override
    {
        return firstElementOf(tree_, node_, path);
    }

    std::vector<XmlElementPtr> selectNodes(const std::string& path) const override
    {
        return elementsOf(tree_, node_, path);
    }

    void appendChild(const XmlElementPtr& child) override
    {
        auto* moved = dynamic_cast<LibxmlElement*>(child.get());
        if (moved == nullptr) throw RunTimeError(runTimeErrors::objectVariableNotSet);
        xmlNode* copy = xmlDocCopyNode(moved->node_, tree_.get(), 1);
        if (copy == nullptr) throw std::bad_alloc();
        xmlAddChild(node_, copy);
        xmlUnlinkNode(moved->node_);
        xmlFreeNode(moved->node_);
        moved->node_ = copy;
        moved->tree_ = tree_;
    }

private:
    Tree tree_;
    xmlNode* node_;
};

std::vector<XmlElementPtr> elementsOf(const Tree& tree, xmlNode* from, const std::string& path)
{
    std::vector<XmlElementPtr> elements;
    for (xmlNode* node : nodesOf(tree, from, path, all))
        elements.push_back(std::make_shared<LibxmlElement>(tree, node));
    return elements;
}

XmlElementPtr firstElementOf(const Tree& tree, xmlNode* from, const std::string& path)
{
    const auto found = nodesOf(tree, from, path, 1);
    return found.empty() ? nullptr : std::make_shared<LibxmlElement>(tree, found.front());
}

class LibxmlDocument final : public XmlDocument {
public:
    LibxmlDocument(const FileSystem* files, const CodePage& codePage)
        : files_(files), codePage_(codePage)
    {}

    bool load(const std::string& path) override
    {
        tree_ = newTree();
        if (files_ == nullptr) return false;
        std::optional<std::string> text;
        try {
            text = xmlText(files_->openForReading(path)->readAll(), codePage_);
        } catch (const RunTimeError&) {
            return false;
        }
        return text && loadText(*text);
    }

    bool loadText(const std::string& text) override
    {
        Tree loaded = parsed(text);
        const bool sound = loaded != nullptr;
        tree_ = sound ? std::move(loaded) : newTree();
        return sound;
    }

    XmlElementPtr appendDocumentElement(const std::string& name) override
    {
        if (xmlDocGetRootElement(tree_.get()) != nullptr)
            throw RunTimeError(xmlFailure, "Only one top level element is allowed in a document.");
        xmlDocSetRootElement(tree_.get(),
                             xmlNewDocNode(tree_.get(), nullptr, chars(name), nullptr));
        return documentElement();
    }

    XmlElementPtr documentElement() const override
    {
        return element(xmlDocGetRootElement(tree_.get()));
    }

    XmlElementPtr selectSingleNode(const std::string& path) const override
    {
        return firstElementOf(tree_, asNode(tree_), path);
    }

    std::vector<XmlElementPtr> selectNodes(const std::string& path) const override
    {
        return elementsOf(tree_, asNode(tree_), path);
    }

    std::vector<XmlElementPtr> getElementsByTagName(const std::string& name) const override
    {
        std::vector<XmlElementPtr> elements;
        for (xmlNode* node = asNode(tree_); node; node = nextNode(node, asNode(tree_)))
            if (node->type == XML_ELEMENT_NODE && textOf(node->name) == name)
                elements.push_back(element(node));
        return elements;
    }

private:
    XmlElementPtr element(xmlNode* node) const
    {
        return node ? std::make_shared<LibxmlElement>(tree_, node) : nullptr;
    }

    const FileSystem* files_; ///< null for none
    CodePage codePage_;
    Tree tree_ = newTree();
};

} // namespace

std::unique_ptr<XmlDocument> LibxmlDocuments::newDocument()
{
    useNotedMemory();
    return std::make_unique<LibxmlDocument>(files_, codePage_);
}

std::string LibxmlDocuments::textOf(std::string_view bytes) const
{
    if (auto text = xmlText(bytes, codePage_)) return *std::move(text);
    std::string text;
    codePage_.appendUtf8(text, bytes);
    return text;
}
