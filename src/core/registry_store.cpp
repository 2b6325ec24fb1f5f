#include "core/registry_store.h"

#include "core/tool_context.h"
#include "runtime/numbers.h"
#include "runtime/run_time_error.h"
#include "text/utf8.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::size_t longestText = 1024;
constexpr std::size_t longestBytes = 4096;
constexpr std::size_t longestNumber = 4;
constexpr std::size_t nameBuffer = 260;
constexpr std::size_t mostKeys = 1'000'000;

using Bytes = std::vector<std::uint8_t>;

/// The last byte of a text is taken for its terminating zero, whatever it is.
std::string textOf(const Bytes& bytes)
{
    const std::size_t length = bytes.size() >= 2 ? bytes.size() - 1 : bytes.size();
    return {bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(length)};
}

std::int32_t numberOf(const Bytes& bytes)
{
    std::uint32_t number = 0;
    for (std::size_t index = 0; index < bytes.size(); ++index)
        number |= std::uint32_t{bytes[index]} << (8 * index);
    return static_cast<std::int32_t>(number);
}

Bytes bytesOfNumber(std::int32_t number)
{
    Bytes bytes;
    for (int shift = 0; shift < 32; shift += 8)
        bytes.push_back(static_cast<std::uint8_t>(static_cast<std::uint32_t>(number) >> shift));
    return bytes;
}

std::string convertedToText(const RegistryData& data)
{
    if (const auto* text = std::get_if<std::string>(&data)) return *text;
    if (const auto* number = std::get_if<std::int32_t>(&data))
        return numberText(std::int64_t{*number});
    if (std::holds_alternative<std::monostate>(data)) return "";
    throw RunTimeError(runTimeErrors::typeMismatch);
}

Bytes convertedToBytes(const RegistryData& data)
{
    if (const auto* bytes = std::get_if<Bytes>(&data)) return *bytes;
    throw RunTimeError(runTimeErrors::typeMismatch);
}

std::int32_t convertedToNumber(const RegistryData& data)
{
    if (const auto* text = std::get_if<std::string>(&data)) return toInteger32(*text);
    if (const auto* number = std::get_if<std::int32_t>(&data)) return *number;
    if (std::holds_alternative<std::monostate>(data)) return 0;
    throw RunTimeError(runTimeErrors::typeMismatch);
}

} // namespace

int KeyNames::lowerBound() const
{
    if (!bounded_) throw RunTimeError(runTimeErrors::subscriptOutOfRange);
    return 0;
}

int KeyNames::upperBound() const
{
    if (!bounded_) throw RunTimeError(runTimeErrors::subscriptOutOfRange);
    return static_cast<int>(names_.size()) - 1;
}

const std::string& KeyNames::at(int index) const
{
    if (index < lowerBound() || index > upperBound())
        throw RunTimeError(runTimeErrors::subscriptOutOfRange);
    return names_[static_cast<std::size_t>(index)];
}

bool registryKeyExists(ToolContext& tool, std::uint32_t hive, const std::string& path)
{
    return tool.platform.registry.keyExists(hive, path);
}

bool createRegistryKey(ToolContext& tool, std::uint32_t hive, const std::string& path)
{
    const std::optional<bool> existed = tool.platform.registry.createKey(hive, path);
    if (!existed)
        throw RunTimeError(runTimeErrors::registryFailure, "Unable to create the registry key");
    return *existed;
}

RegistryData getRegistryValue(ToolContext& tool, std::uint32_t hive, const std::string& path,
                              const std::string& name, int type, RegistryData defaultValue)
{
    const Registry& registry = tool.platform.registry;
    if (!registry.keyExists(hive, path)) return defaultValue;
    if (type != registryType::text && type != registryType::bytes && type != registryType::number)
        throw RunTimeError(runTimeErrors::registryFailure, "Unsupported value type");

    std::optional<RegistryValue> stored = registry.value(hive, path, name);
    if (!stored) return defaultValue;
    Bytes& bytes = stored->bytes;
    if (type == registryType::text && bytes.size() <= longestText) return textOf(bytes);
    if (type == registryType::bytes && bytes.size() <= longestBytes) return std::move(bytes);
    if (type == registryType::number && bytes.size() <= longestNumber) return numberOf(bytes);
    return defaultValue;
}

std::string getRegistryText(ToolContext& tool, const std::string& path, const std::string& name)
{
    return std::get<std::string>(getRegistryValue(tool, registryRoot::localMachine, path, name,
                                                  registryType::text, std::string()));
}

std::int32_t getRegistryNumber(ToolContext& tool, const std::string& path, const std::string& name,
                               std::int32_t defaultValue)
{
    return std::get<std::int32_t>(getRegistryValue(tool, registryRoot::localMachine, path, name,
                                                   registryType::number, defaultValue));
}

void setRegistryValue(ToolContext& tool, std::uint32_t hive, const std::string& path,
                      const std::string& name, int type, const RegistryData& value)
{
    Registry& registry = tool.platform.registry;
    if (!registry.keyExists(hive, path)) return;
    RegistryValue stored{type, {}};
    if (type == registryType::text) {
        const std::string text = convertedToText(value);
        stored.bytes.assign(text.begin(), text.end());
    } else if (type == registryType::bytes) {
        stored.bytes = convertedToBytes(value);
    } else if (type == registryType::number) {
        stored.bytes = bytesOfNumber(convertedToNumber(value));
    } else {
        return;
    }
    registry.setValue(hive, path, name, stored);
}

KeyNames enumRegistryKeys(ToolContext& tool, std::uint32_t hive, const std::string& path)
{
    std::optional<std::vector<std::string>> found = tool.platform.registry.subkeys(hive, path);
    if (!found) return {};
    std::vector<std::string> names;
    for (std::string& name : *found) {
        if (names.size() == mostKeys || characterCount(name) >= nameBuffer) break;
        name.resize(std::min(name.find('\0'), name.size()));
        names.push_back(std::move(name));
    }
    if (names.empty()) names.emplace_back(nameBuffer, ' ');
    return KeyNames(std::move(names));
}
