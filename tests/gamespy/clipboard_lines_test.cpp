// More than a hundred lines as they might stand on the clipboard, each with what is made of it.

#include <gtest/gtest.h>

#include "gamespy/server_text.h"

namespace lv {
namespace {

struct AddressRow {
    const char* Text;
    const char* Address;  // "ip": refused for its address; "port": refused for its port
};

constexpr AddressRow kAddresses[] = {
    {"10.0.0.1:27500", "10.0.0.1:27500"},
    {"192.168.100.200:27500", "192.168.100.200:27500"},
    {"1.2.3.4:26000", "1.2.3.4:26000"},
    {"1.2.3.45:26000", "1.2.3.45:26000"},
    {"1.2.3.456:26000", "1.2.3.456:26000"},
    {"10.0.0.1 27500", "10.0.0.1:27500"},
    {"10.0.0.1     27500", "10.0.0.1:27500"},
    {"10.0.0.1: 27500", "10.0.0.1:27500"},
    {"10.0.0.1:   27500", "10.0.0.1:27500"},
    {"10.0.0.1:27500 Home of the Brave", "10.0.0.1:27500"},
    {"10.0.0.1:7777 Facing Worlds", "10.0.0.1:7777"},
    {"10.0.0.1:777 A Name", "10.0.0.1:777"},
    {"10.0.0.1:7777", "10.0.0.1:7777"},
    {"10.0.0.1:777", "10.0.0.1:777"},
    {"10.0.0.1:77", "port"},
    {"10.0.0.1:77 A Name", "port"},
    {"10.0.0.1:7", "port"},
    {"10.0.0.1:", "port"},
    {"10.0.0.1", "port"},
    {"10.0.0.1 ", "port"},
    {"10.0.0.1:     ", "port"},
    {"10.0.0.1:275001", "10.0.0.1:27500"},
    {"  43    10.0.0.1        27500 Home", "10.0.0.1:27500"},
    {"43 10.0.0.1 27500 Home", "10.0.0.1:27500"},
    {"43 10.0.0.1:27500 Home v1.09", "10.0.0.1:27500"},
    {"QW      130.232.80.14   27500 Quake.fi", "130.232.80.14:27500"},
    {"host 255.255.255.255:65535", "255.255.255.255:65535"},
    {"0.0.0.0:00000", "0.0.0.0:00000"},
    {"x1234.5.6.7:27500", "234.5.6.7:27500"},
    {"ping=43,10.0.0.1:27500", "ip"},
    {"\t10.0.0.1:27500", "10.0.0.1:27500"},
    {"a name\r\n10.0.0.1:27500", "10.0.0.1:27500"},
    {"10.0.0.1:27500\r\n10.0.0.2:27510", "10.0.0.1:27500"},
    {"10.0.0.1\r\n27500", "10.0.0.1:27500"},
    {"10.0.0.1:27500\n", "10.0.0.1:27500"},
    {"10.0.0.1:777\r\n8", "10.0.0.1:777"},
    {"", "ip"},
    {" ", "ip"},
    {".", "ip"},
    {"...", "ip"},
    {"....", "ip"},
    {"1...", "ip"},
    {"1.2..", "ip"},
    {"1.2.3.", "ip"},
    {"1.2.3", "ip"},
    {"1.2.3. 4:27500", "ip"},
    {".2.3.4:27500", "ip"},
    {"1..3.4:27500", "ip"},
    {"1.2..4:27500", "ip"},
    {"1 .2.3.4:27500", "ip"},
    {"1. 2.3.4:27500", "ip"},
    {"1.2 .3.4:27500", "ip"},
    {"1.2.3 .4:27500", "ip"},
    {"1.2.3.:27500", "ip"},
    {"Mr. Smith's 10.0.0.1:27500", "ip"},
    {"v2.0 10.0.0.1:27500", "ip"},
    {"no address here", "ip"},
    {"http://spy.example/list", "ip"},
    {"1.2;quit.3.4:27500", "ip"},
    {"1.2.\"quit.4:27500", "ip"},
    {";q.2.3.4:27500", "ip"},
    {"1.2.3.;q:27500", "ip"},
    {"1:2.3.4.5:27500", "ip"},
    {"1.2.3.4::27500", "ip"},
    {"10.0&calc&.0.1:27015", "ip"},
    {"1.%COMSPEC%.3.4:27015", "ip"},
    {"1.2.3.%a%:27015", "ip"},
    {"1.2.|.4:27015", "ip"},
    {"1.2.^3.4:27015", "ip"},
    {"1.2.3.4:27a15", "port"},
    {"1.2.3.4:270&c", "port"},
    {"my-host_1.quake.example.net:27500", "t_1.quake.example.net:27500"},
    {"1.2.3.4:27;qu", "port"},
    {"1.2.3.4:\"2750", "port"},
    {"1.2.3.4.5:27500", "port"},
    {"spy.quake.example.net:27500", "spy.quake.example.net:27500"},
};

struct ServerRow {
    const char* Line;
    const char* Server;  // "title|host|port"
};

constexpr ServerRow kAlone[] = {
    {"10.0.0.1:27500", "|10.0.0.1|27500"},
    {"10.0.0.1:", "|10.0.0.1|"},
    {"10.0.0.1", "|10.0.0.1|"},
    {":27500", "||27500"},
    {"", "||"},
    {"43      10.0.0.1        27500 Home of the Brave", "Home of the Brave|10.0.0.1|27500"},
    {"QW      130.232.80.140  27500 Quake.fi", "Quake.fi|130.232.80.140|27500"},
    {"12345678123.123.123.123 27500 Home", "Home|123.123.123.123|27500"},
    {"12345678 23.123.123.123 27500 123456789012345678901234", "1234567890123456789|23.123.123.123|27500"},
    {"43      10.0.0.1        7777  Facing Worlds", "Facing Worlds|10.0.0.1|7777"},
    {"43      10.0.0.1", "|10.0.0.1|"},
    {"43 ", "||"},
    {"10.0&calc&.0.1:27015", "||"},
    {"1.%COMSPEC%.3.4", "||"},
    {"10.0.0.1:27&x", "||"},
    {"[2001:db8::1]:27500", "|[2001:db8::1]|27500"},
    {"[2001:db8::1]", "|[2001:db8::1]|"},
    {"[2001:db8::1%calc]:27500", "||"},
    {"43      10.0&x.0.1      27500 Home", "Home||"},
    {"43      10.0.0.1        27&00 Home", "Home||"},
};

// Two words before the address.
constexpr ServerRow kListed[] = {
    {"QW 43 10.0.0.1 27500 Home of the Brave", "Home of the Brave|10.0.0.1|27500"},
    {"QW  43  10.0.0.1  27500  Home  Sweet  Home", "Home Sweet Home|10.0.0.1|27500"},
    {"QW      43      130.232.80.140  27500 Quake.fi", "Quake.fi|130.232.80.140|27500"},
    {"QW 43 10.0.0.1 27500 123456789012345678901234", "1234567890123456789|10.0.0.1|27500"},
    {"QW 43 10.0.0.1 27500 10.0.0.2 27501", "10.0.0.2 27501|10.0.0.1|27500"},
    {"QW 43 10.0.0.1 27500 a,b", "a,b|10.0.0.1|27500"},
    {"v1.09 2.0 10.0.0.1 27500 Home", "Home|10.0.0.1|27500"},
    {"10.0.0.9 43 10.0.0.1 27500 Home", "Home|10.0.0.1|27500"},
    {"QW 43 10.0.0.1 27500", "|10.0.0.1|27500"},
    {"QW 43 10.0.0.1", "|10.0.0.1|"},
    {"QW 43 localhost 27500 Home", "Home|localhost|27500"},
    {"QW 43", "||"},
    {"QW", "||"},
    {"", "||"},
    {"QW 43 2001:db8::1 27500 Home", "Home|2001:db8::1|27500"},
    {"QW 43 10.0&calc&.0.1 27500 Home", "Home||"},
    {"QW 43 1.%COMSPEC%.3.4 27500 Home", "Home||"},
    {"QW 43 10.0.0.1 >x Home", "Home||"},
};

// One word before the address, as in a line that is copied alone.
constexpr ServerRow kListedAsAlone[] = {
    {"43      10.0.0.1        27500 Home of the Brave", "Home of the Brave|10.0.0.1|27500"},
    {"43 10.0.0.1 27500 Home", "Home|10.0.0.1|27500"},
    {"43  10.0.0.1  27500  Home  Sweet  Home", "Home Sweet Home|10.0.0.1|27500"},
    {"QW      130.232.80.140  27500 Quake.fi", "Quake.fi|130.232.80.140|27500"},
    {"43 10.0.0.1 27500 123456789012345678901234", "1234567890123456789|10.0.0.1|27500"},
    {"43 10.0.0.1 27500 10.0.0.2 27501", "10.0.0.2 27501|10.0.0.1|27500"},
    {"43 10.0.0.1 27500 a,b", "a,b|10.0.0.1|27500"},
    {"43 10.0.0.1 27500", "|10.0.0.1|27500"},
    {"43 10.0.0.1", "|10.0.0.1|"},
    {"43      10.0.0.1              No port", "No port|10.0.0.1|"},
    {"12345678123.123.123.123 27500 Home", "Home|123.123.123.123|27500"},
};

// The single form, which reads the same alone and among others.
constexpr ServerRow kEitherWay[] = {
    {"43      10.0.0.1        27500 Home of the Brave", "Home of the Brave|10.0.0.1|27500"},
    {"QW      130.232.80.140  27500 Quake.fi", "Quake.fi|130.232.80.140|27500"},
    {"43      10.0.0.1        7777  Facing Worlds", "Facing Worlds|10.0.0.1|7777"},
    {"12345678 23.123.123.123 27500 123456789012345678901234", "1234567890123456789|23.123.123.123|27500"},
    {"12345678123.123.123.123 27500 Home", "Home|123.123.123.123|27500"},
    {"QW 43   10.0.0.1        27500 Home", "Home|10.0.0.1|27500"},
    {"1 2 3   10.0.0.1        27500 Home", "Home|10.0.0.1|27500"},
    {"43      10.0.0.1        27500 v1.09 27501", "v1.09 27501|10.0.0.1|27500"},
    {"43      10.0.0.1", "|10.0.0.1|"},
};

constexpr ServerRow kAddressesOnly[] = {
    {"10.0.0.1:27500", "Server 10.0.0.1:27500|10.0.0.1|27500"},
    {"130.232.80.140:7777", "Server 130.232.80.140:7777|130.232.80.140|7777"},
    {"10.0.0.1:27500 Home", "Server 10.0.0.1:27500|10.0.0.1|27500"},
    {"10.0.0.1: 27500", "Server 10.0.0.1:|10.0.0.1|"},
    {"10.0.0.1", "Server 10.0.0.1:|10.0.0.1|"},
    {"quake.example:26000", "Server quake.example:26000|quake.example|26000"},
    {":26000", "Server :26000||26000"},
    {"", "Server :||"},
    {"1:2:3", "Server :||"},
    {"a|b:1", "Server :||"},
    {"10.0&calc&.0.1:27015", "Server :||"},
    {"[::ffff:10.0.0.1]:27500", "Server [::ffff:10.0.0.1]:27500|[::ffff:10.0.0.1]|27500"},
};

static_assert(std::size(kAddresses) + std::size(kAlone) + std::size(kListed) + std::size(kAddressesOnly) > 100);

Text Shown(const CapturedServer& server) {
    return server.Title + "|" + server.Host + "|" + server.Port;
}

TEST(ClipboardLines, GiveTheseAddresses) {
    for (const AddressRow& row : kAddresses) {
        const AssembledAddress read = AssembleAddress(row.Text);
        const Text wanted = row.Address;
        if (wanted == "ip") {
            EXPECT_STREQ(read.Fault, "Could not assemble IP address from data") << row.Text;
            EXPECT_EQ(read.Address, "") << row.Text;
        } else if (wanted == "port") {
            EXPECT_STREQ(read.Fault, "Could not assemble Port from data") << row.Text;
            EXPECT_EQ(read.Address, "") << row.Text;
        } else {
            EXPECT_EQ(read.Fault, nullptr) << row.Text;
            EXPECT_EQ(read.Address, wanted) << row.Text;
        }
    }
}

TEST(ClipboardLines, GiveTheseServersAlone) {
    for (const ServerRow& row : kAlone) {
        EXPECT_EQ(Shown(ReadOneServer(row.Line)), row.Server) << row.Line;
    }
}

TEST(ClipboardLines, GiveTheseServersAmongOthersWithTheAddressAsThirdWord) {
    for (const ServerRow& row : kListed) {
        EXPECT_EQ(Shown(ReadListedServer(row.Line, false)), row.Server) << row.Line;
    }
}

TEST(ClipboardLines, GiveTheseServersAmongOthersWithTheAddressOneWordEarlier) {
    for (const ServerRow& row : kListedAsAlone) {
        EXPECT_EQ(Shown(ReadListedServer(row.Line, false)), row.Server) << row.Line;
    }
}

TEST(ClipboardLines, OfFixedColumnsGiveTheSameServerAloneAndAmongOthers) {
    for (const ServerRow& row : kEitherWay) {
        EXPECT_EQ(Shown(ReadOneServer(row.Line)), row.Server) << row.Line;
        EXPECT_EQ(Shown(ReadListedServer(row.Line, false)), row.Server) << row.Line;
    }
}

TEST(ClipboardLines, GiveTheseServersAsAddressesOnly) {
    for (const ServerRow& row : kAddressesOnly) {
        EXPECT_EQ(Shown(ReadListedServer(row.Line, true)), row.Server) << row.Line;
    }
}

}  // namespace
}  // namespace lv
