// tests/fuzz/readers.h
//
// Each reader of strangers' bytes as the fuzzer calls it, and as the tests replay its corpus.

#pragma once

#include <cstdio>
#include <cstdlib>

#include "foundation/text.h"
#include "platform/files.h"

namespace lv {

// Any bytes. What must hold for all of them is checked: a fault ends the process.
void FuzzArchiveDirectory(TextView input);
void FuzzBatchPlan(TextView input);
void FuzzCatalogFields(TextView input);
void FuzzDefaultApps(TextView input);
void FuzzFont(TextView input);
void FuzzGameNotes(TextView input);
void FuzzHalfLifeScript(TextView input);
void FuzzIniRewriting(TextView input);
void FuzzNames(TextView input);
void FuzzRegFile(TextView input);
void FuzzScript(TextView input);
void FuzzScriptCheck(TextView input);
void FuzzServerText(TextView input);
void FuzzSettingsText(TextView input);
void FuzzStartRun(TextView input);
void FuzzTwoScripts(TextView input);
void FuzzVdf(TextView input);
void FuzzVersionFile(TextView input);

struct FuzzedReader {
    const char* Name;  // of its corpus, and of its own program
    void (*Read)(TextView input);
};

constexpr FuzzedReader kFuzzedReaders[] = {
    {"archive_directory", FuzzArchiveDirectory},
    {"batch_plan", FuzzBatchPlan},
    {"catalog_fields", FuzzCatalogFields},
    {"default_apps", FuzzDefaultApps},
    {"font", FuzzFont},
    {"game_notes", FuzzGameNotes},
    {"half_life_script", FuzzHalfLifeScript},
    {"ini_rewriting", FuzzIniRewriting},
    {"names", FuzzNames},
    {"reg_file", FuzzRegFile},
    {"script", FuzzScript},
    {"script_check", FuzzScriptCheck},
    {"server_text", FuzzServerText},
    {"settings_text", FuzzSettingsText},
    {"start_run", FuzzStartRun},
    {"two_scripts", FuzzTwoScripts},
    {"vdf", FuzzVdf},
    {"version_file", FuzzVersionFile},
};

/// Ends the process, with `what` on standard error, unless it holds.
inline void MustHold(bool holds, const char* what) {
    if (!holds) {
        std::fprintf(stderr, "does not hold: %s\n", what);
        std::abort();
    }
}

/// A choice that the first byte makes, and the rest of the input.
inline std::size_t TakeChoice(TextView& input, std::size_t choices) {
    if (input.empty()) {
        return 0;
    }
    const auto byte = static_cast<unsigned char>(input.front());
    input.remove_prefix(1);
    return byte % choices;
}

/// What stands before the first character 0, taken off the input; all of it without one.
inline TextView TakePart(TextView& input) {
    const TextView part = input.substr(0, input.find('\0'));
    input.remove_prefix(part.size() < input.size() ? part.size() + 1 : part.size());
    return part;
}

/// A file of exactly these bytes, of which nobody asks for many more than there are.
class FuzzedFile : public RandomAccessFile {
  public:
    explicit FuzzedFile(TextView bytes) : bytes_(bytes) {}
    [[nodiscard]] std::uint64_t Size() const override { return bytes_.size(); }
    Result<std::string> Read(std::uint64_t offset, std::size_t count) override {
        MustHold(count <= bytes_.size() + kBlock, "no reader asks for what a file only claims to hold");
        return offset >= bytes_.size() ? std::string()
                                       : std::string(bytes_.substr(static_cast<std::size_t>(offset), count));
    }

  private:
    static constexpr std::size_t kBlock = 1 << 20;

    TextView bytes_;
};

}  // namespace lv
