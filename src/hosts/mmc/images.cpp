#include "hosts/mmc/images.h"

namespace mmc {

void addImages(IImageList& images, const SnapIn& snapIn)
{
    const SnapInResources& resources = snapIn.resources;
    if (!resources.module || resources.scopeImages == 0) return;
    for (std::size_t place = 0; place < snapIn.imageNames.size(); ++place) {
        const auto id = static_cast<WORD>(resources.scopeImages + place);
        const HICON icon = LoadIconW(resources.module, MAKEINTRESOURCEW(id));
        if (icon)
            images.ImageListSetIcon(reinterpret_cast<LONG_PTR*>(icon), static_cast<long>(place));
    }
}

} // namespace mmc
