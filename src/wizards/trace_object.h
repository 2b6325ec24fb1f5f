#pragma once

#include "gather/string_array.h"
#include "runtime/dates.h"
#include "runtime/dictionary.h"
#include "runtime/integer16.h"

#include <memory>
#include <string>

class PageSheet;

/// The one object that all pages of a wizard share; for the gather wizard it is the job.
///
/// A list is to be cleared before it is read: cleared, it holds two empty texts, at index 0 and 1,
/// and index 0 stays empty for good. Who reads a list walks from 1 to its upper bound and passes
/// over empty entries. A name that is added twice is there twice.
class classTraceObject {
public:
    Date m_dateEnd;   ///< end of the time frame
    Date m_dateStart; ///< start of the time frame
    bool m_bTimeFrameLogs = false;
    bool m_bStandardLogs = false; ///< both flags false is the selection by hand

    /// The macro traces that the person changed, with their new state; the wizard's page owns it.
    std::shared_ptr<Dictionary<bool>> dictStatus;

    std::string m_LogDestinationDirectory; ///< empty until the welcome page fills it

    void clearWindowsLogs();
    void clearOrvanLogs();

    /// Copies of the lists; without bounds before the first clear or addition.
    StringArray getOrvanLogs() const { return orvanLogs_.names; }
    StringArray getWindowsLogs() const { return windowsLogs_.names; }

    /// Add at the end, the first at index 1. Raise 6 past 32,767 names, and add nothing.
    void addOrvanLog(const std::string& name);
    void addWindowsLog(const std::string& name);

    /// The wizard's sheet; it is set by the first page that is given one, and outlives the pages.
    void m_PropertySheet(PageSheet& sheet) { propertySheet_ = &sheet; }

    /// Raises 424 while there is none.
    PageSheet& m_PropertySheet() const;

private:
    struct NameList {
        StringArray names;
        Integer16 count;

        void clear();
        void add(const std::string& name);
    };

    NameList orvanLogs_;
    NameList windowsLogs_;
    PageSheet* propertySheet_ = nullptr;
};
