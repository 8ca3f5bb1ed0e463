// The file of a script's older versions.

#include "foundry/versions/version_file.h"

#include "tests/fuzz/readers.h"

namespace lv {

namespace {

bool AreSame(const VersionFile& one, const VersionFile& other) {
    if (one.Script != other.Script || one.Versions.size() != other.Versions.size()) {
        return false;
    }
    for (std::size_t i = 0; i < one.Versions.size(); ++i) {
        if (one.Versions[i].Text != other.Versions[i].Text) {
            return false;
        }
    }
    return true;
}

}  // namespace

void FuzzVersionFile(TextView input) {
    const VersionFile file = ReadVersionFile(input);
    MustHold(file.Versions.size() <= kMostVersions, "there are no more versions than may be");
    std::size_t size = 0;
    for (const ScriptVersion& version : file.Versions) {
        MustHold(version.Text.size() <= kLargestVersion, "no version is larger than it may be");
        size += version.Text.size();
    }
    MustHold(size <= kMostVersionBytes, "all together are no larger than they may be");
    MustHold(!file.Versions.empty() || file.IsDamaged, "a file without a version is damaged");
    MustHold(file.Lost == 0 || file.IsDamaged, "what is lost is damage");
    if (!file.Versions.empty()) {
        const VersionFile again = ReadVersionFile(WriteVersionFile(file));
        MustHold(!again.IsDamaged, "what is written is whole");
        MustHold(AreSame(file, again), "and reads as what it was made of");
    }
}

}  // namespace lv
