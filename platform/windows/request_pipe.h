// platform/windows/request_pipe.h
//
// A named pipe by which another start of the program asks the running one. The request is its length in decimal digits,
// a line feed, and the bytes; "ok\n" is that somebody listens, and the answer the bytes behind it.

#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "platform/single_instance.h"

namespace lv {

class RequestPipe {
  public:
    explicit RequestPipe(std::wstring name) : name_(std::move(name)) {}
    ~RequestPipe();
    RequestPipe(const RequestPipe&) = delete;
    RequestPipe& operator=(const RequestPipe&) = delete;

    /// From now on others of this machine can ask; no other machine can. Nothing happens if the name is taken.
    void Open();

    /// Answers one who has asked. Never waits long: who does not say what he wants is hung up on, and who
    /// has gone gets nothing.
    void Serve(const std::function<std::string(std::string_view)>& answer);

    /// Asks the one who has opened the pipe of that name, as SingleInstance::Ask.
    static Asked Ask(const std::wstring& name, std::string_view request, int patienceMs = kPatienceMs);

  private:
    std::optional<std::string> ReadRequest();
    void HangUp();

    std::wstring name_;
    void* pipe_ = nullptr;
    unsigned long answered_ = 0;  // when, by the system's milliseconds; 0: nobody is waited for
};

}  // namespace lv
