#include "launcher/drop/offer_dropped.h"

#include "catalogs/editors/add_exe.h"
#include "foundation/topmost.h"
#include "tests/launcher/drop/drop_fixture.h"
#include "transfer/settings_text.h"

namespace lv {
namespace {

class OfferDroppedTest : public DropTest {
  protected:
    void Drop(TextView word, std::size_t count = 1) {
        ASSERT_TRUE(NoteDropped(launcher, {.Word = Text(word), .Count = count, .Fault = {}}));
        OfferDropped(launcher);
    }
};

TEST_F(OfferDroppedTest, WhatWaitsIsOfferedOnce) {
    LoadGames();
    EXPECT_FALSE(DropIsDue(launcher));
    EXPECT_TRUE(NoteDropped(launcher, {.Word = "C:\\gone.txt", .Count = 1, .Fault = {}}));
    EXPECT_TRUE(DropIsDue(launcher));
    user.Expect({"Dropped File", "C:\\gone.txt", 0});
    OfferDropped(launcher);
    EXPECT_FALSE(DropIsDue(launcher));
    OfferDropped(launcher);
}

TEST_F(OfferDroppedTest, OneWaitsAndNoSecond) {
    LoadGames();
    EXPECT_TRUE(NoteDropped(launcher, {.Word = "qw://one", .Count = 1, .Fault = {}}));
    EXPECT_FALSE(NoteDropped(launcher, {.Word = "qw://two", .Count = 1, .Fault = {}}));
    EXPECT_EQ(launcher.Dropped.Word, "qw://one");
}

TEST_F(OfferDroppedTest, UnderADialogItWaits) {
    LoadGames();
    NoteDropped(launcher, {.Word = "C:\\gone.txt", .Count = 1, .Fault = {}});
    {
        const TopmostSuspension dialog(run);
        EXPECT_FALSE(DropIsDue(launcher));
        OfferDropped(launcher);
        EXPECT_TRUE(launcher.Dropped.IsThere());
    }
    EXPECT_TRUE(DropIsDue(launcher));
    launcher.LaunchUnderWay = true;
    EXPECT_FALSE(DropIsDue(launcher));
    launcher.LaunchUnderWay = false;
    run.Ended = true;
    EXPECT_FALSE(DropIsDue(launcher));
    EXPECT_FALSE(NoteDropped(launcher, {.Word = "C:\\gone.txt", .Count = 1, .Fault = {}}));
}

TEST_F(OfferDroppedTest, OfSeveralTheFirstIsOfferedAndTheUserIsToldSo) {
    LoadGames();
    user.Expect({"Dropped File", "This is the first of 3 that were dropped. The others are left alone.", 1});
    Drop("C:\\QUAKE\\CTF\\pak0.pak", 3);
}

TEST_F(OfferDroppedTest, WhatIsUnknownIsToldWhatCouldBeDropped) {
    LoadGames();
    Put("C:\\D\\notes.txt", "hello");
    user.Expect({"Dropped File", "These can be dropped: an archive", 0});
    Drop("C:\\D\\notes.txt");
    user.Expect({"Dropped File", "What is in it is not what its name says.", 0});
    Put("C:\\D\\no.pak", "hello");
    Drop("C:\\D\\no.pak");
    user.Expect({"Dropped File", "These can be dropped", 0});
    system.Disk.AddDirectory("C:\\EMPTY");
    Drop("C:\\EMPTY");
}

TEST_F(OfferDroppedTest, APathThatNoDriveHasIsTold) {
    LoadGames();
    user.Expect({"Dropped File", "What was dropped could not be reached: no such drive.", 0});
    NoteDropped(launcher, {.Word = "", .Count = 1, .Fault = {error::kPathNotFound, "no such drive"}});
    OfferDropped(launcher);
}

TEST_F(OfferDroppedTest, AProgramFillsTheEditorOfExecutablesIn) {
    LoadGames();
    Put("C:\\QUAKE\\WINQUAKE.EXE", "MZ");
    user.In<AddExe_Frm>([this](AddExe_Frm& form) {
        EXPECT_EQ(form.ExeTitle_Txt.Text, "WinQuake");
        EXPECT_EQ(form.ExePath_Txt.Text, "C:\\QUAKE\\WINQUAKE.EXE");
        user.Expect({"Lorvane 3D", "WinQuake now references", 0});
        AddExe_OK_Cmd_Click(form);
    });
    Drop("C:\\QUAKE\\WINQUAKE.EXE");
    EXPECT_EQ(window.Exe_Cbo.Items.back().Title, "WinQuake");
    EXPECT_EQ(window.Exe_Cbo.ListIndex, 6);
    EXPECT_TRUE(system.Programs.Started.empty());
}

TEST_F(OfferDroppedTest, AProgramsTitleIsTheEnginesOrItsName) {
    LoadGames();
    Put("C:\\QUAKE\\quakespasm",
        "\x7F"
        "ELF");
    user.In<AddExe_Frm>([](AddExe_Frm& form) { EXPECT_EQ(form.ExeTitle_Txt.Text, "QuakeSpasm"); });
    Drop("C:\\QUAKE\\quakespasm");
    Put("C:\\QUAKE\\my,engine.exe", "MZ");
    user.In<AddExe_Frm>([](AddExe_Frm& form) { EXPECT_EQ(form.ExeTitle_Txt.Text, "my engine"); });
    Drop("C:\\QUAKE\\my,engine.exe");
}

TEST_F(OfferDroppedTest, ExportedSettingsAreImportedAfterTheirQuestion) {
    LoadGames();
    Put("C:\\D\\all.lv3d", WriteSettingsText({{"Options", "Games", "Only;-game ctf"}}).Value);
    user.Expect({"Import Settings", "in the place of yours?", 1});
    Drop("C:\\D\\all.lv3d");
    EXPECT_EQ(window.Exe_Cbo.Items.size(), 6u);
}

TEST_F(OfferDroppedTest, WhatOpensAWindowOfItsOwnAsksFirstIfThereWasMore) {
    LoadGames();
    Put("C:\\QUAKE\\WINQUAKE.EXE", "MZ");
    user.Expect({"Dropped File", "This is the first of 2", 1, false, false, "&Go On,&Cancel"});
    Drop("C:\\QUAKE\\WINQUAKE.EXE", 2);
    user.Expect({"Dropped File", "This is the first of 2", 0});
    user.In<AddExe_Frm>([](AddExe_Frm& form) { EXPECT_EQ(form.ExeTitle_Txt.Text, "WinQuake"); });
    Drop("C:\\QUAKE\\WINQUAKE.EXE", 2);
}

}  // namespace
}  // namespace lv
