#pragma once

#include "hosts/mmc/console/contract.h"

#include <atomic>

namespace stand_in {

/// What an object of the console that a snap-in is handed has: references that are counted, and an
/// owner that lives longer than all of them.
template <class... Interfaces>
class Handed : public Interfaces... {
public:
    explicit Handed(Contract& contract) : contract_(contract) {}
    virtual ~Handed() = default;
    Handed(const Handed&) = delete;
    Handed& operator=(const Handed&) = delete;

    HRESULT WINAPI QueryInterface(REFIID id, void** result) override
    {
        if (!result) return E_POINTER;
        *result = interfaceOf(id);
        if (!*result) return E_NOINTERFACE;
        ++references_;
        return S_OK;
    }
    ULONG WINAPI AddRef() override { return static_cast<ULONG>(++references_); }
    ULONG WINAPI Release() override
    {
        const long left = --references_;
        if (left < 0) contract_.breach("an object of the console is released too often");
        return static_cast<ULONG>(left);
    }

    /// Those that the snap-in holds.
    long references() const { return references_; }

protected:
    /// Null for an interface that is not there.
    virtual void* interfaceOf(REFIID id) = 0;

    Contract& contract_;

private:
    std::atomic<long> references_{0};
};

/// Lets an interface of the snap-in go at the end of a block.
template <class Interface>
class Held {
public:
    Held() = default;
    explicit Held(Interface* object) : object_(object) {}
    Held(Held&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    Held& operator=(Held&& other) noexcept
    {
        std::swap(object_, other.object_);
        return *this;
    }
    ~Held()
    {
        if (object_) object_->Release();
    }

    Interface* get() const { return object_; }
    Interface* operator->() const { return object_; }
    explicit operator bool() const { return object_ != nullptr; }

    /// Where a call puts an object, when there is none yet.
    Interface** place() { return &object_; }

    /// Lets go at once; gives how many references are left to others.
    ULONG release()
    {
        Interface* object = std::exchange(object_, nullptr);
        return object ? object->Release() : 0;
    }

private:
    Interface* object_ = nullptr;
};

/// Another interface of an object; empty where it has none.
template <class Interface>
Held<Interface> asked(IUnknown* object, REFIID id)
{
    Held<Interface> found;
    if (object) object->QueryInterface(id, reinterpret_cast<void**>(found.place()));
    return found;
}

} // namespace stand_in
