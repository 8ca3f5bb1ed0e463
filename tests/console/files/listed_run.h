// tests/console/files/listed_run.h
//
// A game on a disk in memory, and what its start comes to, as a test writes it down.

#pragma once

#include "console/files/start_run.h"
#include "platform/memory/memory_files.h"
#include "tests/catalogs/packed_files.h"

namespace lv {

/// Quake's directory, and another's.
struct GameDisk {
    GameDisk() { Disk.AddDirectory("C:\\QUAKE\\ID1"); }

    void Add(TextView path, TextView content) { Disk.AddFile(Join("C:\\QUAKE\\", path), content); }
    void AddPak(TextView path, const std::vector<Packed>& files) { Add(path, PackedFiles(files)); }

    StartRun Run() { return RunStart(Disk, Request); }

    MemoryFiles Disk;
    StartRequest Request{.Played = {.Of = Console::Quake, .GameKind = Game::Quake, .Directory = "C:\\QUAKE"}};
};

inline Text PathBelowGame(TextView path) {
    constexpr TextView kGame = "C:\\QUAKE\\";
    return Text(StartsWithText(path, kGame) ? path.substr(kGame.size()) : path);
}

/// A script a line: indented by its depth, what "exec" was given, where it was found, and what became of it.
inline Text Scripts(const StartRun& run) {
    constexpr TextView kFates[] = {"",          " (stood in)", " (missing)", " (loop)", " (too deep)", " (too long)",
                                   " (unread)", " (refused)",  " (pattern)"};
    Text all;
    for (const RunScript& script : run.Scripts) {
        all += Join(Text(script.Depth, ' '), script.Name, script.Path.empty() ? "" : " ", PathBelowGame(script.Path),
                    script.Inner.empty() ? "" : "/", script.Inner, kFates[static_cast<int>(script.Fate)], "\n");
    }
    return all;
}

/// "a.cfg:3 +attack, b.cfg:1 -": who sets it, in order, and to what.
inline Text Setters(const StartRun& run, EffectKind kind, TextView identity) {
    Text all;
    const SetThing* const thing = run.Set.Find(kind, identity);
    for (const Setter& setter : thing == nullptr ? std::vector<Setter>() : thing->Setters) {
        const Text script = setter.Script == kNoScript ? "engine" : run.Scripts[setter.Script].Name;
        all += Join(all.empty() ? "" : ", ", script, ":", std::to_string(setter.Line), " ",
                    setter.IsSet ? setter.Value : "-", setter.Alias.empty() ? "" : " by ", setter.Alias);
    }
    return all;
}

inline Text Binds(const StartRun& run, TextView key) {
    return Setters(run, EffectKind::Bind, key);
}

inline Text Aliases(const StartRun& run, TextView name) {
    return Setters(run, EffectKind::Alias, name);
}

inline Text Settings(const StartRun& run, TextView name) {
    return Setters(run, EffectKind::Setting, name);
}

}  // namespace lv
