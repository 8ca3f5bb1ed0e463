#include "tests/forms/left_windows.h"

#include <wx/app.h>
#include <wx/toplevel.h>

#include <vector>

#include "foundation/forms/wx_text.h"
#include "tests/forms/form_driver.h"

namespace lv {

void LeftWindows::OnTestEnd(const ::testing::TestInfo&) {
    std::vector<wxWindow*> left;
    for (wxWindow* const window : wxTopLevelWindows) {
        if (!window->IsBeingDeleted() && !wxPendingDelete.Member(window)) {
            left.push_back(window);
        }
    }
    for (wxWindow* const window : left) {
        ADD_FAILURE() << "left behind: " << FromWx(window->GetName()) << " \"" << FromWx(window->GetLabel()) << "\"";
        window->Destroy();
    }
    if (!left.empty()) {
        Settle();
    }
}

}  // namespace lv
