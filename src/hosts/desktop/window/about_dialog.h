#pragma once

#include <QDialog>

#include <functional>
#include <memory>
#include <vector>

class QPushButton;
class frmAbout;

namespace desktop {

class ControlView;

/// The tool's about box, with the menu of its interface languages.
class AboutDialog final : public QDialog {
    Q_OBJECT

public:
    /// `about` is on show and outlives the dialog, which goes when the form is hidden.
    explicit AboutDialog(frmAbout& about, QWidget* parent = nullptr);
    ~AboutDialog() override;

    void reject() override;

    /// Runs what the choice of a language changes, and raises nothing. Null: it runs by itself.
    std::function<void(const std::function<void()>& run)> aroundChange;

signals:
    /// The form shows other texts, perhaps in another language.
    void formShown();

private:
    QWidget* textColumn();
    void popUpLanguages();
    void showForm();
    void grow();

    frmAbout& about_;
    std::vector<std::unique_ptr<ControlView>> views_;
    QPushButton* language_ = nullptr;
};

} // namespace desktop
