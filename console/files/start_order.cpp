#include "console/files/start_order.h"

#include <algorithm>
#include <iterator>

namespace lv {

namespace {

using enum StartSort;

constexpr TextView kQuakeRc = "exec default.cfg\nexec config.cfg\nexec autoexec.cfg\nstuffcmds\n";
constexpr TextView kHexenRc = "exec default.cfg\nexec config.cfg\nexec autoexec.cfg\nmenu_main\nstuffcmds\n";
constexpr TextView kValveRc = "exec config.cfg\nexec autoexec.cfg\nstuffcmds\n";

constexpr bool kMayLack = true;

// clang-format off
constexpr StartStep kSteps[] = {
    {Console::Quake,      Rc,           "quake.rc",             kQuakeRc},
    {Console::QuakeWorld, Rc,           "quake.rc",             kQuakeRc},
    {Console::Hexen2,     Rc,           "hexen.rc",             kHexenRc},
    {Console::HexenWorld, Rc,           "hexen.rc",             kHexenRc},

    {Console::Quake2,     EarlySets},
    {Console::Quake2,     Script,       "default.cfg"},
    {Console::Quake2,     Script,       "config.cfg",           "",        kMayLack},
    {Console::Quake2,     EarlySets},
    {Console::Quake2,     IfLoose,      "autoexec.cfg",         "",        kMayLack},
    {Console::Quake2,     CommandLine},

    {Console::Heretic2,   EarlySets},
    {Console::Heretic2,   Script,       "default.cfg"},
    {Console::Heretic2,   Script,       "config.cfg",           "",        kMayLack},
    {Console::Heretic2,   EarlySets},
    {Console::Heretic2,   IfLoose,      "autoexec.cfg",         "",        kMayLack},
    {Console::Heretic2,   Script,       "menus.cfg",            "",        kMayLack},
    {Console::Heretic2,   Script,       "user.cfg",             "",        kMayLack},
    {Console::Heretic2,   CommandLine},

    {Console::Sin,        EarlySets},
    {Console::Sin,        Script,       "default.cfg"},
    {Console::Sin,        Script,       "config.cfg",           "",        kMayLack},
    {Console::Sin,        EarlySets},
    {Console::Sin,        IfLoose,      "autoexec.cfg",         "",        kMayLack},
    {Console::Sin,        CommandLine},

    {Console::EzQuake,    NotTheGames,  "default.cfg",          "",        kMayLack},
    {Console::EzQuake,    LooseScript,  "configs/config.cfg",   "",        kMayLack},
    {Console::EzQuake,    EarlySets},
    {Console::EzQuake,    Script,       "autoexec.cfg",         "",        kMayLack},
    {Console::EzQuake,    CommandLine},

    {Console::Ironwail,   Rc,           "quake.rc",             kQuakeRc},
    {Console::QuakeSpasm, Rc,           "quake.rc",             kQuakeRc},
    {Console::DarkPlaces, RcOrElse,     "quake.rc",             kQuakeRc},
    {Console::Fte,        NearRcOrElse, "quake.rc;hexen.rc",    kQuakeRc},
    {Console::Fte,        Script,       "frontend.cfg",         "",        kMayLack},

    {Console::Yamagi,     EarlySets},
    {Console::Yamagi,     Script,       "default.cfg"},
    {Console::Yamagi,     Script,       "yq2.cfg",              "",        kMayLack},
    {Console::Yamagi,     Script,       "config.cfg",           "",        kMayLack},
    {Console::Yamagi,     Script,       "autoexec.cfg",         "",        kMayLack},
    {Console::Yamagi,     EarlySets},
    {Console::Yamagi,     CommandLine},

    {Console::Q2Pro,      EarlySets},
    {Console::Q2Pro,      Script,       "default.cfg"},
    {Console::Q2Pro,      LooseScript,  "config.cfg",           "",        kMayLack},
    {Console::Q2Pro,      EachLoose,    "autoexec.cfg",         "",        kMayLack},
    {Console::Q2Pro,      LooseScript,  "postexec.cfg",         "",        kMayLack},
    {Console::Q2Pro,      EarlySets},
    {Console::Q2Pro,      CommandLine},
    {Console::Q2Pro,      LooseScript,  "postinit.cfg",         "",        kMayLack},

    {Console::HalfLife,   Rc,           "%.rc;valve.rc",        kValveRc},
    {Console::HalfLife,   IfNotRun,     "config.cfg",           "",        kMayLack},
    {Console::HalfLife,   AllLoose,     "userconfig.d/*.cfg",   "",        kMayLack},
    {Console::HalfLife,   CommandLine},

    {Console::Unreal,     Ini,          "Unreal.ini",           "INI="},
    {Console::Unreal,     Ini,          "User.ini",             "USERINI=", kMayLack},
};
// clang-format on

}  // namespace

std::span<const StartStep> AllStartSteps() {
    return kSteps;
}

std::vector<StartStep> StartStepsOf(Console console) {
    std::vector<StartStep> steps;
    std::ranges::copy_if(kSteps, std::back_inserter(steps), [&](const StartStep& each) { return each.Of == console; });
    return steps;
}

}  // namespace lv
