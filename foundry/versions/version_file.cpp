#include "foundry/versions/version_file.h"

#include <algorithm>
#include <optional>

#include "foundation/check_sum.h"
#include "foundation/field_strings.h"
#include "foundry/versions/version_delta.h"

namespace lv {

namespace {

constexpr TextView kTitle = "Lorvane 3D versions 2\n";
constexpr TextView kOldTitle = "Lorvane 3D versions 1\n";
constexpr std::size_t kWholeEvery = 10;
constexpr std::size_t kLargestRepeated = 16U << 10U;  // bytes of a text that is whole though a delta would do

std::optional<TextView> TakeLine(TextView& bytes) {
    const std::size_t end = bytes.find('\n');
    if (end == TextView::npos) {
        return std::nullopt;
    }
    const TextView line = bytes.substr(0, end);
    bytes.remove_prefix(end + 1);
    return line;
}

/// The line at the start of the text, which stays as it is.
TextView FirstLine(TextView bytes) {
    return bytes.substr(0, bytes.find('\n'));
}

class Reading {
  public:
    explicit Reading(TextView bytes) : bytes_(bytes) {}

    VersionFile Run() {
        TakeTitle();
        while (!bytes_.empty() && file_.Versions.size() < kMostVersions && !stops_) {
            if (!TakeRecord()) {
                ++missed_;
                SkipToHead();
            }
        }
        return Result();
    }

  private:
    void TakeTitle();
    bool TakeRecord();
    void SkipToHead();
    [[nodiscard]] std::optional<Text> TextOf(const RecordHead& head, TextView payload);
    [[nodiscard]] bool IsUnderWay(std::size_t work);
    VersionFile Result();

    TextView bytes_;
    VersionFile file_;
    RecordForm form_ = RecordForm::Either;
    std::size_t total_ = 0;   // as a record says that is whole
    std::size_t missed_ = 0;  // places where a version was to be
    std::size_t size_ = 0;    // of all texts
    std::size_t work_ = 0;
    bool stops_ = false;
};

/// Whether there is still time for it: a made-up file may claim anything of itself.
bool Reading::IsUnderWay(std::size_t work) {
    constexpr std::size_t kMostWork = 8 * kMostVersionBytes;
    work_ += work;
    stops_ = stops_ || work_ > kMostWork;
    return !stops_;
}

void Reading::TakeTitle() {
    if (bytes_.starts_with(kTitle) || bytes_.starts_with(kOldTitle)) {
        form_ = bytes_.starts_with(kTitle) ? RecordForm::New : RecordForm::Old;
        bytes_.remove_prefix(kTitle.size());
        const auto script = TakeLine(bytes_);
        file_.Script = script.value_or("");
        file_.IsDamaged = !script;
        bytes_ = script ? bytes_ : TextView();
    } else if (!bytes_.empty()) {
        file_.IsDamaged = true;
        SkipToHead();
    }
}

/// Takes a record that has its length, whether its text can be made or not.
bool Reading::TakeRecord() {
    TextView rest = bytes_;
    const auto line = TakeLine(rest);
    const auto head = line ? ReadRecordHead(*line, form_) : std::nullopt;
    if (!head || head->PayloadSize >= rest.size() || rest[head->PayloadSize] != '\n') {
        return false;
    }
    const TextView payload = rest.substr(0, head->PayloadSize);
    rest.remove_prefix(payload.size() + 1);
    const bool isChecked = head->Total > 0;
    if (isChecked && (!IsUnderWay(payload.size()) || CheckSum(payload, CheckSum(head->Checked)) != head->RecordSum)) {
        return false;
    }
    auto text = TextOf(*head, payload);
    if (!text && !isChecked && !rest.empty() && !ReadRecordHead(FirstLine(rest), form_)) {
        return false;  // another's length, perhaps
    }
    bytes_ = rest;
    total_ = isChecked ? head->Total : total_;
    if (!text) {
        ++missed_;
        return true;
    }
    size_ += text->size();
    stops_ = stops_ || size_ > kMostVersionBytes;
    if (stops_) {
        ++missed_;
    } else {
        file_.Versions.push_back({head->Date, *std::move(text)});
    }
    return true;
}

std::optional<Text> Reading::TextOf(const RecordHead& head, TextView payload) {
    if (!head.IsWhole && file_.Versions.empty()) {
        return std::nullopt;
    }
    const TextView base = head.IsWhole ? TextView() : TextView(file_.Versions.back().Text);
    if (!IsUnderWay(base.size() + payload.size() + head.TextSize)) {
        return std::nullopt;
    }
    auto text = head.IsWhole ? std::optional<Text>(payload) : ApplyDelta(base, payload, head.TextSize);
    return text && text->size() == head.TextSize && CheckSum(*text) == head.Sum ? std::move(text) : std::nullopt;
}

/// The next line that may be a version's.
void Reading::SkipToHead() {
    while (TakeLine(bytes_)) {
        if (ReadRecordHead(FirstLine(bytes_), form_)) {
            return;
        }
    }
    bytes_ = {};
}

VersionFile Reading::Result() {
    file_.IsLostExact = total_ > 0;
    file_.Lost = total_ > 0 ? total_ - std::min(total_, file_.Versions.size()) : missed_;
    file_.IsDamaged = file_.IsDamaged || missed_ > 0 || file_.Lost > 0 || file_.Versions.empty();
    return std::move(file_);
}

}  // namespace

VersionFile ReadVersionFile(TextView bytes) {
    return Reading(bytes).Run();
}

Text WriteVersionFile(const VersionFile& file) {
    Text bytes = Join(kTitle, file.Script, "\n");
    const std::size_t count = std::min(file.Versions.size(), kMostVersions);
    for (std::size_t i = 0; i < count; ++i) {
        const ScriptVersion& version = file.Versions[i];
        const bool isWhole = i == 0 || (i % kWholeEvery == 0 && version.Text.size() <= kLargestRepeated);
        bytes += RecordOf(version, isWhole ? nullptr : &file.Versions[i - 1].Text, count);
    }
    return bytes;
}

}  // namespace lv
