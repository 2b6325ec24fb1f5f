#include "backends/jet/properties.h"

#include "backends/jet/text_value.h"

#include <algorithm>

namespace jet {

namespace {

constexpr std::string_view magic{"MR2\0", 4};
constexpr std::string_view allowZeroLength = "AllowZeroLength";
constexpr std::string_view defaultValue = "DefaultValue";
constexpr std::uint16_t namesKind = 0x80;
constexpr std::uint16_t columnKind = 1;
constexpr char booleanType = 1;
constexpr char memoType = 12;
constexpr std::size_t blockHead = 6;
constexpr std::size_t propertyHead = 8;

void append16(std::string& to, std::size_t value)
{
    to.resize(to.size() + 2);
    store16(to.data() + to.size() - 2, value);
}

void append32(std::string& to, std::size_t value)
{
    to.resize(to.size() + 4);
    store32(to.data() + to.size() - 4, static_cast<std::uint32_t>(value));
}

void appendBlock(std::string& to, std::uint16_t kind, const std::string& body)
{
    append32(to, body.size() + blockHead);
    append16(to, kind);
    to += body;
}

void appendName(std::string& to, std::string_view name)
{
    const std::string stored = encodeName(name);
    append16(to, stored.size());
    to += stored;
}

/// `index` is the property's place in the list of names.
void appendProperty(std::string& to, std::size_t index, char type, const std::string& value)
{
    append16(to, value.size() + propertyHead);
    to.push_back(1); // it was set by a definition
    to.push_back(type);
    append16(to, index);
    append16(to, value.size());
    to += value;
}

struct Parts {
    std::string_view rest;

    /// The next bytes; fewer when there are no more.
    std::string_view take(std::size_t size)
    {
        const std::string_view taken = rest.substr(0, size);
        rest.remove_prefix(taken.size());
        return taken;
    }
    std::size_t take16()
    {
        const auto bytes = take(2);
        return bytes.size() == 2 ? load16(bytes.data()) : 0;
    }
    std::size_t take32()
    {
        const auto bytes = take(4);
        return bytes.size() == 4 ? load32(bytes.data()) : 0;
    }
    /// A run of bytes whose size, with the `counted` bytes before it, stands there.
    Parts takeSized(std::size_t size, std::size_t counted)
    {
        return {take(size < counted ? 0 : size - counted)};
    }
};

std::vector<std::string> takeNames(Parts body)
{
    std::vector<std::string> names;
    while (!body.rest.empty()) {
        const std::size_t size = body.take16();
        names.push_back(decodeStoredText(body.take(size)));
    }
    return names;
}

void applyColumnBlock(Parts body, const std::vector<std::string>& names, TableDefinition& table)
{
    const std::size_t ownerBytes = body.take32();
    Parts owner = body.takeSized(ownerBytes, 4);
    const std::size_t nameBytes = owner.take16();
    const int place = table.find(decodeStoredText(owner.take(nameBytes)));
    while (place >= 0 && !body.rest.empty()) {
        const std::size_t entryBytes = body.take16();
        Parts entry = body.takeSized(entryBytes, 2);
        entry.take(2);
        const std::size_t index = entry.take16();
        const std::size_t valueBytes = entry.take16();
        const std::string_view value = entry.take(valueBytes);
        if (index >= names.size()) continue;
        Column& column = table.columns[static_cast<std::size_t>(place)];
        if (names[index] == allowZeroLength)
            column.allowZeroLength = value.empty() || value[0] != 0;
        else if (names[index] == defaultValue)
            column.defaultValue = decodeStoredText(value);
    }
}

} // namespace

std::string encodeProperties(const std::vector<Column>& columns)
{
    const bool texts = std::any_of(columns.begin(), columns.end(),
                                   [](const Column& column) { return column.isText(); });
    const bool defaults = std::any_of(columns.begin(), columns.end(), [](const Column& column) {
        return !column.defaultValue.empty();
    });
    if (!texts && !defaults) return {};

    std::string names;
    if (texts) appendName(names, allowZeroLength);
    if (defaults) appendName(names, defaultValue);
    std::string block(magic);
    appendBlock(block, namesKind, names);
    for (const auto& column : columns) {
        std::string properties;
        if (column.isText())
            appendProperty(properties, 0, booleanType,
                           std::string(1, column.allowZeroLength ? '\1' : '\0'));
        if (!column.defaultValue.empty())
            appendProperty(properties, texts ? 1 : 0, memoType, encodeName(column.defaultValue));
        if (properties.empty()) continue;
        std::string name;
        appendName(name, column.name);
        std::string body;
        append32(body, name.size() + 4);
        appendBlock(block, columnKind, body + name + properties);
    }
    return block;
}

void applyProperties(std::string_view block, TableDefinition& table)
{
    if (block.substr(0, magic.size()) != magic) return;
    Parts parts{block.substr(magic.size())};
    std::vector<std::string> names;
    while (!parts.rest.empty()) {
        const std::size_t size = parts.take32();
        const std::size_t kind = parts.take16();
        const Parts body = parts.takeSized(size, blockHead);
        if (kind == namesKind)
            names = takeNames(body);
        else if (kind == columnKind)
            applyColumnBlock(body, names, table);
    }
}

} // namespace jet
