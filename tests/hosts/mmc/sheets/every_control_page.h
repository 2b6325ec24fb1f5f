#pragma once

#include "console/pages.h"
#include "controls/controls.h"
#include "controls/sheet_page.h"

/// A page with a control of every kind.
class EveryControlPage final : public SheetPage, public IWizardPage, public IMMCPropertyPage {
public:
    explicit EveryControlPage(std::string name = "ppgEveryControl") : SheetPage(std::move(name))
    {
        declare("lblTitle", ControlRole::title, title);
        declare("lblDescription", ControlRole::description, description);
        declare("lblBody", ControlRole::body, body);
        declare("frame", ControlRole::frame, frame);
        declare("lblInFrame", ControlRole::body, framed);
        declare("lblText", ControlRole::fieldLabel, textLabel);
        declare("txtText", ControlRole::field, text);
        declare("updown", ControlRole::field, spin);
        declare("lblCombo", ControlRole::fieldLabel, comboLabel);
        declare("combo", ControlRole::field, combo);
        declare("lblDate", ControlRole::fieldLabel, dateLabel);
        declare("dtDate", ControlRole::field, date);
        declare("dtTime", ControlRole::field, time);
        declare("lblList", ControlRole::fieldLabel, listLabel);
        declare("lstList", ControlRole::field, list);
        declare("opt", ControlRole::choice, options);
        declare("chk", ControlRole::choice, check);
        declare("cmd", ControlRole::action, button);
        declare("tree", ControlRole::mainTree, tree);
        declare("lblProgress", ControlRole::progress, progressText);
        declare("bar", ControlRole::progress, bar);
        declare("lblSummary", ControlRole::summary, summary);
        declare("tmr", ControlRole::timer, timer);

        title.setCaption("Title");
        description.setCaption("What the page is for");
        body.setCaption("A & B \u00e9");
        frame.setCaption("Frame & box");
        framed.setCaption("In the frame");
        textLabel.setCaption("Text:");
        comboLabel.setCaption("Choice:");
        dateLabel.setCaption("Date:");
        listLabel.setCaption("List:");
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
        tree.addChild(group, "Leaf two", "Group - Leaf two").setChecked(true);
        tree.add("Closed");
        tree.addChild(tree.item(4), "Hidden");
    }

    IWizardPage* wizardPage() override { return this; }
    IMMCPropertyPage* propertyPage() override { return this; }

    Label title, description, body, framed, textLabel, comboLabel, dateLabel, listLabel,
        progressText, summary;
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
};
