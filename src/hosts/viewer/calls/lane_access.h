#pragma once

namespace viewer {

class LaneView;

/// Lets screen readers have what a view of lanes speaks as its value.
void makeSpeak(LaneView& view);

/// Tells them that it is another one.
void tellSpoken(LaneView& view);

} // namespace viewer
