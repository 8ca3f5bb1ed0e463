// commands/command_words.h
//
// The words behind the program's name: a row an option, and what they ask for.

#pragma once

#include <optional>
#include <span>
#include <vector>

#include "foundation/text.h"
#include "platform/error.h"

namespace lv {

enum class Verb {
    OpenWindow,  // with a file or an address, or nothing
    Help,
    Version,
    List,
    Launch,  // a game, or a setup
    Check,
    Export,
    Import,
};

enum class Listed { Programs, Setups, Modifications, Maps, Scripts, Servers, VideoProfiles };

struct Command {
    Verb What = Verb::OpenWindow;
    Text Subject;  // the file of Check, Export and Import; what OpenWindow is given
    Listed Kind = Listed::Programs;
    // Of Launch; the title and the setup also say whose lists List shows, the title whose console Check asks.
    std::optional<Text> Title{};
    std::optional<Text> Setup{};
    std::optional<Text> Modification{};
    std::optional<Text> Map{};
    std::optional<Text> Script{};
    std::optional<Text> Server{};
    std::optional<Text> VideoProfile{};
    bool DryRun = false;
    bool Tell = false;  // what goes wrong, in a window
};

struct OptionWord {
    TextView Word;   // "--launch"
    TextView Value;  // what has to follow, as the help calls it; empty: nothing; in "[]": it may follow
    TextView Help;   // a sentence
};

/// In the order of the help.
std::span<const OptionWord> AllOptionWords();

struct ListWord {
    TextView Word;  // "mods"
    Listed Kind = Listed::Programs;
};
std::span<const ListWord> AllListWords();

/// What the words ask for; "--map=DM4" is as good as "--map DM4", and "--" ends the options. The error says in a
/// sentence what is wrong, and what may have been meant.
Result<Command> ReadCommand(const std::vector<Text>& words);

/// What "--help" prints. Lines end in "\n".
Text HelpText();

}  // namespace lv
