#include "gamespy/server_text.h"

#include <algorithm>
#include <array>

#include "foundation/field_strings.h"
#include "gamespy/server_address.h"

namespace lv {

namespace {

constexpr std::size_t kMostSteps = 10000;
constexpr std::size_t kOctetLength = 3;
constexpr std::size_t kPortLength = 5;

/// Of the list in GameSpy's window, as one line of it is copied.
struct Column {
    std::size_t At;
    std::size_t Length;
};

constexpr Column kHostColumn = {8, 15};
constexpr Column kPortColumn = {24, kPortLength};
constexpr Column kTitleColumn = {30, kLongestServerTitle};
constexpr std::size_t kColumnsWidth = 50;

bool IsBlank(char c) {
    return static_cast<unsigned char>(c) <= ' ' || c == '\x7F';
}

/// The four stretches around the first three dots; the fourth ends at the next one.
std::array<TextView, 4> SplitAtDots(TextView text) {
    std::array<TextView, 4> fields;
    for (TextView& field : fields) {
        const std::size_t dot = std::min(text.find('.'), text.size());
        field = text.substr(0, dot);
        text.remove_prefix(std::min(dot + 1, text.size()));
    }
    return fields;
}

TextView LastOctetBefore(TextView field) {
    std::size_t length = 0;
    while (length < std::min(kOctetLength, field.size()) && !IsBlank(field[field.size() - 1 - length])) {
        ++length;
    }
    return field.substr(field.size() - length);
}

TextView FirstOctetOf(TextView field) {
    std::size_t length = 0;
    while (length < std::min(kOctetLength, field.size()) && !IsBlank(field[length])) {
        ++length;
    }
    const TextView octet = field.substr(0, length);
    const std::size_t colon = octet.rfind(':');
    const bool ends = colon != TextView::npos && colon + 2 >= octet.size();
    return ends ? octet.substr(0, colon) : octet;
}

template <class Stop>
std::size_t StepTo(TextView text, std::size_t from, Stop stop) {
    const std::size_t last = std::min(text.size(), from + kMostSteps);
    while (from < last && !stop(text[from])) {
        ++from;
    }
    return from;
}

/// Behind the first ":" or blank of the fourth field, and the blanks there.
TextView PortOf(TextView field) {
    std::size_t at = StepTo(field, 0, [](char c) { return c == ':' || IsBlank(c); });
    at += at < field.size() && field[at] == ':' ? 1 : 0;
    at = StepTo(field, at, [](char c) { return !IsBlank(c); });
    const TextView port = field.substr(at, kPortLength);
    return port.substr(0, StepTo(port, 0, IsBlank));
}

/// What stands before the first ":", and behind it up to a blank. The colons of an IPv6 address are in brackets.
CapturedServer ReadAddress(TextView line) {
    const std::size_t bracket = line.starts_with('[') ? std::min(line.find(']'), line.size()) : 0;
    const std::size_t colon = std::min(line.find(':', bracket), line.size());
    const TextView behind = line.substr(std::min(colon + 1, line.size()));
    return {"", Text(line.substr(0, colon)), Text(behind.substr(0, std::min(behind.find(' '), behind.size())))};
}

CapturedServer ReadColumns(TextView line) {
    const Text columns = PadToWidth(line, kColumnsWidth);
    const auto at = [&](const Column& column) { return Trim(columns.substr(column.At, column.Length)); };
    return {at(kTitleColumn), at(kHostColumn), at(kPortColumn)};
}

Text WithSingleBlanks(TextView line) {
    Text reduced;
    for (const char c : line) {
        if (c != ' ' || !reduced.ends_with(' ')) {
            reduced += c;
        }
    }
    return reduced;
}

/// The word at the front, which is taken off the line.
Text TakeWord(TextView& line) {
    const std::size_t end = std::min(line.find(' '), line.size());
    const Text word(line.substr(0, end));
    line.remove_prefix(std::min(end + 1, line.size()));
    return word;
}

/// Host and port as the words at `hostAt` (from 0) and behind it, and what is left as the title.
CapturedServer ReadWords(TextView words, int hostAt) {
    for (; hostAt > 0; --hostAt) {
        TakeWord(words);
    }
    CapturedServer server;
    server.Host = TakeWord(words);
    server.Port = TakeWord(words);
    server.Title = Trim(words).substr(0, kLongestServerTitle);
    return server;
}

/// A host of numbers or of several names, and a port of digits or none.
bool HasAddress(const CapturedServer& server) {
    return IsHost(server.Host) && (Holds(server.Host, ".") || Holds(server.Host, ":")) &&
           (server.Port.empty() || IsPort(server.Port));
}

/// Without host and port if either is none.
CapturedServer AddressesOnly(CapturedServer server) {
    if ((!server.Host.empty() && !IsHost(server.Host)) || (!server.Port.empty() && !IsPort(server.Port))) {
        server.Host.clear();
        server.Port.clear();
    }
    return server;
}

}  // namespace

AssembledAddress AssembleAddress(TextView text) {
    const auto fields = SplitAtDots(text);
    const std::array<TextView, 4> octets = {LastOctetBefore(fields[0]), fields[1], fields[2], FirstOctetOf(fields[3])};
    if (!std::all_of(octets.begin(), octets.end(), IsHostPart)) {
        return {"", kNoAddress};
    }
    const TextView port = PortOf(fields[3]);
    if (port.size() < 3 || !IsPort(port)) {
        return {"", kNoPort};
    }
    return {Join(octets[0], ".", octets[1], ".", octets[2], ".", octets[3], ":", port), nullptr};
}

Text MarkLines(TextView copied) {
    Text text(copied);
    std::replace(text.begin(), text.end(), '|', 'I');
    text = TrimWhite(text);
    Text marked;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') {
            continue;
        }
        marked += text[i] == '\n' ? '|' : IsBlank(text[i]) ? ' ' : text[i];
    }
    return marked;
}

Index CountLines(TextView marked) {
    return static_cast<Index>(std::min<Index>(CountDelimiters(marked, "|"), 32766) + 1);
}

Text LineAt(TextView marked, Index index) {
    for (; index > 0; --index) {
        marked.remove_prefix(std::min(marked.find('|'), marked.size() - 1) + 1);
    }
    return Trim(marked.substr(0, std::min(marked.find('|'), marked.size())));
}

bool IsAddressAlone(TextView line) {
    return !Holds(line, Blank);
}

CapturedServer ReadOneServer(TextView line) {
    return AddressesOnly(IsAddressAlone(line) ? ReadAddress(line) : ReadColumns(line));
}

CapturedServer ReadListedServer(TextView line, bool addressesOnly) {
    if (addressesOnly) {
        CapturedServer server = AddressesOnly(ReadAddress(line));
        server.Title = Join("Server ", server.Host, ":", server.Port);
        return server;
    }
    const Text words = WithSingleBlanks(line);
    const CapturedServer server = ReadWords(words, 2);
    if (HasAddress(server)) {
        return server;
    }
    // A line as it is copied alone has one word before the address, or, in full columns, no blank between the two.
    for (const CapturedServer& other : {ReadWords(words, 1), ReadColumns(line)}) {
        if (HasAddress(other)) {
            return other;
        }
    }
    return AddressesOnly(server);
}

}  // namespace lv
