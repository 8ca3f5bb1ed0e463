// foundation/field_strings.h
//
// Lists kept in one text value: fields joined by a one-character separator, with no escape. Every catalog is read,
// changed and written back through these functions, so their edges are part of the stored format.
// What ends in View is a stretch of the argument, for texts too long to be copied.

#pragma once

#include "foundation/text.h"

namespace lv {

/// How often the delimiter occurs, overlaps counted: "aa" occurs twice in "aaa". At most 32,767.
Index CountDelimiters(TextView text, TextView delimiter);

/// The field at `index` (from 0), without leading blanks; trailing blanks stay.
/// An index beyond the last field wraps to the start of the text, so a damaged list still reads as something:
/// in "a;b" index 2 is "a". Callers guard with CountDelimiters.
Text GetField(TextView text, Index index, TextView delimiter = ",");

/// What stands behind the first "=" (empty without one), or before it (the whole line without one).
Text GetKeyOrValue(TextView line, bool wantValue);
TextView KeyOrValueView(TextView line, bool wantValue);

/// The word at `index` (from 0) of a line whose words are parted by blanks outside double quotes. The quotes stay in
/// the result. Empty beyond the last word.
Text GetQuotedWord(TextView line, Index index);
/// `blanks` are the characters that part words.
TextView QuotedWordView(TextView line, Index index, TextView blanks = " ");
/// The first word, which `rest` is moved behind: for those who want several.
TextView NextQuotedWord(TextView& rest, TextView blanks = " ");

/// Cut, or padded with blanks, to exactly `width` characters.
Text PadToWidth(TextView text, std::size_t width);

/// Without its last, or first, `count` characters; a text shorter than `count` gives an empty one.
Text DropRight(TextView text, std::size_t count);
Text DropLeft(TextView text, std::size_t count);

/// Overwrites each occurrence of `find` in place with as many characters as the shorter of the two has; the length
/// never changes. Made for one character by one character. Each round looks from the front again, and a round that
/// finds its match at position 1 ends the work, but for the very first. A replacement that reproduces `find` changes
/// nothing.
Text ReplaceSameLength(TextView text, TextView find, TextView replacement);

/// Replaces each occurrence, of any length; inserted text is not looked at again. Once something was replaced, a
/// match at position 1 ends the work: "set set x" without "set " is "set x". Stored lists rely on these ends.
Text ReplaceText(TextView text, TextView find, TextView replacement);

/// Without carriage returns, line feeds, characters 0, blanks and tabs at both ends.
Text TrimWhite(TextView text);

/// Without blanks at both ends, and nothing but blanks.
Text Trim(TextView text);

/// The same, as a part of the text itself.
TextView TrimmedView(TextView text, TextView blanks = " ");

/// Without one closing and one opening double quote.
Text StripQuotes(TextView text);
TextView StripQuotesView(TextView text);

/// What stands behind the last "\", less leading blanks; the whole path without one.
Text LastPathPart(TextView path);

/// The path without its last part and the "\" before that.
Text DirectoryOf(TextView path);

/// The path of `name` in the directory, which may end in a "\".
Text PathBelow(TextView directory, TextView name);

/// Whether `find` occurs in `text`, case and all.
bool Holds(TextView text, TextView find);

}  // namespace lv
