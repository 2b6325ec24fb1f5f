#include "hosts/mmc/sheets/control_views.h"

namespace mmc {

namespace {

/// The text with each "&" as one that marks no letter.
std::wstring unmarked(const std::wstring& text)
{
    std::wstring made;
    for (const wchar_t letter : text) {
        made += letter;
        if (letter == L'&') made += letter;
    }
    return made;
}

/// A box with a caption; whoever places it puts what it frames inside.
class FrameView final : public ControlView {
public:
    FrameView(Frame& frame, ControlRole role) : ControlView(frame, role), model_(frame) {}

    int heightFor(int) const override { return textSize(font(), L"", 0, 0).cy; }
    int ownWidth() const override
    {
        constexpr int edges = 16;
        return textSize(font(), text_, 0, 0).cx + units().across(edges);
    }

private:
    void makeWindows() override { make(WC_BUTTONW, BS_GROUPBOX | WS_GROUP); }

    Drawing ownDrawing() override
    {
        return [this, text = unmarked(labelText(model_.caption()))] {
            text_ = text;
            setText(window(), text);
        };
    }

    const Frame& model_;
    std::wstring text_;
};

} // namespace

std::unique_ptr<ControlView> makeFrameView(Frame& frame, ControlRole role)
{
    return std::make_unique<FrameView>(frame, role);
}

} // namespace mmc
