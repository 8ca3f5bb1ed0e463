#include "launcher/links/links_entry.h"

#include <gtest/gtest.h>

#include "catalogs/server_word.h"

namespace lv {

TEST(LinksEntry, IsTheWholeEntry) {
    EXPECT_EQ(LinksEntryText("/opt/my games/lorvane3d", LinkSchemes()),
              "[Desktop Entry]\n"
              "Type=Application\n"
              "Name=Lorvane 3D\n"
              "Icon=lorvane3d\n"
              "Exec=\"/opt/my games/lorvane3d\" %u\n"
              "Terminal=false\n"
              "StartupNotify=false\n"
              "NoDisplay=true\n"
              "MimeType=x-scheme-handler/qw;x-scheme-handler/quake;x-scheme-handler/quake2;\n");
}

TEST(LinksEntry, NamesAProgramOfAnyPath) {
    const auto exec = [](TextView path) {
        const Text entry = LinksEntryText(path, {});
        const std::size_t begin = entry.find("Exec=") + 5;
        return entry.substr(begin, entry.find('\n', begin) - begin);
    };
    EXPECT_EQ(exec("/a$b/lorvane3d"), R"("/a\\$b/lorvane3d" %u)");
    EXPECT_EQ(exec("/100%u/lorvane3d"), R"(/usr/bin/env "/100%%u/lorvane3d" %u)");
    EXPECT_EQ(exec("/a\nExec=evil/lorvane3d"), R"("/a\nExec=evil/lorvane3d" %u)");
    EXPECT_EQ(exec("/\xC3\xA4/lorvane3d"), "\"/\xC3\xA4/lorvane3d\" %u");
}

TEST(LinksEntry, IsKnownByTheProgramThatItStarts) {
    const Text entry = LinksEntryText("/opt/a/lorvane3d", LinkSchemes());
    EXPECT_TRUE(StartsThisProgram(entry, "/opt/a/lorvane3d"));
    EXPECT_FALSE(StartsThisProgram(entry, "/opt/b/lorvane3d"));
    EXPECT_FALSE(StartsThisProgram("", "/opt/a/lorvane3d"));
    EXPECT_FALSE(StartsThisProgram("#Exec=\"/opt/a/lorvane3d\" %u\n", "/opt/a/lorvane3d"));
    EXPECT_TRUE(StartsThisProgram("Exec=\"/opt/a/lorvane3d\" %u\n", "/opt/a/lorvane3d"));
}

}  // namespace lv
