#include "transfer/import_settings.h"

#include <algorithm>
#include <map>

#include "tests/transfer/transfer_fixture.h"
#include "transfer/backups.h"
#include "transfer/settings_text.h"

namespace lv {

namespace {

using Values = std::vector<StoredValue>;

constexpr TextView kFile = "C:\\HOME\\mine.txt";
constexpr TextView kCatalog = "Quake;C:\\GAMES\\QUAKE\\QUAKE.EXE;Quake2;C:\\GAMES\\Q2\\QUAKE2.EXE";

/// Says where each place is, and notes what it was asked.
struct Answers {
    std::map<Text, Text> Places;
    std::vector<Text> Asked;  // "directory -> likely"

    MovedPlaceQuestion Question() {
        return [this](const MovedPlace& place, TextView likely) {
            Asked.push_back(Join(place.Directory, " -> ", likely));
            const auto found = Places.find(place.Directory);
            return found == Places.end() ? std::nullopt : std::optional(found->second);
        };
    }
};

std::optional<Text> NeverAsked(const MovedPlace& place, TextView /*likely*/) {
    ADD_FAILURE() << place.Directory;
    return std::nullopt;
}

class ImportSettingsTest : public Transfer {
  protected:
    /// What `there` keeps becomes a file of `here`.
    void Carry() {
        EXPECT_EQ(ExportSettings(there.Run, kFile).Fault.Number, 0);
        here.TakeFile(there, kFile);
    }
    ImportedSettings Import(const MovedPlaceQuestion& ask = NeverAsked) {
        const auto imported = ImportSettings(here.Run, kFile, ask);
        EXPECT_EQ(imported.Fault.Text, "");
        return imported.Value;
    }
    /// A store with a value under each rule.
    void FillThere() {
        there.Put("Options", "Executables", kCatalog);
        there.Put("Options", "ExecutablesPos", "1");
        there.Put("Options", "Scripts", "my.cfg;c:\\games\\quake\\id1\\my.cfg");
        there.Put("Options", "Games", "Capture the Flag;-game ctf");
        there.Put("Options", "NetServers", "Home;localhost;26000;0;secret");
        there.Put("Options", "CustomCommandLineText", Text("+name \"\xC9t\xE9\0\t\r\n\"", 15));
        there.Put("Options", "VideoProfileList", "Base;Fast");
        there.Put("Options", "ResolutionsPos", "3");
        there.Put("Fast", "ResolutionsPos", "4");
        there.Put("DefaultScript", "c:\\games\\quake\\ID1", "c:\\games\\quake\\id1\\my.cfg");
        there.Put("SetupFoundry", "ExitOnSave", "1");
        there.Put("ShowMessage", "VideoProfiles", "0");
        there.Put("Setups", "Names", "1=Duel");
        there.Put("Setups", "Setup1", "1;Executable=C:\\GAMES\\QUAKE\\QUAKE.EXE;Ticked=Game_Chk");
        there.Put("Engines", "Seats", "C:\\GAMES\\QUAKE\\quakespasm;Z:\\usr\\games\\quakespasm");
        there.Put("LV-Stuff", "FirstTime", "0");
        there.Put("LV-Stuff", "VP_Version", "1");
        there.Put("LV-Stuff", "NVC_Version", "1");
        there.Put("LV-Stuff", "RunCount", "99");
        there.Put("LV_Frm", "Top", "100");
    }
    static void PutGames(Machine& machine, TextView quake, TextView quake2) {
        machine.System.Disk.AddFile(Join(quake, "\\QUAKE.EXE"));
        machine.System.Disk.AddFile(Join(quake2, "\\QUAKE2.EXE"));
    }
};

}  // namespace

TEST_F(ImportSettingsTest, GivesAFreshMachineTheSameSettings) {
    FillThere();
    Carry();
    PutGames(here, "C:\\GAMES\\QUAKE", "C:\\GAMES\\Q2");
    const ImportedSettings done = Import();
    EXPECT_EQ(done.Values, 17u);
    EXPECT_EQ(done.Changed, 18u);  // and FirstTime
    EXPECT_EQ(done.Backup, "");
    Values expected = CarriedOf(there.All());
    expected.push_back({"LV-Stuff", "FirstTime", "0"});
    const auto byName = [](const StoredValue& a, const StoredValue& b) {
        return std::pair(LowerCase(a.Section), LowerCase(a.Key)) < std::pair(LowerCase(b.Section), LowerCase(b.Key));
    };
    Values all = here.All();
    std::ranges::sort(all, byName);
    std::ranges::sort(expected, byName);
    EXPECT_EQ(all, expected);
}

TEST_F(ImportSettingsTest, EndsTheFirstStartAndKeepsWhatTheMachineHasCounted) {
    FillThere();
    Carry();
    here.Put("LV-Stuff", "RunCount", "3");
    here.Put("LV_Frm", "Top", "7");
    Answers answers;
    Import(answers.Question());
    EXPECT_EQ(here.Get("LV-Stuff", "FirstTime"), "0");
    EXPECT_EQ(here.Get("LV-Stuff", "VP_Version"), "1");
    EXPECT_EQ(here.Get("LV-Stuff", "NVC_Version"), "1");
    EXPECT_EQ(here.Get("LV-Stuff", "RunCount"), "3");
    EXPECT_EQ(here.Get("LV_Frm", "Top"), "7");
}

TEST_F(ImportSettingsTest, SaysOfOldValuesThatTheirLayoutIsOld) {
    there.Put("Options", "VidCard", "1");
    Carry();
    here.Put("LV-Stuff", "NVC_Version", "1");
    Import();
    EXPECT_EQ(here.Get("LV-Stuff", "NVC_Version"), "0");
}

TEST_F(ImportSettingsTest, AsksOnceForEachTreeAndMovesAllPathsInIt) {
    FillThere();
    Carry();
    PutGames(here, "D:\\Play\\Quake", "D:\\Play\\Q2");
    Answers answers{{{"C:\\GAMES\\QUAKE", "D:\\Play\\Quake"}, {"C:\\GAMES\\Q2", "D:\\Play\\Q2"}}, {}};
    const ImportedSettings done = Import(answers.Question());
    EXPECT_EQ(answers.Asked, (std::vector<Text>{"C:\\GAMES\\QUAKE -> ", "C:\\GAMES\\Q2 -> D:\\Play\\Q2"}));
    EXPECT_EQ(done.Moved.size(), 2u);
    EXPECT_TRUE(done.LeftPlaces.empty());
    EXPECT_EQ(here.Get("Options", "Executables"), "Quake;D:\\Play\\Quake\\QUAKE.EXE;Quake2;D:\\Play\\Q2\\QUAKE2.EXE");
    EXPECT_EQ(here.Get("Options", "Scripts"), "my.cfg;d:\\play\\quake\\id1\\my.cfg");
    EXPECT_EQ(here.Get("DefaultScript", "d:\\play\\quake\\id1"), "d:\\play\\quake\\id1\\my.cfg");
    EXPECT_EQ(here.Get("DefaultScript", "c:\\games\\quake\\id1"), "(none)");
    EXPECT_EQ(here.Get("Setups", "Setup1"), "1;Executable=D:\\Play\\Quake\\QUAKE.EXE;Ticked=Game_Chk");
    EXPECT_EQ(here.Get("Engines", "Seats"), "D:\\Play\\Quake\\quakespasm;Z:\\usr\\games\\quakespasm");
}

TEST_F(ImportSettingsTest, GoesToAnotherSystemAndBackWithoutAChange) {
    FillThere();
    PutGames(there, "C:\\GAMES\\QUAKE", "C:\\GAMES\\Q2");
    const Values before = CarriedOf(there.All());
    Carry();
    PutGames(here, "Z:\\home\\me\\Games\\Quake", "Z:\\home\\me\\Games\\Q2");
    Answers forth{{{"C:\\GAMES\\QUAKE", "Z:\\home\\me\\Games\\Quake"}, {"C:\\GAMES\\Q2", "Z:\\home\\me\\Games\\Q2"}},
                  {}};
    Import(forth.Question());
    EXPECT_NE(CarriedOf(here.All()), before);

    EXPECT_EQ(ExportSettings(here.Run, kFile).Fault.Number, 0);
    Machine third;
    PutGames(third, "C:\\GAMES\\QUAKE", "C:\\GAMES\\Q2");
    third.TakeFile(here, kFile);
    Answers back{{{"Z:\\home\\me\\Games\\Quake", "C:\\GAMES\\QUAKE"}, {"Z:\\home\\me\\Games\\Q2", "C:\\GAMES\\Q2"}},
                 {}};
    EXPECT_EQ(ImportSettings(third.Run, kFile, back.Question()).Fault.Number, 0);
    EXPECT_EQ(CarriedOf(third.All()), before);
}

TEST_F(ImportSettingsTest, LeavesAPlaceThatTheUserDoesNotName) {
    FillThere();
    Carry();
    Answers answers;
    const ImportedSettings done = Import(answers.Question());
    EXPECT_EQ(done.LeftPlaces, (std::vector<Text>{"C:\\GAMES\\QUAKE", "C:\\GAMES\\Q2"}));
    EXPECT_EQ(here.Get("Options", "Executables"), kCatalog);
}

TEST_F(ImportSettingsTest, RefusesAPlaceThatCannotStandInAListAndChangesNothing) {
    FillThere();
    Carry();
    here.Put("Options", "Games", "mine");
    const Values before = here.All();
    Answers answers{{{"C:\\GAMES\\QUAKE", "D:\\a;b"}}, {}};
    EXPECT_EQ(ImportSettings(here.Run, kFile, answers.Question()).Fault.Text,
              "\"D:\\a;b\" can't stand in the lists: \";\" parts their entries.");
    EXPECT_EQ(here.All(), before);
}

TEST_F(ImportSettingsTest, ReplacesAListByTheOneInTheFile) {
    there.Put("Options", "Games", "Capture;-game ctf");
    Carry();
    here.Put("Options", "Games", "Rogue;-game rogue");
    Import();
    EXPECT_EQ(here.Get("Options", "Games"), "Capture;-game ctf");
}

TEST_F(ImportSettingsTest, TakesWhatTheFileDoesNotSayAsNeverStored) {
    there.Put("Options", "Games", "Capture;-game ctf");
    Carry();
    here.Put("Options", "UseGames", "0");
    here.Put("Options", "Qspy", "1");
    here.Put("Options", "Scripts", "a.cfg;c:\\q\\a.cfg");
    here.Put("Options", "MemoryPos", "5");
    here.Put("ShowMessage", "VideoProfiles", "0");
    here.Put("Setups", "Names", "1=Duel");
    Import();
    EXPECT_EQ(here.Get("Options", "UseGames"), "1");
    EXPECT_EQ(here.Get("Options", "QSpy"), "0");
    EXPECT_EQ(here.Get("Options", "Scripts"), "");
    EXPECT_EQ(here.Get("Options", "MemoryPos"), "2");
    EXPECT_EQ(here.Get("ShowMessage", "VideoProfiles"), "(none)");
    EXPECT_EQ(here.Get("Setups", "Names"), "(none)");
    EXPECT_EQ(here.Get("Options", "UseDemos"), "(none)");
}

TEST_F(ImportSettingsTest, TakesAwayWhatTheFileDoesNotName) {
    there.Put("Options", "Games", "Capture;-game ctf");
    Carry();
    here.Put("Options", "WaterAlphaSetting", "3");
    here.Put("Options", "Windowed", "1");
    here.Put("Options", "FutureKey", "1");
    here.Put("Options", "VideoProfileList", "Base;Fast");
    here.Put("Fast", "UseRez", "1");
    here.Put("DefaultScript", "c:\\q\\id1", "c:\\q\\id1\\a.cfg");
    here.Put("SetupFoundry", "ExitOnSave", "1");
    here.Put("Setups", "Setup1", "1;Executable=C:\\Q.EXE");
    here.Put("Options", "ScriptEditor", "gedit");
    const ImportedSettings done = Import();
    EXPECT_EQ(CarriedOf(here.All()),
              (Values{{"Options", "Games", "Capture;-game ctf"}, {"Options", "VideoProfileList", ""}}));
    EXPECT_EQ(done.Changed, 11u);  // and the list of games, and FirstTime
    EXPECT_TRUE(done.Kept.empty());
    const auto copy = ReadSettingsFile(here.Run, done.Backup);
    EXPECT_EQ(copy.Value.size(), 9u) << "all of it is in the backup";
}

TEST_F(ImportSettingsTest, LeavesWhatIsOfThisMachine) {
    there.Put("Options", "Games", "Capture;-game ctf");
    Carry();
    const Values ours = {{"LV_Frm", "Top", "7"},
                         {"LV-Stuff", "RunCount", "3"},
                         {"LV-Stuff", "FirstTime", "0"},
                         {"LV-Stuff", "FollowedLinks", "a"},
                         {"Options", "OnTop", "Yes"},
                         {"Engines", "Advised", "1"},
                         {"LinkedTrees", "quake-1", "a"},
                         {"Elsewhere", "Key", "1"},
                         {"Options", "Long", Text(16001, 'x')}};
    for (const StoredValue& value : ours) {
        here.Put(value.Section, value.Key, value.Value);
    }
    const ImportedSettings done = Import();
    for (const StoredValue& value : ours) {
        EXPECT_EQ(here.Get(value.Section, value.Key), value.Value) << value.Key;
    }
    EXPECT_EQ(done.Kept, std::vector<Text>{"Options\\Long: too long for a backup"});
}

TEST_F(ImportSettingsTest, TellsWhatItKeeps) {
    there.Put("Options", "GameSpyLocation", "C:\\GameSpy");
    there.Put("Options", "ScriptEditor", "Z:\\usr\\bin\\gedit");
    Carry();
    here.Put("Options", "GameSpyLocation", "D:\\Spy");
    const ImportedSettings done = Import();
    EXPECT_EQ(done.Kept, (std::vector<Text>{"The place of GameSpy 3D: C:\\GameSpy is not here",
                                            "The text editor: Z:\\usr\\bin\\gedit is not here"}));
    EXPECT_EQ(here.Get("Options", "GameSpyLocation"), "D:\\Spy");
    EXPECT_EQ(here.Get("Options", "ScriptEditor"), "(none)");
}

TEST_F(ImportSettingsTest, TakesAProgramThatIsHere) {
    there.Put("Options", "GameSpyLocation", "C:\\GameSpy");
    there.Put("Options", "ScriptEditor", "wordpad.exe");
    Carry();
    here.System.Disk.AddDirectory("C:\\GameSpy");
    EXPECT_TRUE(Import().Kept.empty());
    EXPECT_EQ(here.Get("Options", "GameSpyLocation"), "C:\\GameSpy");
    EXPECT_EQ(here.Get("Options", "ScriptEditor"), "wordpad.exe");
}

TEST_F(ImportSettingsTest, LeavesACopyOfWhatWasThere) {
    there.Put("Options", "Games", "theirs");
    Carry();
    here.Put("Options", "Games", "mine");
    const ImportedSettings done = Import();
    const auto copy = ReadSettingsFile(here.Run, done.Backup);
    EXPECT_EQ(copy.Value, (Values{{"Options", "Games", "mine"}}));
}

TEST_F(ImportSettingsTest, DoesNothingWithoutACopy) {
    there.Put("Options", "Games", "theirs");
    Carry();
    here.Put("Options", "Games", "mine");
    here.System.Places.IsData = "X:\\nowhere";
    EXPECT_NE(ImportSettings(here.Run, kFile, NeverAsked).Fault.Number, 0);
    EXPECT_EQ(here.Get("Options", "Games"), "mine");
}

TEST_F(ImportSettingsTest, OfADamagedFileChangesNothing) {
    FillThere();
    EXPECT_EQ(ExportSettings(there.Run, kFile).Fault.Number, 0);
    const Text whole = there.System.Disk.Bytes(kFile);
    here.Put("Options", "Games", "mine");
    const Values before = here.All();
    for (std::size_t i = 0; i < whole.size(); ++i) {
        Text changed = whole;
        changed[i] = static_cast<char>(changed[i] ^ 1);
        here.System.Disk.AddFile(kFile, changed);
        EXPECT_EQ(ImportSettings(here.Run, kFile, NeverAsked).Fault.Number, 75) << i;
        here.System.Disk.AddFile(kFile, whole.substr(0, i));
        EXPECT_EQ(ImportSettings(here.Run, kFile, NeverAsked).Fault.Number, 75) << i;
    }
    EXPECT_EQ(here.All(), before);
    EXPECT_TRUE(Backups(here.Run).empty());
}

TEST_F(ImportSettingsTest, IsDoneWhollyOrNotAtAll) {
    FillThere();
    Carry();
    here.Put("Options", "Games", "mine");
    const Values before = here.All();
    here.System.Settings.RefuseGroups = MakeError(error::kDiskFull);
    Answers answers;
    EXPECT_EQ(ImportSettings(here.Run, kFile, answers.Question()).Fault.Number, 61);
    EXPECT_EQ(here.All(), before);
    here.System.Settings.RefuseGroups = {};
    here.System.Settings.RefuseWrites = MakeError(error::kPermissionDenied);
    EXPECT_EQ(ImportSettings(here.Run, kFile, answers.Question()).Fault.Number, 70);
    EXPECT_EQ(here.All(), before);
}

TEST_F(ImportSettingsTest, ReplacesAndCopiesWhatAnotherOneHasJustWritten) {
    there.Put("Options", "Games", "Capture;-game ctf");
    Carry();
    here.Put("Options", "Games", "mine");
    here.System.Settings.WhenAlone = [this] {
        here.Put("Options", "Games", "theirs");
        here.Put("Options", "Theirs", "1");
    };
    const ImportedSettings done = Import();
    EXPECT_EQ(CarriedOf(here.All()), (Values{{"Options", "Games", "Capture;-game ctf"}}));
    EXPECT_EQ(ReadSettingsFile(here.Run, done.Backup).Value,
              (Values{{"Options", "Games", "theirs"}, {"Options", "Theirs", "1"}}));
}

TEST_F(ImportSettingsTest, ThatMayNotWriteAloneChangesNothing) {
    there.Put("Options", "Games", "theirs");
    Carry();
    here.Put("Options", "Games", "mine");
    here.System.Settings.RefuseAlone = MakeError(error::kAlreadyOpen);
    EXPECT_EQ(ImportSettings(here.Run, kFile, NeverAsked).Fault.Number, 55);
    EXPECT_EQ(here.Get("Options", "Games"), "mine");
    EXPECT_TRUE(Backups(here.Run).empty());
}

TEST_F(ImportSettingsTest, OfTheSameSettingsWritesNothing) {
    FillThere();
    EXPECT_EQ(ExportSettings(there.Run, kFile).Fault.Number, 0);
    there.System.Settings.Log.clear();
    const auto done = ImportSettings(there.Run, kFile, [](const MovedPlace&, TextView) { return std::nullopt; });
    EXPECT_EQ(done.Value.Changed, 0u);
    EXPECT_TRUE(there.System.Settings.Log.empty());
}

TEST_F(ImportSettingsTest, OfABackupBringsBackWhatWasThere) {
    FillThere();
    const auto backup = KeepBackup(there.Run);
    const Values before = CarriedOf(there.All());
    there.Put("Options", "Executables", "Quake;C:\\GAMES\\QUAKE\\QUAKE.EXE");
    there.Put("Options", "UseScripts", "1");
    const auto values = ReadSettingsFile(there.Run, backup.Value);
    EXPECT_EQ(ImportValues(there.Run, values.Value, {}).Fault.Number, 0);
    EXPECT_EQ(there.Get("Options", "Executables"), kCatalog);
    EXPECT_EQ(there.Get("Options", "UseScripts"), "0");
    EXPECT_EQ(Backups(there.Run).size(), 2u);
}

TEST_F(ImportSettingsTest, SaysBeforehandWhatItChanges) {
    here.Put("Options", "Games", "Capture;-game ctf");
    here.Put("Options", "UseGames", "0");
    here.Put("Options", "FutureKey", "1");
    here.Put("LV-Stuff", "RunCount", "1");
    const auto changes = ChangesOfImport(
        here.Run, {{"Options", "Games", "Rogue;-game rogue"}, {"Options", "GameSpyLocation", "C:\\no"}});
    EXPECT_EQ(ChangesText(changes.Value), "2 list entries and 2 settings");
    here.System.Settings.RefuseReads = MakeError(error::kAlreadyOpen);
    EXPECT_EQ(ChangesOfImport(here.Run, {}).Fault.Number, 55);
}

TEST_F(ImportSettingsTest, OfWhatIsThereChangesNothing) {
    FillThere();
    EXPECT_FALSE(ChangesOfImport(there.Run, CarriedOf(there.All())).Value.Any());
}

}  // namespace lv
