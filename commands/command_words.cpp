#include "commands/command_words.h"

#include <algorithm>
#include <iterator>

#include "commands/close_name.h"
#include "foundation/field_strings.h"
#include "foundation/numbers.h"
#include "foundation/shown_name.h"

namespace lv {

namespace {

// clang-format off
constexpr OptionWord kOptionWords[] = {
    {"--help", "", "Shows these words."},
    {"--version", "", "Shows the program's version."},
    {"--list", "[KIND]", "Lists the games' programs, the setups, or of the picked game mods, maps, scripts, servers or profiles."},
    {"--launch", "TITLE", "Starts the program of that title, with what is ticked in the main window."},
    {"--setup", "NAME", "Starts the setup of that name."},
    {"--mod", "NAME", "Plays this modification, by its title or its directory."},
    {"--map", "NAME", "Starts on this map."},
    {"--script", "NAME", "Runs this player script, by its title or its file."},
    {"--server", "HOST:PORT", "Joins this server, by its address or its title."},
    {"--profile", "NAME", "Uses this video profile."},
    {"--dry-run", "", "Starts nothing: shows what would be written and started, and what is missing."},
    {"--tell", "", "Tells in a window what goes wrong, as a start from a desktop must."},
    {"--check", "SCRIPT", "Shows what the game takes otherwise than it is meant in a script; beside --launch, what that program does."},
    {"--export", "FILE", "Writes all settings, profiles and setups into one file."},
    {"--import", "FILE", "Takes them from such a file."},
};

constexpr ListWord kListWords[] = {
    {"programs", Listed::Programs},
    {"setups", Listed::Setups},
    {"mods", Listed::Modifications},
    {"maps", Listed::Maps},
    {"scripts", Listed::Scripts},
    {"servers", Listed::Servers},
    {"profiles", Listed::VideoProfiles},
};

struct ShortWord {
    TextView Word;
    TextView Long;
};
constexpr ShortWord kShortWords[] = {
    {"-h", "--help"},
    {"-?", "--help"},
    {"/?", "--help"},
    {"-V", "--version"},
};

struct VerbRow {
    TextView Word;
    Verb What;
};
// One of these at most; "--launch" beside "--list" or "--check" only says whose lists, or whose console, are meant.
constexpr VerbRow kVerbs[] = {
    {"--help", Verb::Help},     {"--version", Verb::Version}, {"--list", Verb::List},     {"--launch", Verb::Launch},
    {"--setup", Verb::Launch},  {"--check", Verb::Check},     {"--export", Verb::Export}, {"--import", Verb::Import},
};

struct ValueRow {
    TextView Word;
    std::optional<Text> Command::* Value;
    bool ForLists;   // it may stand beside "--list"
    bool ForChecks;  // or "--check"
};
constexpr ValueRow kValues[] = {
    {"--launch", &Command::Title, true, true},
    {"--setup", &Command::Setup, true, false},
    {"--mod", &Command::Modification, true, false},
    {"--map", &Command::Map, false, false},
    {"--script", &Command::Script, false, false},
    {"--server", &Command::Server, false, false},
    {"--profile", &Command::VideoProfile, false, false},
};
// clang-format on

constexpr std::size_t kHelpColumn = 22;
constexpr std::size_t kHelpWidth = 80;

Error Fault(const Text& text) {
    return {error::kInvalidCall, text};
}

/// In any letter case.
const OptionWord* OptionCalled(TextView word) {
    const auto* option =
        std::ranges::find_if(kOptionWords, [word](const OptionWord& each) { return SameText(each.Word, word); });
    return option != std::end(kOptionWords) ? option : nullptr;
}

/// A list that no game has for itself.
bool IsOfAllGames(Listed kind) {
    return kind == Listed::Programs || kind == Listed::Setups;
}

TextView LongWord(TextView word) {
    const auto* row = std::ranges::find(kShortWords, word, &ShortWord::Word);
    return row != std::end(kShortWords) ? row->Long : word;
}

bool MayHaveValue(const OptionWord& option) {
    return !option.Value.empty();
}

bool MustHaveValue(const OptionWord& option) {
    return MayHaveValue(option) && !option.Value.starts_with('[');
}

Text InQuotes(TextView name) {
    return Join("\"", Shown(name), "\"");
}

/// Reads the words one by one into the command.
class Reader {
  public:
    explicit Reader(const std::vector<Text>& words) : words_(words) {}

