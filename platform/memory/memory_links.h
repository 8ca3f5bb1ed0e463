// platform/memory/memory_links.h
//
// What a desktop and the registry know of links, as a test sets it.

#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/desktop_lists.h"
#include "platform/memory/memory_platform.h"
#include "platform/registry_trees.h"

namespace lv {

class MemoryDesktopLists : public DesktopLists {
  public:
    Result<std::string> Defaults() override {
        return RefuseReads ? Result<std::string>(RefuseReads) : Result<std::string>(List);
    }
    Error SetDefaults(std::string_view text) override {
        if (!RefuseList) {
            List = text;
        }
        return RefuseList;
    }
    std::vector<std::string> StrongerDefaults() override { return Stronger; }
    Result<std::string> Entry(std::string_view name) override {
        const auto found = Entries.find(std::string(name));
        return found == Entries.end() ? std::string() : found->second;
    }
    Error SetEntry(std::string_view name, std::string_view text) override {
        if (!RefuseEntry) {
            Entries[std::string(name)] = text;
        }
        return RefuseEntry;
    }
    Error RemoveEntry(std::string_view name) override {
        Entries.erase(std::string(name));
        return {};
    }
    std::string ProgramFile() override { return Program; }

    std::string List;
    std::vector<std::string> Stronger;
    std::map<std::string, std::string> Entries;
    std::string Program = "/opt/lorvane/lorvane3d";
    Error RefuseReads;
    Error RefuseList;
    Error RefuseEntry;
};

/// Of the values of a registry in memory: a key is there when a value is in it or below it.
class MemoryRegistryTrees : public RegistryTrees {
  public:
    explicit MemoryRegistryTrees(MemoryRegistry& registry) : registry_(registry) {}
    bool Has(std::string_view path) override;
    Error Copy(std::string_view from, std::string_view to) override;
    Error Remove(std::string_view path) override;
    std::string ProgramFile() override { return Program; }

    std::string Program = "C:\\LORVANE\\lorvane3d.exe";
    Error RefuseCopies;

  private:
    MemoryRegistry& registry_;
};

}  // namespace lv
