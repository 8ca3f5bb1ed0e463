// Names of files and text in code page 1252, from the host and from lists.

#include "platform/code_page.h"
#include "platform/linux/files/host_names.h"
#include "tests/fuzz/readers.h"

namespace lv {

namespace {

void Convert(TextView bytes) {
    const std::string utf8 = ToUtf8(bytes);
    MustHold(FromUtf8(utf8) == bytes, "all 256 byte values come back");
    MustHold(FromUtf8Lossy(utf8) == bytes, "nothing is lost where nothing has to be");
    const auto text = FromUtf8(bytes);
    MustHold(!text || ToUtf8(*text) == bytes, "what has a form comes back");
    MustHold(!text || FromUtf8Lossy(bytes) == *text, "both ways read the same");
    MustHold(SameText(UpperCase(bytes), LowerCase(bytes)), "letter case is no difference");
}

void TakePath(TextView path, TextView current) {
    const auto base = TakeApart(current, DrivePath());
    const auto taken = TakeApart(path, base.value_or(DrivePath()));
    if (!taken) {
        return;
    }
    MustHold(taken->Letter >= 'A' && taken->Letter <= 'Z', "a drive is a letter");
    for (const std::string& part : taken->Parts) {
        MustHold(!part.empty() && part != "." && part != "..", "a part leads one directory down");
        MustHold(part.find_first_of("\\/") == std::string::npos, "a part is one name");
    }
    const auto again = TakeApart(PutTogether(*taken), DrivePath());
    MustHold(again && again->Parts == taken->Parts && again->Letter == taken->Letter, "a path is the same once more");
    MustHold(HostPathBelow("/nonexistent", taken->Parts).starts_with("/nonexistent"), "a path stays below its drive");
}

}  // namespace

void FuzzNames(TextView input) {
    Convert(input);
    const auto name = NameFromHost(input);
    MustHold(!name || name->find('\\') == std::string::npos, "a name can be asked for");
    const TextView current = TakePart(input);
    TakePath(input, current);
}

}  // namespace lv
