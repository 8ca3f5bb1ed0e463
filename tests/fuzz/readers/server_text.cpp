// What another program copies of its list of servers.

#include "gamespy/server_text.h"

#include "tests/fuzz/readers.h"

namespace lv {

namespace {

void LookAt(const CapturedServer& server, bool titled) {
    MustHold(!titled || server.Title.size() <= kLongestServerTitle, "a title is cut");
    for (const Text* field : {&server.Title, &server.Host, &server.Port}) {
        MustHold(field->find_first_of("\r\n") == Text::npos, "a field is one line");
    }
}

}  // namespace

void FuzzServerText(TextView input) {
    const AssembledAddress address = AssembleAddress(input);
    MustHold(address.Address.empty() == (address.Fault != nullptr), "an address, or why there is none");
    MustHold(address.Address.find_first_of(TextView(" ;\"\r\n\0", 6)) == Text::npos, "an address is one word");
    const Text marked = MarkLines(input);
    const Index lines = CountLines(marked);
    MustHold(lines >= 0, "lines are counted");
    for (Index i = 0; i < lines && i < kMostServers; ++i) {
        const Text line = LineAt(marked, i);
        MustHold(line.find('|') == Text::npos, "a line is one");
        const bool titled = !IsAddressAlone(line);
        LookAt(ReadListedServer(line, !titled), titled);
        LookAt(ReadOneServer(line), titled);
    }
    (void)ReadOneServer(input);
}

}  // namespace lv
