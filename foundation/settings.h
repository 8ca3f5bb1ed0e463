// foundation/settings.h
//
// All that outlives a run: text values by application, section and key. Nothing is cached and nothing needs a flush.

#pragma once

#include <span>
#include <vector>

#include "foundation/run.h"

namespace lv {

/// A value of this many characters is the longest that is stored.
constexpr std::size_t kLongestValue = 16000;

/// The stored text, or the default. Never fails.
Text GetSetting(Run& run, TextView application, TextView section, TextView key, TextView fallback = "");

/// A number of the program's own settings, read tolerantly and held within 16 bits.
Index GetNumber(Run& run, TextView section, TextView key, Index fallback = 0);

/// Checks and writes. False if refused: the user was told why and the old value is still there.
/// An empty application becomes AppName, for the caller too.
bool SaveChecked(Run& run, Text& application, TextView section, TextView key, TextView value);

/// The same under AppName.
bool Save(Run& run, TextView section, TextView key, TextView value);
bool Save(Run& run, TextView section, TextView key, int value);

/// From now on the user is asked when another program holds the store: the reason with its name, and whether to wait
/// once more. Who goes on without is told nothing of the saves that fail until the store is free again.
void AskWhileLocked(Run& run);

/// Groups the saves of a scope: they become durable together, or not at all. The first that fails is told to the user
/// as any other is; those behind it fail without a word. Groups nest.
class SavesTogether {
  public:
    explicit SavesTogether(Run& run);
    ~SavesTogether();
    SavesTogether(const SavesTogether&) = delete;
    SavesTogether& operator=(const SavesTogether&) = delete;

  private:
    Run& run_;
};

/// While it lives, saves that fail for the reason that was told last are told no second time: many are made at the
/// start and at the end, and what stands in the way of one stands in the way of all. Scopes nest.
class ToldOnce {
  public:
    explicit ToldOnce(Run& run);
    ~ToldOnce();
    ToldOnce(const ToldOnce&) = delete;
    ToldOnce& operator=(const ToldOnce&) = delete;

  private:
    Run& run_;
};

/// The raw registry of other programs, below HKEY_CURRENT_USER. Text (type 1) or a number (type 4); any other type,
/// or a value that cannot be read, gives an empty value and no error.
struct RegValue {
    std::uint32_t Type = 0;  // 0: empty
    Text String;
    std::uint32_t Number = 0;
};

/// A key that was opened. Its name is all there is to it: the platform opens it for each access, with all rights.
struct RegKey {
    Text Path;
};

/// Text is cut at its reported length, so a terminator in the value ends it.
RegValue RegQueryOpen(Run& run, const RegKey& key, TextView name);
RegValue RegQueryPath(Run& run, TextView path, TextView name);

/// Many values at once, in the order of their places. What is not there, or is of another type, is empty; an error
/// only says that the registry itself can't be read.
Result<std::vector<RegValue>> RegQueryAll(Run& run, std::span<const RegistryPlace> places);

/// Makes the key if it is not there.
Error RegWriteOpen(Run& run, const RegKey& key, TextView name, const RegValue& value);
Error RegWritePath(Run& run, TextView path, TextView name, const RegValue& value);
Error RegWriteAll(Run& run, std::span<const RegistryEntry> entries);

}  // namespace lv
