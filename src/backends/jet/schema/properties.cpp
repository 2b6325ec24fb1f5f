#include "backends/jet/schema/properties.h"

#include "backends/jet/table/text_value.h"

#include <algorithm>

namespace jet {

namespace {

constexpr std::string_view magic{"MR2\0", 4};
constexpr std::string_view allowZeroLength = "AllowZeroLength";
constexpr std::string_view required = "Required";
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

/// `index` is the property's number in the list of names.
void appendProperty(std::string& to, std::size_t index, char type, const std::string& value)
{
    append16(to, value.size() + propertyHead);
    to.push_back(1); // it was set by a definition
    to.push_back(type);
    append16(to, index);
    append16(to, value.size());
    to += value;
}

std::string storedBoolean(bool value)
{
    return std::string(1, value ? '\1' : '\0');
}

/// The names of the properties that these columns have, as a block numbers them.
std::vector<std::string_view> namesFor(const std::vector<Column>& columns)
{
    std::vector<std::string_view> names;
    if (std::any_of(columns.begin(), columns.end(), [](const auto& c) { return c.isText(); }))
        names.push_back(allowZeroLength);
    names.push_back(required);
    if (std::any_of(columns.begin(), columns.end(),
                    [](const auto& c) { return !c.defaultValue.empty(); }))
        names.push_back(defaultValue);
    return names;
}

std::string columnProperties(const Column& column, const std::vector<std::string_view>& names)
{
    const auto indexOf = [&](std::string_view name) {
        return static_cast<std::size_t>(std::find(names.begin(), names.end(), name) -
                                        names.begin());
    };
    std::string properties;
    if (column.isText())
        appendProperty(properties, indexOf(allowZeroLength), booleanType,
                       storedBoolean(column.allowZeroLength));
    appendProperty(properties, indexOf(required), booleanType, storedBoolean(column.required));
    if (!column.defaultValue.empty())
        appendProperty(properties, indexOf(defaultValue), memoType,
                       encodeName(column.defaultValue));
    return properties;
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
    const int columnIndex = table.find(decodeStoredText(owner.take(nameBytes)));
    while (columnIndex >= 0 && !body.rest.empty()) {
        const std::size_t entryBytes = body.take16();
        Parts entry = body.takeSized(entryBytes, 2);
        entry.take(2);
        const std::size_t index = entry.take16();
        const std::size_t valueBytes = entry.take16();
        const std::string_view value = entry.take(valueBytes);
        if (index >= names.size()) continue;
        Column& column = table.columns[static_cast<std::size_t>(columnIndex)];
        if (names[index] == allowZeroLength)
            column.allowZeroLength = value.empty() || value[0] != 0;
        else if (names[index] == required)
            column.required = !value.empty() && value[0] != 0;
        else if (names[index] == defaultValue)
            column.defaultValue = decodeStoredText(value);
    }
}

} // namespace

std::string encodeProperties(const std::vector<Column>& columns)
{
    if (columns.empty()) return {};
    const auto properties = namesFor(columns);
    std::string names;
    for (const std::string_view name : properties) appendName(names, name);
    std::string block(magic);
    appendBlock(block, namesKind, names);
    for (const auto& column : columns) {
        std::string name;
        appendName(name, column.name);
        std::string body;
        append32(body, name.size() + 4);
        appendBlock(block, columnKind, body + name + columnProperties(column, properties));
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
