#include "platform/linux/files/host_names.h"

#include <sys/stat.h>

#include <algorithm>

#include "platform/code_page.h"
#include "platform/linux/files/file_descriptor.h"

namespace lv {

namespace {

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

std::string Below(const std::string& directory, const std::string& hostName) {
    return directory.ends_with('/') ? directory + hostName : directory + "/" + hostName;
}

std::optional<std::string> FindBlindToCase(const std::string& directory, std::string_view part) {
    const DirectoryStream open(opendir(directory.c_str()));
    if (!open) {
        return std::nullopt;
    }
    std::optional<std::string> best;
    while (const dirent* entry = readdir(open.get())) {
        const auto name = NameFromHost(entry->d_name);
        if (name && SameText(*name, part) && (!best || entry->d_name < *best)) {
            best = entry->d_name;
        }
    }
    return best;
}

// The host's names of the parts, in order.
std::vector<std::string> HostNames(const std::string& root, const std::vector<std::string>& parts) {
    std::vector<std::string> names;
    std::string at = root;
    for (const std::string& part : parts) {
        names.push_back(ToUtf8(part));
        at = Below(at, names.back());
    }
    if (NameExists(at)) {
        return names;
    }
    at = root;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (!NameExists(Below(at, names[i]))) {
            const auto found = FindBlindToCase(at, parts[i]);
            if (!found) {
                return names;
            }
            names[i] = *found;
        }
        at = Below(at, names[i]);
    }
    return names;
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
    std::vector<std::string> others;
    const DirectoryStream open(opendir(directory.c_str()));
    while (const dirent* entry = open ? readdir(open.get()) : nullptr) {
        const auto found = NameFromHost(entry->d_name);
        if (found && *found != name && SameText(*found, name)) {
            others.push_back(Below(directory, entry->d_name));
        }
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
