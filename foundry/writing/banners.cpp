#include "foundry/writing/banners.h"

#include <cstdio>

#include "foundation/field_strings.h"

namespace lv {

namespace {

constexpr std::size_t kKeyWidth = 15;

constexpr TextView kEchoLines[] = {
    "echo |========================|", "echo |........................|", "echo |..Setup Foundry ROCKS!..|",
    "echo |........................|", "echo |========================|",
};

}  // namespace

void AddBanner(Text& script, TextView line) {
    for (const TextView text : {kBannerEdge, kBannerGap, line, kBannerGap, kBannerEdge}) {
        AddLine(script, text);
    }
}

void AddDateLine(Text& script, const LocalTime& date) {
    AddLine(script, "//* ", ScriptDate(date), "      *//");
}

void AddEchoLines(Text& script) {
    for (const TextView line : kEchoLines) {
        AddLine(script, line);
    }
}

void AddBindLine(Text& script, TextView key, TextView command, TextView comment) {
    const Text name = PadToWidth(Join(DoubleQuote, key, DoubleQuote), kKeyWidth);
    if (comment.empty()) {
        AddLine(script, "bind ", name, Blank, DoubleQuote, command, DoubleQuote);
    } else {
        AddLine(script, "bind ", name, Blank, DoubleQuote, command, DoubleQuote, TwoBlanks, "//* ", comment);
    }
}

Text ScriptDate(const LocalTime& date) {
    char digits[48];
    (void)std::snprintf(digits, sizeof digits, "%02d/%02d/%04d", date.Month, date.Day, date.Year);
    return digits;
}

}  // namespace lv
