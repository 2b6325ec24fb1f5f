#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct _xmlNode;

/// A path as the tool's look-ups have it: names of elements from parent to child, each with at most
/// one attribute that has to have a value, such as `GA[@NAME='x']/TRACE`.
///
/// Such a path is followed directly, which takes no more than a look at each child. The library's
/// own evaluation makes several objects for each, and a catalogue is asked for a name once for each
/// name in it.
class XmlPath {
public:
    /// Nothing for any other path, a wrong one among them.
    static std::optional<XmlPath> plain(std::string_view text);

    /// The elements that the path leads to from a node, in document order, no more than `most`.
    std::vector<_xmlNode*> nodesOf(const _xmlNode& from, std::size_t most) const;

private:
    struct Step {
        std::string name;
        std::string attribute; ///< empty where any element of the name will do
        std::string value;
    };

    static bool leadsTo(const Step& step, const _xmlNode& node);
    void follow(const _xmlNode& from, std::size_t depth, std::size_t most,
                std::vector<_xmlNode*>& found) const;

    std::vector<Step> steps_;
};
