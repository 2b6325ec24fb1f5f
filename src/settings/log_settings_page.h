#pragma once

#include "console/pages.h"
#include "controls/controls.h"
#include "controls/sheet_page.h"

#include <cstdint>

struct ToolContext;

/// The page on which the administrator says where the server writes its logs and how much room
/// they may take. It applies what stands in its controls, and leaves the judging to the server.
class ppgConfLogSettings final : public SheetPage, public IMMCPropertyPage {
public:
    explicit ppgConfLogSettings(ToolContext& tool);

    IMMCPropertyPage* propertyPage() override { return this; }

    /// Reads the settings. Selecting what is set is a change too, so the page may be applied as it
    /// is. What can't be read leaves its control empty, and a space of 0.
    void IMMCPropertyPage_Initialize(ScopeItem* Data, PageSheet& sheet) override;

    /// Writes three configuration values, and the folder when its text was changed: then a box
    /// asks for a reboot. Every second delivery does nothing.
    void PropertyPage_ApplyChanges() override;

    Label lblLocationOfLogFiles;
    TextBox txtLocationOfLogFiles;
    Button cmdLogFileLocationBrowse;
    Label lblMaxSpace;
    ComboBox comboMaxSpace; ///< megabytes, each with a leading blank, as in " 100"

    /// Hidden, and nothing shows them. The box carries the server's value from the reading of the
    /// page to its writing; what the list holds is never saved.
    CheckBox chkDiagnosticOutput;
    Label lblCycleDiagnosticLogs;
    ComboBox comboCycleDiagnosticLogs;

private:
    void ppgConfLogSettings_Auto_Init();
    void fillMaxSpace(std::int32_t current);
    void fillCycleDiagnosticLogs();
    void cmdLogFileLocationBrowse_Click();
    void txtLocationOfLogFiles_Change();

    ToolContext& tool_;
    bool m_bPathChanged = false; ///< since the page was filled, or applied
    bool appliedOnce_ = false;   ///< the next delivery is the second of one apply
};
