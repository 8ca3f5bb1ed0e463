#include "commands/named_rows.h"

#include <algorithm>

#include "commands/close_name.h"
#include "foundation/field_strings.h"
#include "foundation/shown_name.h"

namespace lv {

namespace {

/// The values of the rows whose `part` is the name, each once.
std::vector<Text> ValuesBy(Text NamedRow::*part, const std::vector<NamedRow>& rows, TextView name) {
    std::vector<Text> values;
    for (const NamedRow& row : rows) {
        if (!(row.*part).empty() && SameText(row.*part, name) && std::ranges::find(values, row.Value) == values.end()) {
            values.push_back(row.Value);
        }
    }
    return values;
}

Error NoneCalled(const std::vector<NamedRow>& rows, TextView name, TextView what) {
    std::vector<Text> names;
    for (const NamedRow& row : rows) {
        names.push_back(row.Title);
        if (!row.OtherName.empty()) {
            names.push_back(row.OtherName);
        }
    }
    const TextView none = rows.empty() ? TextView(" There is none in the list.") : TextView();
    return {error::kFileNotFound,
            Join("No ", what, " is called \"", Shown(name), "\".", MeantWords(name, names), none)};
}

}  // namespace

Result<Text> RowCalled(const std::vector<NamedRow>& rows, TextView name, TextView what) {
    for (Text NamedRow::*part : {&NamedRow::Title, &NamedRow::OtherName, &NamedRow::Value}) {
        std::vector<Text> values = ValuesBy(part, rows, name);
        if (values.size() == 1) {
            return std::move(values.front());
        }
        if (values.size() > 1) {
            Text several = Join("Several are called \"", Shown(name), "\". Say which one:");
            for (const Text& value : values) {
                several += Join(NewLine, "  ", Shown(value));
            }
            return Error{error::kInvalidCall, several};
        }
    }
    return NoneCalled(rows, name, what);
}

}  // namespace lv
