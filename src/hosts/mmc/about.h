#pragma once

#include "hosts/mmc/com/com_object.h"
#include "hosts/mmc/snap_in.h"

#include <string>

namespace mmc {

/// What a console asks about the snap-in without opening a tool.
class About final : public ComObject<ISnapinAbout> {
public:
    explicit About(const SnapIn& snapIn) : snapIn_(snapIn) {}
    ~About() override;

    HRESULT WINAPI GetSnapinDescription(LPOLESTR* description) override;
    HRESULT WINAPI GetProvider(LPOLESTR* provider) override;
    HRESULT WINAPI GetSnapinVersion(LPOLESTR* version) override;

    /// The console copies images; they are this object's.
    HRESULT WINAPI GetSnapinImage(HICON* icon) override;
    HRESULT WINAPI GetStaticFolderImage(HBITMAP* small, HBITMAP* smallOpen, HBITMAP* large,
                                        COLORREF* transparent) override;

private:
    HRESULT answer(LPOLESTR* asked, std::string SnapInIdentity::*text) const;
    HBITMAP load(WORD id) const;

    const SnapIn& snapIn_;
    HBITMAP small_ = nullptr;
    HBITMAP large_ = nullptr;
};

} // namespace mmc
