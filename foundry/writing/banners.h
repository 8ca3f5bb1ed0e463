// foundry/writing/banners.h
//
// What every script of this program looks like, whoever writes it: banners, the echo lines, a binding's line, the date.

#pragma once

#include "foundation/text.h"
#include "platform/clock.h"

namespace lv {

// A banner's third line.
constexpr TextView kSetupFoundryLine = "//* Setup Foundry   *//";
constexpr TextView kSettingsLine = "//* Settings        *//";
constexpr TextView kAliasesLine = "//* Aliases         *//";
constexpr TextView kBindingsLine = "//* Bindings        *//";
constexpr TextView kFreeFormLine = "//* Free Form       *//";

// The two lines around it, on both sides.
constexpr TextView kBannerEdge = "//*/////////////////*//";
constexpr TextView kBannerGap = "//*                 *//";

/// Adds the parts as one line, ended by CR LF.
template <class... Parts>
void AddLine(Text& script, const Parts&... parts) {
    (script.append(TextView(parts)), ...);
    script += NewLine;
}

/// A banner of five lines around `line`.
void AddBanner(Text& script, TextView line);

/// A banner's line with the date.
void AddDateLine(Text& script, const LocalTime& date);

/// The five lines that the game shows when it runs the script.
void AddEchoLines(Text& script);

/// The key's name fills 15 characters with its quotes, and is cut there.
void AddBindLine(Text& script, TextView key, TextView command, TextView comment = "");

/// "mm/dd/yyyy".
Text ScriptDate(const LocalTime& date);

}  // namespace lv
