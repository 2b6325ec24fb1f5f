#pragma once

#include "runtime/run_time_error.h"

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

/// Text keys to items, in the order in which the keys came; keys compare case-sensitively.
///
/// Entries are never removed one by one in this tool except through `remove`, which keeps the
/// order.
template <typename Item>
class Dictionary {
public:
    bool exists(std::string_view key) const { return positions_.find(key) != positions_.end(); }

    std::size_t count() const { return keys_.size(); }

    /// Raises 457 when the key is there already.
    void add(std::string_view key, Item item)
    {
        if (exists(key)) throw RunTimeError(runTimeErrors::keyAlreadyExists);
        positions_.emplace(std::string(key), keys_.size());
        keys_.emplace_back(key);
        items_.push_back(std::move(item));
    }

    /// The item of a key. Reading a missing key makes an empty entry, as writing does.
    Item& item(std::string_view key)
    {
        auto found = positions_.find(key);
        if (found != positions_.end()) return items_[found->second];
        add(key, Item{});
        return items_.back();
    }

    /// The item, or null when the key is missing; makes no entry.
    const Item* find(std::string_view key) const
    {
        auto found = positions_.find(key);
        return found == positions_.end() ? nullptr : &items_[found->second];
    }

    /// Raises 32811 when the key is missing.
    void remove(std::string_view key)
    {
        auto found = positions_.find(key);
        if (found == positions_.end()) throw RunTimeError(32811, "Element not found");
        const std::size_t position = found->second;
        positions_.erase(found);
        keys_.erase(keys_.begin() + static_cast<std::ptrdiff_t>(position));
        items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(position));
        for (auto& [name, place] : positions_)
            if (place > position) --place;
    }

    /// Keys in the order of their coming.
    const std::vector<std::string>& keys() const { return keys_; }

private:
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const
        {
            return std::hash<std::string_view>{}(text);
        }
    };
    std::unordered_map<std::string, std::size_t, Hash, std::equal_to<>> positions_;
    std::vector<std::string> keys_;
    std::deque<Item> items_; ///< not a vector, whose truth values can not be referred to
};
