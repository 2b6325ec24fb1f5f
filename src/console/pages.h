#pragma once

#include <string>

class PageSheet;
class ScopeItem;

/// What a sheet tells a page of a wizard. A handler without work leaves its arguments as they are.
class IWizardPage {
public:
    virtual ~IWizardPage() = default;

    /// The page is about to be shown, for the first time or again. The arguments hold the sheet's
    /// own choice: Back wherever there is a page before, Next (on the last page Finish) enabled,
    /// and no text, which stands for the usual one of Finish.
    virtual void IWizardPage_Activate(bool& /*EnableBack*/, int& /*NextOrFinish*/,
                                      std::string& /*FinishText*/)
    {}

    /// The person pressed a button. `NextPage` is the position, from 1, of the page to show; it
    /// comes as 0, which stands for the page before or behind.
    virtual void IWizardPage_Back(int& /*NextPage*/) {}
    virtual void IWizardPage_Next(int& /*NextPage*/) {}

    /// The sheet closes after it.
    virtual void IWizardPage_Finish() {}
};

/// What a sheet tells a page that asked for it, in a wizard or in a plain sheet.
class IMMCPropertyPage {
public:
    virtual ~IMMCPropertyPage() = default;

    /// Comes once, before the page's first activation. `Data` is what the sheet is for, or null.
    virtual void IMMCPropertyPage_Initialize(ScopeItem* /*Data*/, PageSheet& /*sheet*/) {}

    virtual void IMMCPropertyPage_Help() {}

    /// In dialog units; the sheet's own size comes in.
    virtual void IMMCPropertyPage_GetDialogUnitSize(int& /*Height*/, int& /*Width*/) {}

    /// The person wants to cancel while the page is on show; `Allow` comes as true.
    virtual void IMMCPropertyPage_QueryCancel(bool& /*Allow*/) {}

    /// The sheet is being cancelled.
    virtual void IMMCPropertyPage_Cancel() {}

    /// The sheet is closing, cancelled or not.
    virtual void IMMCPropertyPage_Close() {}
};
