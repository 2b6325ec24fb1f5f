#include "hosts/mmc/sheets/choice_size.h"
#include "hosts/mmc/sheets/control_views.h"
#include "system/windows/windows_calls.h"

#include <utility>

#ifndef BM_SETDONTCLICK
#define BM_SETDONTCLICK 0x00F8
#endif

namespace mmc {

namespace {

constexpr int gap = 3; ///< between buttons, in dialog units

class OptionsView final : public ControlView {
public:
    OptionsView(OptionButtonGroup& options, ControlRole role)
        : ControlView(options, role), model_(options),
          shown_(static_cast<std::size_t>(options.count()))
    {}

    int heightFor(int width) const override
    {
        int height = 0;
        for (const Option& option : shown_) height += buttonHeight(option, width) + gapHeight();
        return height > 0 ? height - gapHeight() : 0;
    }

    int ownWidth() const override
    {
        LONG width = 0;
        for (const Option& option : shown_)
            width = std::max(width, choiceSize(font(), units(), option.caption, 0).cx);
        return width;
    }

    void place(const RECT& area) override
    {
        int top = area.top;
        const int width = area.right - area.left;
        for (std::size_t index = 0; index < shown_.size(); ++index) {
            const int height = buttonHeight(shown_[index], width);
            MoveWindow(windows()[index], area.left, top, width, height, TRUE);
            top += height + gapHeight();
        }
    }

    void commanded(HWND from, int code) override
    {
        if (code != BN_CLICKED) return;
        const auto& buttons = windows();
        const auto found = std::find(buttons.begin(), buttons.end(), from);
        if (found == buttons.end()) return;
        page().act(*this, [this, index = static_cast<int>(found - buttons.begin())] {
            model_.click(index);
        });
    }

private:
    struct Option {
        std::wstring caption;
        std::wstring toolTip;
    };

    int gapHeight() const { return units().down(gap); }

    int buttonHeight(const Option& option, int width) const
    {
        return choiceSize(font(), units(), option.caption, width).cy;
    }

    void makeWindows() override
    {
        for (std::size_t index = 0; index < shown_.size(); ++index) {
            const DWORD first = index == 0 ? WS_GROUP | WS_TABSTOP : 0;
            const HWND made = make(WC_BUTTONW, BS_AUTORADIOBUTTON | BS_MULTILINE | first);
            // The keyboard's coming is no choice.
            SendMessageW(made, BM_SETDONTCLICK, TRUE, 0);
        }
    }

    Drawing ownDrawing() override
    {
        std::vector<Option> options;
        for (int index = 0; index < model_.count(); ++index)
            options.push_back(
                {labelText(model_.caption(index)), wideOf(model_.optionToolTip(index))});
        return [this, options = std::move(options), selected = model_.selected()] {
            for (std::size_t index = 0; index < options.size(); ++index)
                show(index, options[index], static_cast<int>(index) == selected);
        };
    }

    void show(std::size_t index, const Option& option, bool selected)
    {
        const HWND button = windows()[index];
        SendMessageW(button, BM_SETCHECK, selected ? BST_CHECKED : BST_UNCHECKED, 0);
        Option& shown = shown_[index];
        if (std::exchange(shown.toolTip, option.toolTip) != option.toolTip)
            page().setToolTip(button, option.toolTip);
        if (std::exchange(shown.caption, option.caption) == option.caption) return;
        setText(button, option.caption);
        page().rearrange();
    }

    OptionButtonGroup& model_;
    std::vector<Option> shown_;
};

} // namespace

std::unique_ptr<ControlView> makeOptionsView(OptionButtonGroup& options, ControlRole role)
{
    return std::make_unique<OptionsView>(options, role);
}

} // namespace mmc
