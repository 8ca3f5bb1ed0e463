// platform/linux/starting/game_record.h
//
// What lorvane3d-watch leaves of the last game: a file with its output and one with its end. Both are this user's alone
// and stand in the state directory; each start of a game begins them anew.

#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "platform/processes.h"

namespace lv {

/// Host paths.
struct GameFiles {
    std::string Output;
    std::string End;
};
GameFiles GameFilesIn(const std::filesystem::path& directory);

/// One line: the start that it belongs to, how the game ended, and the milliseconds that it ran. A code as
/// "1234-5678 code 1 2500", a signal as "1234-5678 signal 11 2500", with " others" behind where others run on.
/// LastLines is no part of it.
std::string GameEndRecord(std::string_view token, const GameEnd& end);

/// Nothing if it is the record of another start, or none at all.
std::optional<GameEnd> ReadGameEnd(std::string_view record, std::string_view token);

/// What a game printed, as code page 1252 text that is only shown: UTF-8, lines parted by CR LF, escape sequences of
/// terminals left out, "?" for any other control character and for each stray byte.
std::string OutputText(std::string_view bytes);

/// The end of such text: no more than `most` bytes, whole lines if there is one among them.
std::string EndOfText(std::string_view text, std::size_t most);

}  // namespace lv
