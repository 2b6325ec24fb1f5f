#pragma once

#include "controls/controls.h"
#include "controls/sheet_page.h"
#include "hosts/desktop/sheets/control_view.h"

class QGroupBox;
class QLabel;
class QPlainTextEdit;
class QProgressBar;

namespace desktop {

/// A text. A body without a caption takes no room.
class LabelView final : public ControlView {
public:
    LabelView(Label& label, ControlRole role, QWidget* parent, const ActOnControl& act);

    QStringList captions() const override;
    void showCaptions(const QStringList& marked) override;

    /// The control that the label's letter leads to.
    void setBuddy(QWidget* target);

private:
    void render() override;

    Label& model_;
    ControlRole role_;
    QLabel* label_;
};

/// Lines of text, perhaps more than there is room for.
class SummaryView final : public ControlView {
public:
    SummaryView(Label& label, QWidget* parent, const ActOnControl& act);

private:
    void render() override;

    Label& model_;
    QPlainTextEdit* text_;
};

/// A box with a caption; the page puts a control into it.
class FrameView final : public ControlView {
public:
    FrameView(Frame& frame, QWidget* parent, const ActOnControl& act);

private:
    void render() override;

    Frame& model_;
    QGroupBox* box_;
};

class ProgressView final : public ControlView {
public:
    ProgressView(ProgressBar& bar, QWidget* parent, const ActOnControl& act);

private:
    void render() override;

    ProgressBar& model_;
    QProgressBar* bar_;
};

} // namespace desktop
