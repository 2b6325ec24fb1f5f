#include "timeline/index/name_table.h"

namespace timeline {

NameTable::NameTable()
{
    numberOf({});
}

std::uint16_t NameTable::numberOf(std::string_view text)
{
    // Neighbouring rows often share their name.
    if (text == last_ && !texts_.empty()) return lastNumber_;
    const auto known = numbers_.find(text);
    if (known == numbers_.end()) {
        if (texts_.size() == other) return other;
        texts_.emplace_back(text);
        last_ = texts_.back();
        lastNumber_ = static_cast<std::uint16_t>(texts_.size() - 1);
        numbers_.emplace(last_, lastNumber_);
        return lastNumber_;
    }
    last_ = known->first;
    lastNumber_ = known->second;
    return lastNumber_;
}

std::string_view NameTable::text(std::uint16_t number) const
{
    return number < texts_.size() ? std::string_view(texts_[number]) : std::string_view();
}

} // namespace timeline
