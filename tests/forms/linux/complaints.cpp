#include "tests/forms/complaints.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "platform/linux/toolkit/toolkit_function.h"

namespace lv {

namespace {

// GLogLevelFlags.
constexpr int kError = 1 << 2;
constexpr int kCritical = 1 << 3;
constexpr int kWarning = 1 << 4;

// Its choice of files keeps its settings there, which needs a desktop's session.
constexpr std::string_view kStore = "dconf";

// GLogField.
struct LogField {
    const char* Key;
    const void* Value;
    std::ptrdiff_t Length;  // -1: up to the 0
};

std::string FieldOf(std::span<const LogField> fields, std::string_view key) {
    for (const LogField& field : fields) {
        if (field.Key == key) {
            const auto* text = static_cast<const char*>(field.Value);
            return field.Length < 0 ? std::string(text) : std::string(text, static_cast<std::size_t>(field.Length));
        }
    }
    return {};
}

int WriteAndFail(int level, const LogField* fields, std::size_t count, void*) {
    const std::span all(fields, count);
    if ((level & (kError | kCritical | kWarning)) != 0 && FieldOf(all, "GLIB_DOMAIN") != kStore) {
        ADD_FAILURE() << FieldOf(all, "GLIB_DOMAIN") << ": " << FieldOf(all, "MESSAGE");
    }
    static const auto write =
        ToolkitFunction<int (*)(int, const LogField*, std::size_t, void*)>("g_log_writer_default");
    return write(level, fields, count, nullptr);
}

}  // namespace

void FailAtComplaints() {
    const auto setWriter =
        ToolkitFunction<void (*)(int (*)(int, const LogField*, std::size_t, void*), void*, void (*)(void*))>(
            "g_log_set_writer_func");
    ASSERT_NE(setWriter, nullptr) << "this is no GTK";
    setWriter(WriteAndFail, nullptr, nullptr);
}

}  // namespace lv
