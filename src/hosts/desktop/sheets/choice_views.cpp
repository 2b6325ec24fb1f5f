#include "hosts/desktop/sheets/choice_views.h"

#include "hosts/common/look/plain_tool_tip.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <algorithm>

namespace desktop {

ButtonView::ButtonView(Button& button, QWidget* parent, const ActOnControl& act)
    : ControlView(button, new QPushButton(parent), act), model_(button),
      button_(static_cast<QPushButton*>(widget()))
{
    button_->setAutoDefault(false);
    connect(button_, &QPushButton::clicked, this,
            [this] { ControlView::act([this] { model_.click(); }); });
}

QStringList ButtonView::captions() const
{
    return {QString::fromStdString(model_.caption())};
}

void ButtonView::showCaptions(const QStringList& marked)
{
    button_->setText(marked.front());
}

void ButtonView::render() {}

CheckBoxView::CheckBoxView(CheckBox& box, QWidget* parent, const ActOnControl& act)
    : ControlView(box, new QCheckBox(parent), act), model_(box),
      box_(static_cast<QCheckBox*>(widget()))
{
    connect(box_, &QCheckBox::toggled, this, [this](bool checked) {
        if (checked != model_.checked()) ControlView::act([this] { model_.click(); });
    });
}

QStringList CheckBoxView::captions() const
{
    return {QString::fromStdString(model_.caption())};
}

void CheckBoxView::showCaptions(const QStringList& marked)
{
    box_->setText(marked.front());
}

void CheckBoxView::render()
{
    box_->setChecked(model_.checked());
}

OptionsView::OptionsView(OptionButtonGroup& options, QWidget* parent, const ActOnControl& act)
    : ControlView(options, new QWidget(parent), act), model_(options)
{
    auto* column = new QVBoxLayout(widget());
    column->setContentsMargins(0, 0, 0, 0);
    auto* group = new QButtonGroup(widget());
    for (int index = 0; index < model_.count(); ++index) {
        auto* button = new QRadioButton(widget());
        group->addButton(button);
        column->addWidget(button);
        buttons_.push_back(button);
        connect(button, &QRadioButton::toggled, this, [this, index](bool checked) {
            if (checked && !model_.isSelected(index))
                ControlView::act([this, index] { model_.click(index); });
        });
    }
}

QWidget* OptionsView::focusTarget() const
{
    const auto checked = std::find_if(buttons_.begin(), buttons_.end(),
                                      [](const auto* button) { return button->isChecked(); });
    if (checked != buttons_.end()) return *checked;
    return buttons_.empty() ? widget() : buttons_.front();
}

QStringList OptionsView::captions() const
{
    QStringList texts;
    for (int index = 0; index < model_.count(); ++index)
        texts << QString::fromStdString(model_.caption(index));
    return texts;
}

void OptionsView::showCaptions(const QStringList& marked)
{
    for (std::size_t index = 0; index < buttons_.size(); ++index)
        buttons_[index]->setText(marked[static_cast<qsizetype>(index)]);
}

void OptionsView::render()
{
    for (int index = 0; index < model_.count(); ++index) {
        QRadioButton* button = buttons_[static_cast<std::size_t>(index)];
        const QString help = QString::fromStdString(model_.optionToolTip(index));
        button->setToolTip(plainToolTip(help));
        button->setAccessibleDescription(help);
        button->setFont(widget()->font());
        if (model_.isSelected(index)) button->setChecked(true);
    }
}

} // namespace desktop
