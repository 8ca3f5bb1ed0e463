// launcher/setups/setup.h
//
// A setup: what is ticked and picked in the main window, by what the rows stand for, so that it can be picked again.

#pragma once

#include <optional>
#include <span>
#include <vector>

#include "foundation/controls.h"
#include "launch/option_boxes.h"

namespace lv {

struct Launcher;
struct LV_Frm;

struct Setup {
    Text Name;
    Text ExecutablePath;  // "\" as the separator
    OptionSet Ticked;     // of the boxes that the game shows

    // The rows that were selected, ticked or not, by what a launch gets of them.
    std::optional<Text> Modification;  // "-game ctf"
    std::optional<Text> Memory;        // "-winmem 16"
    std::optional<Text> Script;        // full path
    std::optional<Text> Demo;          // "playdemo demo1.dem"
    std::optional<Text> Server;        // "host;port;type;password"
    std::optional<Text> Map;           // "START"

    Text VideoProfile;  // its name
    Text CommandLineAdditions;

    bool operator==(const Setup&) const = default;
};

/// One of the six lists that a box stands beside.
struct SetupRow {
    std::optional<Text> Setup::*Value;
    Option Box;
    ListBox LV_Frm::*List;
    bool (*Pick)(Launcher&, TextView);
    const char* What;  // "modification", in a message
};

std::span<const SetupRow> SetupRows();

/// What the window holds at this moment, without a name.
Setup SetupOf(const Launcher& launcher);

/// Whether both start the same: names and the rows of boxes that are not ticked don't count.
bool StartTheSame(const Setup& a, const Setup& b);

/// A row as a message names it: the directory of a modification, the address of a server without its password.
Text ShownRow(const SetupRow& row, TextView value);

/// Ticks and picks in the window what the setup says, as its user would, each key written. Says in plain words what is
/// not there any more: its box is unticked, and no other row takes its place. If the executable is not in its list
/// nothing is changed at all, and that is the only thing said. Look at run.Ended afterwards.
std::vector<Text> ApplySetup(Launcher& launcher, const Setup& setup);

}  // namespace lv
