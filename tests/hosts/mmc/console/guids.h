#pragma once

#include "hosts/mmc/console/mmc_headers.h"

#include <string>

namespace stand_in {

/// The console's interfaces by their documented numbers; no library of the compiler has them.
namespace iid {
extern const IID componentData;
extern const IID component;
extern const IID console;
extern const IID console2;
extern const IID headerCtrl;
extern const IID headerCtrl2;
extern const IID resultData;
extern const IID resultOwnerData;
extern const IID nameSpace;
extern const IID nameSpace2;
extern const IID consoleVerb;
extern const IID imageList;
extern const IID contextMenuCallback;
extern const IID contextMenuProvider;
extern const IID extendContextMenu;
extern const IID propertySheetProvider;
extern const IID propertySheetCallback;
extern const IID extendPropertySheet;
extern const IID extendPropertySheet2;
extern const IID extendControlbar;
extern const IID extendTaskPad;
extern const IID enumTask;
extern const IID snapinAbout;
extern const IID snapinHelp;
extern const IID snapinHelp2;
extern const IID displayHelp;
} // namespace iid

/// The object that gives property sheets to whoever has no console at hand.
extern const CLSID nodeManagerClass;

/// "{5A8DE2A2-...}", in capitals.
std::string guidText(const GUID& guid);

} // namespace stand_in
