#include "hosts/mmc/sheets/control_views.h"
#include "hosts/mmc/sheets/tree_copy.h"
#include "hosts/mmc/sheets/window_subclass.h"

#include <windowsx.h>

namespace mmc {

namespace {

constexpr int leastHeight = 40; ///< in dialog units
constexpr int leastWidth = 100;
constexpr UINT showTicks = WM_APP + 1;

/// A tree of nodes. The model ticks them, not the window, which goes by what it was drawn with.
class TreeControlView final : public ControlView, private WindowSubclass {
public:
    TreeControlView(TreeView& tree, ControlRole role) : ControlView(tree, role), model_(tree)
    {
        model_.hitTester = [this](int, int) { return pointedAt_; };
    }
    ~TreeControlView() override { model_.hitTester = nullptr; }

    int heightFor(int) const override { return units().down(leastHeight); }
    int ownWidth() const override { return units().across(leastWidth); }

    std::optional<LRESULT> notified(const NMHDR& note) override
    {
        switch (note.code) {
        case static_cast<UINT>(NM_CLICK):
        case static_cast<UINT>(NM_DBLCLK):
            return clicked();
        case static_cast<UINT>(TVN_KEYDOWN):
            return keyPressed(reinterpret_cast<const NMTVKEYDOWN&>(note).wVKey);
        case static_cast<UINT>(TVN_ITEMEXPANDEDW):
            expanded(reinterpret_cast<const NMTREEVIEWW&>(note));
            return 0;
        default:
            return {};
        }
    }

    void windowsGoing() override
    {
        // The window made the pictures of its ticks, and leaves them to whoever wanted them.
        const auto pictures =
            reinterpret_cast<HIMAGELIST>(SendMessageW(window(), TVM_SETIMAGELIST, TVSIL_STATE, 0));
        if (pictures) ImageList_Destroy(pictures);
    }

private:
    void makeWindows() override
    {
        subclass(make(WC_TREEVIEWW,
                      TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT | TVS_SHOWSELALWAYS |
                          TVS_NOTOOLTIPS | TVS_DISABLEDRAGDROP | WS_TABSTOP | WS_GROUP,
                      WS_EX_CLIENTEDGE));
    }

    LRESULT handle(HWND tree, UINT message, WPARAM first, LPARAM second) override
    {
        if (message == showTicks) {
            shown_.showTicks(tree);
            return 0;
        }
        if (message == WM_LBUTTONDOWN || message == WM_LBUTTONDBLCLK)
            pressed_ = {GET_X_LPARAM(second), GET_Y_LPARAM(second)};
        if (message == WM_MOUSEMOVE) pointerMoved(GET_X_LPARAM(second), GET_Y_LPARAM(second));
        return DefSubclassProc(tree, message, first, second);
    }

    Drawing ownDrawing() override
    {
        return [this, copy = copyOf(model_)]() mutable {
            // What the person does to nodes that were just drawn is told by the window as well.
            drawing_ = true;
            shown_.show(window(), std::move(copy));
            drawing_ = false;
        };
    }

    /// Runs something on the model's node, unless the tree was filled anew meanwhile.
    template <typename Do>
    auto onNode(int number, Do act)
    {
        return [this, number, act, generation = shown_.generation()] {
            if (model_.generation() == generation && number <= model_.count())
                act(model_.item(number));
        };
    }

    LRESULT clicked()
    {
        const NodeHit hit = shown_.hit(window(), pressed_);
        if (hit.number == 0 || !hit.onTick) return FALSE;
        turnTick(hit.number);
        return TRUE;
    }

    LRESULT keyPressed(WORD key)
    {
        const int number = key == VK_SPACE ? shown_.selected(window()) : 0;
        if (number == 0 || !shown_.hasTicks()) return FALSE;
        turnTick(number);
        return TRUE;
    }

    /// Whatever the window makes of the click itself comes after this one, and is put right then.
    void turnTick(int number)
    {
        const bool checked = !shown_.isTicked(number);
        page().act(*this, onNode(number, [this, checked](TreeNode& node) {
            model_.checkByPerson(node, checked);
        }));
        PostMessageW(window(), showTicks, 0, 0);
    }

    void expanded(const NMTREEVIEWW& note)
    {
        if (drawing_) return;
        const bool open = (note.itemNew.state & TVIS_EXPANDED) != 0;
        page().act(*this,
                   onNode(static_cast<int>(note.itemNew.lParam),
                          [this, open](TreeNode& node) { model_.expandByPerson(node, open); }));
    }

    void pointerMoved(int x, int y)
    {
        const int number = shown_.hit(window(), {x, y}).number;
        page().tell([this, x, y, number, generation = shown_.generation()] {
            const bool there = number > 0 && model_.generation() == generation;
            pointedAt_ = there && number <= model_.count() ? &model_.item(number) : nullptr;
            model_.mouseMove(x, y);
            pointedAt_ = nullptr;
        });
    }

    TreeView& model_;
    TreeNode* pointedAt_ = nullptr; ///< on the tool's thread, while it hears of the pointer

    ShownTree shown_;
    POINT pressed_{}; ///< where the mouse's button went down last
    bool drawing_ = false;
};

} // namespace

std::unique_ptr<ControlView> makeTreeView(TreeView& tree, ControlRole role)
{
    return std::make_unique<TreeControlView>(tree, role);
}

} // namespace mmc
