#pragma once

#include "controls/button.h"
#include "controls/label.h"
#include "core/localisation.h"

#include <functional>
#include <string>
#include <vector>

struct ToolContext;

/// The about box: what the tool is, and the one place where its interface language is chosen.
///
/// A host shows what it holds and calls its handlers. From its first showing to its end it is one
/// of the tool's open forms.
class frmAbout final : public OpenForm {
public:
    /// An entry of the language menu; `tag` is the language's identifier as a text.
    struct LanguageItem {
        std::string caption;
        std::string tag;
    };

    static constexpr int defaultPointer = 0;
    static constexpr int hourglass = 11;

    explicit frmAbout(ToolContext& tool);
    ~frmAbout() override;
    frmAbout(const frmAbout&) = delete;
    frmAbout& operator=(const frmAbout&) = delete;

    /// Loads the form unless it is loaded, and shows it. What fails is shown in a message box.
    void show();
    bool visible() const { return visible_; }

    const std::string& caption() const { return caption_; }
    int mousePointer() const { return mousePointer_; }

    /// Heads the language menu.
    const std::string& mnuSelectLanguage() const { return mnuSelectLanguage_; }

    /// One entry for each language library beside the tool. With one library, as with none, it is
    /// "No languages loaded", which stands for 1033.
    const std::vector<LanguageItem>& mnuLanguageList() const { return mnuLanguageList_; }

    /// Asks the host for the language menu.
    void lblChangeLanguage_Click();

    /// The person chose an entry, counted from 0: all open forms change at once. Raises nothing.
    void mnuLanguageList_Click(int index);

    /// Hides the form.
    void cmdOK_Click();

    std::vector<FontTarget*> controls() override;
    void autoInit() override { frmAbout_Auto_Init(); }
    void refreshControls() override;

    /// For the host: the language menu is to pop up; caption, pointer or visibility are others.
    std::function<void()> onPopupMenu;
    std::function<void()> onChanged;

    Button cmdOK;
    Label lblVersionTitle;
    Label lblVersion;
    Label lblCopyright;
    Label lblTrademark;
    Label lblKelmaAddress1;
    Label lblKelmaAddress2;
    Label lblKelmaAddress3;
    Label lblChangeLanguage;

private:
    void Form_Load();
    void frmAbout_Auto_Init();
    void fillLanguageMenu();
    std::vector<Control*> shownControls();
    void setMousePointer(int pointer);
    void setVisible(bool visible);
    void tellChanged() const;

    ToolContext& tool_;
    std::string caption_;
    std::string mnuSelectLanguage_;
    std::vector<LanguageItem> mnuLanguageList_{1};
    int mousePointer_ = defaultPointer;
    bool visible_ = false;
    bool loaded_ = false;
};
