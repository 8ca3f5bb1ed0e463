// tests/support/game_yard.h
//
// A drive C: in a fresh directory, with games made from the stand-ins, and what they wrote.

#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "platform/linux/starting/game_start.h"
#include "tests/support/host_files.h"

namespace lv {

struct GameYard {
    /// Directories of earlier yards of this name are removed.
    explicit GameYard(const std::string& name);

    /// Copies a stand-in ("show_native") as `file`, a host name below the drive, making its directories.
    std::filesystem::path AddGame(const std::string& standIn, const std::string& file);
    std::filesystem::path AddFile(const std::string& file, const std::string& bytes);
    /// The lines joined by CR LF, as lv_666.bat in the directory below the drive.
    void AddBatch(const std::string& directory, const std::vector<std::string>& lines);

    std::filesystem::path Root;   // holds everything
    std::filesystem::path Drive;  // C:
    HostFiles Disk;
    HostPlaces Places;
};

/// The lines of a stand-in's output once its last one, "end", is there; empty after a minute without it. CR is dropped.
std::vector<std::string> WaitForOutput(const std::filesystem::path& file);

/// A word that is no text of the user's, where it stands in the batch for the first time.
GivenWord GivenIn(const std::filesystem::path& batch, const std::string& word);

/// Waits up to a minute until the file holds the text.
bool WaitForText(const std::filesystem::path& file, const std::string& text);

/// Waits up to a minute until the directory, which must be there, has nothing in it.
bool WaitUntilEmpty(const std::filesystem::path& directory);

std::string ReadBytes(const std::filesystem::path& file);

/// The lines that start with `start`, without it.
std::vector<std::string> LinesAfter(const std::vector<std::string>& lines, const std::string& start);

/// An environment variable for the life of the object; nullptr removes it.
class ScopedVariable {
  public:
    ScopedVariable(const char* name, const char* value);
    ~ScopedVariable();
    ScopedVariable(const ScopedVariable&) = delete;
    ScopedVariable& operator=(const ScopedVariable&) = delete;

  private:
    std::string name_;
    std::string before_;
    bool was_ = false;
};

}  // namespace lv
