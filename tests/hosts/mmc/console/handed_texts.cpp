#include "hosts/mmc/console/handed_texts.h"

#include "hosts/mmc/console/wide_text.h"

#include <algorithm>
#include <cstring>

namespace stand_in {

namespace {

bool isReadable(const void* start, std::size_t bytes)
{
    const auto* place = static_cast<const char*>(start);
    const char* const end = place + bytes;
    while (place < end) {
        MEMORY_BASIC_INFORMATION region;
        if (VirtualQuery(place, &region, sizeof region) == 0) return false;
        if (region.State != MEM_COMMIT || (region.Protect & (PAGE_NOACCESS | PAGE_GUARD)) != 0)
            return false;
        place = static_cast<const char*>(region.BaseAddress) + region.RegionSize;
    }
    return true;
}

} // namespace

void HandedTexts::remember(LPARAM item, int column, const wchar_t* text)
{
    std::erase_if(texts_,
                  [&](const Text& each) { return each.item == item && each.column == column; });
    texts_.push_back({item, column, text, text});
    if (texts_.size() > kept_) texts_.pop_front();
}

void HandedTexts::forgetItem(LPARAM item)
{
    std::erase_if(texts_, [&](const Text& each) { return each.item == item; });
}

void HandedTexts::readAgain(Contract& contract, const char* whose) const
{
    for (const Text& text : texts_) {
        const std::size_t bytes = (text.read.size() + 1) * sizeof(wchar_t);
        if (!isReadable(text.where, bytes) ||
            std::memcmp(text.where, text.read.c_str(), bytes) != 0)
            contract.breach(std::string("the text \"") + narrow(text.read) + "\" of " + whose +
                            " did not last");
    }
}

} // namespace stand_in
