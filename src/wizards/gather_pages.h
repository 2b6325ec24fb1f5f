#pragma once

/// The positions of the gather wizard's pages, as their buttons name them.
namespace gatherPage {
constexpr int welcome = 1;
constexpr int logSelection = 2;
constexpr int timeFrame = 3;
constexpr int progress = 4;
} // namespace gatherPage
