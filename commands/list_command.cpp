#include "commands/list_command.h"

#include <algorithm>

#include "catalogs/catalog_store.h"
#include "commands/launch_choice.h"
#include "commands/listed_rows.h"
#include "commands/unseen/unseen_launcher.h"
#include "foundation/field_strings.h"
#include "foundation/settings.h"
#include "foundation/shown_name.h"
#include "games/games.h"
#include "launcher/played/played_games.h"
#include "launcher/played/played_words.h"

namespace lv {

namespace {

/// A field holds no tab: it would be two.
Text Field(TextView value) {
    Text field(value);
    std::ranges::replace(field, '\t', ' ');
    return field;
}

Text GameName(Files& disk, TextView program) {
    const GameFacts& facts = FactsOfDirectory(disk, DirectoryOf(program));
    return facts.GameKind == Game::None ? Text() : Text(facts.Name);
}

/// Without a load of the launcher: of the stored catalog alone.
CommandResult ListPrograms(const CommandPlace& place) {
    UnseenLauncher unseen(place);
    Run& run = unseen.TheRun;
    const auto rows = SplitRows(CatalogValue(run, kExecutables), kExecutables.RecordSize);
    if (!rows) {
        return {.Code = exit_code::kFailed, .Err = "The stored list of programs is damaged."};
    }
    CommandResult result;
    for (std::size_t i = 0; i < rows->Count(); ++i) {
        const Text path = ReplaceSameLength(Trim(rows->Field(i, 1)), "/", "\\");
        const PlayRecord played = PlayedOf(run, path);
        result.Out +=
            Join(Field(Trim(rows->Field(i, 0))), TabChar, GameName(run.System.Disk, path), TabChar, Field(path),
                 TabChar, LastPlayedField(played.Last), TabChar, PlayTimeText(played.Seconds), NewLine);
    }
    return result;
}

CommandResult ListOfGame(const Command& command, const CommandPlace& place) {
    UnseenLauncher unseen(place);
    if (const Text why = unseen.Load(); !why.empty()) {
        return {.Code = exit_code::kFailed, .Err = why};
    }
    Text notes;
    const std::vector<Text> missing = Choose(unseen.Its, command, notes);
    if (!missing.empty()) {
        return NotCalledSo(missing);
    }
    CommandResult result;
    for (const NamedRow& row : RowsOf(unseen.Its, command.Kind)) {
        const bool hasMore = command.Kind == Listed::Scripts || !row.OtherName.empty();
        const Text& more = command.Kind == Listed::Scripts ? row.Value : row.OtherName;
        result.Out += Join(Field(row.Title), hasMore ? TabChar : "", hasMore ? Field(more) : Text(), NewLine);
    }
    return result;
}

}  // namespace

CommandResult ListRows(const Command& command, const CommandPlace& place) {
    return command.Kind == Listed::Programs ? ListPrograms(place) : ListOfGame(command, place);
}

}  // namespace lv
