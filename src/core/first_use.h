#pragma once

#include <functional>
#include <memory>
#include <utility>

/// An object that comes to life when it is first touched, and lives as long as its owner.
template <typename Object>
class FirstUse {
public:
    explicit FirstUse(std::function<std::unique_ptr<Object>()> make) : make_(std::move(make)) {}

    /// Makes the object when there is none yet. Raises what its making raises, and then a later
    /// touch tries again.
    Object& operator*()
    {
        if (!object_) object_ = make_();
        return *object_;
    }
    Object* operator->() { return &**this; }

    bool exists() const { return object_ != nullptr; }

private:
    std::function<std::unique_ptr<Object>()> make_;
    std::unique_ptr<Object> object_;
};
