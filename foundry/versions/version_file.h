// foundry/versions/version_file.h
//
// The file that holds a script's older versions, newest first. Line ends are LF, the payloads any bytes:
//   Lorvane 3D versions 1
//   C:\QUAKE\ID1\my.cfg
//   2026-11-23 08:52:11 whole 5120 5120 1c291ca3
//   <payload>
//   2026-11-22 20:01:45 delta 5098 77 9be3a3e2
//   <payload>
// A version's line has its date, how its payload is to be read, the bytes of its text, those of its payload, and the
// text's check sum (CRC-32, as in zip archives). "whole" is the text itself, "delta" what it is by the next newer
// version (version_delta). A line feed follows each payload.

#pragma once

#include <vector>

#include "foundation/text.h"
#include "platform/clock.h"

namespace lv {

struct ScriptVersion {
    LocalTime Date;  // when it was replaced
    lv::Text Text;
};

struct VersionFile {
    lv::Text Script;  // whose versions they are
    std::vector<ScriptVersion> Versions;
    bool IsDamaged = false;  // there was more that could not be read
};

constexpr std::size_t kMostVersions = 50;
constexpr std::size_t kLargestVersion = 4U << 20U;     // bytes
constexpr std::size_t kMostVersionBytes = 32U << 20U;  // of all texts of a file

/// What is intact of it: versions up to the first damage.
VersionFile ReadVersionFile(TextView bytes);

Text WriteVersionFile(const VersionFile& file);

}  // namespace lv
