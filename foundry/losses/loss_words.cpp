#include "foundry/losses/loss_words.h"

#include "foundation/field_strings.h"

namespace lv {

namespace {

Text Quoted(TextView text) {
    return Join(DoubleQuote, text, DoubleQuote);
}

TextView NameOfKind(EffectKind kind) {
    switch (kind) {
        case EffectKind::Bind:
            return "The key ";
        case EffectKind::Alias:
            return "The alias ";
        default:
            return "The setting ";
    }
}

/// What is free, or gone: no key has commands, no alias a body.
TextView NothingOf(EffectKind kind) {
    return kind == EffectKind::Bind ? "free" : "removed";
}

bool IsOfAll(const ScriptDifference& difference) {
    return difference.Identity == "unbindall" || difference.Identity == "unaliasall";
}

Text LostWords(const ScriptDifference& difference) {
    const Text name = Join(NameOfKind(difference.What), difference.Name);
    if (!difference.Before.IsSet) {
        return Join(name, " is no longer ", NothingOf(difference.What), ".");
    }
    return difference.What == EffectKind::Bind ? Join(name, " loses ", Quoted(difference.Before.Value), ".")
                                               : Join(name, " is lost: ", Quoted(difference.Before.Value), ".");
}

Text ChangedWords(const ScriptDifference& difference) {
    const Text was = difference.Before.IsSet ? Quoted(difference.Before.Value) : Text(NothingOf(difference.What));
    return Join(NameOfKind(difference.What), difference.Name, " gets ", Quoted(difference.After.Value), " and was ",
                was, ".");
}

Text AddedWords(const ScriptDifference& difference) {
    const Text name = Join(NameOfKind(difference.What), difference.Name);
    return difference.After.IsSet
               ? Join(name, " gets ", Quoted(difference.After.Value), ", and the file leaves it alone.")
               : Join(name, " is ", NothingOf(difference.What), ", and the file leaves it alone.");
}

/// A command of quotes alone is a word without letters.
Text ActionName(const Effect& action) {
    return TrimmedView(action.Value).empty() ? Text("An empty command") : Quoted(action.Value);
}

Text ActionWords(const ScriptDifference& difference) {
    switch (difference.Kind) {
        case DifferenceKind::Moved:
            return Join(Quoted(difference.Before.Value),
                        " runs in another place: what it sets and what the script sets "
                        "override each other the other way round.");
        case DifferenceKind::Added:
            return Join(ActionName(difference.After), " is run, and the file does not run it.");
        default:
            return Join(ActionName(difference.Before), " is lost.");
    }
}

/// "the page says "+jump"", or that there is nothing of it.
Text PageWords(const ScriptDifference& difference) {
    if (difference.Before.IsSet && difference.Before.Line > 0) {
        return Join("the page says ", Quoted(difference.Before.Value));
    }
    return difference.What == EffectKind::Setting ? Text("the page does not set it")
                                                  : Join("on the page it is ", NothingOf(difference.What));
}

}  // namespace

Text OverriddenWordsOf(const ScriptDifference& difference) {
    const bool isSet = difference.After.IsSet && difference.After.Line > 0;
    const Text keeps =
        isSet ? Join(" keeps ", Quoted(difference.After.Value)) : Join(" stays ", NothingOf(difference.What));
    return Join(NameOfKind(difference.What), difference.Name, keeps, ", and ", PageWords(difference), ".");
}

Text WordsOf(const ScriptDifference& difference) {
    if (IsOfAll(difference)) {
        return difference.Kind == DifferenceKind::Added ? Join(Quoted(difference.Name), " is run.")
                                                        : Join(Quoted(difference.Name), " is lost.");
    }
    if (difference.What == EffectKind::Action) {
        return ActionWords(difference);
    }
    switch (difference.Kind) {
        case DifferenceKind::Lost:
            return LostWords(difference);
        case DifferenceKind::Added:
            return AddedWords(difference);
        default:
            return ChangedWords(difference);
    }
}

}  // namespace lv
