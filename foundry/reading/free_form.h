// foundry/reading/free_form.h
//
// The sections of a script and their free-form text.

#pragma once

#include "foundry/document/script_document.h"

namespace lv {

/// No index counts further. The heads beyond are lines of the last section.
constexpr std::size_t kMostSections = 32767;

/// Adds a line to a section's text, on a line of its own.
void AddFreeForm(Text& text, Text&& line);
void AddFreeForm(Text& text, TextView line);

/// Where the second pass is: which section the next line belongs to.
class SectionReader {
  public:
    /// The document gets its first section, which has no name yet: what stands before any head belongs to the first
    /// section that comes.
    explicit SectionReader(ScriptDocument& document);

    /// A line that begins with "[".
    void Open(TextView head);

    [[nodiscard]] bool IsOwn() const { return own_; }      // "[Lorvane 3D]": its lines are ignored
    [[nodiscard]] bool IsInput() const { return input_; }  // "[Engine.Input]": keys and aliases of Unreal
    [[nodiscard]] bool SawOwn() const { return sawOwn_; }
    [[nodiscard]] bool SawHead() const { return sawHead_; }

    /// The text of the section.
    Text& Current();

  private:
    ScriptDocument& document_;
    bool own_ = false;
    bool input_ = false;
    bool sawOwn_ = false;
    bool sawHead_ = false;
};

}  // namespace lv
