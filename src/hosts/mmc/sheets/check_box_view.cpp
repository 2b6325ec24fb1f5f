#include "hosts/mmc/sheets/choice_size.h"
#include "hosts/mmc/sheets/control_views.h"

namespace mmc {

namespace {

class CheckBoxView final : public ControlView {
public:
    CheckBoxView(CheckBox& box, ControlRole role) : ControlView(box, role), model_(box) {}

    int heightFor(int width) const override { return choiceSize(font(), units(), text_, width).cy; }
    int ownWidth() const override { return choiceSize(font(), units(), text_, 0).cx; }

    void commanded(HWND, int code) override
    {
        if (code == BN_CLICKED) page().act(*this, [this] { model_.click(); });
    }

private:
    // The model ticks it, not the window.
    void makeWindows() override
    {
        make(WC_BUTTONW, BS_CHECKBOX | BS_MULTILINE | WS_TABSTOP | WS_GROUP);
    }

    Drawing ownDrawing() override
    {
        return [this, text = labelText(model_.caption()), checked = model_.checked()] {
            SendMessageW(window(), BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED, 0);
            if (text == text_) return;
            text_ = text;
            setText(window(), text);
            page().rearrange();
        };
    }

    CheckBox& model_;
    std::wstring text_;
};

} // namespace

std::unique_ptr<ControlView> makeCheckBoxView(CheckBox& box, ControlRole role)
{
    return std::make_unique<CheckBoxView>(box, role);
}

} // namespace mmc
