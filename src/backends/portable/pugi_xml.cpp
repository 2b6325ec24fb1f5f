#include "backends/portable/pugi_xml.h"

#include "platform/file_system.h"
#include "runtime/run_time_error.h"

#include <pugixml.hpp>

#include <utility>

namespace {

constexpr int deepestLevel = 512;
constexpr int xmlFailure = -2147467259;

using DocumentPtr = std::shared_ptr<pugi::xml_document>;

/// The node after `node` in document order, inside `top`; null at the end. Walks without recursion,
/// so that nesting costs no stack.
pugi::xml_node nextNode(pugi::xml_node node, pugi::xml_node top, int& depth)
{
    if (node.first_child()) {
        ++depth;
        return node.first_child();
    }
    while (node != top) {
        if (node.next_sibling()) return node.next_sibling();
        node = node.parent();
        --depth;
    }
    return {};
}

bool isTooDeep(const pugi::xml_document& document)
{
    int depth = 0;
    for (pugi::xml_node node = document; node; node = nextNode(node, document, depth))
        if (depth > deepestLevel) return true;
    return false;
}

class PugiElement;

std::vector<XmlElementPtr> elementsOf(const DocumentPtr& document, const pugi::xml_node& from,
                                      const std::string& path);

class PugiElement final : public XmlElement {
public:
    PugiElement(DocumentPtr document, pugi::xml_node node)
        : document_(std::move(document)), node_(node)
    {}

    std::string name() const override { return node_.name(); }

    std::optional<std::string> attribute(const std::string& name) const override
    {
        const auto found = node_.attribute(name.c_str());
        if (!found) return std::nullopt;
        return found.value();
    }

    void setAttribute(const std::string& name, const std::string& value) override
    {
        auto found = node_.attribute(name.c_str());
        if (!found) found = node_.append_attribute(name.c_str());
        found.set_value(value.c_str());
    }

    std::string text() const override
    {
        std::string text;
        int depth = 0;
        for (pugi::xml_node node = node_; node; node = nextNode(node, node_, depth))
            if (node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata)
                text += node.value();
        return text;
    }

    XmlElementPtr selectSingleNode(const std::string& path) const override
    {
        auto found = elementsOf(document_, node_, path);
        return found.empty() ? nullptr : found.front();
    }

    std::vector<XmlElementPtr> selectNodes(const std::string& path) const override
    {
        return elementsOf(document_, node_, path);
    }

    void appendChild(const XmlElementPtr& child) override
    {
        auto* moved = dynamic_cast<PugiElement*>(child.get());
        if (!moved) throw RunTimeError(runTimeErrors::objectVariableNotSet);
        pugi::xml_node old = moved->node_;
        moved->node_ = node_.append_copy(old);
        old.parent().remove_child(old);
        moved->document_ = document_;
    }

private:
    DocumentPtr document_;
    pugi::xml_node node_;
};

std::vector<XmlElementPtr> elementsOf(const DocumentPtr& document, const pugi::xml_node& from,
                                      const std::string& path)
{
    std::vector<XmlElementPtr> elements;
    try {
        auto found = from.select_nodes(path.c_str());
        found.sort();
        for (const auto& each : found)
            if (each.node().type() == pugi::node_element)
                elements.push_back(std::make_shared<PugiElement>(document, each.node()));
    } catch (const pugi::xpath_exception& error) {
        throw RunTimeError(xmlFailure, error.what());
    }
    return elements;
}

class PugiDocument final : public XmlDocument {
public:
    explicit PugiDocument(const FileSystem& files) : files_(files) {}

    bool load(const std::string& path) override
    {
        document_ = std::make_shared<pugi::xml_document>();
        std::string bytes;
        try {
            bytes = files_.openForReading(path)->readAll();
        } catch (const RunTimeError&) {
            return false;
        }
        if (document_->load_buffer(bytes.data(), bytes.size()) && !isTooDeep(*document_))
            return true;
        document_ = std::make_shared<pugi::xml_document>();
        return false;
    }

    XmlElementPtr appendDocumentElement(const std::string& name) override
    {
        if (document_->document_element())
            throw RunTimeError(xmlFailure, "Only one top level element is allowed in a document.");
        return element(document_->append_child(name.c_str()));
    }

    XmlElementPtr documentElement() const override
    {
        return element(document_->document_element());
    }

    XmlElementPtr selectSingleNode(const std::string& path) const override
    {
        auto found = elementsOf(document_, *document_, path);
        return found.empty() ? nullptr : found.front();
    }

    std::vector<XmlElementPtr> selectNodes(const std::string& path) const override
    {
        return elementsOf(document_, *document_, path);
    }

    std::vector<XmlElementPtr> getElementsByTagName(const std::string& name) const override
    {
        std::vector<XmlElementPtr> elements;
        int depth = 0;
        for (pugi::xml_node node = *document_; node; node = nextNode(node, *document_, depth))
            if (node.type() == pugi::node_element && name == node.name())
                elements.push_back(element(node));
        return elements;
    }

private:
    XmlElementPtr element(pugi::xml_node node) const
    {
        return node ? std::make_shared<PugiElement>(document_, node) : nullptr;
    }

    const FileSystem& files_;
    DocumentPtr document_ = std::make_shared<pugi::xml_document>();
};

} // namespace

std::unique_ptr<XmlDocument> PugiXml::newDocument()
{
    return std::make_unique<PugiDocument>(files_);
}
