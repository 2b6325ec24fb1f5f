#pragma once

#include "controls/controls.h"
#include "hosts/mmc/sheets/control_view.h"

#include <memory>

namespace mmc {

/// The view of a control, by its kind; null for one that nobody sees, a timer. On the tool's
/// thread.
std::unique_ptr<ControlView> makeControlView(const PageControl& declared);

// A kind of control each, in a source of its own.
std::unique_ptr<ControlView> makeButtonView(Button& button, ControlRole role);
std::unique_ptr<ControlView> makeCheckBoxView(CheckBox& box, ControlRole role);
std::unique_ptr<ControlView> makeComboBoxView(ComboBox& box, ControlRole role);
std::unique_ptr<ControlView> makeFrameView(Frame& frame, ControlRole role);
std::unique_ptr<ControlView> makeLabelView(Label& label, ControlRole role);
std::unique_ptr<ControlView> makeListBoxView(ListBox& box, ControlRole role);
std::unique_ptr<ControlView> makeOptionsView(OptionButtonGroup& options, ControlRole role);
std::unique_ptr<ControlView> makePickerView(DateTimePicker& picker, ControlRole role);
std::unique_ptr<ControlView> makeProgressView(ProgressBar& bar, ControlRole role);
std::unique_ptr<ControlView> makeSpinView(SpinControl& spin, ControlRole role);
std::unique_ptr<ControlView> makeSummaryView(Label& label, ControlRole role);
std::unique_ptr<ControlView> makeTextBoxView(TextBox& box, ControlRole role);
std::unique_ptr<ControlView> makeTreeView(TreeView& tree, ControlRole role);

} // namespace mmc
