#include "hosts/mmc/module.h"

#include "hosts/mmc/about.h"
#include "hosts/mmc/com/call_guard.h"
#include "hosts/mmc/com/com_object.h"
#include "hosts/mmc/component_data.h"

#include <utility>

namespace mmc {

namespace {

using Make = ComPointer<IUnknown> (*)(const SnapIn& snapIn);

ComPointer<IUnknown> makeSnapIn(const SnapIn& snapIn)
{
    const auto made = makeObject<ComponentData>(snapIn);
    return ComPointer<IUnknown>::of(static_cast<IComponentData*>(made.get()));
}

ComPointer<IUnknown> makeAbout(const SnapIn& snapIn)
{
    const auto made = makeObject<About>(snapIn);
    return ComPointer<IUnknown>::of(made.get());
}

class Factory final : public ComObject<IClassFactory> {
public:
    Factory(const SnapIn& snapIn, Make make) : snapIn_(snapIn), make_(make) {}

    HRESULT WINAPI CreateInstance(IUnknown* outer, REFIID interfaceId, void** object) override
    {
        return guarded([&]() -> HRESULT {
            if (!object) return E_POINTER;
            *object = nullptr;
            if (outer) return CLASS_E_NOAGGREGATION;
            return make_(snapIn_)->QueryInterface(interfaceId, object);
        });
    }
    HRESULT WINAPI LockServer(BOOL lock) override
    {
        lock ? ModuleUse::lock() : ModuleUse::unlock();
        return S_OK;
    }

private:
    const SnapIn& snapIn_;
    Make make_;
};

/// Each loading of a module with this compiler's exceptions takes a slot of the process's thread
/// storage for good, and there are some thousand. So the module is loaded once.
void stayLoaded()
{
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_PIN,
                       reinterpret_cast<LPCWSTR>(&stayLoaded), &module);
}

} // namespace

HRESULT classObject(const SnapIn& snapIn, REFCLSID asked, REFIID interfaceId, void** object)
{
    return guarded([&]() -> HRESULT {
        if (!object) return E_POINTER;
        *object = nullptr;
        Make make = nullptr;
        if (asked == snapIn.classId) make = makeSnapIn;
        if (asked == snapIn.aboutId) make = makeAbout;
        if (!make) return CLASS_E_CLASSNOTAVAILABLE;
        stayLoaded();
        return makeObject<Factory>(snapIn, make)->QueryInterface(interfaceId, object);
    });
}

} // namespace mmc
