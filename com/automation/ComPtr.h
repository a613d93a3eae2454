#pragma once

#include "com/automation/com.h"

#include <utility>

namespace tellurix::windows {

/// Holds one reference to a COM object, or nothing.
template <typename Interface>
class ComPtr {
public:
    ComPtr() = default;
    ComPtr(std::nullptr_t) {}
    /// Shares an object that somebody else holds.
    explicit ComPtr(Interface* object) : object_(object) {
        if (object_ != nullptr) object_->AddRef();
    }
    ComPtr(const ComPtr& other) : ComPtr(other.object_) {}
    ComPtr(ComPtr&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    ComPtr& operator=(ComPtr other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }
    ~ComPtr() {
        if (object_ != nullptr) object_->Release();
    }

    /// Takes over the one reference that came with `object`.
    static ComPtr adopt(Interface* object) {
        ComPtr owner;
        owner.object_ = object;
        return owner;
    }

    Interface* get() const { return object_; }
    Interface* operator->() const { return object_; }
    Interface& operator*() const { return *object_; }
    explicit operator bool() const { return object_ != nullptr; }

    /// For a function that answers with a new reference: drops the old one first.
    Interface** put() {
        *this = nullptr;
        return &object_;
    }
    void** putVoid() { return reinterpret_cast<void**>(put()); }
    /// Hands the reference over to the caller.
    Interface* detach() { return std::exchange(object_, nullptr); }

    /// The same object by another interface, or nothing when it has none.
    template <typename Other>
    ComPtr<Other> as() const {
        ComPtr<Other> other;
        if (object_ != nullptr) object_->QueryInterface(__uuidof(Other), other.putVoid());
        return other;
    }

private:
    Interface* object_ = nullptr;
};

} // namespace tellurix::windows
