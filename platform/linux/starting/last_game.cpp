#include "platform/linux/starting/last_game.h"

#include <unistd.h>

#include <chrono>
#include <utility>

#include "platform/linux/files/host_file.h"
#include "platform/linux/files/host_read.h"
#include "platform/linux/starting/game_record.h"

namespace lv {

namespace {

constexpr std::size_t kLastBytes = 16384;  // of the output, that come with a game's end

std::optional<std::string> BytesOf(const std::string& hostPath) {
    const auto file = OpenHostFile(hostPath);
    Result<std::string> bytes = file.Ok() ? ReadToEnd(file.Value->Number()) : file.Fault;
    return bytes.Ok() ? std::optional(std::move(bytes.Value)) : std::nullopt;
}

std::string NewToken() {
    return std::to_string(getpid()) + "-" + std::to_string(std::chrono::steady_clock::now().time_since_epoch().count());
}

}  // namespace

// The files of the game before go at once: they must not be taken for this one's. The helper makes its own file for the
// output before the game starts, which shows that there is a helper.
Error LastGame::Start(HostCommand command, const HostPlaces& places) {
    const GameFiles files = GameFilesIn(places.State);
    token_ = NewToken();
    unlink(files.Output.c_str());
    unlink(files.End.c_str());
    if (MayRun(places.WatchHelper.string())) {
        MakePrivateDirectory(places.State);
        command.Watch = {places.WatchHelper.string(), files.Output, files.End, token_};
    }
    const Error refused = StartDetached(command);
    if (refused) {
        unlink(files.Output.c_str());
        unlink(files.End.c_str());
    }
    watched_ = !refused && access(files.Output.c_str(), F_OK) == 0;
    return refused;
}

std::optional<GameEnd> LastGame::TakeEnd(const HostPlaces& places) {
    const auto record = watched_ ? BytesOf(GameFilesIn(places.State).End) : std::nullopt;
    std::optional<GameEnd> end = record ? ReadGameEnd(*record, token_) : std::nullopt;
    if (end) {
        watched_ = false;
        end->LastLines = EndOfText(OutputOfLastGame(places).value_or(""), kLastBytes);
    }
    return end;
}

std::optional<std::string> OutputOfLastGame(const HostPlaces& places) {
    const auto bytes = BytesOf(GameFilesIn(places.State).Output);
    return bytes ? std::optional(OutputText(*bytes)) : std::nullopt;
}

}  // namespace lv
