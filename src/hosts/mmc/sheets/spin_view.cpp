#include "hosts/mmc/sheets/control_views.h"

#include <cstdlib>

namespace mmc {

namespace {

constexpr int usualWidth = 11; ///< in dialog units
constexpr int usualHeight = 13;

class SpinView final : public ControlView {
public:
    SpinView(SpinControl& spin, ControlRole role) : ControlView(spin, role), model_(spin) {}

    int heightFor(int) const override { return units().down(usualHeight); }
    int ownWidth() const override { return units().across(usualWidth); }

    /// The model counts; the window only tells of its arrows.
    std::optional<LRESULT> notified(const NMHDR& note) override
    {
        if (note.code != static_cast<UINT>(UDN_DELTAPOS)) return {};
        const int steps = reinterpret_cast<const NMUPDOWN&>(note).iDelta;
        page().act(*this, [this, steps] {
            for (int step = 0; step < std::abs(steps); ++step)
                steps > 0 ? model_.stepUp() : model_.stepDown();
        });
        return TRUE;
    }

private:
    void makeWindows() override { make(UPDOWN_CLASSW, UDS_ARROWKEYS | WS_GROUP); }

    Drawing ownDrawing() override
    {
        return
            [this, minimum = model_.minimum(), maximum = model_.maximum(), value = model_.value()] {
                SendMessageW(window(), UDM_SETRANGE32, static_cast<WPARAM>(minimum), maximum);
                SendMessageW(window(), UDM_SETPOS32, 0, value);
            };
    }

    SpinControl& model_;
};

} // namespace

std::unique_ptr<ControlView> makeSpinView(SpinControl& spin, ControlRole role)
{
    return std::make_unique<SpinView>(spin, role);
}

} // namespace mmc
