// transfer/settings_text.h
//
// Settings as one text, to be kept in a file and carried to another machine:
//   Lorvane 3D settings 1
//   Options<tab>Games<tab>Capture the Flag;-game ctf
//   end 1 44b14e5a
// A line a value: section, key, value. "%", control characters and all beyond plain ASCII are "%" and two hexadecimal
// digits of code page 1252, so no byte is lost on any way. The last line has the count of values and the check sum
// (CRC-32) of all lines above it, each ended by a line feed. A carriage return before a line feed does not count.

#pragma once

#include <vector>

#include "foundation/text.h"
#include "platform/settings_backing.h"

namespace lv {

constexpr int kSettingsTextNumber = 1;
constexpr std::size_t kLargestSettingsText = 16U << 20U;  // bytes
constexpr std::size_t kMostSettings = 100'000;
constexpr std::size_t kLongestSettingName = 255;  // characters of a section, and of a key

/// Whether the text can hold the value: its names are not empty, not too long and without a character 0, and it has
/// no more than kLongestValue characters.
bool FitsSettingsText(const StoredValue& value);

/// Whether a file that begins so is, by its first line, one of these.
bool BeginsSettingsText(TextView start);

/// The values in their order; each fits, and no name stands there twice. Error 7 for more than a text can hold.
Result<Text> WriteSettingsText(const std::vector<StoredValue>& values);

/// The values in the text's order. Anything that WriteSettingsText has not made is error 75, which names the line,
/// and nothing of it is read; a text of a newer program's is told as such. Error 7 for one that is too large.
Result<std::vector<StoredValue>> ReadSettingsText(TextView text);

}  // namespace lv
