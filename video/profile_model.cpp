#include "video/profile_model.h"

#include <algorithm>

#include "foundation/field_strings.h"
#include "foundation/numbers.h"
#include "foundation/padded_item.h"
#include "foundation/question_box.h"
#include "foundation/settings.h"

namespace lv {

namespace {

constexpr std::size_t kShortestList = 11;  // characters; anything below is no list of pairs

/// Index of the plain flag; kProfileFlags without one.
std::size_t FlagIndexOf(TextView key) {
    const auto flags = ProfileFlags();
    return static_cast<std::size_t>(std::ranges::find(flags, key, &ProfileFlag::Key) - flags.begin());
}

/// Place of the tunable in the table; kProfileTunables without one.
std::size_t TunableIndexOf(TextView stem) {
    const auto tunables = ProfileTunables();
    return static_cast<std::size_t>(std::ranges::find(tunables, stem, &ProfileTunable::Stem) - tunables.begin());
}

Text ReadText(Run& run, TextView key, TextView fallback = "") {
    return GetSetting(run, run.AppName, run.VideoProfileSection, key, fallback);
}

Index ReadIndex(Run& run, TextView key, Index fallback = 0) {
    return GetNumber(run, run.VideoProfileSection, key, fallback);
}

Index PairsIn(TextView list) {
    return static_cast<Index>((CountDelimiters(list, ";") + 1) / 2);
}

/// The pair as a padded item; empty for an index outside the list.
Text PaddedPair(TextView list, Index index) {
    if (index < 0 || index >= PairsIn(list)) {
        return {};
    }
    const auto caption = static_cast<Index>(index * 2);
    return MakeItem(GetField(list, caption, ";"), GetField(list, static_cast<Index>(caption + 1), ";"));
}

std::vector<Text> PaddedPairs(TextView list) {
    std::vector<Text> pairs;
    for (Index i = 0; i < PairsIn(list); ++i) {
        pairs.push_back(PaddedPair(list, i));
    }
    return pairs;
}

bool IsListOfPairs(TextView list) {
    return list.size() >= kShortestList && CountDelimiters(list, ";") % 2 == 1;
}

bool CheckList(Run& run, TextView key, TextView fallback, TextView nameInMessage) {
    const Text list = ReadText(run, key, fallback);
    if (IsListOfPairs(list)) {
        return true;
    }
    AskUser(run, "",
            Join(run.AppName, " experienced a probable registry error.", NewLine, "Error : ", nameInMessage, " = ",
                 list, NewLine, "Please contact technical support."));
    EndProgram(run);
    return false;
}

void ClampPosition(Run& run, TextView listKey, TextView fallback, TextView positionKey) {
    const auto last = static_cast<Index>(PairsIn(ReadText(run, listKey, fallback)) - 1);
    if (ReadIndex(run, positionKey) > last) {
        Save(run, run.VideoProfileSection, positionKey, last);
    }
}

/// Stores what is not stored yet; a value that is there stays to the letter.
void StoreMissing(Run& run, TextView key, TextView value) {
    if (!run.System.Settings.Read(run.AppName, run.VideoProfileSection, key)) {
        Save(run, run.VideoProfileSection, key, value);
    }
}

void StoreMissing(Run& run, TextView key, Index value) {
    StoreMissing(run, key, TextView(std::to_string(value)));
}

/// The text of a list's item; an empty one says nothing and counts as missing.
void StoreContent(Run& run, TextView key, TextView item) {
    if (!item.empty() && ReadText(run, key).empty()) {
        Save(run, run.VideoProfileSection, key, item);
    } else {
        StoreMissing(run, key, item);
    }
}

/// A list of pairs with its position and the text of the chosen pair.
void StoreList(Run& run, TextView listKey, TextView fallback, TextView positionKey) {
    StoreMissing(run, listKey, fallback);
    StoreMissing(run, positionKey, Index(0));
    StoreContent(run, Join(positionKey, "_Content"), PaddedPair(ReadText(run, listKey), ReadIndex(run, positionKey)));
}

void StoreQ2Resolution(Run& run) {
    StoreMissing(run, "Q2_ResolutionsPos", kDefaultQ2Resolution);
    const Index position = ReadIndex(run, "Q2_ResolutionsPos");
    const auto list = Q2Resolutions();
    const bool listed = position >= 0 && static_cast<std::size_t>(position) < list.size();
    StoreContent(run, "Q2_ResolutionsPos_Content", listed ? list[static_cast<std::size_t>(position)] : TextView());
}

void StoreTunable(Run& run, const ProfileTunable& tunable) {
    StoreMissing(run, tunable.Stem, tunable.DefaultFlag);
    StoreMissing(run, tunable.SettingKey, tunable.DefaultIndex);
    StoreContent(run, tunable.ContentKey(), tunable.Item(ReadIndex(run, tunable.SettingKey)));
}

void StoreShippedRow(Run& run, const ShippedRow& row, const ShippedSetting& shipped) {
    if (shipped.Flag != ShippedSetting::kNotSet) {
        Save(run, run.VideoProfileSection, row.Stem, shipped.Flag);
    }
    const ProfileTunable* const tunable = FindTunable(row.Stem);
    if (tunable == nullptr || shipped.Setting == ShippedSetting::kNotSet) {
        return;
    }
    SaveTunableSetting(run, *tunable, shipped.Setting);
}

}  // namespace

ProfileSnapshot::ProfileSnapshot() {
    for (std::size_t i = 0; i < kProfileTunables; ++i) {
        Tunables[i].Flag = ProfileTunables()[i].DefaultFlag;
        Tunables[i].Setting = ProfileTunables()[i].DefaultIndex;
    }
    for (std::size_t i = 0; i < kProfileFlags; ++i) {
        Flags[i] = ProfileFlags()[i].Default;
    }
}

const ProfileSnapshot::Tunable& ProfileSnapshot::Of(TextView stem) const {
    static const Tunable kUnused;
    const std::size_t at = TunableIndexOf(stem);
    return at < kProfileTunables ? Tunables[at] : kUnused;
}

bool ProfileSnapshot::Active(TextView stem) const {
    const Tunable& tunable = Of(stem);
    return tunable.Flag == 1 && tunable.Setting >= 0;
}

bool ProfileSnapshot::Ticked(TextView key) const {
    const std::size_t at = FlagIndexOf(key);
    return at < kProfileFlags ? Flags[at] == 1 : Of(key).Flag == 1;
}

ProfileSnapshot ReadProfile(Run& run) {
    ProfileSnapshot profile;
    for (std::size_t i = 0; i < kProfileTunables; ++i) {
        const ProfileTunable& tunable = ProfileTunables()[i];
        const Index setting = ReadIndex(run, tunable.SettingKey, tunable.DefaultIndex);
        // A fresh profile has no keys: its indexes speak for it, so that its clock is 90 and not nothing.
        profile.Tunables[i] = {ReadIndex(run, tunable.Stem, tunable.DefaultFlag), setting,
                               ReadText(run, tunable.ContentKey(), tunable.Item(setting))};
    }
    for (std::size_t i = 0; i < kProfileFlags; ++i) {
        profile.Flags[i] = ReadIndex(run, ProfileFlags()[i].Key, ProfileFlags()[i].Default);
    }
    profile.UseRez = ReadIndex(run, "UseRez");
    profile.ResolutionsPos = ReadIndex(run, "ResolutionsPos");
    profile.ResolutionsPos_Content = ReadText(run, "ResolutionsPos_Content");
    profile.Q2_ResolutionsPos = ReadIndex(run, "Q2_ResolutionsPos", kDefaultQ2Resolution);
    profile.Q2_ResolutionsPos_Content = ReadText(run, "Q2_ResolutionsPos_Content");
    profile.UseBits = ReadIndex(run, "UseBits");
    profile.BitsPos = ReadIndex(run, "BitsPos");
    profile.BitsPos_Content = ReadText(run, "BitsPos_Content");
    profile.Windowed = ReadIndex(run, "Windowed");
    profile.UseGraphicsDriver = ReadIndex(run, "UseGraphicsDriver");
    profile.GraphicsDriver = ReadIndex(run, "GraphicsDriver");
    return profile;
}

Index ReadVidCard(Run& run) {
    const Text stored = GetSetting(run, run.AppName, kOptions, "VidCard");
    return stored.empty() ? kDefaultVidCard : ToIndex(stored);
}

Index CardListIndexOf(Index vidCard) {
    const auto last = static_cast<Index>(VideoCards().size() - 1);
    return std::clamp<Index>(vidCard, 0, last);
}

Index CardClassOf(Index vidCard) {
    const Index row = CardListIndexOf(vidCard);
    return static_cast<std::size_t>(row) + 1 == VideoCards().size() ? kOtherCard : row;
}

bool CheckProfileLists(Run& run) {
    return CheckList(run, "Resolutions", kDefaultResolutions, "defaultRezs") &&
           CheckList(run, "Bits", kDefaultBits, "defaultBits");
}

void ClampProfilePositions(Run& run) {
    ClampPosition(run, "Resolutions", kDefaultResolutions, "ResolutionsPos");
    ClampPosition(run, "Bits", kDefaultBits, "BitsPos");
}

std::vector<Text> ProfileResolutions(Run& run) {
    return PaddedPairs(ReadText(run, "Resolutions", kDefaultResolutions));
}

std::vector<Text> ProfileBits(Run& run) {
    return PaddedPairs(ReadText(run, "Bits", kDefaultBits));
}

void SaveTunableSetting(Run& run, const ProfileTunable& tunable, Index setting) {
    Save(run, run.VideoProfileSection, tunable.SettingKey, setting);
    Save(run, run.VideoProfileSection, tunable.ContentKey(), tunable.Item(setting));
}

bool StoreProfile(Run& run) {
    if (!CheckProfileLists(run)) {
        return false;
    }
    const SavesTogether together(run);
    ClampProfilePositions(run);
    for (const ProfileTunable& tunable : ProfileTunables()) {
        if (!tunable.Items.empty()) {
            StoreTunable(run, tunable);
        }
    }
    for (const ProfileFlag& flag : ProfileFlags()) {
        StoreMissing(run, flag.Key, flag.Default);
    }
    StoreList(run, "Resolutions", kDefaultResolutions, "ResolutionsPos");
    StoreQ2Resolution(run);
    StoreList(run, "Bits", kDefaultBits, "BitsPos");
    for (const TextView key : {"UseRez", "UseBits", "Windowed", "UseGraphicsDriver", "GraphicsDriver"}) {
        StoreMissing(run, key, Index(0));
    }
    return true;
}

void StoreBaseProfile(Run& run) {
    const SavesTogether together(run);
    if (StoreProfile(run)) {
        Save(run, kOptions, "VidCard", ReadVidCard(run));
    }
}

void StoreShippedProfiles(Run& run) {
    const SavesTogether together(run);
    const Text before = run.VideoProfileSection;
    for (std::size_t i = 0; i < kShippedProfiles; ++i) {
        SelectVideoProfile(run, ShippedProfileNames()[i]);
        if (!StoreProfile(run)) {
            break;
        }
        for (const ShippedRow& row : ShippedRows()) {
            StoreShippedRow(run, row, row.In[i]);
        }
    }
    run.VideoProfileSection = before;
}

void UpgradeVideoProfiles(Run& run) {
    constexpr TextView kStuff = "LV-Stuff";
    const SavesTogether together(run);
    if (GetNumber(run, kStuff, "VP_Version") == 0) {
        run.VideoProfileSection = kOptions;
        StoreBaseProfile(run);
        if (run.Ended) {
            return;
        }
        Save(run, kStuff, "VP_Version", 1);
        Save(run, kStuff, "NVC_Version", 1);
    }
    if (GetNumber(run, kStuff, "NVC_Version") == 0) {
        // The numbering before "None" headed the card list.
        const Text card = GetSetting(run, run.AppName, kOptions, "VidCard");
        if (!card.empty()) {
            Save(run, kOptions, "VidCard", ToIndex(card) + 1);
        }
        Save(run, kStuff, "NVC_Version", 1);
    }
    if (GetSetting(run, run.AppName, kOptions, "VideoProfileList").empty()) {
        Save(run, kOptions, "VideoProfileList", kDefaultProfileList);
        StoreShippedProfiles(run);
    }
}

void FillVideoProfiles(Run& run, ListBox& VideoProfiles_Cbo) {
    VideoProfiles_Cbo.Clear();
    const Text names = GetSetting(run, run.AppName, kOptions, "VideoProfileList");
    const Index last = CountDelimiters(names, ";");
    for (Index i = 0; i <= last; ++i) {
        const Text name = Trim(GetField(names, i, ";"));
        if (!name.empty()) {
            VideoProfiles_Cbo.Items.push_back(name);
        }
    }
    if (VideoProfiles_Cbo.Items.empty()) {
        return;
    }
    VideoProfiles_Cbo.ListIndex = GetNumber(run, kOptions, "VideoProfilePos");
    if (!VideoProfiles_Cbo.HasSelection()) {
        VideoProfiles_Cbo.ListIndex = 0;
    }
    SelectVideoProfile(run, VideoProfiles_Cbo.Selected());
}

void SelectVideoProfile(Run& run, TextView name) {
    run.VideoProfileSection = name == kBaseProfile ? kOptions : name;
}

}  // namespace lv
