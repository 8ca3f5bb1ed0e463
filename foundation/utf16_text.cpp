#include "foundation/utf16_text.h"

namespace lv {

bool IsUtf16(TextView start) {
    return start.starts_with("\xFF\xFE") || start.starts_with("\xFE\xFF");
}

Error Utf16Fault(TextView path) {
    return {error::kPathFileAccess, Join("The file is UTF-16 text: ", path, ". Save it as plain text (ANSI) first.")};
}

}  // namespace lv
