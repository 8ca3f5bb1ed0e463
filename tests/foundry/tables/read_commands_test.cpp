// Which command means which slot, beside the listing of all spellings in all kinds.

#include <gtest/gtest.h>

#include <map>
#include <set>

#include "foundry/document/script_document.h"
#include "foundry/document/written_commands.h"
#include "foundry/tables/read_commands.h"
#include "foundry/tables/slots.h"
#include "tests/foundry/listing_recognition.h"

namespace lv {
namespace {

using listing::kKinds;
using listing::kRecognition;

std::set<Text> ListedCommands() {
    std::set<Text> commands;
    for (const auto& row : kRecognition) {
        commands.insert(row.Command);
    }
    return commands;
}

void ExpectUnknownInAllKinds(const Text& command) {
    for (const Game kind : kKinds) {
        const SlotMatch match = SlotFromCommand(command, kind);
        EXPECT_FALSE(match.Known) << "\"" << command << "\" in " << NumberOf(kind);
        EXPECT_EQ(match.Slot, kNoSlot) << "\"" << command << "\" in " << NumberOf(kind);
    }
}

void ExpectUnknownUnlessListed(const std::set<Text>& listed, const Text& command) {
    const bool hasCapital = command.find_first_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ") != Text::npos;
    if (!listed.contains(command) && !hasCapital) {
        ExpectUnknownInAllKinds(command);
    }
}

TEST(RecognitionTable, TheListingNamesEachCommandOnce) {
    EXPECT_EQ(std::size(kRecognition), 256u);
    EXPECT_EQ(ListedCommands().size(), 256u);
}

TEST(RecognitionTable, EachCommandMeansTheListedSlotInEachKind) {
    for (const auto& row : kRecognition) {
        for (std::size_t i = 0; i < kKinds.size(); ++i) {
            const SlotMatch match = SlotFromCommand(row.Command, kKinds[i]);
            EXPECT_TRUE(match.Known) << row.Command << " in " << NumberOf(kKinds[i]);
            EXPECT_EQ(match.Slot, row.Slots[i]) << row.Command << " in " << NumberOf(kKinds[i]);
        }
    }
}

TEST(RecognitionTable, AnotherKindsCommandIsKnownAndHasNoSlot) {
    const SlotMatch match = SlotFromCommand("impulse 20", Game::Quake2);
    EXPECT_TRUE(match.Known);
    EXPECT_EQ(match.Slot, kNoSlot);
    EXPECT_EQ(SlotFromCommand("impulse 20", Game::Quake).Slot, 1001);
    EXPECT_TRUE(SlotFromCommand("impulse 13", Game::Quake).Known);
    EXPECT_EQ(SlotFromCommand("impulse 13", Game::Quake).Slot, kNoSlot);
}

TEST(RecognitionTable, TheLookOfUnrealIsReadAsNoSlot) {
    ExpectUnknownInAllKinds("look");
}

TEST(RecognitionTable, OtherCommandsAreUnknown) {
    for (const char* const command : listing::kUnknownCommands) {
        ASSERT_FALSE(ListedCommands().contains(command)) << command;
        ExpectUnknownInAllKinds(command);
    }
}

TEST(RecognitionTable, NoOtherImpulseIsKnown) {
    const auto listed = ListedCommands();
    for (int number = -1; number <= 300; ++number) {
        ExpectUnknownUnlessListed(listed, "impulse " + std::to_string(number));
    }
}

TEST(RecognitionTable, NoTextOfOneOrTwoBytesIsKnown) {
    for (int first = 0; first < 256; ++first) {
        const Text one(1, static_cast<char>(first));
        EXPECT_FALSE(SlotFromCommand(one, Game::Quake).Known) << first;
        for (int second = 0; second < 256; ++second) {
            EXPECT_FALSE(SlotFromCommand(one + static_cast<char>(second), Game::Quake).Known) << first << " " << second;
        }
    }
}

TEST(RecognitionTable, ACommandWithOneByteAmissIsUnknownUnlessListed) {
    const auto listed = ListedCommands();
    for (const Text& command : listed) {
        ExpectUnknownUnlessListed(listed, command + " ");
        ExpectUnknownUnlessListed(listed, " " + command);
        ExpectUnknownUnlessListed(listed, command + ";");
        ExpectUnknownUnlessListed(listed, "+" + command);
        ExpectUnknownUnlessListed(listed, "use " + command);
        ExpectUnknownUnlessListed(listed, "\"" + command + "\"");
        ExpectUnknownUnlessListed(listed, command + '\0');
        for (std::size_t at = 0; at < command.size(); ++at) {
            ExpectUnknownUnlessListed(listed, Text(command).erase(at, 1));
            for (const char other : TextView("0123456789e+ ")) {
                Text changed = command;
                changed[at] = other;
                ExpectUnknownUnlessListed(listed, changed);
            }
        }
    }
}

/// A fixed slot whose own command is read as something else: another slot, another kind's (None), or nothing known.
struct Astray {
    int Slot;
    int ReadAs;
    bool Known;
};

/// All fixed slots of the kind whose commands, as FillCommandTable gives them, don't lead back to them.
void ExpectReadBackButFor(Game kind, const std::vector<Astray>& astray) {
    ScriptDocument document;
    FillCommandTable(document, kind);
    std::map<int, Astray> expected;
    for (const Astray& row : astray) {
        expected[row.Slot] = row;
    }
    for (const SlotNumber slot : SlotNumbers()) {
        Text command = document.SlotCommand[slot];
        if (command.empty()) {
            EXPECT_FALSE(expected.contains(slot)) << slot << " in " << NumberOf(kind);
            continue;
        }
        for (char& c : command) {
            c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
        }
        const SlotMatch match = SlotFromCommand(command, kind);
        const Astray row = expected.contains(slot) ? expected[slot] : Astray{slot, slot, true};
        EXPECT_EQ(match.Slot, row.ReadAs) << slot << " in " << NumberOf(kind) << ": " << command;
        EXPECT_EQ(match.Known, row.Known) << slot << " in " << NumberOf(kind) << ": " << command;
    }
}

constexpr int None = listing::None;

TEST(RecognitionTable, CommandsOfQuakeLeadBackToTheirSlots) {
    ExpectReadBackButFor(Game::Quake, {{1104, None, true}});
}

TEST(RecognitionTable, CommandsOfHexen2LeadBackButForWeaponsItHasNot) {
    ExpectReadBackButFor(Game::Hexen2, {{205, None, true},
                                        {206, None, true},
                                        {207, None, true},
                                        {208, None, true},
                                        {1001, None, true},
                                        {1002, None, true},
                                        {1003, None, true},
                                        {1004, None, true},
                                        {1005, None, true},
                                        {1104, 905, true}});
}

TEST(RecognitionTable, CommandsOfQuake2LeadBackButForTheCrouch) {
    ExpectReadBackButFor(Game::Quake2, {{112, None, true},
                                        {1001, None, true},
                                        {1002, None, true},
                                        {1003, None, true},
                                        {1004, None, true},
                                        {1005, None, true}});
}

TEST(RecognitionTable, CommandsOfSinLeadBackButForTheCrouch) {
    ExpectReadBackButFor(Game::Sin, {{112, None, true},
                                     {1001, None, true},
                                     {1002, None, true},
                                     {1003, None, true},
                                     {1004, None, true},
                                     {1005, None, true}});
}

TEST(RecognitionTable, CommandsOfHeretic2LeadBackButForTheRun) {
    ExpectReadBackButFor(Game::Heretic2, {{114, 908, true},
                                          {1001, None, true},
                                          {1002, None, true},
                                          {1003, None, true},
                                          {1004, None, true},
                                          {1005, None, true},
                                          {1104, 905, true}});
}

TEST(RecognitionTable, CommandsOfHalfLifeLeadBackButForTheSecondJump) {
    ExpectReadBackButFor(Game::HalfLife, {{112, 109, true},
                                          {1001, None, true},
                                          {1002, None, true},
                                          {1003, None, true},
                                          {1004, None, true},
                                          {1005, None, true}});
}

TEST(RecognitionTable, CommandsOfUnrealLeadBackButForTheLookAndThoseThatBeginWithABlank) {
    ExpectReadBackButFor(Game::Unreal, {{115, None, false},
                                        {408, None, false},
                                        {410, None, false},
                                        {411, None, false},
                                        {412, None, false},
                                        {413, None, false},
                                        {1001, None, true},
                                        {1002, None, true},
                                        {1003, None, true},
                                        {1004, None, true},
                                        {1005, None, true}});
}

}  // namespace
}  // namespace lv
