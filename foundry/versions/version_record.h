// foundry/versions/version_record.h
//
// A version as it stands in the file of versions: a line that says what it is, its payload, and a line feed.
// version_file.h has an example.

#pragma once

#include <cstdint>
#include <optional>

#include "foundation/text.h"
#include "platform/clock.h"

namespace lv {

struct ScriptVersion {
    LocalTime Date;  // when it was replaced
    lv::Text Text;
};

constexpr std::size_t kMostVersions = 50;
constexpr std::size_t kLargestVersion = 4U << 20U;  // bytes

/// Which lines count: those of "versions 1" are without a check of their own.
enum class RecordForm { Old, New, Either };

struct RecordHead {
    LocalTime Date;
    bool IsWhole = false;
    std::size_t TextSize = 0;
    std::size_t PayloadSize = 0;
    std::uint32_t Sum = 0;        // of the text
    std::size_t Total = 0;        // versions of the file; 0: an old line, which does not say it
    TextView Checked;             // what the record's own sum is of, with the payload behind it
    std::uint32_t RecordSum = 0;  // that sum
};

/// The line is without its line feed. Nothing for one that is none, or claims more than a version may have.
std::optional<RecordHead> ReadRecordHead(TextView line, RecordForm form);

/// By the next newer text, or whole without one. `total` is how many versions the file holds.
Text RecordOf(const ScriptVersion& version, const Text* newer, std::size_t total);

}  // namespace lv
