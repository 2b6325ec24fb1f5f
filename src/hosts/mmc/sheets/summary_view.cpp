#include "hosts/mmc/sheets/control_views.h"

namespace mmc {

namespace {

constexpr int leastHeight = 30; ///< in dialog units
constexpr int leastWidth = 100;

/// Lines of text that may be more than the page has room for: they can be scrolled and copied.
class SummaryView final : public ControlView {
public:
    SummaryView(Label& label, ControlRole role) : ControlView(label, role), model_(label) {}

    int heightFor(int) const override { return units().down(leastHeight); }
    int ownWidth() const override { return units().across(leastWidth); }

private:
    void makeWindows() override
    {
        make(WC_EDITW,
             ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL | WS_VSCROLL | WS_TABSTOP | WS_GROUP,
             WS_EX_CLIENTEDGE);
    }

    Drawing ownDrawing() override
    {
        return [this, text = fieldText(model_.caption())] { setText(window(), text); };
    }

    const Label& model_;
};

} // namespace

std::unique_ptr<ControlView> makeSummaryView(Label& label, ControlRole role)
{
    return std::make_unique<SummaryView>(label, role);
}

} // namespace mmc
