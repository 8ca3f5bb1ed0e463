// What real engines execute, in which order, and whose word counts at last: trees of scripts made up by chance, in
// archives and beside them, are run by the engine and foretold.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>

#include "console/files/start_run.h"
#include "platform/linux/files/linux_files.h"
#include "sample/small_quake.h"
#include "tests/catalogs/packed_files.h"
#include "tests/support/test_paths.h"

namespace lv {

namespace {

namespace fs = std::filesystem;
using Strings = std::vector<std::string>;

constexpr int kScripts = 14;
constexpr int kAliases = 6;

struct RealEngine {
    const char* Program;
    const char* Arguments;
    Console Of;
    const char* Name;
    const char* Modification;
    Strings Places;  // "id1/pak0.pak", "id1"
};

const RealEngine kDarkPlaces{
    "/usr/games/darkplaces-server",
    "-game ctf",
    Console::DarkPlaces,
    "DarkPlaces server",
    "ctf",
    {"id1/pak0.pak", "id1/pak1.pak", "id1/zz.pak", "id1/aa.pk3", "id1", "ctf/pak0.pak", "ctf"}};
const RealEngine kQuakeSpasm{"/usr/games/quakespasm",
                             "-dedicated 1",
                             Console::QuakeSpasm,
                             "QuakeSpasm",
                             "",
                             {"id1/pak0.pak", "id1/pak1.pak", "id1/pak3.pak", "id1"}};

class MadeUpTree {
  public:
    MadeUpTree(const RealEngine& engine, unsigned seed) : random_(seed) {
        for (const std::string& place : engine.Places) {
            for (int i = 0; i < kScripts; ++i) {
                if (Chance(3)) {
                    Files[place].push_back({Name(i), Script(place, i)});
                }
            }
        }
        // Who runs last asks what each alias has become.
        std::string last = "echo LAST\n";
        for (int i = 0; i < kAliases; ++i) {
            last += "a" + std::to_string(i) + "\n";
        }
        Files["id1"].push_back({"last.cfg", last + "quit\n"});
        Files["id1"].push_back({"autoexec.cfg", "exec s0.cfg\nexec s1.cfg; exec s2.cfg\nexec s3.cfg"});
        Files["id1"].push_back({"gfx.wad", Text("WAD2\0\0\0\0\x0C\0\0\0", 12)});
        Files["id1/pak1.pak"].push_back({"gfx/pop.lmp", RegisteredMark("/usr/games/quakespasm")});
        Files["id1/pak0.pak"].push_back({"quake.rc", "exec autoexec.cfg\nstuffcmds\n"});
    }

    std::map<std::string, std::vector<Packed>> Files;

  private:
    bool Chance(int of) { return Number(of) == 0; }
    int Number(int below) { return static_cast<int>(random_() % static_cast<unsigned>(below)); }
    static std::string Name(int i) { return "s" + std::to_string(i) + ".cfg"; }

    /// Executes those behind it alone.
    std::string Script(const std::string& place, int number) {
        const std::string mark = place + "/" + Name(number);
        std::string text = "echo RUN " + mark;
        const std::string run = "run" + std::to_string(number);  // one's own: nobody runs another's again
        for (int i = Number(6); i > 0; --i) {
            text += Chance(3) ? "; " : "\n";
            const std::string later = Name(number + 1 + Number(kScripts - number));
            switch (Number(4)) {
                case 0:
                    text += "exec " + later;
                    break;
                case 1:
                    text += "alias " + run + " \"exec " + later + "; echo RAN\"\n" + run;
                    break;
                case 2:
                    text += "// exec " + later;
                    break;
                default:
                    text += "alias a" + std::to_string(Number(kAliases)) + " \"echo IS " + mark + "\"";
            }
        }
        return text + (Chance(2) ? "\n" : "");
    }

    std::mt19937 random_;
};

/// A home with a game in "quake".
struct Yard {
    Yard() : Disk((fs::remove_all(Root), DriveDirectories{Root / "data/drives", Root / "wine", Root / "program"})) {}

    void AddFile(const std::string& file, const std::string& bytes) const {
        fs::create_directories((Game / file).parent_path());
        std::ofstream(Game / file, std::ios::binary) << bytes;
    }

