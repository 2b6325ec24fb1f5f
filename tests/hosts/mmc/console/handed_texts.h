#pragma once

#include "hosts/mmc/console/contract.h"

#include <deque>
#include <string>

namespace stand_in {

/// Texts that `GetDisplayInfo` gave and that stay the snap-in's: each holds until the same is asked
/// for anew or its item goes.
class HandedTexts {
public:
    /// Keeps at most `kept` of them in mind, the latest.
    explicit HandedTexts(std::size_t kept) : kept_(kept) {}

    /// A text of an item's column, in place of an earlier one of the same.
    void remember(LPARAM item, int column, const wchar_t* text);

    void forgetItem(LPARAM item);
    void forgetAll() { texts_.clear(); }

    /// Reads all that are kept in mind again, and notes those that are not what they were.
    void readAgain(Contract& contract, const char* whose) const;

private:
    struct Text {
        LPARAM item;
        int column;
        const wchar_t* where;
        std::wstring read;
    };

    std::size_t kept_;
    std::deque<Text> texts_;
};

} // namespace stand_in
