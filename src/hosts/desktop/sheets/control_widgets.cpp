#include "hosts/desktop/sheets/control_widgets.h"

#include "controls/controls.h"
#include "hosts/desktop/sheets/choice_views.h"
#include "hosts/desktop/sheets/field_views.h"
#include "hosts/desktop/sheets/text_views.h"
#include "hosts/desktop/sheets/tree_control_view.h"

namespace desktop {

namespace {

/// The view of a control if it is of a kind.
template <typename Kind, typename View>
std::unique_ptr<ControlView> viewAs(Control& control, QWidget* parent, const ActOnControl& act)
{
    auto* kind = dynamic_cast<Kind*>(&control);
    return kind ? std::make_unique<View>(*kind, parent, act) : nullptr;
}

} // namespace

std::unique_ptr<ControlView> makeControlView(const PageControl& declared, QWidget* parent,
                                             const ActOnControl& act)
{
    if (auto* label = dynamic_cast<Label*>(declared.control)) {
        if (declared.role == ControlRole::summary)
            return std::make_unique<SummaryView>(*label, parent, act);
        return std::make_unique<LabelView>(*label, declared.role, parent, act);
    }
    using Maker = std::unique_ptr<ControlView> (*)(Control&, QWidget*, const ActOnControl&);
    constexpr Maker makers[] = {
        viewAs<Frame, FrameView>,          viewAs<Button, ButtonView>,
        viewAs<CheckBox, CheckBoxView>,    viewAs<OptionButtonGroup, OptionsView>,
        viewAs<TextBox, TextBoxView>,      viewAs<ComboBox, ComboBoxView>,
        viewAs<ListBox, ListBoxView>,      viewAs<DateTimePicker, PickerView>,
        viewAs<SpinControl, SpinView>,     viewAs<ProgressBar, ProgressView>,
        viewAs<TreeView, TreeControlView>,
    };
    for (const Maker make : makers)
        if (auto view = make(*declared.control, parent, act)) return view;
    return nullptr;
}

} // namespace desktop
