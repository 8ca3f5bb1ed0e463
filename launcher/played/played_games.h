// launcher/played/played_games.h
//
// When each program was last started, how often, and how long its games ran: in the store's section "Played", by the
// program's path, as "last;seconds;count".

#pragma once

#include <cstdint>

#include "foundation/run.h"

namespace lv {

constexpr TextView kPlayed = "Played";  // the section

/// Time played is counted up to here, some eleven years; one game counts for a week at most.
constexpr std::int64_t kMostSeconds = 99'999LL * 3600;
constexpr std::int64_t kLongestGame = 7LL * 24 * 3600;
constexpr std::int64_t kMostStarts = 999'999;

struct PlayRecord {
    Text Last;                 // its last start, "1999-11-21 12:30:05"; empty: never
    std::int64_t Seconds = 0;  // that it was played, as far as the system tells of a game's end
    std::int64_t Starts = 0;

    friend bool operator==(const PlayRecord&, const PlayRecord&) = default;
};

/// The key of a program: its path with "\", in lower case.
Text PlayedKey(TextView path);

/// A value that is damaged reads as far as it makes sense: a day that the calendar has not is no start, a number that
/// is none is 0, and each is held within its bounds.
PlayRecord ReadPlayed(TextView value);
Text PlayedValue(const PlayRecord& game);

/// With one more start. A clock that went back is believed.
PlayRecord WithStart(PlayRecord game, const LocalTime& now);

/// With the seconds of one more game. What cannot be, as of a clock gone wrong, counts as nothing.
PlayRecord WithTime(PlayRecord game, double seconds);

PlayRecord PlayedOf(Run& run, TextView path);

/// The program was started; a game of it ended. A store that takes nothing keeps nobody from a game: nothing is said.
void NotePlayStart(Run& run, TextView path);
void NotePlayEnd(Run& run, TextView path, double seconds);

}  // namespace lv
