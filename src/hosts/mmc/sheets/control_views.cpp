#include "hosts/mmc/sheets/control_views.h"

namespace mmc {

namespace {

template <typename Kind>
std::unique_ptr<ControlView> viewOf(const PageControl& declared,
                                    std::unique_ptr<ControlView> (*make)(Kind&, ControlRole))
{
    auto* control = dynamic_cast<Kind*>(declared.control);
    return control ? make(*control, declared.role) : nullptr;
}

} // namespace

std::unique_ptr<ControlView> makeControlView(const PageControl& declared)
{
    const bool summary = declared.role == ControlRole::summary;
    if (auto made = viewOf<Label>(declared, summary ? makeSummaryView : makeLabelView)) return made;
    if (auto made = viewOf<Button>(declared, makeButtonView)) return made;
    if (auto made = viewOf<CheckBox>(declared, makeCheckBoxView)) return made;
    if (auto made = viewOf<ComboBox>(declared, makeComboBoxView)) return made;
    if (auto made = viewOf<Frame>(declared, makeFrameView)) return made;
    if (auto made = viewOf<ListBox>(declared, makeListBoxView)) return made;
    if (auto made = viewOf<OptionButtonGroup>(declared, makeOptionsView)) return made;
    if (auto made = viewOf<DateTimePicker>(declared, makePickerView)) return made;
    if (auto made = viewOf<ProgressBar>(declared, makeProgressView)) return made;
    if (auto made = viewOf<SpinControl>(declared, makeSpinView)) return made;
    if (auto made = viewOf<TextBox>(declared, makeTextBoxView)) return made;
    return viewOf<TreeView>(declared, makeTreeView);
}

} // namespace mmc
