// foundry/versions/version_file.h
//
// The file that holds a script's older versions, newest first. Line ends are LF, the payloads any bytes:
//   Lorvane 3D versions 2
//   C:\QUAKE\ID1\my.cfg
//   2026-11-23 08:52:11 whole 5120 5120 1c291ca3 2 5d0c7a11
//   <payload>
//   2026-11-22 20:01:45 delta 5098 77 9be3a3e2 2 03b1f2c4
//   <payload>
// A version's line has its date, how its payload is to be read, the bytes of its text, those of its payload, the text's
// check sum (CRC-32, as in zip archives), how many versions the file holds, and the check sum of the line up to here
// and the payload together. "whole" is the text itself, "delta" what it is by the next newer version (version_delta). A
// line feed follows each payload. The lines of "versions 1" end behind the text's check sum.
//
// The newest is whole, and every tenth behind it whose text has up to 16 KB, so that one damage costs ten versions of
// such a script at most, and the file is no more than 64 KB larger for that. Of a larger script it may cost all.

#pragma once

#include <vector>

#include "foundry/versions/version_record.h"
#include "platform/error.h"

namespace lv {

struct VersionFile {
    lv::Text Script;  // whose versions they are
    std::vector<ScriptVersion> Versions;
    bool IsDamaged = false;    // there was more that could not be made out
    std::size_t Lost = 0;      // versions that could not
    bool IsLostExact = false;  // false: there may have been more of these
    Error Unread = {};         // why the file could not be read at all, damaged or not
};

constexpr std::size_t kMostVersionBytes = 32U << 20U;  // of all texts of a file

/// What is intact of it: versions up to the first damage, and behind it those that need no other or whose next newer
/// one is as the last that could be read where it counts. A file without a version is damaged: none is written so.
VersionFile ReadVersionFile(TextView bytes);

/// No more than kMostVersions of them.
Text WriteVersionFile(const VersionFile& file);

}  // namespace lv
