// Loaded ahead of the program's libraries: as long as the file $LV_WANT_OF_MEMORY is there, nobody gets a megabyte.

#include <unistd.h>

#include <cstdlib>
#include <new>

void* operator new(std::size_t size) {
    constexpr std::size_t kTooMuch = 1 << 20;
    const char* const sign = size < kTooMuch ? nullptr : std::getenv("LV_WANT_OF_MEMORY");
    void* const got = sign != nullptr && access(sign, F_OK) == 0 ? nullptr : std::malloc(size == 0 ? 1 : size);
    if (got == nullptr) {
        throw std::bad_alloc();
    }
    return got;
}
