#include "backends/xml/xml_path.h"

#include <algorithm>
#include <cstring>

#include <libxml/tree.h>

namespace {

bool isNameCharacter(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_';
}

/// Takes a name off the front; empty where there is none.
std::string takeName(std::string_view& text)
{
    const bool begins =
        !text.empty() && isNameCharacter(text[0]) && (text[0] < '0' || text[0] > '9');
    const auto end =
        begins ? std::find_if_not(text.begin(), text.end(), isNameCharacter) : text.begin();
    const auto length = static_cast<std::size_t>(end - text.begin());
    std::string name(text.substr(0, length));
    text.remove_prefix(length);
    return name;
}

bool take(std::string_view& text, std::string_view wanted)
{
    if (!text.starts_with(wanted)) return false;
    text.remove_prefix(wanted.size());
    return true;
}

bool isEqual(const xmlChar* characters, const std::string& text)
{
    return std::strcmp(text.c_str(), reinterpret_cast<const char*>(characters)) == 0;
}

bool hasValue(const xmlAttr& attribute, const std::string& value)
{
    const char* rest = value.c_str();
    for (const xmlNode* part = attribute.children; part; part = part->next) {
        if (part->type != XML_TEXT_NODE || part->content == nullptr) continue;
        for (const xmlChar* each = part->content; *each != 0; ++each, ++rest)
            if (static_cast<xmlChar>(*rest) != *each) return false;
    }
    return *rest == '\0';
}

} // namespace

std::optional<XmlPath> XmlPath::plain(std::string_view text)
{
    XmlPath path;
    do {
        Step step;
        step.name = takeName(text);
        if (step.name.empty()) return {};
        if (take(text, "[@")) {
            step.attribute = takeName(text);
            if (step.attribute.empty() || !take(text, "='")) return {};
            const std::size_t end = text.find('\'');
            if (end == std::string_view::npos) return {};
            step.value = text.substr(0, end);
            // The library takes no control character in a path.
            if (std::any_of(step.value.begin(), step.value.end(),
                            [](unsigned char c) { return c < ' '; }))
                return {};
            text.remove_prefix(end);
            if (!take(text, "']")) return {};
        }
        path.steps_.push_back(std::move(step));
    } while (take(text, "/"));
    if (!text.empty()) return {};
    return path;
}

std::vector<xmlNode*> XmlPath::nodesOf(const xmlNode& from, std::size_t most) const
{
    std::vector<xmlNode*> found;
    follow(from, 0, most, found);
    return found;
}

bool XmlPath::leadsTo(const Step& step, const xmlNode& node)
{
    if (node.type != XML_ELEMENT_NODE || !isEqual(node.name, step.name)) return false;
    if (step.attribute.empty()) return true;
    for (const xmlAttr* each = node.properties; each; each = each->next)
        if (isEqual(each->name, step.attribute)) return hasValue(*each, step.value);
    return false;
}

void XmlPath::follow(const xmlNode& from, std::size_t depth, std::size_t most,
                     std::vector<xmlNode*>& found) const
{
    for (xmlNode* node = from.children; node && found.size() < most; node = node->next) {
        if (!leadsTo(steps_[depth], *node)) continue;
        if (depth + 1 == steps_.size())
            found.push_back(node);
        else
            follow(*node, depth + 1, most, found);
    }
}
