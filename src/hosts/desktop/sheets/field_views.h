#pragma once

#include "controls/controls.h"
#include "hosts/desktop/sheets/control_view.h"

class QComboBox;
class QLineEdit;
class QListWidget;
class QToolButton;

namespace desktop {

class MomentField;

class TextBoxView final : public ControlView {
public:
    TextBoxView(TextBox& box, QWidget* parent, const ActOnControl& act);

    /// Lets the page look at each key first.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void render() override;

    TextBox& model_;
    QLineEdit* edit_;
};

class ComboBoxView final : public ControlView {
public:
    ComboBoxView(ComboBox& box, QWidget* parent, const ActOnControl& act);

private:
    void render() override;

    ComboBox& model_;
    QComboBox* combo_;
};

class ListBoxView final : public ControlView {
public:
    ListBoxView(ListBox& box, QWidget* parent, const ActOnControl& act);

private:
    void render() override;

    ListBox& model_;
    QListWidget* list_;
};

class PickerView final : public ControlView {
public:
    PickerView(DateTimePicker& picker, QWidget* parent, const ActOnControl& act);

    bool finishEditing() override;

private:
    void render() override;
    void take();
    Date picked() const;

    DateTimePicker& model_;
    MomentField* field_;
};

/// Two arrows.
class SpinView final : public ControlView {
public:
    SpinView(SpinControl& spin, QWidget* parent, const ActOnControl& act);

    QWidget* focusTarget() const override;

private:
    void render() override;

    SpinControl& model_;
    QToolButton* up_ = nullptr;
    QToolButton* down_ = nullptr;
};

} // namespace desktop
