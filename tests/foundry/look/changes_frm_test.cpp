#include "foundry/look/changes_frm.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/memory/memory_platform.h"
#include "tests/support/scripted_user.h"

namespace lv {

namespace {

class ChangesForm : public ::testing::Test {
  protected:
    static SaveLoss Loss(std::size_t line, TextView words, TextView reason, bool byUser = false) {
        SaveLoss loss;
        loss.ByUser = byUser;
        loss.Words = words;
        loss.Reason = reason;
        loss.Difference.Before.Line = line;
        return loss;
    }
    static SaveReport ReportOf(std::vector<SaveLoss> losses) {
        SaveReport report;
        report.Losses = std::move(losses);
        report.Keeps =
            std::ranges::any_of(report.Losses, [](const SaveLoss& loss) { return !loss.ByUser && loss.CanKeep; });
        return report;
    }
    static SaveReport Report() {
        return ReportOf({Loss(2, "The key Y loses \"+jump\".", "", true),
                         Loss(1, "The key ESCAPE loses \"togglemenu\".", "Setup Foundry has no key ESCAPE.")});
    }

    MemoryPlatform system;
    ScriptedUser user;
    lv::Run run{system.Services, user};
    SaveTexts texts{"bind escape togglemenu\nbind y +jump\n", "bind y +attack\n"};
};

}  // namespace

TEST_F(ChangesForm, SaysInWordsWhatIsLostAndWhyAndPutsTheUsersOwnChangesLast) {
    const Changes_Frm form(run, Report(), texts, ChangesTime::Saving);
    EXPECT_EQ(form.Caption, "What This Save Changes");
    EXPECT_EQ(form.Losses_Lbl.Caption,
              "For the game this save loses or changes 1 thing that you have not changed yourself. 'Keep These' saves "
              "it too:");
    EXPECT_EQ(form.Losses_Lst.Items,
              (std::vector<Text>{"The key ESCAPE loses \"togglemenu\". Setup Foundry has no key ESCAPE.",
                                 "The key Y loses \"+jump\". You have changed that."}));
}

TEST_F(ChangesForm, SaysWhatCannotBeKept) {
    SaveReport report = Report();
    report.Losses.push_back(Loss(3, "The key B loses \"say http://a\".", "Setup Foundry ends a line at //."));
    report.Losses.back().CanKeep = false;
    report.Losses.push_back(Loss(0, "The setting joystick gets \"0\".", "Setup Foundry writes it into each script."));
    report.Losses.back().CanKeep = false;
    report.Losses.back().Difference.Kind = DifferenceKind::Added;
    const Changes_Frm form(run, report, texts, ChangesTime::Saving);
    EXPECT_EQ(
        form.Losses_Lbl.Caption,
        "For the game this save loses or changes 3 things that you have not changed yourself. 'Keep These' saves 1 "
        "of them too:");
    EXPECT_EQ(form.Losses_Lst.Items[1],
              "The key B loses \"say http://a\". Setup Foundry ends a line at //. It cannot be kept.");
    EXPECT_EQ(form.Losses_Lst.Items[2], "The setting joystick gets \"0\". Setup Foundry writes it into each script.");
    report.Losses.erase(report.Losses.begin() + 1);  // the one that can be kept
    const Changes_Frm next(run, report, texts, ChangesTime::Saving);
    EXPECT_EQ(
        next.Losses_Lbl.Caption,
        "For the game this save loses or changes 2 things that you have not changed yourself. 'Keep These' sees to "
        "it that the next save changes nothing more:");
    report.Keeps = false;
    const Changes_Frm none(run, report, texts, ChangesTime::Saving);
    EXPECT_EQ(
        none.Losses_Lbl.Caption,
        "For the game this save loses or changes 2 things that you have not changed yourself. They cannot be kept:");
    EXPECT_FALSE(none.Keep_Cmd.Enabled);
    EXPECT_EQ(none.Focus, "Close_Cmd");
}

TEST_F(ChangesForm, SaysWhichEditsComeToNothing) {
    SaveReport report = Report();
    SaveLoss vain = Loss(0, "The key n keeps \"slot2\", and the page says \"+jump\".", "The line x runs behind.");
    vain.IsOverridden = true;
    report.Losses.insert(report.Losses.begin(), vain);
    const Changes_Frm form(run, report, texts, ChangesTime::Saving);
    EXPECT_EQ(
        form.Losses_Lbl.Caption,
        "For the game this save loses or changes 1 thing that you have not changed yourself, and 1 of your changes "
        "comes to nothing. 'Keep These' saves them too:");
    EXPECT_EQ(form.Losses_Lst.Items[0],
              "The key n keeps \"slot2\", and the page says \"+jump\". The line x runs behind. 'Keep These' takes it "
              "out.");
    vain.CanKeep = false;
    const Changes_Frm alone(run, ReportOf({vain, vain}), texts, ChangesTime::Saving);
    EXPECT_EQ(alone.Losses_Lbl.Caption, "For the game 2 of your changes come to nothing. They cannot be kept:");
    EXPECT_EQ(alone.Losses_Lst.Items[0],
              "The key n keeps \"slot2\", and the page says \"+jump\". The line x runs behind. Change or delete it "
              "there.");
}

TEST_F(ChangesForm, ShowsTheSelectedRowWhole) {
    Changes_Frm form(run, Report(), texts, ChangesTime::Saving);
    EXPECT_EQ(form.Loss_Txt.Text, "The key ESCAPE loses \"togglemenu\". Setup Foundry has no key ESCAPE.");
    form.Losses_Lst.ListIndex = 1;
    Changes_Losses_Lst_Click(form);
    EXPECT_EQ(form.Loss_Txt.Text, "The key Y loses \"+jump\". You have changed that.");
    const Changes_Frm none(run, {}, {"a\n", "a\n"}, ChangesTime::Looking);
    EXPECT_EQ(none.Loss_Txt.Text, "");
}

TEST_F(ChangesForm, KeepsByDefaultAndCanSaveOrCancel) {
    const Changes_Frm form(run, Report(), texts, ChangesTime::Saving);
    EXPECT_TRUE(form.Keep_Cmd.Default);
    EXPECT_EQ(form.Keep_Cmd.Caption, "&Keep These");
    EXPECT_EQ(form.Save_Cmd.Caption, "&Save Anyway");
    EXPECT_EQ(form.Close_Cmd.Caption, "&Cancel");
    EXPECT_TRUE(form.Save_Cmd.Visible);
    EXPECT_EQ(form.Focus, "Keep_Cmd");
}

TEST_F(ChangesForm, WhoOnlyLooksCannotSaveHere) {
    const Changes_Frm form(run, Report(), texts, ChangesTime::Looking);
    EXPECT_FALSE(form.Save_Cmd.Visible);
    EXPECT_EQ(form.Close_Cmd.Caption, "&Close");
    EXPECT_TRUE(form.Keep_Cmd.Enabled);
}

TEST_F(ChangesForm, WithoutALossThereIsNothingToKeep) {
    const Changes_Frm own(run, ReportOf({Loss(2, "The key Y loses \"+jump\".", "", true)}), texts,
                          ChangesTime::Looking);
    EXPECT_EQ(own.Losses_Lbl.Caption, "For the game this save changes nothing but what you have changed yourself:");
    EXPECT_FALSE(own.Keep_Cmd.Enabled);
    EXPECT_EQ(own.Focus, "Close_Cmd");
    const Changes_Frm none(run, {}, {"a\n", "a\n"}, ChangesTime::Looking);
    EXPECT_EQ(none.Losses_Lbl.Caption, "For the game this save changes nothing.");
    EXPECT_EQ(none.Difference_Lbl.Caption, "The file holds these very lines already.");
    EXPECT_FALSE(none.NextChange_Cmd.Enabled);
}

TEST_F(ChangesForm, AClickOnALossShowsItsLine) {
    Changes_Frm form(run, Report(), texts, ChangesTime::Looking);
    EXPECT_EQ(form.Losses_Lst.ListIndex, 0);  // the first one is shown at once
    ASSERT_GE(form.Difference_Lst.ListIndex, 0);
    EXPECT_EQ(form.Difference_Lst.Rows()[static_cast<std::size_t>(form.Difference_Lst.ListIndex)].LeftLine, 1u);
    form.Losses_Lst.ListIndex = 1;
    Changes_Losses_Lst_Click(form);
    EXPECT_EQ(form.Difference_Lst.Rows()[static_cast<std::size_t>(form.Difference_Lst.ListIndex)].LeftLine, 2u);
}

TEST_F(ChangesForm, AClickOnWhatComesUnaskedShowsItBesideTheLineThatItIsMadeOf) {
    texts = {"alias tp_1 \"say_team need health\"\nsay \"my page is http://x.y/z\"\n", "say \"my page is http:\n"};
    SaveReport report = ReportOf({Loss(0, "\"say \"my page is http:\" is run.", "")});
    report.Losses.back().Difference.After.Line = 1;
    const Changes_Frm form(run, report, texts, ChangesTime::Looking);
    ASSERT_GE(form.Difference_Lst.ListIndex, 0);
    const DifferenceRow& row = form.Difference_Lst.Rows()[static_cast<std::size_t>(form.Difference_Lst.ListIndex)];
    EXPECT_EQ(row.Left, "say \"my page is http://x.y/z\"");
    EXPECT_EQ(row.Right, "say \"my page is http:");
}

TEST_F(ChangesForm, AScriptThatIsTooLongIsSaidAboveAll) {
    SaveReport report;
    report.TooLong = "The game would run nothing of it.";
    const Changes_Frm form(run, report, texts, ChangesTime::Saving);
    EXPECT_EQ(form.Losses_Lbl.Caption, "The game would run nothing of it.");
}

TEST_F(ChangesForm, EachButtonAnswers) {
    const auto answerOf = [&](void (*click)(Changes_Frm&)) {
        Changes_Frm form(run, Report(), texts, ChangesTime::Saving);
        click(form);
        EXPECT_TRUE(form.Closed);
        return form.Answer;
    };
    EXPECT_EQ(answerOf(Changes_Keep_Cmd_Click), ChangesAnswer::Keep);
    EXPECT_EQ(answerOf(Changes_Save_Cmd_Click), ChangesAnswer::Save);
    EXPECT_EQ(answerOf(Changes_Close_Cmd_Click), ChangesAnswer::Leave);
}

}  // namespace lv
