#include "foundation/forms/wx_clipboard.h"

#include <wx/clipbrd.h>
#include <wx/dataobj.h>

#include "foundation/forms/wx_text.h"

namespace lv {

Error WxClipboard::SetText(std::string_view text) {
    const wxClipboardLocker lock;
    if (!lock || !wxTheClipboard->SetData(new wxTextDataObject(ToWx(text)))) {
        return MakeError(error::kDeviceUnavailable, "the clipboard is in use by another program");
    }
    wxTheClipboard->Flush();
    return {};
}

std::string WxClipboard::GetText() {
    const wxClipboardLocker lock;
    wxTextDataObject text;
    if (!lock || !wxTheClipboard->GetData(text)) {
        return {};
    }
    return FromWx(text.GetText());
}

}  // namespace lv
