#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class XmlElement;

/// An element of a document that somebody else keeps alive; null where none was found.
using XmlElementPtr = std::shared_ptr<XmlElement>;

/// An element of an XML document.
///
/// Paths are XPath expressions from this element, names are case-sensitive. Texts are UTF-8.
class XmlElement {
public:
    virtual ~XmlElement() = default;

    virtual std::string name() const = 0;

    /// Nothing when there is no such attribute.
    virtual std::optional<std::string> attribute(const std::string& name) const = 0;
    virtual void setAttribute(const std::string& name, const std::string& value) = 0;

    /// The text of the element and of those in it.
    virtual std::string text() const = 0;

    /// The first element that a path finds, in document order; null for none. Raises
    /// -2147467259 for a path that is none.
    virtual XmlElementPtr selectSingleNode(const std::string& path) const = 0;

    /// All of them, in document order. Raises as `selectSingleNode`.
    virtual std::vector<XmlElementPtr> selectNodes(const std::string& path) const = 0;

    /// Moves an element with all it holds from wherever it stands, in this or another document, to
    /// the end of this one's children. Handles of the moved element go on to mean the moved one;
    /// handles of what lies inside it are no longer to be used.
    virtual void appendChild(const XmlElementPtr& child) = 0;
};

class XmlDocument {
public:
    virtual ~XmlDocument() = default;

    /// Replaces what the document holds by a file. False for a file that is missing or malformed,
    /// which leaves the document empty.
    virtual bool load(const std::string& path) = 0;

    /// The same by a text in UTF-8, whatever encoding it declares.
    virtual bool loadText(const std::string& text) = 0;

    /// Gives an empty document its document element. Raises -2147467259 when it has one.
    virtual XmlElementPtr appendDocumentElement(const std::string& name) = 0;

    /// Null in an empty document.
    virtual XmlElementPtr documentElement() const = 0;

    /// From the document itself, so that a path begins with the document element's name.
    virtual XmlElementPtr selectSingleNode(const std::string& path) const = 0;
    virtual std::vector<XmlElementPtr> selectNodes(const std::string& path) const = 0;

    /// All elements of a name, in document order.
    virtual std::vector<XmlElementPtr> getElementsByTagName(const std::string& name) const = 0;
};

/// Makes documents.
class XmlService {
public:
    virtual ~XmlService() = default;

    virtual std::unique_ptr<XmlDocument> newDocument() = 0;

    /// The text of an XML file in UTF-8, by its own encoding, else that of the server; well-formed
    /// or not. Where the bytes do not fit their encoding, they are read in the server's.
    virtual std::string textOf(std::string_view bytes) const = 0;
};

/// An attribute that has to be there. Raises 91.
std::string requiredAttribute(const XmlElementPtr& element, const std::string& name);
