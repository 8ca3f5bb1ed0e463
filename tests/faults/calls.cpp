#include "tests/faults/calls.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdarg>
#include <cstring>
#include <numeric>
#include <string>

namespace lv {

namespace {

// Looked at in the middle of any call: nothing here may need a constructor or a lock.
struct State {
    char Below[PATH_MAX] = "";
    Fate What = Fate::kNone;
    int At = 0;
    Call Kind = Call::kWrite;
    int Errno = 0;
    bool Set = false;
    std::array<int, kCalls> Seen{};
};
State g_state;  // NOLINT: the calls below have no other place to look

template <class Function>
Function* Real(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

bool IsBelow(const char* path) {
    return path != nullptr && std::strncmp(path, g_state.Below, std::strlen(g_state.Below)) == 0;
}

bool IsBelow(int descriptor) {
    char link[64];
    char path[PATH_MAX] = "";
    std::snprintf(link, sizeof link, "/proc/self/fd/%d", descriptor);
    return readlink(link, path, sizeof path - 1) > 0 && IsBelow(path);
}

[[noreturn]] void Die() {
    kill(getpid(), SIGKILL);
    while (true) {
        pause();
    }
}

// Counts the call and gives what becomes of it.
template <class File>
Fate FateOf(Call kind, File file) {
    if (!g_state.Set || !IsBelow(file)) {
        return Fate::kNone;
    }
    const int ofKind = ++g_state.Seen[static_cast<std::size_t>(kind)];
    const int all = std::accumulate(g_state.Seen.begin(), g_state.Seen.end(), 0);
    if (g_state.What == Fate::kFails) {
        return kind == g_state.Kind && ofKind == g_state.At ? Fate::kFails : Fate::kNone;
    }
    return all == g_state.At ? g_state.What : Fate::kNone;
}

template <class File, class Act>
auto Pass(Call kind, File file, Act act) -> decltype(act()) {
    const Fate fate = FateOf(kind, file);
    if (fate == Fate::kKilledBefore) {
        Die();
    }
    if (fate == Fate::kFails) {
        errno = g_state.Errno;
        return -1;
    }
    const auto result = act();
    if (fate == Fate::kKilledAmid || fate == Fate::kKilledAfter) {
        Die();
    }
    return result;
}

template <class Act>
int PassAt(Call kind, int directory, const char* path, Act act) {
    return *path == '/' ? Pass(kind, path, act) : Pass(kind, directory, act);
}

template <class Act>
ssize_t PassWrite(int descriptor, std::size_t count, Act act) {
    const Fate fate = FateOf(Call::kWrite, descriptor);
    if (fate == Fate::kNone) {
        return act(count);
    }
    if (fate == Fate::kFails) {
        errno = g_state.Errno;
        return -1;
    }
    if (fate != Fate::kKilledBefore) {
        act(fate == Fate::kKilledAmid ? count / 2 : count);
    }
    Die();
}

}  // namespace

void SetTrap(const Trap& trap) {
    std::snprintf(g_state.Below, sizeof g_state.Below, "%s/", trap.Below.c_str());
    g_state.What = trap.What;
    g_state.At = trap.At;
    g_state.Kind = trap.Kind;
    g_state.Errno = trap.Errno;
    g_state.Seen = {};
    g_state.Set = true;
}

void TakeTrapAway() {
    g_state.Set = false;
}

const std::array<int, kCalls>& CallsSeen() {
    return g_state.Seen;
}

}  // namespace lv

// The system's own names, so that every library in this program comes by here.
extern "C" {

int open(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const auto mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    static const auto real = lv::Real<int(const char*, int, ...)>("open");
    return lv::Pass(lv::Call::kOpen, path, [&] { return real(path, flags, mode); });
}

int open64(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const auto mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    static const auto real = lv::Real<int(const char*, int, ...)>("open64");
    return lv::Pass(lv::Call::kOpen, path, [&] { return real(path, flags, mode); });
}

int openat(int directory, const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const auto mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    static const auto real = lv::Real<int(int, const char*, int, ...)>("openat");
    return lv::PassAt(lv::Call::kOpen, directory, path, [&] { return real(directory, path, flags, mode); });
}

int openat64(int directory, const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const auto mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    static const auto real = lv::Real<int(int, const char*, int, ...)>("openat64");
    return lv::PassAt(lv::Call::kOpen, directory, path, [&] { return real(directory, path, flags, mode); });
}

ssize_t write(int descriptor, const void* bytes, size_t count) {
    static const auto real = lv::Real<ssize_t(int, const void*, size_t)>("write");
    return lv::PassWrite(descriptor, count, [&](size_t some) { return real(descriptor, bytes, some); });
}

ssize_t pwrite(int descriptor, const void* bytes, size_t count, off_t offset) {
    static const auto real = lv::Real<ssize_t(int, const void*, size_t, off_t)>("pwrite");
    return lv::PassWrite(descriptor, count, [&](size_t some) { return real(descriptor, bytes, some, offset); });
}

ssize_t pwrite64(int descriptor, const void* bytes, size_t count, off64_t offset) {
    static const auto real = lv::Real<ssize_t(int, const void*, size_t, off64_t)>("pwrite64");
    return lv::PassWrite(descriptor, count, [&](size_t some) { return real(descriptor, bytes, some, offset); });
}

int fsync(int descriptor) {
    static const auto real = lv::Real<int(int)>("fsync");
    return lv::Pass(lv::Call::kSync, descriptor, [&] { return real(descriptor); });
}

int fdatasync(int descriptor) {
    static const auto real = lv::Real<int(int)>("fdatasync");
    return lv::Pass(lv::Call::kSync, descriptor, [&] { return real(descriptor); });
}

int rename(const char* from, const char* to) noexcept {
    static const auto real = lv::Real<int(const char*, const char*)>("rename");
    return lv::Pass(lv::Call::kRename, to, [&] { return real(from, to); });
}

int renameat2(int fromWhere, const char* from, int toWhere, const char* to, unsigned flags) noexcept {
    static const auto real = lv::Real<int(int, const char*, int, const char*, unsigned)>("renameat2");
    return lv::PassAt(lv::Call::kRename, toWhere, to, [&] { return real(fromWhere, from, toWhere, to, flags); });
}

int link(const char* from, const char* to) noexcept {
    static const auto real = lv::Real<int(const char*, const char*)>("link");
    return lv::Pass(lv::Call::kRename, to, [&] { return real(from, to); });
}

int mkdir(const char* path, mode_t mode) noexcept {
    static const auto real = lv::Real<int(const char*, mode_t)>("mkdir");
    return lv::Pass(lv::Call::kMakeDirectory, path, [&] { return real(path, mode); });
}

int symlink(const char* target, const char* path) noexcept {
    static const auto real = lv::Real<int(const char*, const char*)>("symlink");
    return lv::Pass(lv::Call::kMakeDirectory, path, [&] { return real(target, path); });
}

int unlink(const char* path) noexcept {
    static const auto real = lv::Real<int(const char*)>("unlink");
    return lv::Pass(lv::Call::kRemove, path, [&] { return real(path); });
}

int unlinkat(int directory, const char* path, int flags) noexcept {
    static const auto real = lv::Real<int(int, const char*, int)>("unlinkat");
    return lv::PassAt(lv::Call::kRemove, directory, path, [&] { return real(directory, path, flags); });
}

int ftruncate(int descriptor, off_t length) noexcept {
    static const auto real = lv::Real<int(int, off_t)>("ftruncate");
    return lv::Pass(lv::Call::kTruncate, descriptor, [&] { return real(descriptor, length); });
}

int ftruncate64(int descriptor, off64_t length) noexcept {
    static const auto real = lv::Real<int(int, off64_t)>("ftruncate64");
    return lv::Pass(lv::Call::kTruncate, descriptor, [&] { return real(descriptor, length); });
}

}  // extern "C"
