#include "commands/transfer_command.h"

#include "commands/unseen/printing_user.h"
#include "foundation/shown_name.h"
#include "transfer/import_settings.h"
#include "transfer/import_words.h"
#include "transfer/settings_file.h"

namespace lv {

namespace {

Text PathOf(TextView word, const CommandPlace& place) {
    return place.PathOfWord ? place.PathOfWord(word) : Text(word);
}

CommandResult Failed(TextView word, const CommandPlace& place, const Error& fault) {
    return {.Code = fault.Number == error::kFileNotFound ? exit_code::kNothingCalledSo : exit_code::kFailed,
            .Err = Join("\"", Shown(word), "\": ", PrintedFault(place, fault, PathOf(word, place)))};
}

Text Lines(TextView head, const std::vector<Text>& rows) {
    Text lines;
    for (const Text& row : FirstFew(rows)) {
        lines += Join("  ", row, NewLine);
    }
    return rows.empty() ? Text() : Join(head, NewLine, lines);
}

Text Moves(const std::vector<PathMove>& moves, const CommandPlace& place) {
    std::vector<Text> rows;
    rows.reserve(moves.size());
    for (const PathMove& move : moves) {
        rows.push_back(Join(move.From, " -> ", PrintedPath(place, move.To)));
    }
    return Lines("Games that lie elsewhere here:", rows);
}

}  // namespace

CommandResult ExportToFile(TextView word, const CommandPlace& place) {
    PrintingUser user;
    Run run(place.System, user);
    const Error refused = FaultOfFileName(word);  // of which its whole path says nothing
    const auto done = refused ? Result<ExportedSettings>(refused) : ExportSettings(run, PathOf(word, place));
    if (!done.Ok()) {
        return Failed(word, place, done.Fault);
    }
    return {.Out = Join(std::to_string(done.Value.Values), " settings are in the file ", Shown(word),
                        ". The passwords of your servers are among them.", NewLine),
            .Err = Lines("Such a file cannot hold, as they are too long:", done.Value.LeftOut)};
}

CommandResult ImportFromFile(TextView word, const CommandPlace& place) {
    PrintingUser user;
    Run run(place.System, user);
    const auto takeLikely = [](const MovedPlace&, TextView likely) {
        return likely.empty() ? std::nullopt : std::optional<Text>(likely);
    };
    const Result<ImportedSettings> done = ImportSettings(run, PathOf(word, place), takeLikely);
    if (!done.Ok()) {
        CommandResult failed = Failed(word, place, done.Fault);
        failed.Err += Join(NewLine, "The settings are as they were.", NewLine);
        return failed;
    }
    const ImportedSettings& imported = done.Value;
    return {.Out = Join(ChangedText(imported.Changed), NewLine, Moves(imported.Moved, place),
                        Lines("Not here, and left as the file has them:", imported.LeftPlaces),
                        Lines("As they were:", imported.Kept),
                        imported.Backup.empty()
                            ? Text()
                            : Join("What was there before is kept: ", PrintedPath(place, imported.Backup), NewLine))};
}

}  // namespace lv
