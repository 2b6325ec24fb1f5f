#pragma once

#include "console/pages.h"
#include "controls/controls.h"
#include "controls/sheet_page.h"

#include <string>
#include <vector>

struct ToolContext;

/// The page on which the person looks at the event log in another installed language. The first
/// language comes back when the tool is unloaded.
class ppgEventLogLanguage final : public SheetPage, public IMMCPropertyPage {
public:
    explicit ppgEventLogLanguage(ToolContext& tool);

    IMMCPropertyPage* propertyPage() override { return this; }

    void IMMCPropertyPage_Initialize(ScopeItem* Data, PageSheet& sheet) override;

    /// Changes the registered message files to the selected language; nothing selected changes
    /// none. Every second delivery does nothing.
    void PropertyPage_ApplyChanges() override;

    Label lblDescription;
    Label lblOriginalLanguage;
    TextBox txtOriginalLanguage;
    Label lblCurrentLanguage;
    TextBox txtCurrentLanguage;
    Label lblAvailableLangs;
    ListBox lstAvailableLangs;

private:
    void ppgEventLogLanguage_Auto_Init();

    ToolContext& tool_;
    std::vector<std::string> m_colEventKeys; ///< event source names
    std::string m_strCurrentLanguage;
    bool appliedOnce_ = false; ///< the next delivery is the second of one apply
};