    Result<Command> Read() {
        while (at_ < words_.size()) {
            if (Error failed = ReadWord(words_[at_++])) {
                return failed;
            }
        }
        if (Error failed = Check()) {
            return failed;
        }
        return command_;
    }

  private:
    Error ReadWord(const Text& word) {
        if (!onlyNames_ && word == "--") {
            onlyNames_ = true;
            return {};
        }
        const bool isOption = !onlyNames_ && (word.starts_with('-') || word == "/?") && word.size() > 1;
        return isOption ? ReadOption(word) : TakeName(word);
    }

    Error ReadOption(const Text& word) {
        const std::size_t equals = word.find('=');
        const TextView name = LongWord(TextView(word).substr(0, equals));
        const OptionWord* const option = OptionCalled(name);
        if (option == nullptr) {
            return Unknown(TextView(word).substr(0, equals));
        }
        if (std::ranges::find(given_, option->Word) != given_.end()) {
            return Fault(Join(option->Word, " stands there twice."));
        }
        given_.push_back(option->Word);
        std::optional<Text> value;
        if (equals != Text::npos) {
            value = word.substr(equals + 1);
        }
        if (value && !MayHaveValue(*option)) {
            return Fault(Join(option->Word, " takes no value."));
        }
        if (!value && MayHaveValue(*option) && at_ < words_.size() && TakesNext(*option)) {
            value = words_[at_++];
        }
        if (MustHaveValue(*option) && (!value || value->empty())) {
            return Fault(Join("Behind ", option->Word, " a word is missing: ", option->Value, "."));
        }
        return Take(*option, value);
    }

    // A name may begin with a "-", as maps and players' names do; an option's word is none.
    [[nodiscard]] bool TakesNext(const OptionWord& option) const {
        const TextView next = words_[at_];
        const TextView word = LongWord(next.substr(0, next.find('=')));
        return OptionCalled(word) == nullptr && (MustHaveValue(option) || !next.starts_with('-'));
    }

    Error Take(const OptionWord& option, const std::optional<Text>& value) {
        if (const auto* row = std::ranges::find(kValues, option.Word, &ValueRow::Word); row != std::end(kValues)) {
            command_.*(row->Value) = value;
        }
        if (option.Word == "--dry-run") {
            command_.DryRun = true;
        }
        if (option.Word == "--tell") {
            command_.Tell = true;
        }
        if (option.Word == "--list" && value) {
            const auto* kind =
                std::ranges::find_if(kListWords, [&](const ListWord& each) { return SameText(each.Word, *value); });
            if (kind == std::end(kListWords)) {
                return UnknownKind(*value);
            }
            command_.Kind = kind->Kind;
        }
        const auto* verb = std::ranges::find(kVerbs, option.Word, &VerbRow::Word);
        if (verb == std::end(kVerbs)) {
            return {};
        }
        if (value && verb->What != Verb::Launch && verb->What != Verb::List) {
            command_.Subject = *value;
        }
        return SetVerb(*verb);
    }

    Error SetVerb(const VerbRow& row) {
        if (verbWord_.empty() || GoesBeside(verbWord_, row.What)) {
            verbWord_ = row.Word;
            command_.What = row.What;
            return {};
        }
        if (GoesBeside(row.Word, command_.What)) {
            return {};
        }
        return Fault(Join(row.Word, " and ", verbWord_, " do not go together."));
    }

    /// Whether a launch's word only says more of the other verb.
    static bool GoesBeside(TextView launchWord, Verb verb) {
        const auto* const row = std::ranges::find(kValues, launchWord, &ValueRow::Word);
        return row != std::end(kValues) &&
               ((verb == Verb::List && row->ForLists) || (verb == Verb::Check && row->ForChecks));
    }

    Error TakeName(const Text& word) {
        if (hasName_) {
            return Fault(Join("One file or address at a time, and ", InQuotes(word), " is one more."));
        }
        hasName_ = true;
        name_ = word;
        return {};
    }

