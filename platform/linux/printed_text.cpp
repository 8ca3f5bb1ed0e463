#include "platform/linux/printed_text.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <string>

#include "platform/code_page.h"
#include "platform/linux/files/errno_error.h"

namespace lv {

namespace {

// What does not go with the file's use: a write to it fails.
int RefusingMode(int file) {
    return file == STDIN_FILENO ? O_WRONLY : O_RDONLY;
}

}  // namespace

void HoldStandardFiles() {
    for (int file = STDIN_FILENO; file <= STDERR_FILENO; ++file) {
        if (fcntl(file, F_GETFD) < 0) {
            (void)open("/dev/null", RefusingMode(file));  // gets the lowest free number, which is this one
        }
    }
}

Error Print(PrintedTo where, std::string_view text) {
    const int file = where == PrintedTo::Output ? STDOUT_FILENO : STDERR_FILENO;
    const std::string bytes = ToUtf8(text);
    for (std::size_t done = 0; done < bytes.size();) {
        const ssize_t written = write(file, bytes.data() + done, bytes.size() - done);
        if (written > 0) {
            done += static_cast<std::size_t>(written);
        } else if (written == 0 || errno != EINTR) {
            return ErrorOf(written == 0 ? EIO : errno);
        }
    }
    return {};
}

}  // namespace lv
