#include "hosts/mmc/sheets/open_frames.h"

namespace mmc {

OpenFrames& openFrames()
{
    static OpenFrames frames;
    return frames;
}

} // namespace mmc
