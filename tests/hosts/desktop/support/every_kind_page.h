#pragma once

#include "console/pages.h"
#include "console/plain_sheet.h"
#include "console/wizard_sheet.h"
#include "controls/controls.h"
#include "hosts/desktop/sheets/sheet_dialog.h"
#include "hosts/desktop/support/test_window.h"
#include "runtime/run_time_error.h"

#include <QPointer>
#include <QPushButton>

#include <memory>
#include <stdexcept>
#include <vector>

namespace desktop {

/// A page with a control of every kind.
class EveryKindPage final : public SheetPage, public IWizardPage, public IMMCPropertyPage {
public:
    EveryKindPage() : SheetPage("ppgEveryKind")
    {
        declare("lblTitle", ControlRole::title, title);
        declare("lblDescription", ControlRole::description, description);
        declare("lblBody", ControlRole::body, body);
        declare("Frame1", ControlRole::frame, frame);
        declare("lblInFrame", ControlRole::body, framed);
        declare("lblText", ControlRole::fieldLabel, textLabel);
        declare("txtText", ControlRole::field, text);
        declare("updown", ControlRole::field, spin);
        declare("lblCombo", ControlRole::fieldLabel, comboLabel);
        declare("combo", ControlRole::field, combo);
        declare("lblDate", ControlRole::fieldLabel, dateLabel);
        declare("dtDate", ControlRole::field, date);
        declare("dtTime", ControlRole::field, time);
        declare("lstList", ControlRole::field, list);
        declare("opt", ControlRole::choice, options);
        declare("chk", ControlRole::choice, check);
        declare("cmd", ControlRole::action, button);
        declare("tree", ControlRole::mainTree, tree);
        declare("lblProgress", ControlRole::progress, progressText);
        declare("bar", ControlRole::progress, bar);
        declare("tmr", ControlRole::timer, timer);

        title.setCaption("Title");
        description.setCaption("What the page is for");
        frame.setCaption("Frame");
        framed.setCaption("In the frame");
        textLabel.setCaption("Text:");
        comboLabel.setCaption("Choice:");
        dateLabel.setCaption("Date:");
        options.setCaption(0, "First");
        options.setCaption(1, "Second");
        options.setOptionToolTip(1, "The second one");
        check.setCaption("Check");
        button.setCaption("&Browse...");
        combo.addItem("one");
        combo.addItem("two");
        list.addItem("ENU");
        list.addItem("FRA");
        tree.setCheckBoxes(true);
        fillTree();
        date.setValue(dateOf(2025, 2, 20, 17, 42, 5));
        time.setValue(dateOf(2025, 2, 20, 17, 42, 5));
    }

    void fillTree()
    {
        tree.clear();
        TreeNode& group = tree.add("Group", "Group");
        group.setBold(true);
        tree.addChild(group, "Leaf one", "Group - Leaf one");
        tree.addChild(group, "Leaf two", "Group - Leaf two").ensureVisible();
    }

    IWizardPage* wizardPage() override { return this; }
    IMMCPropertyPage* propertyPage() override { return this; }
    void PropertyPage_ApplyChanges() override { ++applied; }
    void IMMCPropertyPage_QueryCancel(bool& allow) override { allow = allowCancel; }
    void IWizardPage_Next(int&) override
    {
        if (failing) throw RunTimeError(runTimeErrors::permissionDenied);
    }

    Label title, description, body, framed, textLabel, comboLabel, dateLabel, progressText;
    Frame frame;
    TextBox text;
    SpinControl spin{1, 999};
    ComboBox combo;
    DateTimePicker date{PickerKind::date};
    DateTimePicker time{PickerKind::time};
    ListBox list;
    OptionButtonGroup options{2};
    CheckBox check;
    Button button;
    TreeView tree;
    ProgressBar bar;
    Timer timer{10, false};
    bool allowCancel = true;
    bool failing = false;
    int applied = 0;
};

/// A sheet of such pages, on show in a dialog.
template <typename Sheet>
struct ShownSheet {
    explicit ShownSheet(int count = 1)
    {
        testApplication();
        for (int page = 0; page < count; ++page) {
            auto made = std::make_unique<EveryKindPage>();
            pages.push_back(made.get());
            sheet->addPage(std::move(made), "Page title", false);
        }
        sheet->show();
        dialog = new SheetDialog(sheet);
        dialog->show();
        settle();
    }
    ~ShownSheet() { delete dialog.data(); }

    EveryKindPage& page() { return *pages.front(); }
    template <typename Widget>
    Widget& only()
    {
        const auto found = dialog->template findChildren<Widget*>();
        if (found.empty()) throw std::runtime_error("no such widget");
        return *found.front();
    }
    QPushButton& push(const char* text)
    {
        for (auto* button : dialog->template findChildren<QPushButton*>())
            if (QString(button->text()).remove('&') == QLatin1String(text)) return *button;
        throw std::runtime_error(text);
    }

    std::shared_ptr<Sheet> sheet = std::make_shared<Sheet>("Title");
    std::vector<EveryKindPage*> pages;
    QPointer<SheetDialog> dialog;
};

} // namespace desktop
