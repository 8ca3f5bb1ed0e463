// launcher/links/class_links.h
//
// The links of games on Windows: they come to the program whose command stands in the user's classes below the scheme.
// What stood there before is kept, whole, in a key of this program's own.

#pragma once

#include <vector>

#include "foundation/text.h"
#include "platform/registry_trees.h"
#include "platform/user_registry.h"

namespace lv {

struct LinkClasses {
    UserRegistry& Registry;
    RegistryTrees& Trees;
};

/// Whether a link of each scheme comes to this very program, another copy of it apart, and the user has told Windows of
/// no other.
bool ClassesGiveLinks(const LinkClasses& classes);

/// Who has them otherwise, "quake://  C:\OTHER.EXE "%1"", a row a scheme.
std::vector<Text> LinksOfOthers(const LinkClasses& classes);

/// From now on they come to this program.
Error TakeClassLinks(const LinkClasses& classes);

/// No more: what stood there before comes back. A scheme that somebody else has taken since is left alone.
Error LeaveClassLinks(const LinkClasses& classes);

/// What Windows starts for a link. A link with a quote in it, which would end its word, adds names and no options.
Text LinkCommand(TextView programFile);

}  // namespace lv
