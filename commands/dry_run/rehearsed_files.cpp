#include "commands/dry_run/rehearsed_files.h"

#include <algorithm>
#include <utility>

#include "foundation/field_strings.h"

namespace lv {

namespace {

using Sort = RehearsedChange::Sort;

bool IsThere(const RehearsedChange& change) {
    return change.What == Sort::Written || change.What == Sort::Linked;
}

class TextFile : public RandomAccessFile {
  public:
    explicit TextFile(std::string bytes) : bytes_(std::move(bytes)) {}
    [[nodiscard]] std::uint64_t Size() const override { return bytes_.size(); }
    Result<std::string> Read(std::uint64_t offset, std::size_t count) override {
        return offset < bytes_.size() ? bytes_.substr(static_cast<std::size_t>(offset), count) : std::string();
    }

  private:
    std::string bytes_;
};

std::string Absolute(std::string_view directory, std::string_view path) {
    const bool isFull = (path.size() > 1 && path[1] == ':') || path.starts_with("\\\\");
    return isFull ? std::string(path) : Join(directory, directory.ends_with('\\') ? "" : "\\", path);
}

}  // namespace

RehearsedFiles::RehearsedFiles(Files& below) : below_(below), current_(below.CurrentDirectory()) {}

RehearsedFiles::~RehearsedFiles() {
    (void)below_.ChangeDrive(current_);
    (void)below_.ChangeDirectory(current_);
}

std::vector<RehearsedChange> RehearsedFiles::Changes() const {
    std::vector<Kept> kept;
    kept.reserve(changes_.size());
    for (const auto& [key, each] : changes_) {
        kept.push_back(each);
    }
    std::ranges::sort(kept, {}, &Kept::Order);
    std::vector<RehearsedChange> changes;
    changes.reserve(kept.size());
    for (Kept& each : kept) {
        changes.push_back(std::move(each.Change));
    }
    return changes;
}

bool RehearsedFiles::FileExists(std::string_view path) {
    const RehearsedChange* change = Find(path);
    return change != nullptr ? IsThere(*change) : below_.FileExists(path);
}

bool RehearsedFiles::DirectoryExists(std::string_view path) {
    const RehearsedChange* change = Find(path);
    return change != nullptr ? change->What == Sort::DirectoryMade : below_.DirectoryExists(path);
}

bool RehearsedFiles::IsPlainFile(std::string_view path) {
    const RehearsedChange* change = Find(path);
    return change != nullptr ? IsThere(*change) && change->What != Sort::Linked : below_.IsPlainFile(path);
}

Result<std::string> RehearsedFiles::Read(std::string_view path) {
    const RehearsedChange* change = Find(path);
    if (change == nullptr) {
        return below_.Read(path);
    }
    if (change->What == Sort::Linked) {
        return below_.Read(change->Bytes);
    }
    return change->What == Sort::Written ? Result<std::string>(change->Bytes)
                                         : Result<std::string>(MakeError(error::kFileNotFound));
}

Result<std::unique_ptr<RandomAccessFile>> RehearsedFiles::Open(std::string_view path) {
    if (Find(path) == nullptr) {
        return below_.Open(path);
    }
    Result<std::string> read = Read(path);
    if (!read.Ok()) {
        return read.Fault;
    }
    return std::unique_ptr<RandomAccessFile>(std::make_unique<TextFile>(std::move(read.Value)));
}

Error RehearsedFiles::Copy(std::string_view from, std::string_view to) {
    Result<std::string> read = Read(from);
    return read.Ok() ? Write(to, read.Value) : read.Fault;
}

Error RehearsedFiles::Link(std::string_view target, std::string_view path) {
    if (!FileExists(target)) {
        return MakeError(error::kFileNotFound);
    }
    if (FileExists(path)) {
        return MakeError(error::kPathFileAccess);
    }
    Keep({Sort::Linked, std::string(path), std::string(target)});
    return {};
}

bool RehearsedFiles::IsLinkTo(std::string_view path, std::string_view target) {
    const RehearsedChange* change = Find(path);
    return change != nullptr ? change->What == Sort::Linked && SameText(change->Bytes, target)
                             : below_.IsLinkTo(path, target);
}

Error RehearsedFiles::Delete(std::string_view path) {
    if (!FileExists(path)) {
        return MakeError(error::kFileNotFound);
    }
    if (!below_.FileExists(path)) {
        changes_.erase(KeyOf(path));
        return {};
    }
    Keep({Sort::Deleted, std::string(path)});
    return {};
}

Error RehearsedFiles::MakeDirectory(std::string_view path) {
    if (DirectoryExists(path) || FileExists(path)) {
        return MakeError(error::kPathFileAccess);
    }
    Keep({Sort::DirectoryMade, std::string(path)});
    return {};
}

Error RehearsedFiles::RemoveDirectory(std::string_view path) {
    if (!DirectoryExists(path)) {
        return MakeError(error::kPathNotFound);
    }
    Keep({Sort::DirectoryRemoved, std::string(path)});
    return {};
}

std::string RehearsedFiles::KeyOf(std::string_view path) {
    return LowerCase(Absolute(below_.CurrentDirectory(), path));
}

const RehearsedChange* RehearsedFiles::Find(std::string_view path) {
    const auto found = changes_.find(KeyOf(path));
    return found == changes_.end() ? nullptr : &found->second.Change;
}

Error RehearsedFiles::Write(std::string_view path, std::string_view bytes) {
    const std::string directory = DirectoryOf(path);
    if (!directory.empty() && !DirectoryExists(directory)) {
        return MakeError(error::kPathNotFound);
    }
    if (DirectoryExists(path)) {
        return MakeError(error::kPathFileAccess);
    }
    if (!directory.empty() && below_.DirectoryExists(directory) && !below_.CanWrite(directory)) {
        return MakeError(error::kPermissionDenied);
    }
    Keep({Sort::Written, std::string(path), std::string(bytes)});
    return {};
}

void RehearsedFiles::Keep(RehearsedChange change) {
    const std::string key = KeyOf(change.Path);
    const auto found = changes_.find(key);
    const std::size_t order = found != changes_.end() ? found->second.Order : changes_.size();
    changes_[key] = {std::move(change), order};
}

}  // namespace lv
