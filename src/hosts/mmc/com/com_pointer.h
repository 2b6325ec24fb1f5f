#pragma once

#include "hosts/mmc/com/interface_ids.h"

#include <utility>

namespace mmc {

/// Owner of a reference to an object.
template <typename Interface>
class ComPointer {
public:
    ComPointer() = default;
    ~ComPointer() { reset(); }

    ComPointer(const ComPointer& other) : held_(other.held_)
    {
        if (held_) held_->AddRef();
    }
    ComPointer(ComPointer&& other) noexcept : held_(std::exchange(other.held_, nullptr)) {}
    ComPointer& operator=(ComPointer other) noexcept
    {
        std::swap(held_, other.held_);
        return *this;
    }

    /// Takes over a reference that someone else has counted.
    static ComPointer taking(Interface* counted)
    {
        ComPointer pointer;
        pointer.held_ = counted;
        return pointer;
    }

    /// The interface of an object; null where it has none, or there is no object.
    static ComPointer of(IUnknown* object)
    {
        ComPointer pointer;
        if (object)
            object->QueryInterface(idOf<Interface>, reinterpret_cast<void**>(&pointer.held_));
        return pointer;
    }

    /// Where a call puts a counted reference.
    Interface** out()
    {
        reset();
        return &held_;
    }

    void reset()
    {
        if (Interface* left = std::exchange(held_, nullptr)) left->Release();
    }

    /// Gives the reference out of hand; whoever takes it releases it.
    Interface* release() { return std::exchange(held_, nullptr); }

    Interface* get() const { return held_; }
    Interface* operator->() const { return held_; }
    explicit operator bool() const { return held_ != nullptr; }

private:
    Interface* held_ = nullptr;
};

} // namespace mmc
