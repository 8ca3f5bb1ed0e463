#include "launch/unreal_ini.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>
#include <utility>

#include "foundation/field_strings.h"

namespace lv {

namespace {

constexpr TextView kSection = "[WINDRV.WINDOWSCLIENT]";
constexpr TextView kCdPath = "CDPATH=";
constexpr TextView kSystem = "system";
constexpr TextView kDefaultResolution = "512x384 ";

using Value = std::optional<Text>;  // nothing: the profile leaves the key alone

/// Of a resolution's caption, "640x480 ", what stands before or behind the "x".
Value SideOf(const ProfileSnapshot& profile, bool width) {
    if (profile.UseRez != 1) {
        return {};
    }
    const Text& chosen = profile.ResolutionsPos_Content;
    const TextView caption = chosen.empty() ? kDefaultResolution : TextView(chosen);
    const std::size_t x = caption.find('x');
    if (x == TextView::npos) {
        return {};  // a resolution of the user's own that names no sides
    }
    return Text(width ? caption.substr(0, x) : caption.substr(x + 1, caption.find(' ', x) - x - 1));
}

Value Width(const ProfileSnapshot& profile, TextView) {
    return SideOf(profile, true);
}

Value Height(const ProfileSnapshot& profile, TextView) {
    return SideOf(profile, false);
}

// A tick beside a list without a selection has nothing to write, and the ini keeps what it says.
Value Chosen(const ProfileSnapshot& profile, TextView stem) {
    const bool nothing_selected = profile.Of(stem).Setting < 0 && profile.Value(stem).empty();
    return profile.Ticked(stem) && !nothing_selected ? Value(profile.Value(stem)) : Value();
}

Value FullScreen(const ProfileSnapshot& profile, TextView) {
    return profile.Windowed == 1 ? "False" : "True";
}

struct KeyRow {
    TextView Compared;
    TextView Written;
    TextView Flag;
    Value (*ValueOf)(const ProfileSnapshot& profile, TextView flag);
};

// clang-format off
constexpr KeyRow kKeys[] = {
    {"VIEWPORTX=",          "ViewPortX=",          "UseRez",                   Width},
    {"VIEWPORTY=",          "ViewPortY=",          "UseRez",                   Height},
    {"BRIGHTNESS=",         "Brightness=",         "UnrealBrightness",         Chosen},
    {"MIPFACTOR=",          "MipFactor=",          "UnrealMipFactor",          Chosen},
    {"USEDIRECTDRAW=",      "UseDirectDraw=",      "UnrealUseDirectDraw",      Chosen},
    {"STARTUPFULLSCREEN=",  "StartupFullScreen=",  "",                         FullScreen},
    {"CURVEDSURFACES=",     "CurvedSurfaces=",     "UnrealCurvedSurfaces",     Chosen},
    {"LOWDETAILTEXTURES=",  "LowDetailTextures=",  "UnrealLowDetailTextures",  Chosen},
    {"SCREENFLASHES=",      "ScreenFlashes=",      "UnrealScreenFlashes",      Chosen},
    {"NOLIGHTING=",         "NoLighting=",         "UnrealNoLighting",         Chosen},
    {"SLOWVIDEOBUFFERING=", "SlowVideoBuffering=", "UnrealSlowVideoBuffering", Chosen},
    {"DEADZONEXYZ=",        "DeadZoneXYZ=",        "UnrealDeadZoneXYZ",        Chosen},
    {"DEADZONERUV=",        "DeadZoneRUV=",        "UnrealDeadZoneRUV",        Chosen},
    {"SCALEXYZ=",           "ScaleXYZ=",           "UnrealScaleXYZ",           Chosen},
    {"SCALERUV=",           "ScaleRUV=",           "UnrealScaleRUV",           Chosen},
};

/// What is added where the section lacks it, in this order. The view port is not.
constexpr TextView kAdded[] = {
    "BRIGHTNESS=",     "MIPFACTOR=",  "USEDIRECTDRAW=",      "CURVEDSURFACES=", "LOWDETAILTEXTURES=",
    "SCREENFLASHES=",  "NOLIGHTING=", "SLOWVIDEOBUFFERING=", "DEADZONEXYZ=",    "DEADZONERUV=",
    "SCALEXYZ=",       "SCALERUV=",   "STARTUPFULLSCREEN=",
};
// clang-format on

/// The row's place in the table; the number of rows for a key that is not in it.
std::size_t RowOf(TextView key) {
    const auto* const row =
        std::ranges::find_if(kKeys, [key](const KeyRow& each) { return SameText(each.Compared, key); });
    return static_cast<std::size_t>(row - std::begin(kKeys));
}

class Rewriter {
  public:
    explicit Rewriter(const UnrealIniInput& input) {
        for (std::size_t i = 0; i < std::size(kKeys); ++i) {
            if (const Value value = kKeys[i].ValueOf(input.Profile, kKeys[i].Flag)) {
                newLines_[i] = Join(kKeys[i].Written, *value, NewLine);
            }
        }
        if (input.UnrealNoCDNeeded_Chk) {
            cdPath_ = Join("CdPath=", DropRight(input.DefaultGameDirectory, kSystem.size()), NewLine);
        }
        result_.Ini.reserve(input.Ini.size() + input.Ini.size() / 8);
    }

    void Take(TextView line) {
        switch (place_) {
            case Place::Before:
                return TakeBefore(line);
            case Place::Inside:
                return TakeInside(line);
            case Place::Behind:
                return Keep(line);
        }
    }

    UnrealIniResult Finish(TextView old) && {
        if (result_.Ini.size() < old.size()) {
            result_.Ini.append(old.substr(result_.Ini.size()));
        }
        return std::move(result_);
    }

  private:
    enum class Place { Before, Inside, Behind };

    void Keep(TextView line) { result_.Ini.append(line).append(NewLine); }

    void Change(std::size_t row) {
        result_.Ini.append(*newLines_[row]);
        result_.ChangedIniLines.append(*newLines_[row]);
        seen_[row] = true;
    }

    void TakeBefore(TextView line) {
        if (SameText(line, kSection)) {
            place_ = Place::Inside;
        }
        if (cdPath_ && SameText(line.substr(0, kCdPath.size()), kCdPath)) {
            result_.Ini.append(*cdPath_);
            return;
        }
        Keep(line);
    }

    void TakeInside(TextView line) {
        if (line.starts_with('[')) {
            place_ = Place::Behind;
            AddMissing();
            Keep(line);
            return;
        }
        const std::size_t row = RowOf(line.substr(0, line.find('=') + 1));
        if (row < std::size(kKeys) && newLines_[row]) {
            Change(row);
            return;
        }
        Keep(line);
    }

    void AddMissing() {
        for (const TextView key : kAdded) {
            const std::size_t row = RowOf(key);
            if (newLines_[row] && !seen_[row]) {
                Change(row);
            }
        }
    }

    Place place_ = Place::Before;
    std::array<Value, std::size(kKeys)> newLines_;
    std::array<bool, std::size(kKeys)> seen_{};
    Value cdPath_;
    UnrealIniResult result_;
};

}  // namespace

UnrealIniResult RewriteUnrealIni(const UnrealIniInput& input) {
    Rewriter rewriter(input);
    TextView rest = input.Ini;
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        const bool ended = end < rest.size();
        const bool withReturn = ended && end > 0 && rest[end - 1] == '\r';
        rewriter.Take(Trim(rest.substr(0, withReturn ? end - 1 : end)));
        rest.remove_prefix(ended ? end + 1 : end);
    }
    return std::move(rewriter).Finish(input.Ini);
}

}  // namespace lv
