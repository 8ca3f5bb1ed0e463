// launch/option_boxes.h
//
// The option check boxes of the main window: which there are, what each says and where it is kept, and the set of those
// that are ticked. A new option is an enumerator here with its row in option_boxes.cpp, a row of command_line_switches
// for what it adds to a launch, and its place in the form.

#pragma once

#include <bitset>
#include <cstddef>
#include <initializer_list>
#include <span>

namespace lv {

/// Named as the controls are, in the order in which they are loaded and saved.
enum class Option {
    Memory_Chk,
    Game_Chk,
    Script_Chk,
    Demo_Chk,
    Server_Chk,
    Dedicated_Chk,
    Listen_Chk,
    Map_Chk,
    QSpy_Chk,
    LaunchQspy_Chk,
    Bench_Chk,
    NOLAN_Chk,
    NOUDP_Chk,
    NOCDAUDIO_Chk,
    nosound_chk,
    ShowSet_Chk,
    EndOnLaunch_Chk,
    CommandLineAdditions_Chk,
    UnrealSimulateFirstRun_Chk,
    UnrealDisableLogWindow_Chk,
    UnrealDisableK6Support_Chk,
    UnrealDisableMMXSupport_Chk,
    UnrealNoDirectSound_Chk,
    UnrealNoCDNeeded_Chk,
    Count,
};

constexpr std::size_t kOptionCount = static_cast<std::size_t>(Option::Count);

/// For which games a box is there; it is hidden for the others.
enum class OptionGames { Every, NotUnreal, Unreal };

struct OptionBox {
    Option Box;
    const char* Name;     // the control's name
    const char* Caption;  // "" for a box that stands beside its list
    const char* Key;      // in "Options"; "": not kept
    int Default;
    const char* ToolTip;
    OptionGames Games = OptionGames::Every;
};

/// All of them, in the order of Option.
std::span<const OptionBox> OptionBoxes();
const OptionBox& OptionBoxOf(Option option);

class OptionSet {
  public:
    constexpr OptionSet() = default;
    constexpr OptionSet(std::initializer_list<Option> options) : ticked_(BitsOf(options)) {}

    [[nodiscard]] constexpr bool Has(Option option) const { return ticked_[static_cast<std::size_t>(option)]; }
    void Set(Option option, bool ticked = true) { ticked_.set(static_cast<std::size_t>(option), ticked); }

    bool operator==(const OptionSet&) const = default;

  private:
    static constexpr unsigned long long BitsOf(std::initializer_list<Option> options) {
        static_assert(kOptionCount <= 64);
        unsigned long long bits = 0;
        for (const Option option : options) {
            bits |= 1ULL << static_cast<unsigned>(option);
        }
        return bits;
    }

    std::bitset<kOptionCount> ticked_;
};

}  // namespace lv
