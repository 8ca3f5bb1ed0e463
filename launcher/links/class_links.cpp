#include "launcher/links/class_links.h"

#include <algorithm>

#include "catalogs/server_word.h"
#include "foundation/field_strings.h"
#include "foundation/shown_name.h"

namespace lv {

namespace {

constexpr const char* kUnsaid = "(a program that is not said as plain text)";
constexpr TextView kTail = "\" -- \"%1\"";

Text ClassOf(TextView scheme) {
    return Join("Software\\Classes\\", scheme);
}

Text CommandKey(TextView scheme) {
    return Join(ClassOf(scheme), "\\shell\\open\\command");
}

Text KeptKey(TextView scheme) {
    return Join("Software\\Lorvane 3D\\Links\\", scheme);
}

// Empty if there is none, or no text.
Text TextAt(const LinkClasses& classes, TextView path, TextView name) {
    const auto value = classes.Registry.Query(path, name);
    return value.Ok() ? value.Value.Text : Text();
}

// What the user has told Windows in its own settings, where that is another program's: only the user can change it.
Text OtherChoice(const LinkClasses& classes, TextView scheme) {
    Text chosen = TextAt(
        classes, Join("Software\\Microsoft\\Windows\\Shell\\Associations\\UrlAssociations\\", scheme, "\\UserChoice"),
        "ProgId");
    return SameText(chosen, scheme) ? Text() : chosen;
}

bool IsOurs(const LinkClasses& classes, TextView scheme) {
    return SameText(TextAt(classes, CommandKey(scheme), ""), LinkCommand(classes.Trees.ProgramFile()));
}

// Of this copy of the program, or of another one.
bool IsLorvanes(const LinkClasses& classes, TextView scheme) {
    const Text ours = LinkCommand(LastPathPart(classes.Trees.ProgramFile()));
    const Text command = TextAt(classes, CommandKey(scheme), "");
    const Text ending = Join("\\", TextView(ours).substr(1));
    return command.size() > ending.size() && SameText(TextView(command).substr(command.size() - ending.size()), ending);
}

Error KeepOther(const LinkClasses& classes, TextView scheme) {
    if (!classes.Trees.Has(ClassOf(scheme)) || IsLorvanes(classes, scheme)) {
        return {};
    }
    if (Error failed = classes.Trees.Copy(ClassOf(scheme), KeptKey(scheme))) {
        return failed;
    }
    return classes.Trees.Remove(ClassOf(scheme));
}

Error WriteOurs(const LinkClasses& classes, TextView scheme) {
    const RegistryEntry entries[] = {
        {{ClassOf(scheme), ""}, {kRegistryText, Join("URL:", scheme), 0}},
        {{ClassOf(scheme), "URL Protocol"}, {kRegistryText, "", 0}},
        {{CommandKey(scheme), ""}, {kRegistryText, LinkCommand(classes.Trees.ProgramFile()), 0}},
    };
    return classes.Registry.SetAll(entries);
}

Error BringBack(const LinkClasses& classes, TextView scheme) {
    if (IsOurs(classes, scheme)) {
        if (Error failed = classes.Trees.Remove(ClassOf(scheme))) {
            return failed;
        }
        if (classes.Trees.Has(KeptKey(scheme))) {
            if (Error failed = classes.Trees.Copy(KeptKey(scheme), ClassOf(scheme))) {
                return failed;
            }
        }
    }
    return classes.Trees.Remove(KeptKey(scheme));
}

}  // namespace

Text LinkCommand(TextView programFile) {
    return Join("\"", programFile, kTail);
}

bool ClassesGiveLinks(const LinkClasses& classes) {
    return std::ranges::all_of(LinkSchemes(), [&](TextView scheme) {
        return IsOurs(classes, scheme) && OtherChoice(classes, scheme).empty();
    });
}

std::vector<Text> LinksOfOthers(const LinkClasses& classes) {
    std::vector<Text> others;
    for (const TextView scheme : LinkSchemes()) {
        const Text chosen = OtherChoice(classes, scheme);
        if (!chosen.empty()) {
            others.push_back(Join(scheme, "://  ", Shown(chosen)));
        } else if (classes.Trees.Has(CommandKey(scheme)) && !IsLorvanes(classes, scheme)) {
            const Text command = TextAt(classes, CommandKey(scheme), "");
            others.push_back(Join(scheme, "://  ", command.empty() ? kUnsaid : Shown(command)));
        }
    }
    return others;
}

Error TakeClassLinks(const LinkClasses& classes) {
    if (classes.Trees.ProgramFile().empty()) {
        return MakeError(error::kBadFileName);
    }
    for (const TextView scheme : LinkSchemes()) {
        if (Error failed = KeepOther(classes, scheme)) {
            return failed;
        }
        if (Error failed = WriteOurs(classes, scheme)) {
            return failed;
        }
    }
    return {};
}

Error LeaveClassLinks(const LinkClasses& classes) {
    for (const TextView scheme : LinkSchemes()) {
        if (Error failed = BringBack(classes, scheme)) {
            return failed;
        }
    }
    return {};
}

}  // namespace lv
