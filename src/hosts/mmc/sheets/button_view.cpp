#include "hosts/mmc/sheets/control_views.h"

#include <algorithm>

namespace mmc {

namespace {

// In dialog units.
constexpr int usualWidth = 50;
constexpr int usualHeight = 14;
constexpr int besideText = 12;
constexpr int aboveAndBelowText = 4;

class ButtonView final : public ControlView {
public:
    ButtonView(Button& button, ControlRole role) : ControlView(button, role), model_(button) {}

    int heightFor(int) const override
    {
        const int text = textSize(font(), text_, 0, 0).cy;
        return std::max(units().down(usualHeight), text + units().down(aboveAndBelowText));
    }

    int ownWidth() const override
    {
        const int text = textSize(font(), text_, 0, 0).cx;
        return std::max(units().across(usualWidth), text + units().across(besideText));
    }

    void commanded(HWND, int code) override
    {
        if (code == BN_CLICKED) page().act(*this, [this] { model_.click(); });
    }

private:
    void makeWindows() override { make(WC_BUTTONW, BS_PUSHBUTTON | WS_TABSTOP | WS_GROUP); }

    Drawing ownDrawing() override
    {
        return [this, text = labelText(model_.caption())] {
            if (text == text_) return;
            text_ = text;
            setText(window(), text);
            page().rearrange();
        };
    }

    Button& model_;
    std::wstring text_;
};

} // namespace

std::unique_ptr<ControlView> makeButtonView(Button& button, ControlRole role)
{
    return std::make_unique<ButtonView>(button, role);
}

} // namespace mmc
