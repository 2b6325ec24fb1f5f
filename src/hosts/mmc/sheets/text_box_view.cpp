#include "hosts/mmc/sheets/control_views.h"
#include "hosts/mmc/sheets/window_subclass.h"
#include "system/windows/windows_calls.h"

#include <algorithm>

namespace mmc {

namespace {

// In dialog units.
constexpr int usualHeight = 13;
constexpr int leastWidth = 40;

constexpr WPARAM backspace = 8;
constexpr WPARAM firstPrintable = 32;

class TextBoxView final : public ControlView, private WindowSubclass {
public:
    TextBoxView(TextBox& box, ControlRole role) : ControlView(box, role), model_(box) {}

    int heightFor(int) const override
    {
        return std::max(units().down(usualHeight),
                        static_cast<int>(textSize(font(), L"", 0, 0).cy) + units().down(4));
    }
    int ownWidth() const override { return units().across(leastWidth); }

    void commanded(HWND, int code) override
    {
        if (code == EN_CHANGE)
            page().act(*this,
                       [this, typed = utf8Of(textOf(window()))] { model_.setByPerson(typed); });
    }

private:
    void makeWindows() override
    {
        subclass(make(WC_EDITW, ES_AUTOHSCROLL | WS_TABSTOP | WS_GROUP, WS_EX_CLIENTEDGE));
    }

    /// The page has a look at each character before it takes effect.
    LRESULT handle(HWND edit, UINT message, WPARAM first, LPARAM second) override
    {
        const bool character = first >= firstPrintable || first == backspace;
        if (message != WM_CHAR || !filters_ || !character)
            return DefSubclassProc(edit, message, first, second);
        int counts = 0;
        page().tell([&] { counts = model_.filterKey(static_cast<int>(first)); });
        if (counts == 0) return 0;
        return DefSubclassProc(edit, message, static_cast<WPARAM>(counts), second);
    }

    Drawing ownDrawing() override
    {
        return [this, text = wideOf(model_.text()), readOnly = model_.readOnly(),
                filters = static_cast<bool>(model_.onKeyPress)] {
            filters_ = filters;
            SendMessageW(window(), EM_SETREADONLY, readOnly, 0);
            if (textOf(window()) == text) return;
            DWORD cursor = 0;
            SendMessageW(window(), EM_GETSEL, 0, reinterpret_cast<LPARAM>(&cursor));
            SetWindowTextW(window(), text.c_str());
            SendMessageW(window(), EM_SETSEL, cursor, static_cast<LPARAM>(cursor));
        };
    }

    TextBox& model_;
    bool filters_ = false;
};

} // namespace

std::unique_ptr<ControlView> makeTextBoxView(TextBox& box, ControlRole role)
{
    return std::make_unique<TextBoxView>(box, role);
}

} // namespace mmc
