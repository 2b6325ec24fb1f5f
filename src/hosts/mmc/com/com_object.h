#pragma once

#include "hosts/mmc/com/com_pointer.h"
#include "hosts/mmc/com/module_use.h"

#include <atomic>
#include <utility>

namespace mmc {

/// The base of an object with the given interfaces, the first of which is also its identity. It
/// counts its references, from one, and goes with the last.
template <typename First, typename... Others>
class ComObject : public First, public Others... {
public:
    ComObject() = default;
    ComObject(const ComObject&) = delete;
    ComObject& operator=(const ComObject&) = delete;
    virtual ~ComObject() = default;

    HRESULT WINAPI QueryInterface(REFIID id, void** result) override
    {
        if (!result) return E_POINTER;
        *result = nullptr;
        // Each base has a pointer of its own to the object: the one that is asked for is handed on.
        if (id == idOf<IUnknown>) *result = static_cast<First*>(this);
        (void)(answer<First>(id, result) || ... || answer<Others>(id, result));
        if (!*result) return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG WINAPI AddRef() override { return static_cast<ULONG>(++references_); }
    ULONG WINAPI Release() override
    {
        const long left = --references_;
        if (left == 0) delete this;
        return static_cast<ULONG>(left);
    }

private:
    template <typename Interface>
    bool answer(REFIID id, void** result)
    {
        bool asked = id == idOf<Interface>;
        if constexpr (requires { typename InterfaceId<Interface>::Base; })
            asked = asked || id == idOf<typename InterfaceId<Interface>::Base>;
        if (asked) *result = static_cast<Interface*>(this);
        return asked;
    }

    ModuleUse use_;
    std::atomic<long> references_{1};
};

/// A new object.
template <typename Object, typename... Arguments>
ComPointer<Object> makeObject(Arguments&&... arguments)
{
    return ComPointer<Object>::taking(new Object(std::forward<Arguments>(arguments)...));
}

} // namespace mmc
