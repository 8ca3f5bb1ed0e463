#include "foundation/forms/wx_text.h"

#include "foundation/padded_item.h"

namespace lv {

wxString ToWx(TextView text) {
    const std::string utf8 = ToUtf8(text);
    return wxString::FromUTF8(utf8.data(), utf8.size());
}

Text FromWx(const wxString& text) {
    const auto utf8 = text.utf8_str();
    return FromUtf8Lossy({utf8.data(), utf8.length()});
}

wxString ShownItem(TextView item) {
    return ToWx(ItemTitle(item));
}

}  // namespace lv
