// platform/windows/toolkit/access_keys.h
//
// An access key reaches every control of its window. The toolkit asks only the panel that the focus is in.

#pragma once

namespace lv {

/// While it lives, access keys pressed in this thread's windows go to the window as a whole where the panel around the
/// focus has no control with that key.
class AccessKeys {
  public:
    AccessKeys();
    ~AccessKeys();
    AccessKeys(const AccessKeys&) = delete;
    AccessKeys& operator=(const AccessKeys&) = delete;

  private:
    void* hook_;  // HHOOK
};

}  // namespace lv
