#pragma once

#include "console/property_sheet_provider.h"
#include "core/text_id.h"

#include <memory>
#include <string>
#include <vector>

class classTraceObject;
struct ToolContext;

/// Makes a page of a wizard, which is given the wizard's shared object, or of a plain sheet, which
/// makes nothing of it.
using MakePage = std::unique_ptr<SheetPage> (*)(ToolContext&,
                                                const std::shared_ptr<classTraceObject>&);

/// A wizard or plain sheet of the tool.
struct SheetDefinition {
    int kind; ///< one of `mdlDefinitions`
    std::string sheetTitle;
    SheetType type;
    TextId pageTitle; ///< the text that the person reads on every page
    std::vector<MakePage> pages;
};

/// Null for a kind that no sheet has.
const SheetDefinition* sheetDefinition(int kind);
