// launcher/drop/dropped_thing.h
//
// What a path or a word is that was dropped on the window, or stands behind the program's name: told by its name and
// its first bytes, a row a kind. Whatever is dropped costs no more than that.
// Formats: id Software PAK ("PACK") and Sin's ("SPAK"), zip; maps of Quake and Hexen II (29, "BSP2", "2PSB"), of
// Half-Life (30), of Quake II and Heretic II ("IBSP"), of Sin ("RBSP"), and Unreal's packages.

#pragma once

#include <optional>
#include <vector>

#include "catalogs/server_word.h"
#include "foundation/game.h"
#include "platform/files.h"

namespace lv {

enum class DroppedKind { Unknown, Archive, Map, Script, Program, Server, Settings, Directory };

constexpr std::size_t kLongestDroppedWord = 4096;

struct DroppedThing {
    DroppedKind Kind = DroppedKind::Unknown;
    Text Path;                // on the drives, without a "\" at its end; of a server the word itself
    ServerLink Server;        // the scheme is empty for a plain address
    std::vector<Game> Games;  // that it is for; empty: any
    bool IsZip = false;       // of an archive
    Text Why;                 // of what is unknown, where there is something to say: a sentence
};

/// Whether the word is a server's link or address, by its spelling alone. A name with the ending of a file is none.
bool IsServerWord(TextView word);

/// A path on the drives, or a server.
DroppedThing ThingOf(Files& disk, TextView word);

/// "archive", "start map"; as a message says it.
TextView NameOf(DroppedKind kind);

}  // namespace lv
