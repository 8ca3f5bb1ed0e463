// catalogs/catalog_store.h
//
// The six catalogs as they are stored: one text value each, records of a fixed number of fields joined by ";", with
// no header and no escape. Reading one and checking it, and rebuilding it from a list's rows.

#pragma once

#include <optional>
#include <vector>

#include "catalogs/catalog_lists.h"

namespace lv {

struct Catalog {
    TextView Key;        // in section "Options"
    TextView ErrorName;  // what the message of a damaged value calls it
    std::size_t RecordSize;
};

constexpr Catalog kExecutables = {"Executables", "defaultExes", 2};
constexpr Catalog kGames = {"Games", "defaultGames", 2};
constexpr Catalog kScripts = {"Scripts", "defaultScripts", 2};
constexpr Catalog kServers = {"NetServers", "defaultServers", 5};
constexpr Catalog kDemos = {"Demos", "defaultDemos", 2};
constexpr Catalog kMemory = {"Memory", "defaultMem", 2};

/// What a row of kMemory holds before its megabytes: "-winmem 16".
constexpr TextView kMemoryOption = "-winmem";

/// A value shorter than this holds no record.
constexpr std::size_t kShortestCatalog = 11;

/// A value taken apart. Fields have lost their leading blanks; trailing ones stay.
struct CatalogRows {
    std::size_t RecordSize = 1;
    std::vector<Text> Fields;  // record by record

    [[nodiscard]] std::size_t Count() const { return Fields.size() / RecordSize; }
    [[nodiscard]] const Text& Field(std::size_t record, std::size_t field) const {
        return Fields[record * RecordSize + field];
    }
};

/// Every field of a ";"-list in order, as GetField gives them, in one pass. Like every count of fields it ends at
/// 32,768.
std::vector<Text> SplitFields(TextView list);

/// The records of a value; nothing if its fields do not make whole records.
std::optional<CatalogRows> SplitRows(TextView value, std::size_t recordSize);

Text CatalogValue(Run& run, const Catalog& catalog, TextView fallback = "");

/// Tells the user that a value is damaged, and shows it.
void ReportDamage(Run& run, TextView errorName, TextView value);

/// The records of a stored value. Nothing if it is damaged: the user was told, and the program is at its end.
std::optional<CatalogRows> ReadCatalog(Run& run, const Catalog& catalog, TextView fallback = "");

/// Writes the value unless it stands there already.
bool StoreCatalog(Run& run, TextView key, TextView value);

/// Adds a record, or a list of them, to a ";"-list.
void AppendRecord(Text& list, TextView record);

/// Rebuilds the value from the list's rows and the hidden records of other games, and saves it. A value that is too
/// long is refused: the user is told and the old one stays.
bool SaveCatalog(Run& run, CatalogLists& lists, TextView key, const ListBox& list);
bool SaveCatalog(Run& run, CatalogLists& lists, TextView key, const ImageCombo& list);

/// The length of the value that SaveCatalog would save.
std::size_t SavedLength(CatalogLists& lists, TextView key, const ListBox& list);

/// The stored position of a list, held within its rows; -1 without rows.
int StoredPosition(Run& run, TextView key, Index fallback, std::size_t rows);

/// The same, and a position that had to be cut is stored again.
int RepairedPosition(Run& run, TextView key, Index fallback, std::size_t rows);

/// The stored state of a check box: 0, 1 or 2.
int StoredCheck(Run& run, TextView key, Index fallback);

/// Whether the name can stand in a list: no ";" and no control character.
bool FitsAField(TextView name);

}  // namespace lv
