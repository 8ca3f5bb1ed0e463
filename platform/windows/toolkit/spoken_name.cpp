#include "platform/toolkit/spoken_name.h"

#include "platform/windows/com_pointer.h"
#include "platform/windows/system.h"
#include "platform/windows/wide_text.h"

// Behind windows.h, whose types they need.
#include <initguid.h>
#include <oleacc.h>

namespace lv {

void SetSpokenName(void* control, const std::string& name) {
    const Com com;
    ComPointer<IAccPropServices> names;
    const auto wide = WideFromUtf8(name);
    if (control != nullptr && wide &&
        SUCCEEDED(CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER, IID_IAccPropServices,
                                   names.Place()))) {
        names->SetHwndPropStr(static_cast<HWND>(control), static_cast<DWORD>(OBJID_CLIENT), CHILDID_SELF,
                              PROPID_ACC_NAME, wide->c_str());
    }
}

std::string SpokenName(void* control) {
    const Com com;
    ComPointer<IAccessible> accessible;
    if (control == nullptr ||
        FAILED(AccessibleObjectFromWindow(static_cast<HWND>(control), static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible,
                                          accessible.Place()))) {
        return {};
    }
    VARIANT self{};
    self.vt = VT_I4;
    self.lVal = CHILDID_SELF;
    BSTR name = nullptr;
    std::string said;
    if (accessible->get_accName(self, &name) == S_OK && name != nullptr) {
        said = Utf8FromWide({name, SysStringLen(name)}).value_or(std::string());
    }
    SysFreeString(name);
    return said;
}

}  // namespace lv
