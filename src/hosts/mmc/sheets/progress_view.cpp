#include "hosts/mmc/sheets/control_views.h"

namespace mmc {

namespace {

constexpr int steps = 1000;
constexpr int usualHeight = 8; ///< in dialog units
constexpr int leastWidth = 100;

class ProgressView final : public ControlView {
public:
    ProgressView(ProgressBar& bar, ControlRole role) : ControlView(bar, role), model_(bar) {}

    int heightFor(int) const override { return units().down(usualHeight); }
    int ownWidth() const override { return units().across(leastWidth); }

private:
    void makeWindows() override
    {
        make(PROGRESS_CLASSW, 0);
        SendMessageW(window(), PBM_SETRANGE32, 0, steps);
    }

    /// A bar without a length has its end where it begins.
    Drawing ownDrawing() override
    {
        const float maximum = model_.maximum();
        const int reached = maximum > 0 ? static_cast<int>(model_.value() / maximum * steps) : 0;
        return [this, reached] {
            SendMessageW(window(), PBM_SETPOS, static_cast<WPARAM>(reached), 0);
        };
    }

    const ProgressBar& model_;
};

} // namespace

std::unique_ptr<ControlView> makeProgressView(ProgressBar& bar, ControlRole role)
{
    return std::make_unique<ProgressView>(bar, role);
}

} // namespace mmc
