// launcher/played/played_words.h
//
// Moments and times of play in words.

#pragma once

#include <cstdint>
#include <optional>

#include "foundation/text.h"
#include "platform/clock.h"

namespace lv {

/// "1999-11-21 12:30:05", which sorts as it follows.
Text Stamp(const LocalTime& time);

/// Nothing for what is no such text, or no moment of the calendar.
std::optional<LocalTime> ReadStamp(TextView stamp);

/// Of a stamp, told on the day `today`: "today, 14:30", "yesterday", "3 days ago", from a week on, or of a day to come,
/// "1999-11-21"; "never" without one.
Text LastPlayedWords(TextView stamp, const LocalTime& today);

/// "1999-11-21 12:30"; empty without a stamp.
Text LastPlayedField(TextView stamp);

/// Hours and minutes, "12:05"; empty without a second.
Text PlayTimeText(std::int64_t seconds);

}  // namespace lv
