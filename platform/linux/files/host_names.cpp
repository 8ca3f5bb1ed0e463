#include "platform/linux/files/host_names.h"

#include <sys/stat.h>

#include <algorithm>

#include "platform/code_page.h"
#include "platform/linux/files/file_descriptor.h"
#include "platform/linux/files/host_read.h"

namespace lv {

namespace {

// Directories that are gone into for one path. Where names differ by letter case alone in many ways there are more ways
// than anyone could go.
constexpr int kMostTries = 200;

bool IsSeparator(char c) {
    return c == '\\' || c == '/';
}

bool IsLetter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

// A link that leads nowhere is a name all the same.
bool NameExists(const std::string& hostPath) {
    struct stat info {};
    return lstat(hostPath.c_str(), &info) == 0;
}

// Tells most names from it at their first letter, so that few are converted.
bool MayBeCalled(std::string_view hostName, std::string_view part) {
    const auto isPlain = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
    return part.empty() || !isPlain(hostName.front()) || !isPlain(part.front()) ||
           LowerCase(hostName.front()) == LowerCase(part.front());
}

std::string Below(const std::string& directory, const std::string& hostName) {
    return directory.ends_with('/') ? directory + hostName : directory + "/" + hostName;
}

// In another spelling than this, in byte order.
std::vector<std::string> OthersCalled(const std::string& directory, std::string_view part, std::string_view hostName) {
    std::vector<std::string> others;
    const DirectoryStream open(opendir(directory.c_str()));
    while (const dirent* entry = open ? readdir(open.get()) : nullptr) {
        if (MayBeCalled(entry->d_name, part) && entry->d_name != hostName) {
            const auto name = NameFromHost(entry->d_name);
            if (name && SameText(*name, part)) {
                others.emplace_back(entry->d_name);
            }
        }
    }
    std::sort(others.begin(), others.end());
    return others;
}

using Names = std::vector<std::string>;

// The spelling of a path among those that the directories on the way offer: each as it is said if that is there, then
// the others in byte order.
class Spelling {
  public:
    Spelling(const std::string& root, const Names& parts) : root_(root), parts_(parts) {
        for (const std::string& part : parts) {
            said_.push_back(ToUtf8(part));
        }
    }

    Names Find() {
        if (parts_.empty() || NameExists(PathOf(said_))) {
            return said_;
        }
        const std::size_t last = parts_.size() - 1;
        const auto above = FindDirectory(last);
        if (above) {
            if (auto names = WithLast(*above)) {
                return *names;
            }
            hasNone_ = PathOf(*above);
        }
        if (const auto directory = FindDirectory(parts_.size())) {
            return *directory;
        }
        Names names = above ? *above : FirstSpellings();
        names.insert(names.end(), said_.begin() + static_cast<std::ptrdiff_t>(names.size()), said_.end());
        return names;
    }

  private:
    [[nodiscard]] std::string PathOf(const Names& names) const {
        std::string path = root_;
        for (const std::string& name : names) {
            path = Below(path, name);
        }
        return path;
    }

    // With the last part, which may be a file.
    std::optional<Names> WithLast(Names above) {
        const std::string directory = PathOf(above);
        const bool isThere = NameExists(Below(directory, said_.back()));
        const Names others = isThere ? Names() : OthersCalled(directory, parts_.back(), said_.back());
        if (!isThere && others.empty()) {
            return std::nullopt;
        }
        above.push_back(isThere ? said_.back() : others.front());
        return above;
    }

    // The first way of so many parts that ends in a directory.
    std::optional<Names> FindDirectory(std::size_t count) {
        Names names;
        tries_ = 0;
        return GoDown(root_, count, names) ? std::optional(names) : std::nullopt;
    }

    // NOLINTNEXTLINE(misc-no-recursion): as deep as the path
    bool GoDown(const std::string& at, std::size_t count, Names& names) {
        if (++tries_ > kMostTries || names.size() == count) {
            return tries_ <= kMostTries && IsDirectoryAt(at);
        }
        const std::size_t depth = names.size();
        if (depth + 1 == parts_.size() && at == hasNone_) {
            return false;
        }
        const auto goInto = [&](const std::string& name) {
            names.push_back(name);
            const bool found = GoDown(Below(at, name), count, names);
            if (!found) {
                names.resize(depth);
            }
            return found;
        };
        if (NameExists(Below(at, said_[depth])) && goInto(said_[depth])) {
            return true;
        }
        const Names others = OthersCalled(at, parts_[depth], said_[depth]);
        return std::any_of(others.begin(), others.end(), goInto);
    }

    // As far as each is there by itself: no way leads further.
    [[nodiscard]] Names FirstSpellings() const {
        Names names;
        std::string at = root_;
        while (names.size() < parts_.size()) {
            const std::string& said = said_[names.size()];
            const bool isThere = NameExists(Below(at, said));
            const Names others = isThere ? Names() : OthersCalled(at, parts_[names.size()], said);
            if (!isThere && others.empty()) {
                break;
            }
            names.push_back(isThere ? said : others.front());
            at = Below(at, names.back());
        }
        return names;
    }

    const std::string& root_;
    const Names& parts_;
    Names said_;
    std::string hasNone_;  // a directory that is known not to have the last part
    int tries_ = 0;
};

// The host's names of the parts, in order.
Names HostNames(const std::string& root, const Names& parts) {
    return Spelling(root, parts).Find();
}

}  // namespace

std::optional<DrivePath> TakeApart(std::string_view path, const DrivePath& current) {
    if (path.empty() || path.find('\0') != std::string_view::npos) {
        return std::nullopt;
    }
    DrivePath taken = current;
    if (path.size() >= 2 && path[1] == ':' && IsLetter(path[0])) {
        taken = {UpperCase(path[0]), {}};
        path.remove_prefix(2);
    } else if (IsSeparator(path[0])) {
        taken.Parts.clear();
    }
    while (!path.empty()) {
        const auto end = std::find_if(path.begin(), path.end(), IsSeparator);
        const std::string part(path.begin(), end);
        path.remove_prefix(std::min(part.size() + 1, path.size()));
        if (part == "..") {
            if (!taken.Parts.empty()) {
                taken.Parts.pop_back();
            }
        } else if (!part.empty() && part != ".") {
            taken.Parts.push_back(part);
        }
    }
    return taken;
}

bool EndsInSeparator(std::string_view path) {
    return !path.empty() && IsSeparator(path.back());
}

std::string PutTogether(const DrivePath& path) {
    std::string whole = {path.Letter, ':'};
    for (const std::string& part : path.Parts) {
        whole += "\\" + part;
    }
    return path.Parts.empty() ? whole + "\\" : whole;
}

std::string HostPathBelow(const std::string& root, const std::vector<std::string>& parts) {
    std::string path = root;
    for (const std::string& name : HostNames(root, parts)) {
        path = Below(path, name);
    }
    return path;
}

std::vector<std::string> OtherSpellings(const std::string& directory, std::string_view name) {
    std::vector<std::string> others = OthersCalled(directory, name, ToUtf8(name));
    for (std::string& other : others) {
        other = Below(directory, other);
    }
    return others;
}

std::vector<std::string> PartsAsFound(const std::string& root, const std::vector<std::string>& parts) {
    std::vector<std::string> found;
    for (const std::string& name : HostNames(root, parts)) {
        found.push_back(FromUtf8Lossy(name));
    }
    return found;
}

std::optional<std::string> NameFromHost(std::string_view hostName) {
    auto name = FromUtf8(hostName);
    if (name && name->find('\\') != std::string::npos) {
        return std::nullopt;
    }
    return name;
}

}  // namespace lv
