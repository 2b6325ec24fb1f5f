#include "hosts/mmc/sheets/control_views.h"
#include "hosts/mmc/sheets/shown_items.h"

#include <algorithm>

namespace mmc {

namespace {

// In dialog units.
constexpr int leastWidth = 40;
constexpr int arrowAndEdges = 20;

constexpr int mostRows = 10; ///< of the list that drops down

class ComboBoxView final : public ControlView {
public:
    ComboBoxView(ComboBox& box, ControlRole role) : ControlView(box, role), model_(box) {}

    /// The window knows by its font how high its field is, without the list.
    int heightFor(int) const override
    {
        RECT area{};
        GetWindowRect(window(), &area);
        return area.bottom - area.top;
    }

    int ownWidth() const override
    {
        int widest = 0;
        for (const std::wstring& item : items_.texts())
            widest = std::max<int>(widest, textSize(font(), item, 0, DT_NOPREFIX).cx);
        return std::max(units().across(leastWidth), widest + units().across(arrowAndEdges));
    }

    /// The height that is set is the one with the list.
    void place(const RECT& area) override
    {
        const auto row = static_cast<int>(SendMessageW(window(), CB_GETITEMHEIGHT, 0, 0));
        const auto rows = std::clamp(static_cast<int>(items_.texts().size()), 1, mostRows);
        RECT whole = area;
        whole.bottom += row * rows + units().down(2);
        ControlView::place(whole);
    }

    void commanded(HWND, int code) override
    {
        if (code == CBN_SELCHANGE) {
            const auto chosen = static_cast<int>(SendMessageW(window(), CB_GETCURSEL, 0, 0));
            if (chosen < 0) return;
            page().act(*this, [this, chosen] {
                if (chosen < model_.count()) model_.chooseByPerson(chosen);
            });
        } else if (code == CBN_EDITCHANGE) {
            page().act(*this,
                       [this, typed = utf8Of(textOf(window()))] { model_.setByPerson(typed); });
        }
    }

private:
    void makeWindows() override
    {
        make(WC_COMBOBOXW, CBS_DROPDOWN | CBS_AUTOHSCROLL | WS_VSCROLL | WS_TABSTOP | WS_GROUP);
    }

    Drawing ownDrawing() override
    {
        return [this, items = wideItems(model_), selected = model_.selectedIndex(),
                text = wideOf(model_.text())] {
            if (items != items_.texts()) {
                items_.show(window(), items, CB_RESETCONTENT, CB_ADDSTRING);
                page().rearrange();
            }
            const bool typed = textOf(window()) == text;
            const auto cursor = SendMessageW(window(), CB_GETEDITSEL, 0, 0);
            if (SendMessageW(window(), CB_GETCURSEL, 0, 0) != selected)
                SendMessageW(window(), CB_SETCURSEL, static_cast<WPARAM>(selected), 0);
            setText(window(), text);
            // Another choice moves the cursor, which a person who types has elsewhere.
            if (typed) SendMessageW(window(), CB_SETEDITSEL, 0, cursor);
        };
    }

    ComboBox& model_;
    ShownItems items_;
};

} // namespace

std::unique_ptr<ControlView> makeComboBoxView(ComboBox& box, ControlRole role)
{
    return std::make_unique<ComboBoxView>(box, role);
}

} // namespace mmc
