#include "platform/memory/memory_files.h"

#include <algorithm>

#include "platform/code_page.h"

namespace lv {

namespace {

std::string ParentOf(std::string_view key) {
    const std::size_t at = key.rfind('\\');
    return at == std::string_view::npos ? std::string() : std::string(key.substr(0, at));
}

class MemoryFile : public RandomAccessFile {
  public:
    MemoryFile(std::string bytes, std::uint64_t size)
        : bytes_(std::move(bytes)), size_(std::max<std::uint64_t>(size, bytes_.size())) {}
    [[nodiscard]] std::uint64_t Size() const override { return size_; }
    Result<std::string> Read(std::uint64_t offset, std::size_t count) override {
        if (offset >= size_) {
            return std::string();
        }
        std::string read = offset < bytes_.size() ? bytes_.substr(static_cast<std::size_t>(offset), count) : "";
        read.resize(static_cast<std::size_t>(std::min<std::uint64_t>(count, size_ - offset)));
        return read;
    }

  private:
    std::string bytes_;
    std::uint64_t size_;
};

}  // namespace

// The full path in lower case, "." and ".." resolved, no "\" at the end: "c:\quake\id1", a drive's root "c:".
std::string MemoryFiles::Key(std::string_view path) const {
    std::string whole(path);
    if (whole.size() < 2 || whole[1] != ':') {
        whole = whole.starts_with('\\') ? current_.substr(0, 2) + whole : current_ + "\\" + whole;
    }
    std::string key = LowerCase(whole.substr(0, 2));
    for (std::size_t at = 2; at < whole.size();) {
        const std::size_t end = std::min(whole.find('\\', at), whole.size());
        const std::string part = LowerCase(whole.substr(at, end - at));
        if (part == "..") {
            key = key.size() > 2 ? ParentOf(key) : key;
        } else if (!part.empty() && part != ".") {
            key += "\\" + part;
            const auto link = links_.find(key);
            key = link == links_.end() ? key : link->second;
        }
        at = end + 1;
    }
    return key;
}

// The last component as it is, were it a link.
std::string MemoryFiles::KeyOfLink(std::string_view path) const {
    const std::size_t at = path.rfind('\\');
    return at == std::string_view::npos ? Key(path) : Key(path.substr(0, at + 1)) + LowerCase(path.substr(at));
}

MemoryFiles::Node* MemoryFiles::Find(std::string_view path) {
    if (path.empty()) {
        return nullptr;
    }
    const auto found = nodes_.find(Key(path));
    return found == nodes_.end() ? nullptr : &found->second;
}

void MemoryFiles::AddDirectory(std::string_view path) {
    const std::string key = Key(path);
    if (nodes_.contains(key)) {
        return;
    }
    if (const std::string parent = ParentOf(key); !parent.empty()) {
        AddDirectory(ParentOf(path));
    }
    nodes_[key] = {std::string(path), "", true, made_++};
}

void MemoryFiles::AddLink(std::string_view path, std::string_view target) {
    const std::string key = Key(path);
    AddDirectory(path);
    links_[key] = Key(target);
}

void MemoryFiles::AddFileLink(std::string_view path, std::string_view target) {
    AddFile(path);
    links_[KeyOfLink(path)] = Key(target);
}

void MemoryFiles::AddDevice(std::string_view path) {
    AddFile(path);
    nodes_[Key(path)].IsDevice = true;
}

void MemoryFiles::AddSparseFile(std::string_view path, std::string_view bytes, std::uint64_t size) {
    AddFile(path, bytes);
    nodes_[Key(path)].Size = size;
}

void MemoryFiles::AddDrive(std::string_view drive) {
    AddDirectory(drive);
}

void MemoryFiles::AddFile(std::string_view path, std::string_view bytes) {
    AddDirectory(ParentOf(path));
    nodes_[Key(path)] = {std::string(path), std::string(bytes), false, made_++};
}

std::vector<std::string> MemoryFiles::Drives() {
    std::vector<std::string> drives;
    for (const auto& [key, node] : nodes_) {
        if (key.size() == 2) {
            drives.push_back(UpperCase(key));
        }
    }
    return drives;
}

Error MemoryFiles::ProbeDrive(std::string_view drive) {
    const std::string name = UpperCase(drive.substr(0, 2));
    if (DrivesNotReady.contains(name)) {
        return MakeError(error::kDiskNotReady);
    }
    return nodes_.contains(LowerCase(name)) ? Error() : MakeError(error::kDeviceUnavailable);
}

std::string_view MemoryFiles::Real(std::string_view path) {
    const std::string* const real = standIns_.Of(path);
    const Node* const node = real == nullptr ? nullptr : Find(path);
    return real == nullptr || (node != nullptr && !node->IsDirectory) ? path : *real;
}

bool MemoryFiles::StandIn(std::string_view path, std::string_view real) {
    standIns_.Set(path, real);
    return KnowsStandIns;
}

bool MemoryFiles::FileExists(std::string_view path) {
    const Node* node = Find(Real(path));
    return node != nullptr && !node->IsDirectory && !node->IsDevice;
}

bool MemoryFiles::DirectoryExists(std::string_view path) {
    const Node* node = Find(path);
    return node != nullptr && node->IsDirectory;
}

bool MemoryFiles::IsPlainFile(std::string_view path) {
    const auto found = nodes_.find(KeyOfLink(path));
    return found != nodes_.end() && !links_.contains(found->first) && !found->second.IsDirectory &&
           !found->second.IsDevice;
}

Result<std::vector<DirectoryEntry>> MemoryFiles::List(std::string_view directory) {
    if (!DirectoryExists(directory)) {
        return MakeError(error::kPathNotFound);
    }
    const std::string key = Key(directory);
    Listed.emplace_back(directory);
    if (Unreadable.contains(key)) {
        return MakeError(error::kPathFileAccess);
    }
    std::vector<const Node*> children;
    for (const auto& [path, node] : nodes_) {
        if (ParentOf(path) == key) {
            children.push_back(&node);
        }
    }
    std::sort(children.begin(), children.end(), [](const Node* a, const Node* b) { return a->Order < b->Order; });
    std::vector<DirectoryEntry> entries = {{".", true}, {"..", true}};
    for (const Node* child : children) {
        entries.push_back({child->Name.substr(child->Name.rfind('\\') + 1), child->IsDirectory, child->IsDevice});
    }
    return entries;
}

Result<WalkedDirectory> MemoryFiles::ListForWalk(std::string_view directory) {
    auto listed = List(directory);
    if (!listed.Ok()) {
        return listed.Fault;
    }
    const auto nameless = Nameless.find(Key(directory));
    return WalkedDirectory{std::hash<std::string>()(Key(directory)), std::move(listed.Value),
                           nameless == Nameless.end() ? 0 : nameless->second};
}

Result<const MemoryFiles::Node*> MemoryFiles::FindFile(std::string_view path) {
    const Node* node = Find(path);
    if (node == nullptr) {
        return MakeError(DirectoryExists(ParentOf(Key(path))) ? error::kFileNotFound : error::kPathNotFound);
    }
    return node->IsDirectory || node->IsDevice ? Result<const Node*>(MakeError(error::kPathFileAccess)) : node;
}

Result<const MemoryFiles::Node*> MemoryFiles::FindReadable(std::string_view path) {
    const auto refused = RefusedReads.find(Key(path));
    return refused != RefusedReads.end() ? refused->second : FindFile(path);
}

Result<std::string> MemoryFiles::Read(std::string_view path) {
    const auto node = FindReadable(path);
    if (!node.Ok()) {
        return node.Fault;
    }
    if (node.Value->Size > kLargestWholeFile) {
        return MakeTooLarge(kLargestWholeFile);
    }
    return MemoryFile(node.Value->Bytes, node.Value->Size).Read(0, kLargestWholeFile);
}

Result<std::unique_ptr<RandomAccessFile>> MemoryFiles::Open(std::string_view path) {
    const auto node = FindReadable(Real(path));
    if (!node.Ok()) {
        return node.Fault;
    }
    return std::unique_ptr<RandomAccessFile>(std::make_unique<MemoryFile>(node.Value->Bytes, node.Value->Size));
}

Error MemoryFiles::Replace(std::string_view path, std::string_view bytes) {
    return Put(Key(path), path, bytes);
}

Error MemoryFiles::ReplaceOwn(std::string_view path, std::string_view bytes) {
    const std::string key = KeyOfLink(path);
    links_.erase(key);
    if (!Refused.contains(key) && nodes_.contains(key) && nodes_[key].IsDevice) {
        nodes_.erase(key);
    }
    if (Error failed = Put(key, path, bytes)) {
        return failed;
    }
    nodes_[key].Name = path;
    Private.insert(key);
    return {};
}

Error MemoryFiles::Put(const std::string& key, std::string_view path, std::string_view bytes) {
    if (const auto refused = Refused.find(key); refused != Refused.end()) {
        return refused->second;
    }
    if (!nodes_.contains(ParentOf(key))) {
        return MakeError(error::kPathNotFound);
    }
    const auto old = nodes_.find(key);
    if (old != nodes_.end() && (old->second.IsDirectory || old->second.IsDevice)) {
        return MakeError(error::kPathFileAccess);
    }
    Log.push_back("replace " + std::string(path));
    if (old != nodes_.end()) {
        old->second.Bytes = bytes;
        old->second.Size = 0;
    } else {
        nodes_[key] = {std::string(path), std::string(bytes), false, made_++};
    }
    return {};
}

Error MemoryFiles::Copy(std::string_view from, std::string_view to) {
    const Result<std::string> bytes = Read(from);
    if (!bytes.Ok()) {
        return bytes.Fault;
    }
    return Replace(to, bytes.Value);
}

Error MemoryFiles::CopyOwn(std::string_view from, std::string_view to) {
    const Result<std::string> bytes = Read(from);
    if (!bytes.Ok()) {
        return bytes.Fault;
    }
    return ReplaceOwn(to, bytes.Value);
}

std::string MemoryFiles::LeadsAway(std::string_view path, std::string_view tree) {
    const std::string target = Key(path);
    std::string plain(path);
    if (plain.size() < 2 || plain[1] != ':') {
        plain = plain.starts_with('\\') ? current_.substr(0, 2) + plain : current_ + "\\" + plain;
    }
    const auto within = [&target](const std::string& directory) {
        return directory.size() > 2 && target.starts_with(directory + "\\");
    };
    const bool stays = target == LowerCase(plain) || within(LowerCase(Home)) || within(Key(tree));
    return stays ? std::string() : target;
}

bool MemoryFiles::CanWrite(std::string_view directory) {
    return DirectoryExists(directory) && !ReadOnly.contains(Key(directory));
}

Error MemoryFiles::Link(std::string_view target, std::string_view path) {
    const auto file = FindFile(target);
    if (!file.Ok()) {
        return file.Fault;
    }
    const std::string key = KeyOfLink(path);
    if (!DirectoryExists(ParentOf(key))) {
        return MakeError(error::kPathNotFound);
    }
    if (nodes_.contains(key)) {
        return MakeError(error::kPathFileAccess);
    }
    if (ReadOnly.contains(ParentOf(key))) {
        return MakeError(error::kPermissionDenied);
    }
    AddFileLink(path, target);
    Log.push_back("link " + std::string(path));
    return {};
}

bool MemoryFiles::IsLinkTo(std::string_view path, std::string_view target) {
    const auto link = links_.find(KeyOfLink(path));
    return link != links_.end() && link->second == Key(target);
}

std::string MemoryFiles::LeadsInto(std::string_view path, std::string_view tree) {
    const auto link = links_.find(KeyOfLink(path));
    const std::string above = Key(tree) + "\\";
    if (link == links_.end() || !link->second.starts_with(above)) {
        return {};
    }
    const auto target = nodes_.find(link->second);
    const std::string whole = target == nodes_.end() ? link->second : target->second.Name;
    return whole.substr(above.size());
}

Error MemoryFiles::Delete(std::string_view path) {
    if (const std::string link = KeyOfLink(path); links_.contains(link) && !nodes_[link].IsDirectory) {
        links_.erase(link);
        nodes_.erase(link);
        Log.push_back("delete " + std::string(path));
        return {};
    }
    const Node* const node = Find(path);
    if (node == nullptr || node->IsDirectory || node->IsDevice) {
        return MakeError(error::kFileNotFound);
    }
    if (RefusedDeletes.contains(Key(path))) {
        return MakeError(error::kPermissionDenied);
    }
    Log.push_back("delete " + std::string(path));
    nodes_.erase(Key(path));
    return {};
}

Error MemoryFiles::MakeDirectory(std::string_view path) {
    const std::string key = Key(path);
    if (nodes_.contains(key)) {
        return MakeError(error::kPathFileAccess);
    }
    if (!nodes_.contains(ParentOf(key))) {
        return MakeError(error::kPathNotFound);
    }
    AddDirectory(path);
    return {};
}

Error MemoryFiles::RemoveDirectory(std::string_view path) {
    if (!DirectoryExists(path)) {
        return MakeError(error::kPathNotFound);
    }
    const std::string key = Key(path);
    for (const auto& [other, node] : nodes_) {
        if (ParentOf(other) == key) {
            return MakeError(error::kPathFileAccess);
        }
    }
    nodes_.erase(key);
    return {};
}

Error MemoryFiles::ChangeDrive(std::string_view drive) {
    if (const Error failed = ProbeDrive(drive)) {
        return failed;
    }
    if (LowerCase(drive.substr(0, 2)) != LowerCase(current_.substr(0, 2))) {
        current_ = UpperCase(drive.substr(0, 2)) + "\\";
    }
    return {};
}

Error MemoryFiles::ChangeDirectory(std::string_view path) {
    const Node* node = Find(path);
    if (node == nullptr || !node->IsDirectory) {
        return MakeError(error::kPathNotFound);
    }
    current_ = node->Name.size() == 2 ? node->Name + "\\" : node->Name;
    return {};
}

std::string MemoryFiles::ToHost(std::string_view path) {
    std::string host = "/" + Key(Real(path));
    std::replace(host.begin(), host.end(), '\\', '/');
    return ToUtf8(host);
}

std::string MemoryFiles::FromHost(std::string_view hostPath) {
    std::string path = FromUtf8(hostPath).value_or("");
    if (path.size() < 3 || path[2] != ':') {
        return {};
    }
    std::replace(path.begin(), path.end(), '/', '\\');
    return UpperCase(path.substr(1, 2)) + path.substr(3);
}

std::string MemoryFiles::FromTyped(std::string_view typed) {
    const bool atHome = typed == "~" || typed.starts_with("~/");
    std::string path = atHome ? Home + std::string(typed.substr(1)) : std::string(typed);
    if (!atHome && typed.starts_with('/')) {
        path = "Z:" + path;
    }
    if (path != typed) {
        std::replace(path.begin(), path.end(), '/', '\\');
    }
    return path;
}

std::string MemoryFiles::Bytes(std::string_view path) {
    const Result<std::string> bytes = Read(path);
    return bytes.Ok() ? bytes.Value : "(none)";
}

}  // namespace lv
