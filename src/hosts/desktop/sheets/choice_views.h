#pragma once

#include "controls/controls.h"
#include "hosts/desktop/sheets/control_view.h"

#include <vector>

class QCheckBox;
class QPushButton;
class QRadioButton;

namespace desktop {

class ButtonView final : public ControlView {
public:
    ButtonView(Button& button, QWidget* parent, const ActOnControl& act);

    QStringList captions() const override;
    void showCaptions(const QStringList& marked) override;

private:
    void render() override;

    Button& model_;
    QPushButton* button_;
};

class CheckBoxView final : public ControlView {
public:
    CheckBoxView(CheckBox& box, QWidget* parent, const ActOnControl& act);

    QStringList captions() const override;
    void showCaptions(const QStringList& marked) override;

private:
    void render() override;

    CheckBox& model_;
    QCheckBox* box_;
};

class OptionsView final : public ControlView {
public:
    OptionsView(OptionButtonGroup& options, QWidget* parent, const ActOnControl& act);

    QWidget* focusTarget() const override;
    QStringList captions() const override;
    void showCaptions(const QStringList& marked) override;

private:
    void render() override;

    OptionButtonGroup& model_;
    std::vector<QRadioButton*> buttons_;
};

} // namespace desktop
