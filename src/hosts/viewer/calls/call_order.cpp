#include "hosts/viewer/calls/call_order.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <unordered_map>

namespace viewer {

namespace {

using timeline::Call;
using Key = std::uint64_t;
using Names = std::vector<std::uint8_t>; ///< of all processes of all calls, in turn

constexpr int bitsOfByte = 8;
constexpr std::size_t bytesOfKey = 8;
constexpr std::size_t mostNames = 255;

/// The same order as that of the numbers with a sign.
Key keyOf(std::int64_t number)
{
    constexpr Key sign = Key{1} << 63U;
    return static_cast<Key>(number) ^ sign;
}

/// That of the first bytes.
Key keyOf(const std::string& text)
{
    Key key = 0;
    for (std::size_t at = 0; at < bytesOfKey; ++at)
        key =
            key << bitsOfByte | (at < text.size() ? static_cast<unsigned char>(text[at]) : Key{0});
    return key;
}

/// The processes of calls as numbers from 1 in the order of their names; none where there are too
/// many names.
Names namesOf(const std::vector<Call>& calls)
{
    std::unordered_map<std::string, std::uint8_t> numbers;
    Names names;
    for (const Call& call : calls)
        for (const std::string& process : call.processes) {
            const auto number = static_cast<std::uint8_t>(numbers.size() + 1);
            names.push_back(numbers.try_emplace(process, number).first->second);
            if (numbers.size() > mostNames) return {};
        }
    std::vector<const std::string*> sorted(numbers.size());
    std::transform(numbers.begin(), numbers.end(), sorted.begin(),
                   [](const auto& known) { return &known.first; });
    std::sort(sorted.begin(), sorted.end(),
              [](const auto* one, const auto* other) { return *one < *other; });
    std::vector<std::uint8_t> ranks(numbers.size() + 1);
    std::uint8_t rank = 0;
    for (const std::string* name : sorted) ranks[numbers[*name]] = ++rank;
    for (std::uint8_t& name : names) name = ranks[name];
    return names;
}

/// That of the first of each call's processes. Their texts would take many times as long.
std::vector<Key> processKeys(const std::vector<Call>& calls)
{
    std::vector<Key> keys(calls.size());
    const Names names = namesOf(calls);
    if (names.empty()) return keys;
    auto name = names.begin();
    for (std::size_t place = 0; place < calls.size(); ++place) {
        const std::size_t count = calls[place].processes.size();
        for (std::size_t at = 0; at < bytesOfKey; ++at)
            keys[place] = keys[place] << bitsOfByte |
                          (at < count ? name[static_cast<std::ptrdiff_t>(at)] : Key{0});
        name += static_cast<std::ptrdiff_t>(count);
    }
    return keys;
}

std::vector<Key> keysOf(const std::vector<Call>& calls, CallColumn column)
{
    if (column == CallColumn::processes) return processKeys(calls);
    std::vector<Key> keys(calls.size());
    std::transform(calls.begin(), calls.end(), keys.begin(), [column](const Call& call) -> Key {
        switch (column) {
        case CallColumn::id:
            return keyOf(call.id);
        case CallColumn::start:
            return keyOf(call.first);
        case CallColumn::length:
            return keyOf(lengthOf(call));
        case CallColumn::lines:
            return call.rows;
        case CallColumn::errors:
            return call.errors;
        case CallColumn::warnings:
            return call.warnings;
        case CallColumn::processes:
            break;
        }
        return 0;
    });
    return keys;
}

/// What decides where calls have the same key: negative, 0 or positive.
int compareTexts(const Call& one, const Call& other, CallColumn column, Key key)
{
    if (column == CallColumn::id) return one.id.compare(other.id);
    if (column != CallColumn::processes) return 0;
    // A key that tells of all processes says that they are the same.
    const bool toldByKey =
        key != 0 && one.processes.size() <= bytesOfKey && other.processes.size() <= bytesOfKey;
    if (toldByKey || one.processes == other.processes) return 0;
    return one.processes < other.processes ? -1 : 1;
}

} // namespace

timeline::Moment lengthOf(const Call& call)
{
    return call.first == timeline::noMoment ? -1 : call.last - call.first;
}

std::vector<std::uint32_t> orderOf(const std::vector<Call>& calls, CallColumn column,
                                   bool descending)
{
    struct Placed {
        Key key;
        std::uint32_t place;
    };
    const std::vector<Key> keys = keysOf(calls, column);
    std::vector<Placed> placed(calls.size());
    for (std::uint32_t place = 0; place < placed.size(); ++place)
        placed[place] = {keys[place], place};
    std::sort(placed.begin(), placed.end(), [&](const Placed& one, const Placed& other) {
        if (one.key != other.key) return (one.key < other.key) != descending;
        const int texts = compareTexts(calls[one.place], calls[other.place], column, one.key);
        if (texts != 0) return (texts < 0) != descending;
        return one.place < other.place;
    });
    std::vector<std::uint32_t> places(placed.size());
    std::transform(placed.begin(), placed.end(), places.begin(),
                   [](const Placed& each) { return each.place; });
    return places;
}

} // namespace viewer
