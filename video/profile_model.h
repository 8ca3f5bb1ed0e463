// video/profile_model.h
//
// A video profile is a section of the settings store: here it is read for a launch, created, upgraded and chosen.
// Nothing of it is kept in memory between two launches, so a change is in force at once.

#pragma once

#include <array>
#include <vector>

#include "foundation/controls.h"
#include "foundation/run.h"
#include "video/profile_settings.h"

namespace lv {

/// One profile as a launch reads it. A fresh one holds the defaults of a section without keys.
struct ProfileSnapshot {
    struct Tunable {
        Index Flag = 0;
        Index Setting = 0;
        Text Content;
    };

    ProfileSnapshot();

    std::array<Tunable, kProfileTunables> Tunables;  // in the order of ProfileTunables
    std::array<Index, kProfileFlags> Flags{};        // in the order of ProfileFlags

    Index UseRez = 0;
    Index ResolutionsPos = 0;
    Text ResolutionsPos_Content;  // a padded item: caption, and the payload behind it
    Index Q2_ResolutionsPos = kDefaultQ2Resolution;
    Text Q2_ResolutionsPos_Content;
    Index UseBits = 0;
    Index BitsPos = 0;
    Text BitsPos_Content;  // a padded item
    Index Windowed = 0;
    Index UseGraphicsDriver = 0;
    Index GraphicsDriver = 0;

    /// The tunable of that stem; a stem that the table does not have gives an unused one.
    [[nodiscard]] const Tunable& Of(TextView stem) const;

    /// Whether the tunable reaches the game: its flag is 1 and an item is chosen.
    [[nodiscard]] bool Active(TextView stem) const;

    /// The chosen item's text, as it was stored; the index alone says nothing to a game.
    [[nodiscard]] const Text& Value(TextView stem) const { return Of(stem).Content; }

    /// Whether the flag is 1, of a tunable or of a plain flag.
    [[nodiscard]] bool Ticked(TextView key) const;
};

/// Reads the section run.VideoProfileSection.
ProfileSnapshot ReadProfile(Run& run);

/// VidCard as stored; a missing or empty value is the default.
Index ReadVidCard(Run& run);

/// The row of the card list for a stored VidCard: the last one for 100 and for anything beyond the list.
Index CardListIndexOf(Index vidCard);

/// 0 no 3D card, 1 Voodoo, 2 Voodoo 2, 100 the last of the list.
Index CardClassOf(Index vidCard);

/// Whether Resolutions and Bits of the current section are lists of pairs. If one is not, the user is told and the
/// program ends.
bool CheckProfileLists(Run& run);

/// Brings ResolutionsPos and BitsPos of the current section back into their lists, and saves what it changed.
void ClampProfilePositions(Run& run);

/// The resolutions and colour depths of the current section as padded items: caption, and the payload behind it.
std::vector<Text> ProfileResolutions(Run& run);
std::vector<Text> ProfileBits(Run& run);

/// Stores the index in the current section, and the item's text behind it.
void SaveTunableSetting(Run& run, const ProfileTunable& tunable, Index setting);

/// Stores every key that the current section lacks, with its default, so that a launch finds all that a profile is made
/// of; positions are held within their lists. False if a list is none of pairs: the user was told and the program ends.
bool StoreProfile(Run& run);

/// The same, and VidCard in Options.
void StoreBaseProfile(Run& run);

/// Creates the profiles that come with the program. run.VideoProfileSection is as before afterwards.
void StoreShippedProfiles(Run& run);

/// What a start has to bring up to date: the base profile's keys, the numbering of VidCard, the shipped profiles.
/// Look at run.Ended afterwards.
void UpgradeVideoProfiles(Run& run);

/// Fills the list with the names and selects the stored one, whose section becomes the current one. Nothing is saved.
void FillVideoProfiles(Run& run, ListBox& VideoProfiles_Cbo);

/// Makes the named profile's section the current one.
void SelectVideoProfile(Run& run, TextView name);

}  // namespace lv
