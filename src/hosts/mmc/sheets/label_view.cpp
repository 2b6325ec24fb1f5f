#include "hosts/mmc/sheets/control_views.h"

namespace mmc {

namespace {

class LabelView final : public ControlView {
public:
    LabelView(Label& label, ControlRole role) : ControlView(label, role), model_(label) {}

    /// A progress text keeps its line, so that the bars below stay where they are.
    bool takesRoom() const override
    {
        return ControlView::takesRoom() && (keepsLine() || !text_.empty());
    }

    int heightFor(int width) const override
    {
        return textSize(font(), keepsLine() ? std::wstring() : text_, width, format()).cy;
    }

    int ownWidth() const override { return textSize(font(), text_, 0, format()).cx; }
    int widthFor(int width) const override { return textSize(font(), text_, width, format()).cx; }

private:
    bool keepsLine() const { return role() == ControlRole::progress; }
    bool marksLetter() const { return role() == ControlRole::fieldLabel; }

    UINT format() const { return marksLetter() ? 0 : DT_NOPREFIX | DT_EDITCONTROL; }

    HFONT font() const override
    {
        return page().fonts().font(shownFont(), role() == ControlRole::title);
    }

    void makeWindows() override
    {
        DWORD style = SS_LEFT;
        if (keepsLine())
            style = SS_LEFTNOWORDWRAP | SS_ENDELLIPSIS;
        else if (!marksLetter())
            style |= SS_EDITCONTROL; // breaks a path that is longer than a line
        if (!marksLetter()) style |= SS_NOPREFIX;
        make(WC_STATICW, style | WS_GROUP);
    }

    Drawing ownDrawing() override
    {
        return [this, text = labelText(model_.caption())] {
            if (text == text_) return;
            text_ = text;
            setText(window(), text);
            if (!keepsLine()) page().rearrange();
        };
    }

    const Label& model_;
    std::wstring text_;
};

} // namespace

std::unique_ptr<ControlView> makeLabelView(Label& label, ControlRole role)
{
    return std::make_unique<LabelView>(label, role);
}

} // namespace mmc