    fs::path Root = fs::path(TestBinaryDir()) / "yards/engines/start_order";
    fs::path Game = Root / "quake";
    LinuxFiles Disk;
};

void Put(const Yard& yard, const MadeUpTree& tree) {
    for (const auto& [place, files] : tree.Files) {
        if (place.ends_with(".pak")) {
            yard.AddFile(place, PackedFiles(files));
        } else if (place.ends_with(".pk3")) {
            std::vector<Zipped> zipped;
            for (const Packed& file : files) {
                zipped.push_back(StoredFile(file.Name, file.Content));
            }
            yard.AddFile(place, ZippedFiles(zipped));
        } else {
            for (const Packed& file : files) {
                yard.AddFile(place + "/" + file.Name, file.Content);
            }
        }
    }
}

/// What the engine says of scripts and aliases, a line each; "couldn't exec" of those that are not there.
Strings SaidBy(const RealEngine& engine, const Yard& yard) {
    const std::string command = "cd '" + yard.Game.string() + "' && HOME='" + yard.Root.string() + "' timeout 60 " +
                                engine.Program + " " + engine.Arguments + " +exec last.cfg </dev/null 2>&1";
    Strings lines;
    FILE* const output = popen(command.c_str(), "r");
    std::array<char, 1024> buffer{};
    while (output != nullptr && std::fgets(buffer.data(), static_cast<int>(buffer.size()), output) != nullptr) {
        std::string line = buffer.data();
        line.resize(line.find_last_not_of(" \r\n") + 1);
        for (const char* const start : {"RUN ", "IS ", "couldn't exec s"}) {
            if (line.starts_with(start)) {
                lines.push_back(line);
            }
        }
    }
    EXPECT_NE(output == nullptr ? -1 : pclose(output), -1);
    return lines;
}

/// The same, foretold.
Strings Foretold(const RealEngine& engine, Yard& yard) {
    const Text directory = yard.Disk.FromHost(yard.Game.string());
    const StartRun run = RunStart(yard.Disk, {.Played = {.Of = engine.Of,
                                                         .GameKind = Game::Quake,
                                                         .Directory = directory,
                                                         .Modification = engine.Modification,
                                                         .Engine = engine.Name},
                                              .Commands = {"exec last.cfg"}});
    Strings lines;
    for (const RunScript& script : run.Scripts) {
        std::string place = script.Path.substr(0, script.Inner.empty() ? script.Path.rfind('\\') : Text::npos);
        std::replace(place.begin(), place.end(), '\\', '/');
        if (!script.Name.starts_with("s")) {
            continue;
        }
        lines.push_back(script.Fate == ScriptFate::Ran ? "RUN " + place.substr(directory.size() + 1) + "/" + script.Name
                                                       : "couldn't exec " + script.Name);
    }
    for (int i = 0; i < kAliases; ++i) {
        if (const SetThing* const alias = run.Set.Find(EffectKind::Alias, "a" + std::to_string(i))) {
            lines.push_back(alias->Setters.back().Value.substr(std::string("echo ").size()));
            const RunScript& by = run.Scripts.at(alias->Setters.back().Script);
            EXPECT_TRUE(lines.back().ends_with("/" + by.Name)) << "the last to set it is another: " << by.Name;
        }
    }
    return lines;
}

void ExpectAsForetold(const RealEngine& engine, unsigned seeds) {
    std::size_t runs = 0;
    for (unsigned seed = 1; seed <= seeds; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        Yard yard;
        Put(yard, MadeUpTree(engine, seed));
        const Strings foretold = Foretold(engine, yard);
        EXPECT_EQ(SaidBy(engine, yard), foretold);
        runs += foretold.size();
    }
    EXPECT_GT(runs, seeds * 5) << "the trees have hardly anything in them";
}

}  // namespace

TEST(StartOrderOfEngines, IsForetoldOfDarkPlaces) {
    ExpectAsForetold(kDarkPlaces, 60);
}

TEST(StartOrderOfEngines, IsForetoldOfQuakeSpasm) {
    ExpectAsForetold(kQuakeSpasm, 60);
}

}  // namespace lv
