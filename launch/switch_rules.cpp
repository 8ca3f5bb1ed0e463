#include "launch/switch_rules.h"

#include "catalogs/catalog_store.h"
#include "catalogs/modifications.h"
#include "foundation/field_strings.h"
#include "foundation/numbers.h"
#include "games/games.h"

namespace lv {

namespace {

LaunchStop StopWith(Text message) {
    return {StopKind::Message, std::move(message), {}};
}

LaunchStop StopOn(Error fault) {
    if (!fault) {
        return {};
    }
    return {StopKind::Error, {}, std::move(fault)};
}

/// The field, trimmed; empty where the record has none.
Text FieldOf(TextView record, Index index) {
    return index > CountDelimiters(record, ";") ? Text() : Trim(GetField(record, index, ";"));
}

/// Appends a word that is one argument whatever it holds, and notes where it stands.
void AddGiven(Text& command, std::vector<GivenWord>& given, GivenWord word) {
    word.At = command.size();
    command += Join(word.Option, word.Written);
    if (!word.Written.empty()) {
        given.push_back(std::move(word));
    }
}

GivenWord AsItStands(const Text& value) {
    return {.Written = value, .Argument = value};
}

/// Behind ".EXE", or behind the executable's own name where that has another ending, with a blank before it. What
/// stands there already moves on. Where the text begins.
std::size_t InsertBehindExecutable(const Composition& c, TextView text) {
    const Text name = ExecutableName(c.Selected);
    const std::size_t ending = name.find(".EXE");
    const std::size_t at = ending == Text::npos ? name.size() : ending + 4;
    c.Texts.UnrealCommand.insert(at, Join(Blank, text));
    for (GivenWord& word : c.Texts.UnrealGiven) {
        word.At += text.size() + Blank.size();
    }
    return at + Blank.size();
}

bool IsBaseDirectory(TextView mod, const LaunchGame& game) {
    const TextView base = FactsOf(game.GameKind).BaseGameDir;
    return game.GameKind != Game::Unreal && !base.empty() && mod == Join("-game ", LowerCase(base));
}

Text ConnectText(const JoinedServer& server) {
    const Text connect = Join("connect ", server.HostAndPort, NewLine);
    return server.Password.empty() ? connect : Join("password ", server.Password, NewLine, connect, NewLine);
}

/// "+", the connect text without its last line end, and a blank. With a password the line breaks stand inside the
/// command line; Half-Life wants it so.
void ConnectHalfLife(const JoinedServer& server, LaunchTexts& texts) {
    texts.GameCommand += "+";
    if (!server.Password.empty()) {
        texts.GameCommand += "password ";
        AddGiven(texts.GameCommand, texts.GameGiven,
                 {.Written = server.Password, .Argument = PasswordAsArgument(server.Password)});
        texts.GameCommand += NewLine;
    }
    texts.GameCommand += "connect ";
    AddGiven(texts.GameCommand, texts.GameGiven, AsItStands(server.HostAndPort));
    texts.GameCommand += server.Password.empty() ? Text(Blank) : Join(NewLine, Blank);
}

void ConnectTo(const JoinedServer& server, const Composition& c) {
    if (c.Game.GameKind == Game::Unreal) {
        GivenWord word = AsItStands(server.HostAndPort);
        word.At = InsertBehindExecutable(c, server.HostAndPort);
        if (!word.Written.empty()) {
            c.Texts.UnrealGiven.insert(c.Texts.UnrealGiven.begin(), std::move(word));
        }
        return;
    }
    const Text connect = ConnectText(server);
    c.Texts.QuakeScript += connect;
    if (c.Game.GameKind == Game::HalfLife) {
        ConnectHalfLife(server, c.Texts);
        return;
    }
    c.Texts.Quake2Script += connect;
}

}  // namespace

JoinedServer ServerOf(TextView record) {
    const Text host = FieldOf(record, 0);
    const Text port = FieldOf(record, 1);
    return {port.empty() ? host : Join(host, ":", port), FieldOf(record, 3)};
}

Text QuotedIfBlank(TextView name) {
    return Holds(name, Blank) ? Join(DoubleQuote, name, DoubleQuote) : Text(name);
}

Text PasswordAsArgument(TextView written) {
    const bool quoted = written.size() >= 2 && written.starts_with('"') && written.ends_with('"');
    return Text(quoted ? written.substr(1, written.size() - 2) : written);
}

LaunchStop UnrealMapRule(const Composition& c) {
    AddGiven(c.Texts.UnrealCommand, c.Texts.UnrealGiven, AsItStands(Join(LowerCase(*c.Selected.Map), ".unr")));
    c.Texts.UnrealCommand += Blank;
    return {};
}

LaunchStop WrapQuake(const Composition& c) {
    c.Texts.GameCommand = Join("qlaunch quakeudp.dll ", c.Texts.GameCommand, "-noipx -noserial -mpath ");
    return {};
}

LaunchStop UnrealIniRule(const Composition& c) {
    return c.Hooks.RewriteUnrealIni ? StopOn(c.Hooks.RewriteUnrealIni()) : LaunchStop();
}

LaunchStop ModRule(const Composition& c) {
    const Text mod = LowerCase(*c.Selected.Game);
    if (IsBaseDirectory(mod, c.Game)) {
        return {};
    }
    const bool asVariable = c.Game.ScriptFamily == Dialect::Quake2;
    c.Texts.GameCommand += asVariable ? "+set " : "";
    if (mod.starts_with(kGameOption)) {
        c.Texts.GameCommand += asVariable ? kGameOption.substr(1) : kGameOption;
        AddGiven(c.Texts.GameCommand, c.Texts.GameGiven, AsItStands(DropLeft(mod, kGameOption.size())));
    } else {  // an option that the user has typed
        c.Texts.GameCommand += asVariable ? DropLeft(mod, 1) : mod;
    }
    c.Texts.GameCommand += Blank;
    return {};
}

LaunchStop MemoryRule(const Composition& c) {
    const Text& payload = *c.Selected.Memory;
    const Text command = UpperCase(c.Texts.GameCommand);
    if (!command.starts_with("GL") && !command.starts_with("WIN")) {
        c.Texts.GameCommand += Join(payload, Blank);
        return {};
    }
    const std::int64_t megabytes = ToLong(DropLeft(Join(payload, Blank), kMemoryOption.size()));
    c.Texts.GameCommand += Join("-heapsize ", std::to_string(megabytes * 1024), Blank);
    return {};
}

LaunchStop ScriptRule(const Composition& c) {
    const Text& path = *c.Selected.Script;
    if (c.Game.GameKind == Game::HalfLife && c.Hooks.ScriptToRegistry) {
        if (LaunchStop stop = StopOn(c.Hooks.ScriptToRegistry(path))) {
            return stop;
        }
    }
    const Text file = Trim(LastPathPart(path));
    const Text name = QuotedIfBlank(file);
    if (c.Game.GameKind == Game::Unreal) {
        AddGiven(c.Texts.UnrealCommand, c.Texts.UnrealGiven, {.Written = name, .Argument = file, .Option = "INI="});
        c.Texts.UnrealCommand += Blank;
        return {};
    }
    const Text line = Join("exec ", name, NewLine);
    c.Texts.QuakeScript += line;
    c.Texts.Quake2Script += line;
    return {};
}

LaunchStop DedicatedRule(const Composition& c) {
    if (Holds(c.Texts.GameCommand, "GLQUAKE.EXE")) {
        return StopWith(Join("The '-dedicated' parameter causes a fat GPF when used with glqauke.exe.", NewLine,
                             NewLine,
                             "Besides, there is no reason for a dedicated server to run GL. Please use quake.exe, or "
                             "winquake.exe."));
    }
    if (Holds(c.Texts.GameCommand, "QWCL.EXE")) {
        return StopWith("Dedicated QuakeWorld servers are started with qwsv.exe.");
    }
    if (c.Game.ScriptFamily != Dialect::Quake2) {
        if (c.Game.GameKind == Game::Unreal) {
            c.Texts.UnrealCommand += "-server ";
        } else {
            c.Texts.GameCommand += "-dedicated ";
        }
        return {};
    }
    if (c.Game.GameKind == Game::HalfLife) {
        return StopWith("Dedicated Half-Life servers are started with hlds.exe.");
    }
    c.Texts.GameCommand += "+set deathmatch 1 +set dedicated 1 ";
    return {};
}

LaunchStop GraphicsDriverRule(const Composition& c) {
    struct Driver {
        TextView VidRef;
        TextView Variable;
        TextView Value;
    };
    constexpr Driver kDrivers[] = {
        {"soft", "vid_fullscreen", "0"}, {"soft", "vid_fullscreen", "1"}, {"gl", "gl_driver", "3dfxgl"},
        {"gl", "gl_driver", "ref_gl"},   {"gl", "gl_driver", "pvrgl"},    {"gl", "gl_driver", "opengl32"},
        {"gl", "gl_driver", "veritegl"}, {"gl", "gl_driver", "ragegl"},
    };
    constexpr Index kSoftwareWindow = 0;
    constexpr Index k3dfx = 2;

    const Index chosen = c.Profile.GraphicsDriver;
    const Driver& driver = kDrivers[static_cast<std::size_t>(chosen)];
    const auto set = [&](TextView name, TextView value) {
        c.Texts.Quake2Script += Join("set ", name, Blank, DoubleQuote, value, DoubleQuote, NewLine);
    };
    set("vid_ref", driver.VidRef);
    set(driver.Variable, chosen == k3dfx && c.Game.GameKind == Game::Heretic2 ? "3dfxgl_ht2" : driver.Value);
    if (chosen == kSoftwareWindow) {
        set("vid_xpos", "50");
        set("vid_ypos", "50");
    }
    return {};
}

LaunchStop ServerRule(const Composition& c) {
    ConnectTo(ServerOf(*c.Selected.Server), c);
    return {};
}

LaunchStop GameSpyServerRule(const Composition& c) {
    if (!c.Hooks.GameSpyFetch) {
        return {};
    }
    const std::optional<Text> fetched = c.Hooks.GameSpyFetch();
    if (!fetched || fetched->empty()) {
        return {StopKind::Silent, {}, {}};
    }
    ConnectTo({*fetched, {}}, c);
    return {};
}

LaunchStop AdditionsRule(const Composition& c) {
    const Text additions = Trim(c.Selected.CommandLineAdditions_Txt);
    c.Texts.GameCommand += Join(additions, Blank);
    InsertBehindExecutable(c, additions);
    return {};
}

}  // namespace lv
