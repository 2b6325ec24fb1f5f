// The entry points of a library that offers a snap-in.
#include "hosts/mmc/com/call_guard.h"
#include "hosts/mmc/com/module_use.h"
#include "hosts/mmc/module.h"
#include "hosts/mmc/registration.h"

using namespace mmc;

STDAPI DllGetClassObject(REFCLSID asked, REFIID interfaceId, void** object)
{
    return classObject(snapInOfModule(), asked, interfaceId, object);
}

STDAPI DllCanUnloadNow()
{
    return ModuleUse::count() == 0 ? S_OK : S_FALSE;
}

STDAPI DllRegisterServer()
{
    return guarded([]() -> HRESULT { return registerSnapIn(snapInOfModule()); });
}

STDAPI DllUnregisterServer()
{
    return guarded([]() -> HRESULT { return unregisterSnapIn(snapInOfModule()); });
}
