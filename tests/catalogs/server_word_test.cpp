#include "catalogs/server_word.h"

#include <gtest/gtest.h>

namespace lv {
namespace {

TEST(ServerWord, AHostWithAndWithoutAPort) {
    EXPECT_EQ(ReadServerAddress("quake.example.com:27500").Value.Host, "quake.example.com");
    EXPECT_EQ(ReadServerAddress("quake.example.com:27500").Value.Port, "27500");
    EXPECT_EQ(ReadServerAddress("10.0.0.1").Value.Host, "10.0.0.1");
    EXPECT_EQ(ReadServerAddress("10.0.0.1").Value.Port, "");
    EXPECT_TRUE(ReadServerAddress("my_host-2:1").Ok());
    EXPECT_TRUE(ReadServerAddress("host:65535").Ok());
}

TEST(ServerWord, NothingThatAScriptOrAShellWouldReadIsAnAddress) {
    for (const Text word : {"", ":27500", "host:", "host:0", "host:65536", "host:x", "host:123456", "a b:1", "a;quit",
                            "a\nquit", "-exec", "a\"b", "a$b", "host:1:2", "a`b`"}) {
        EXPECT_FALSE(ReadServerAddress(word).Ok()) << word;
    }
    EXPECT_FALSE(ReadServerAddress(Text(254, 'a')).Ok());
}

TEST(ServerWord, NoLabelOfAHostIsEmpty) {
    for (const Text word : {".:1", ".", "..", "a..b:1", ".example.com", "example.com..:27500"}) {
        EXPECT_FALSE(ReadServerAddress(word).Ok()) << word;
        EXPECT_FALSE(ReadServerLink("qw://" + word).has_value()) << word;
    }
    EXPECT_TRUE(ReadServerAddress("example.com.:27500").Ok()) << "a name's last dot is its root";
}

TEST(ServerWord, LinksOfTheThreeKinds) {
    for (const Text scheme : {"qw", "quake", "quake2"}) {
        const auto link = ReadServerLink(scheme + "://host.example:27910/");
        ASSERT_TRUE(link.has_value()) << scheme;
        EXPECT_EQ(link->Scheme, scheme);
        EXPECT_EQ(link->Address.Host, "host.example");
        EXPECT_EQ(link->Address.Port, "27910");
    }
    EXPECT_EQ(ReadServerLink("QW://host")->Scheme, "qw");
    EXPECT_EQ(ReadServerLink("qw://host:1/qizmo?x=1#y")->Address.Port, "1");
}

TEST(ServerWord, OtherLinksAndHostileOnesAreNone) {
    for (const Text word : {"http://host", "qw:host", "qw://", "qw://a b", "qw://a;quit", "qw://host:99999",
                            "file:///etc/passwd", "qw://-exec"}) {
        EXPECT_FALSE(ReadServerLink(word).has_value()) << word;
    }
}

}  // namespace
}  // namespace lv
