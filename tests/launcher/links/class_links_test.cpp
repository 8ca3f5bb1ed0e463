#include "launcher/links/class_links.h"

#include <gtest/gtest.h>

#include "platform/memory/memory_links.h"

namespace lv {

namespace {

constexpr const char* kOther = "\"C:\\OTHER\\other.exe\" \"%1\"";

class ClassLinks : public ::testing::Test {
  protected:
    void Put(TextView path, TextView name, TextView text) {
        EXPECT_FALSE(registry.Set(path, name, {kRegistryText, Text(text), 0}));
    }
    Text At(TextView path, TextView name = "") {
        const auto value = registry.Query(path, name);
        return value.Ok() ? value.Value.Text : "(none)";
    }
    void PutOther() {
        Put("Software\\Classes\\quake", "", "URL:Other");
        Put("Software\\Classes\\quake", "URL Protocol", "");
        Put("Software\\Classes\\quake\\DefaultIcon", "", "other.ico");
        Put("Software\\Classes\\quake\\shell\\open\\command", "", kOther);
    }

    MemoryRegistry registry;
    MemoryRegistryTrees trees{registry};
    LinkClasses classes{registry, trees};
};

}  // namespace

TEST_F(ClassLinks, AreNotTakenBeforeTheUserWantsIt) {
    EXPECT_FALSE(ClassesGiveLinks(classes));
}

TEST_F(ClassLinks, AreWrittenForEachSchemeAndTakenAwayWhole) {
    EXPECT_FALSE(TakeClassLinks(classes));
    EXPECT_TRUE(ClassesGiveLinks(classes));
    for (const Text scheme : {"qw", "quake", "quake2"}) {
        EXPECT_EQ(At("Software\\Classes\\" + scheme), "URL:" + scheme);
        EXPECT_EQ(At("Software\\Classes\\" + scheme, "URL Protocol"), "");
        EXPECT_EQ(At("Software\\Classes\\" + scheme + "\\shell\\open\\command"),
                  "\"C:\\LORVANE\\lorvane3d.exe\" -- \"%1\"");
    }
    EXPECT_FALSE(LeaveClassLinks(classes));
    EXPECT_TRUE(registry.Values.empty());
}

TEST_F(ClassLinks, WhatStoodThereComesBackWhole) {
    PutOther();
    const auto before = registry.Values;
    EXPECT_EQ(LinksOfOthers(classes), (std::vector<Text>{"quake://  \"C:\\OTHER\\other.exe\" \"%1\""}));
    EXPECT_FALSE(TakeClassLinks(classes));
    EXPECT_EQ(At("Software\\Classes\\quake\\DefaultIcon"), "(none)");
    EXPECT_EQ(At("Software\\Lorvane 3D\\Links\\quake\\shell\\open\\command"), kOther);
    EXPECT_FALSE(TakeClassLinks(classes)) << "once more, which keeps nothing of its own";
    EXPECT_FALSE(LeaveClassLinks(classes));
    EXPECT_EQ(registry.Values.size(), before.size());
    EXPECT_EQ(At("Software\\Classes\\quake\\DefaultIcon"), "other.ico");
    EXPECT_EQ(At("Software\\Classes\\quake\\shell\\open\\command"), kOther);
}

TEST_F(ClassLinks, ASchemeThatAnotherHasTakenSinceIsLeft) {
    PutOther();
    EXPECT_FALSE(TakeClassLinks(classes));
    Put("Software\\Classes\\quake\\shell\\open\\command", "", "new.exe %1");
    EXPECT_FALSE(ClassesGiveLinks(classes));
    EXPECT_FALSE(LeaveClassLinks(classes));
    EXPECT_EQ(At("Software\\Classes\\quake\\shell\\open\\command"), "new.exe %1");
    EXPECT_EQ(At("Software\\Classes\\qw"), "(none)");
    EXPECT_FALSE(trees.Has("Software\\Lorvane 3D\\Links\\quake")) << "nobody will ask for it";
}

TEST_F(ClassLinks, AnotherCopyOfTheProgramIsNotThisOneAndNotKept) {
    PutOther();
    trees.Program = "D:\\OLD\\lorvane3d.exe";
    EXPECT_FALSE(TakeClassLinks(classes));
    trees.Program = "C:\\LORVANE\\lorvane3d.exe";
    EXPECT_FALSE(ClassesGiveLinks(classes));
    EXPECT_TRUE(LinksOfOthers(classes).empty());
    EXPECT_FALSE(TakeClassLinks(classes));
    EXPECT_TRUE(ClassesGiveLinks(classes));
    EXPECT_FALSE(LeaveClassLinks(classes));
    EXPECT_EQ(At("Software\\Classes\\quake\\shell\\open\\command"), kOther);
}

TEST_F(ClassLinks, AreWhoseTheUserHasToldWindows) {
    EXPECT_FALSE(TakeClassLinks(classes));
    const Text choice = "Software\\Microsoft\\Windows\\Shell\\Associations\\UrlAssociations\\qw\\UserChoice";
    Put(choice, "ProgId", "qw");
    EXPECT_TRUE(ClassesGiveLinks(classes));
    Put(choice, "ProgId", "Other.Url");
    EXPECT_FALSE(ClassesGiveLinks(classes));
    EXPECT_EQ(LinksOfOthers(classes), (std::vector<Text>{"qw://  Other.Url"}));
}

TEST_F(ClassLinks, ACommandOfAnotherTypeIsSomebodysToo) {
    EXPECT_FALSE(registry.Set("Software\\Classes\\qw\\shell\\open\\command", "", {2, "", 0}));
    EXPECT_EQ(LinksOfOthers(classes), (std::vector<Text>{"qw://  (a program that is not said as plain text)"}));
    EXPECT_FALSE(TakeClassLinks(classes));
    EXPECT_FALSE(LeaveClassLinks(classes));
    EXPECT_EQ(registry.Query("Software\\Classes\\qw\\shell\\open\\command", "").Value.Type, 2u);
}

TEST_F(ClassLinks, NothingIsRemovedThatCouldNotBeKept) {
    PutOther();
    trees.RefuseCopies = {5, "Access is denied."};
    EXPECT_EQ(TakeClassLinks(classes).Number, 5);
    EXPECT_EQ(At("Software\\Classes\\quake\\shell\\open\\command"), kOther);
}

TEST_F(ClassLinks, AProgramWhosePathCannotBeSaidTakesNone) {
    trees.Program = "";
    EXPECT_EQ(TakeClassLinks(classes).Number, error::kBadFileName);
    EXPECT_TRUE(registry.Values.empty());
    EXPECT_FALSE(ClassesGiveLinks(classes));
}

TEST_F(ClassLinks, ALinkWithAQuoteInItAddsNoOption) {
    EXPECT_EQ(LinkCommand("C:\\A B\\lorvane3d.exe"), "\"C:\\A B\\lorvane3d.exe\" -- \"%1\"");
}

}  // namespace lv
