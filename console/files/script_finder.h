// console/files/script_finder.h
//
// A script by the name that "exec" is given.

#pragma once

#include <map>
#include <optional>
#include <unordered_map>

#include "catalogs/archive_entries.h"
#include "console/files/search_path.h"

namespace lv {

/// No longer script is read, and no more names of archives are kept.
constexpr std::uint32_t kLargestRunScript = 1U << 20U;
constexpr std::size_t kMostKeptNames = 200'000;

/// A text that stands for a file, which need not be there: what is being edited, or is yet to be written.
struct GivenScript {
    Text Path;
    Text Content;
    bool IsPlanned = false;  // a launch would write it so
};

struct FoundScript {
    std::size_t Place = 0;  // of the search path
    Text Path;              // the file, or the archive
    Text Inner;             // its name in the archive
    Text Content;
    bool IsUnread = false;  // there, but too long, damaged, or locked
};

enum class Lookup {
    Anywhere,
    LooseFiles,
    Archives,
};

class ScriptFinder {
  public:
    /// `disk` and `rules` outlive it.
    ScriptFinder(Files& disk, std::vector<SearchPlace> places, const ExecRules& rules, std::vector<GivenScript> given);

    /// As "exec" does it, endings and all. With `level`, in the game's directories of that one alone. Nothing too for
    /// a name that would lead out of them.
    std::optional<FoundScript> Find(TextView name, Lookup where = Lookup::Anywhere,
                                    std::optional<std::size_t> level = std::nullopt);

    [[nodiscard]] const std::vector<SearchPlace>& Places() const { return places_; }

    /// Archives that have been met and are none, are damaged, or were too many.
    [[nodiscard]] const std::vector<Text>& UnreadArchives() const { return unread_; }

  private:
    struct Archive {
        std::unique_ptr<RandomAccessFile> File;
        std::unordered_map<Text, ArchiveEntry> Entries;
    };

    std::optional<FoundScript> FindAsItIs(TextView name, Lookup where, std::optional<std::size_t> level);
    std::optional<FoundScript> FindLoose(TextView directory, TextView name);
    std::optional<FoundScript> FindPacked(std::size_t place, TextView name);
    Archive& Opened(std::size_t place);
    [[nodiscard]] Text KeyOf(TextView name) const;

    Files& disk_;
    std::vector<SearchPlace> places_;
    const ExecRules& rules_;
    std::vector<GivenScript> given_;
    std::map<std::size_t, Archive> archives_;  // by their places
    std::vector<Text> unread_;
    std::size_t keptNames_ = 0;
};

}  // namespace lv
