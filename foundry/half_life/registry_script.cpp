#include "foundry/half_life/registry_script.h"

#include <algorithm>

#include "foundation/field_strings.h"
#include "foundation/settings.h"
#include "foundry/writing/banners.h"

namespace lv {

namespace {

constexpr TextView kHeadLines[] = {
    kBannerEdge,
    kBannerGap,
    kSetupFoundryLine,
    "//*  Half-Life      *//",
    "//*  Registry       *//",
    "//*  Conversion     *//",
    kBannerGap,
};

// In one word here.
constexpr TextView kClosingLine = "//* SetupFoundry    *//";

struct CodeRun {
    int First;
    int Last;
};

constexpr CodeRun kConvertedCodes[] = {{0, 32}, {42, 152}, {200, 240}, {255, 255}};

constexpr int kLineFeedCode = 10;
constexpr int kDoubleQuoteCode = 34;

struct Setting {
    TextView Keyword;
    TextView Cvar;
};

// On the way back not all of kHalfLifeCvars have a keyword.
constexpr Setting kSettings[] = {
    {"a3d", "a3d"},
    {"autoaim", "autoaim"},
    {"bgmvolume", "bgmvolume"},
    {"brightness", "brightness"},
    {"crosshair", "crosshair"},
    {"gamma", "gamma"},
    {"himodels", "himodels"},
    {"lookspring", "lookspring"},
    {"lookstrafe", "lookstrafe"},
    {"m_pitch", "m_pitch"},
    {"mfilter", "mfilter"},
    {"model", "model"},
    {"plate color", "plate color"},
    {"plate_color", "plate color"},  // as the script spells it
    {"rate", "Rate"},
    {"s_eax", "s_eax"},
    {"sensitivity", "sensitivity"},
    {"suitvolume", "suitvolume"},
    {"viewsize", "viewsize"},
    {"volume", "volume"},
    {"s_volume", "volume"},  // as the editor writes it
    {"windowed_mouse", "windowed_mouse"},
};

Text OneLine(Text text) {
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
    return text;
}

void AddBindings(Text& script, const HalfLifePlayer& player) {
    for (int code = 0; code < kHalfLifeKeyCodes; ++code) {
        const Text& command = player.Keys[static_cast<std::size_t>(code)];
        if (!command.empty() && IsConvertedKey(code)) {
            AddBindLine(script, HalfLifeKeyName(code), OneLine(command));
        }
    }
}

void AddSettings(Text& script, const HalfLifePlayer& player) {
    AddLine(script, "name \"", OneLine(player.Nickname), DoubleQuote);
    for (std::size_t i = 0; i < kHalfLifeCvars.size(); ++i) {
        if (!player.Cvars[i].empty()) {
            AddLine(script, ReplaceSameLength(kHalfLifeCvars[i], " ", "_"), Blank, OneLine(player.Cvars[i]));
        }
    }
}

/// A line's first three words; the others mean nothing here.
struct Words {
    Text Keyword;
    TextView Value;
    TextView Value2;
};

TextView TakeWord(TextView& rest) {
    return TrimmedView(StripQuotesView(NextQuotedWord(rest, kScriptBlanks)));
}

/// No keyword is longer.
Text KeywordOf(TextView word) {
    constexpr std::size_t kLongest = 16;
    return word.size() > kLongest ? Text() : LowerCase(word);
}

Words WordsOf(TextView line) {
    Words words{KeywordOf(TakeWord(line)), TakeWord(line), {}};
    if (words.Keyword == "set") {
        return {KeywordOf(words.Value), TakeWord(line), {}};
    }
    words.Value2 = TakeWord(line);
    return words;
}

// Nothing that a player typed is longer than the longest of our own values.
void Take(Text& place, TextView value) {
    if (!value.empty() && value.size() <= kLongestValue) {
        place = value;
    }
}

Text& CvarOf(HalfLifePlayer& player, TextView name) {
    const auto found = std::find(kHalfLifeCvars.begin(), kHalfLifeCvars.end(), name);
    return player.Cvars[static_cast<std::size_t>(found - kHalfLifeCvars.begin())];
}

void TakeSetting(HalfLifePlayer& player, const Words& words) {
    for (const Setting& setting : kSettings) {
        if (words.Keyword == setting.Keyword) {
            Take(CvarOf(player, setting.Cvar), words.Value);
        }
    }
}

void TakeLine(HalfLifePlayer& player, const Words& words) {
    if (words.Keyword == "bind") {
        const int code = HalfLifeKeyCode(KeyFromName(LowerCase(words.Value)));
        if (code != kNoHalfLifeKey) {
            Take(player.Keys[static_cast<std::size_t>(code)], words.Value2);
        }
    } else if (words.Keyword == "name") {
        Take(player.Nickname, words.Value);
    } else if (words.Keyword == "+mlook") {
        Take(CvarOf(player, "mlook"), "1");
    } else if (words.Keyword == kMixAhead || words.Keyword == "s_mixahead") {
        Take(player.MixAhead, words.Value);
    } else {
        TakeSetting(player, words);
    }
}

}  // namespace

bool IsConvertedKey(int code) {
    return code != kDoubleQuoteCode && code != kLineFeedCode &&  // both would end the key's name
           std::any_of(std::begin(kConvertedCodes), std::end(kConvertedCodes),
                       [code](const CodeRun& run) { return code >= run.First && code <= run.Last; });
}

Text HalfLifeScript(const HalfLifePlayer& player, const LocalTime& date) {
    Text script;
    for (const TextView line : kHeadLines) {
        AddLine(script, line);
    }
    AddDateLine(script, date);
    AddLine(script, kBannerGap);
    AddLine(script, kBannerEdge);
    AddLine(script);
    AddEchoLines(script);
    AddLine(script);
    AddBanner(script, kBindingsLine);
    AddLine(script);
    AddBindings(script, player);
    AddBanner(script, kSettingsLine);
    AddSettings(script, player);
    script = ReplaceText(ReplaceText(script, "mlook 1", "+mlook"), "mlook 0", "-mlook");
    AddBanner(script, kClosingLine);
    return script;
}

HalfLifePlayer ReadHalfLifeScript(ScriptLines& lines) {
    // The aliases, which other readers collect first, have no place in the registry.
    HalfLifePlayer player;
    std::span<char> bytes;
    while (lines.Next(bytes)) {
        const TextView line(bytes.data(), bytes.size());
        TakeLine(player, WordsOf(line.substr(0, line.find("//"))));
    }
    return player;
}

}  // namespace lv
