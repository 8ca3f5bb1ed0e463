// A stored list: its fields, its records, and what is done with them. The first byte chooses the record's size.

#include "catalogs/catalog_store.h"
#include "foundation/field_strings.h"
#include "foundation/padded_item.h"
#include "tests/fuzz/readers.h"

namespace lv {

void FuzzCatalogFields(TextView input) {
    constexpr std::size_t kFew = 200;  // fields that are taken one by one too
    const std::size_t recordSize = 1 + TakeChoice(input, 8);
    const std::vector<Text> fields = SplitFields(input);
    MustHold(fields.size() == static_cast<std::size_t>(CountDelimiters(input, ";")) + 1,
             "a field more than delimiters");
    for (std::size_t i = 0; i < fields.size() && i < kFew; ++i) {
        MustHold(fields[i] == GetField(input, static_cast<Index>(i), ";"), "a field is the same by itself");
        MustHold(fields[i].find(';') == Text::npos, "a field holds no delimiter");
        MustHold(ItemTitle(MakeItem(fields[i], "x")).size() <= 100, "a title has its width");
    }
    const auto rows = SplitRows(input, recordSize);
    if (rows) {
        MustHold(rows->Count() * recordSize == rows->Fields.size(), "rows are whole");
        Text rebuilt;
        for (std::size_t i = 0; i < rows->Count(); ++i) {
            AppendRecord(rebuilt, rows->Field(i, recordSize - 1));
        }
        MustHold(rebuilt.size() <= input.size(), "rows hold what the list holds");
    }
    MustHold(ReplaceSameLength(input, "/", "\\").size() == input.size(), "the length never changes");
    (void)ReplaceText(input, "set ", "");
    (void)GetQuotedWord(input, static_cast<Index>(recordSize));
    (void)GetField(input, 32767, ";");
    MustHold(TrimWhite(input).size() <= input.size(), "trimmed is shorter");
    MustHold(PadToWidth(input, 100).size() == 100, "padded is as wide as wanted");
}

}  // namespace lv
