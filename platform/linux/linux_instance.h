// platform/linux/linux_instance.h
//
// The single instance on Linux: a socket in the abstract namespace, named by the user and the directory of the
// settings, so that two sets of settings are two programs. The kernel drops the name with the process.
// A second start connects, says "raise\n" and waits for "ok\n" as an answer; or it says "ask\n", what it asks, and
// closes its side; "ok\n" is that somebody listens, and the answer what comes then until the other side is closed too.

#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/single_instance.h"

namespace lv {

class LinuxInstance : public SingleInstance {
  public:
    /// The directory need not exist. Its spelling counts, so it is to be given in full.
    explicit LinuxInstance(std::string_view configDirectory);
    ~LinuxInstance() override;
    LinuxInstance(const LinuxInstance&) = delete;
    LinuxInstance& operator=(const LinuxInstance&) = delete;

    /// Waits for the answer of the other instance for at most two seconds. Where the system has no such sockets the
    /// program starts as if it were alone.
    bool Claim() override;

    Asked Ask(std::string_view request, int patienceMs) override;

    /// Readable when a second start knocks; -1 before Claim, and after a Claim that was refused.
    [[nodiscard]] int Descriptor() const { return listener_; }

    /// Answers all who have knocked: calls OnRaise or OnRequest for each. Never waits long: who says nothing is hung up
    /// on. What somebody has asked who hung up meanwhile is not done.
    void Serve();

    std::function<void()> OnRaise;

  private:
    bool Listen();
    void Answer(int connection, std::string request);

    std::string name_;
    int listener_ = -1;
};

}  // namespace lv
