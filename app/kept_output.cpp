#include "app/kept_output.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <utility>

namespace lv {

namespace {

constexpr std::string_view kLeftOut = "\n... (lines are left out here) ...\n";

int MakeNew(const std::string& path) {
    return open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_APPEND | O_NOFOLLOW | O_CLOEXEC, 0600);
}

// Beside its place; what a killed helper has left there goes.
int MakeBeside(const std::string& path) {
    unlink(path.c_str());
    return MakeNew(path);
}

bool WriteWhole(int file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = write(file, bytes.data(), bytes.size());
        if (count < 0 && errno != EINTR) {
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    }
    return true;
}

std::string Part(int file, std::size_t at, std::size_t size) {
    std::string bytes(size, '\0');
    std::size_t got = 0;
    while (got < size) {
        const ssize_t count = pread(file, bytes.data() + got, size - got, static_cast<off_t>(at + got));
        if (count == 0 || (count < 0 && errno != EINTR)) {
            break;
        }
        got += static_cast<std::size_t>(std::max<ssize_t>(count, 0));
    }
    bytes.resize(got);
    return bytes;
}

}  // namespace

KeptOutput::KeptOutput(std::string path) : path_(std::move(path)), file_(MakeNew(path_)), keeping_(file_ >= 0) {}

KeptOutput::~KeptOutput() {
    if (file_ >= 0) {
        close(file_);
    }
}

bool KeptOutput::IsOurs() const {
    struct stat ours {};
    struct stat there {};
    return file_ >= 0 && fstat(file_, &ours) == 0 && lstat(path_.c_str(), &there) == 0 && ours.st_dev == there.st_dev &&
           ours.st_ino == there.st_ino;
}

void KeptOutput::MakeRoom() {
    const std::string made = path_ + ".new";
    const std::string first = Part(file_, 0, kFirstKept);
    const std::string last = Part(file_, size_ - kLastKept, kLastKept);
    const int file = IsOurs() ? MakeBeside(made) : -1;
    const bool put = file >= 0 && WriteWhole(file, first) && WriteWhole(file, kLeftOut) && WriteWhole(file, last) &&
                     std::rename(made.c_str(), path_.c_str()) == 0;
    if (put) {
        close(std::exchange(file_, file));
        size_ = first.size() + kLeftOut.size() + last.size();
        return;
    }
    keeping_ = false;
    if (file >= 0) {
        close(file);
        unlink(made.c_str());
    }
}

void KeptOutput::Append(std::string_view bytes) {
    while (keeping_ && !bytes.empty()) {
        if (size_ == kMostKept) {
            MakeRoom();
            continue;
        }
        const std::string_view piece = bytes.substr(0, kMostKept - size_);
        keeping_ = WriteWhole(file_, piece);
        size_ += piece.size();
        bytes.remove_prefix(piece.size());
    }
}

bool PutInPlace(const std::string& path, std::string_view bytes) {
    const std::string made = path + ".new";
    const int file = MakeBeside(made);
    if (file < 0) {
        return false;
    }
    const bool written = WriteWhole(file, bytes);
    close(file);
    const bool put = written && std::rename(made.c_str(), path.c_str()) == 0;
    if (!put) {
        unlink(made.c_str());
    }
    return put;
}

}  // namespace lv
