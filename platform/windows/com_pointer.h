// platform/windows/com_pointer.h
//
// Objects of the system's, for as long as they are used.

#pragma once

#include "platform/windows/system.h"
// After windows.h, which it needs.
#include <objbase.h>

namespace lv {

/// COM of this thread, for as long as it is asked.
class Com {
  public:
    Com() : begun_(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}
    ~Com() {
        if (begun_) {
            CoUninitialize();
        }
    }
    Com(const Com&) = delete;
    Com& operator=(const Com&) = delete;

  private:
    bool begun_;
};

template <class Interface>
class ComPointer {
  public:
    ComPointer() = default;
    ~ComPointer() {
        if (pointer_ != nullptr) {
            pointer_->Release();
        }
    }
    ComPointer(const ComPointer&) = delete;
    ComPointer& operator=(const ComPointer&) = delete;

    Interface* operator->() const { return pointer_; }
    [[nodiscard]] Interface* Get() const { return pointer_; }
    Interface** PlaceOfItsKind() { return &pointer_; }
    void** Place() { return reinterpret_cast<void**>(&pointer_); }

  private:
    Interface* pointer_ = nullptr;
};

}  // namespace lv
