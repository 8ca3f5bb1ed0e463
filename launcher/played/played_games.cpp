#include "launcher/played/played_games.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "foundation/field_strings.h"
#include "foundation/settings.h"
#include "launcher/played/played_words.h"

namespace lv {

namespace {

std::int64_t NumberWithin(TextView text, std::int64_t most) {
    std::int64_t number = 0;
    const TextView digits = TrimmedView(text);
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (read.ec == std::errc::result_out_of_range) {
        return digits.starts_with('-') ? 0 : most;
    }
    return read.ec == std::errc() && read.ptr == digits.data() + digits.size()
               ? std::clamp<std::int64_t>(number, 0, most)
               : 0;
}

TextView NextField(TextView& rest) {
    const std::size_t end = std::min(rest.find(';'), rest.size());
    const TextView field = rest.substr(0, end);
    rest.remove_prefix(std::min(end + 1, rest.size()));
    return field;
}

void Write(Run& run, TextView path, const PlayRecord& game) {
    if (!PlayedKey(path).empty()) {
        (void)run.System.Settings.Write(run.AppName, kPlayed, PlayedKey(path), PlayedValue(game));
    }
}

}  // namespace

Text PlayedKey(TextView path) {
    return LowerCase(ReplaceSameLength(Trim(path), "/", "\\"));
}

PlayRecord ReadPlayed(TextView value) {
    PlayRecord game;
    if (const auto last = ReadStamp(NextField(value))) {
        game.Last = Stamp(*last);
    }
    game.Seconds = NumberWithin(NextField(value), kMostSeconds);
    game.Starts = NumberWithin(NextField(value), kMostStarts);
    return game;
}

Text PlayedValue(const PlayRecord& game) {
    return Join(game.Last, ";", std::to_string(game.Seconds), ";", std::to_string(game.Starts));
}

PlayRecord WithStart(PlayRecord game, const LocalTime& now) {
    game.Last = Stamp(now);
    game.Starts = std::min(game.Starts + 1, kMostStarts);
    return game;
}

PlayRecord WithTime(PlayRecord game, double seconds) {
    if (std::isfinite(seconds) && seconds > 0) {
        const double one = std::min(seconds, static_cast<double>(kLongestGame));
        game.Seconds = std::min<std::int64_t>(game.Seconds + std::llround(one), kMostSeconds);
    }
    return game;
}

PlayRecord PlayedOf(Run& run, TextView path) {
    const Text key = PlayedKey(path);
    return key.empty() ? PlayRecord() : ReadPlayed(GetSetting(run, run.AppName, kPlayed, key));
}

void NotePlayStart(Run& run, TextView path) {
    Write(run, path, WithStart(PlayedOf(run, path), run.System.Time.Now()));
}

void NotePlayEnd(Run& run, TextView path, double seconds) {
    const PlayRecord before = PlayedOf(run, path);
    const PlayRecord after = WithTime(before, seconds);
    if (after != before) {
        Write(run, path, after);
    }
}

}  // namespace lv