    Error Check() {
        if (hasName_ && command_.What != Verb::OpenWindow) {
            return Fault(Join("What is ", InQuotes(name_), " for? A title of several words stands in quotes."));
        }
        if (hasName_) {
            command_.Subject = name_;
        }
        if (command_.Title && command_.Setup) {
            return Fault("--launch and --setup do not go together.");
        }
        if (command_.Map && command_.Server) {
            return Fault("--map and --server do not go together: a server says itself which map it plays.");
        }
        for (const ValueRow& row : kValues) {
            const bool fits = command_.What == Verb::Launch || GoesBeside(row.Word, command_.What);
            if ((command_.*(row.Value)).has_value() && !fits) {
                return Fault(Join(row.Word, " goes with --launch or --setup."));
            }
        }
        if (command_.DryRun && command_.What != Verb::Launch) {
            return Fault("--dry-run goes with --launch or --setup.");
        }
        if (command_.Tell && command_.What != Verb::Launch) {
            return Fault("--tell goes with --launch or --setup.");
        }
        return CheckListOfAllGames();
    }

    /// Such a list is the same whatever is launched, so that a launch beside it was meant to be one.
    [[nodiscard]] Error CheckListOfAllGames() const {
        if (command_.What != Verb::List || !IsOfAllGames(command_.Kind)) {
            return {};
        }
        for (const ValueRow& row : kValues) {
            if ((command_.*(row.Value)).has_value()) {
                return Fault(Join("--list and ", row.Word,
                                  " do not go together, but for the lists of a game: --list maps, say."));
            }
        }
        return {};
    }

    static Error Unknown(TextView word) {
        std::vector<Text> known;
        for (const OptionWord& option : kOptionWords) {
            known.emplace_back(option.Word);
        }
        return Fault(Join("There is no option ", InQuotes(word), ".", MeantWords(word, known)));
    }

    static Error UnknownKind(TextView word) {
        std::vector<Text> known;
        for (const ListWord& kind : kListWords) {
            known.emplace_back(kind.Word);
        }
        return Fault(Join("There is no list of ", InQuotes(word), ".", MeantWords(word, known)));
    }

    const std::vector<Text>& words_;
    std::size_t at_ = 0;
    bool onlyNames_ = false;
    bool hasName_ = false;
    Text name_;
    TextView verbWord_;
    std::vector<TextView> given_;
    Command command_;
};

/// The sentence in lines of the help's width, all behind the column.
Text Wrapped(TextView sentence) {
    Text lines;
    std::size_t column = kHelpColumn;
    for (std::size_t at = 0; at < sentence.size();) {
        const std::size_t end = std::min(sentence.find(' ', at), sentence.size());
        const TextView word = sentence.substr(at, end - at);
        if (column + word.size() >= kHelpWidth) {
            lines += Join("\n", Text(kHelpColumn, ' '));
            column = kHelpColumn;
        } else if (column > kHelpColumn) {
            lines += ' ';
            ++column;
        }
        lines += word;
        column += word.size();
        at = end + 1;
    }
    return lines;
}

Text Padded(Text text, std::size_t width) {
    text.resize(std::max(width, text.size() + 1), ' ');
    return text;
}

}  // namespace

std::span<const OptionWord> AllOptionWords() {
    return kOptionWords;
}

std::span<const ListWord> AllListWords() {
    return kListWords;
}

Result<Command> ReadCommand(const std::vector<Text>& words) {
    return Reader(words).Read();
}

Text HelpText() {
    Text help =
        "Lorvane 3D starts the shooters of 1996 to 1999, and today's engines for them.\n"
        "\n"
        "  lorvane3d                       opens the main window\n"
        "  lorvane3d FILE                  opens it, and offers what fits an archive,\n"
        "                                  a map, a script or a program\n"
        "  lorvane3d ADDRESS               the same for a server: qw://host:port\n"
        "  lorvane3d --launch TITLE [...]  starts a game without the window\n"
        "\n";
    for (const OptionWord& option : kOptionWords) {
        const Text word = Join("  ", option.Word, option.Value.empty() ? "" : " ", option.Value);
        help += Join(Padded(word, kHelpColumn), Wrapped(option.Help), "\n");
    }
    help +=
        "\n"
        "It ends with 0 when all is done, 1 when it could not be done, 2 when it did not\n"
        "understand the words, 3 when nothing is called so, and 4 when a check is sure of\n"
        "something or a dry run misses something.\n";
    return help;
}

}  // namespace lv
