#pragma once

#include "hosts/mmc/console/guids.h"
#include "hosts/mmc/console/handed.h"

#include <set>
#include <string>

namespace stand_in {

/// The images of a pane, by the numbers that the snap-in gives them.
class ImageList final : public Handed<IImageList> {
public:
    /// `fillTime` is the call in which a snap-in may add images.
    ImageList(Contract& contract, std::string fillTime)
        : Handed(contract), fillTime_(std::move(fillTime))
    {}

    bool has(int number) const { return numbers_.count(number) != 0; }
    std::size_t size() const { return numbers_.size(); }
    void clear() { numbers_.clear(); }

    HRESULT WINAPI ImageListSetIcon(LONG_PTR* icon, __LONG32 number) override;
    HRESULT WINAPI ImageListSetStrip(LONG_PTR* small, LONG_PTR* large, __LONG32 first,
                                     COLORREF mask) override;

private:
    void* interfaceOf(REFIID id) override
    {
        return id == IID_IUnknown || id == iid::imageList ? static_cast<IImageList*>(this)
                                                          : nullptr;
    }
    bool isFillTime(const char* method);

    std::string fillTime_;
    std::set<int> numbers_;
};

} // namespace stand_in
