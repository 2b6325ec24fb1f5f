#include "hosts/mmc/sheets/control_views.h"
#include "hosts/mmc/sheets/shown_items.h"

namespace mmc {

namespace {

constexpr int leastHeight = 40; ///< in dialog units
constexpr int leastWidth = 60;

class ListBoxView final : public ControlView {
public:
    ListBoxView(ListBox& box, ControlRole role) : ControlView(box, role), model_(box) {}

    int heightFor(int) const override { return units().down(leastHeight); }
    int ownWidth() const override { return units().across(leastWidth); }

    void commanded(HWND, int code) override
    {
        if (code != LBN_SELCHANGE) return;
        const auto chosen = static_cast<int>(SendMessageW(window(), LB_GETCURSEL, 0, 0));
        if (chosen < 0) return;
        page().act(*this, [this, chosen] {
            if (chosen < model_.count()) model_.chooseByPerson(chosen);
        });
    }

private:
    void makeWindows() override
    {
        make(WC_LISTBOXW, LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_VSCROLL | WS_TABSTOP | WS_GROUP,
             WS_EX_CLIENTEDGE);
    }

    Drawing ownDrawing() override
    {
        return [this, items = wideItems(model_), selected = model_.selectedIndex()] {
            items_.show(window(), items, LB_RESETCONTENT, LB_ADDSTRING);
            if (SendMessageW(window(), LB_GETCURSEL, 0, 0) != selected)
                SendMessageW(window(), LB_SETCURSEL, static_cast<WPARAM>(selected), 0);
        };
    }

    ListBox& model_;
    ShownItems items_;
};

} // namespace

std::unique_ptr<ControlView> makeListBoxView(ListBox& box, ControlRole role)
{
    return std::make_unique<ListBoxView>(box, role);
}

} // namespace mmc
