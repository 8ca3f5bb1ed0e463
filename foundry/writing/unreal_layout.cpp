#include "foundry/writing/unreal_layout.h"

#include <cstddef>

#include "foundry/writing/banners.h"
#include "foundry/writing/value_text.h"

namespace lv {

namespace {

constexpr std::size_t kAliasPlaces = 40;
constexpr std::size_t kWeaponPlaces = 20;

constexpr TextView kAudioKeys[] = {
    "UseDirectSound=", "UseFilter=",       "UseSurround=",   "UseStereo=",       "UseCDMusic=",    "UseDigitalMusic=",
    "UseSpatial=",     "UseReverb=",       "Use3dHardware=", "LowSoundQuality=", "ReverseStereo=", "Latency=",
    "OutputRate=",     "EffectsChannels=", "DopplerSpeed=",  "MusicVolume=",     "SoundVolume=",   "AmbientFactor=",
};

constexpr TextView kPlayerKeys[] = {
    "DodgeClickTime=",    "Bob=",           "MyAutoAim=",
    "Handedness=",        "bLookUpStairs=", "bSnapToLevel=",
    "bAlwaysMouseLook=",  "bKeyboardLook=", "bInvertMouse=",
    "MouseSensitivity=",  "NetSpeed=",      "ClientNetMinDelta=",
    "ServerNetMinDelta=",
};

template <std::size_t Count>
void AddLists(Text& ini, const TextView (&keys)[Count], const std::array<ListBox, Count>& lists,
              const ScriptDialect& dialect) {
    for (std::size_t i = 0; i < Count; ++i) {
        if (lists[i].HasSelection()) {
            AddLine(ini, keys[i], ValueText(lists[i], dialect));
        }
    }
}

void AddAliases(Text& ini, const AliasList& aliases) {
    std::size_t place = 0;
    for (; place < aliases.AliasCount(); ++place) {
        AddLine(ini, "Aliases[", std::to_string(place), "]=(Command=\"", aliases[place].Body,
                "\",Alias=", aliases[place].Name, ")");
    }
    for (; place < kAliasPlaces; ++place) {
        AddLine(ini, "Aliases[", std::to_string(place), "]=(Command=\"\",Alias=None)");
    }
}

// Without a selection the line has no end, kept on purpose: what follows stands on it.
void AddMouseAxis(Text& ini, TextView name, const ListBox& speed, const ScriptDialect& dialect) {
    if (speed.HasSelection()) {
        AddLine(ini, name, "=Axis a", name, " Speed=", ValueText(speed, dialect));
    } else {
        ini += Join(name, "=");
    }
}

void AddInput(Text& ini, const ScriptDocument& document) {
    AddAliases(ini, document.AliasTable);
    for (KeyIndex key = 0; key < kKeyCount; ++key) {
        const Text& command = document.KeyBinding[static_cast<std::size_t>(key)];
        AddLine(ini, KeyName(key, KeyStyle::Unreal).Name, "=", command == kEmptyCommand ? TextView() : command);
    }
    AddLine(ini, "CapsLock=LookToggle");
    AddLine(ini, "Escape=ShowMenu");
    AddMouseAxis(ini, "MouseX", document.MouseBind_Cbo[0], document.Dialect);
    AddMouseAxis(ini, "MouseY", document.MouseBind_Cbo[1], document.Dialect);
}

void AddAudio(Text& ini, const ScriptDocument& document) {
    AddLists(ini, kAudioKeys, document.UnrealAudio_Cbo, document.Dialect);
}

// The list shows the weapons as they are preferred; the game prefers the highest number.
void AddWeapons(Text& ini, const std::vector<Text>& weapons) {
    std::size_t place = 0;
    for (; place < weapons.size(); ++place) {
        AddLine(ini, "WeaponPriority[", std::to_string(place), "]=", weapons[weapons.size() - 1 - place]);
    }
    for (; place < kWeaponPlaces; ++place) {
        AddLine(ini, "WeaponPriority[", std::to_string(place), "]=None");
    }
}

void AddPlayerPawn(Text& ini, const ScriptDocument& document) {
    AddLine(ini, "Password=", document.UnrealPassword_Txt.Text);
    AddLists(ini, kPlayerKeys, document.PlayerPawn_Cbo, document.Dialect);
    AddWeapons(ini, document.WeaponsPriority_Lst.Items);
}

void AddPawn(Text& ini, const ScriptDocument& document) {
    AddLine(ini, "PlayerName=", document.Name_Txt.Text);
    AddLine(ini, "TeamName=", document.UnrealTeamName_Txt.Text);
}

struct KnownSection {
    TextView Name;
    void (*Add)(Text& ini, const ScriptDocument& document);
};

constexpr KnownSection kKnownSections[] = {
    {"[engine.input]", AddInput},
    {"[galaxy.galaxyaudiosubsystem]", AddAudio},
    {"[engine.playerpawn]", AddPlayerPawn},
    {"[engine.pawn]", AddPawn},
};

}  // namespace

Text UnrealIni(const ScriptDocument& document, const LocalTime& date) {
    Text ini;
    for (const ScriptSection& section : document.Sections) {
        if (section.Name.empty() && section.Text.empty()) {
            continue;  // no lines stood before the first bracket line
        }
        AddLine(ini, section.Name);
        const Text name = LowerCase(section.Name);
        for (const KnownSection& known : kKnownSections) {
            if (name == known.Name) {
                known.Add(ini, document);
            }
        }
        AddLine(ini, section.Text);
        AddLine(ini);
    }
    AddLine(ini);
    AddLine(ini, "[Lorvane 3D]");
    AddLine(ini, "LastEdited=", ScriptDate(date));
    return ini;
}

}  // namespace lv
