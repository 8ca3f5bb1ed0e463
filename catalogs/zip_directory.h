// catalogs/zip_directory.h
//
// The central directory of an archive of the zip kind, as games have it: of one part, below 4 GB, without passwords.

#pragma once

#include "catalogs/archive_entries.h"

namespace lv {

/// Files alone, in the directory's order. Nothing for what is no such archive, or whose directory lies outside of it
/// or is too large; a damaged entry ends the list.
std::optional<std::vector<ArchiveEntry>> ReadZipEntries(RandomAccessFile& archive);

/// Where the bytes of the file begin whose header stands there.
std::optional<std::uint64_t> StartOfZipEntry(RandomAccessFile& archive, std::uint64_t header);

}  // namespace lv
