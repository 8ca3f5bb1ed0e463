#include "foundry/reading/script_reader.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

#include "foundation/field_strings.h"
#include "foundation/game.h"
#include "foundation/numbers.h"
#include "foundry/reading/free_form.h"
#include "foundry/reading/joined_line.h"
#include "foundry/reading/script_keywords.h"
#include "foundry/tables/skin_files.h"

namespace lv {

namespace {

constexpr TextView kComment = "//";
constexpr TextView kWrittenComment = "//*";  // those of the writer
constexpr std::array<TextView, 2> kBanners = {"//* Setup Foundry   *//", "// Setup Foundry   //"};
constexpr TextView kAlias = "alias";
constexpr TextView kWeaponPriority = "weaponpriority[";
constexpr char kHardBlank = '\xA0';

/// The comment lines of the banners that early versions wrote.
constexpr std::array<TextView, 7> kOldMarkers = {
    "/////////////////////", "//                 //", "// Setup Foundry   //", "// Settings        //",
    "// Aliases         //", "// Bindings        //", "// Free Form       //"};

TextView TakeWord(TextView& rest) {
    return StripQuotesView(NextQuotedWord(rest, kScriptBlanks));
}

TextView LeftOf(TextView line) {
    return KeyOrValueView(line, false);
}

TextView RightOf(TextView line) {
    return KeyOrValueView(line, true);
}

TextView BeforeComment(TextView line) {
    return TrimmedView(line.substr(0, line.find(kComment)), kScriptBlanks);
}

bool IsUnreal(const ScriptDocument& document) {
    return document.Dialect.GameKind == Game::Unreal;
}

/// An alias as the first pass reads it. The letter case of one in a console script is lost.
struct AliasLine {
    Text Name;
    Text Body;
};

AliasLine ConsoleAlias(TextView line) {
    if (!StartsWithText(line.substr(line.starts_with('"') ? 1 : 0), kAlias)) {
        return {};
    }
    TakeWord(line);
    Text name = LowerCase(TakeWord(line));
    return {std::move(name), LowerCase(TakeWord(line))};
}

/// The right part says both, as AddAlias takes it.
AliasLine IniAlias(TextView line) {
    return StartsWithText(line, kAlias) ? AliasLine{"-", Text(RightOf(line))} : AliasLine{};
}

/// What a line says to the table of keywords.
struct Parts {
    Text Keyword;
    ScriptLine Values;
};

constexpr std::size_t kLongestKeyword = 32;

Text KeywordOf(TextView word) {
    return word.size() > kLongestKeyword ? Text() : LowerCase(word);
}

Parts TakeConsoleLine(TextView line) {
    Text keyword = KeywordOf(TakeWord(line));
    if (keyword == "set") {
        keyword = KeywordOf(TakeWord(line));
        return {std::move(keyword), {.Value = TrimmedView(TakeWord(line))}};
    }
    const TextView value = TrimmedView(TakeWord(line));
    return {std::move(keyword), {.Value = value, .Value2 = TrimmedView(TakeWord(line))}};
}

/// Blanks belong to a value, tabs at its ends do not.
TextView IniValue(TextView line) {
    const TextView right = RightOf(line);
    return right.find('\t') == TextView::npos ? right : TrimmedView(right, kScriptBlanks);
}

Parts TakeIniLine(TextView line) {
    const TextView left = LeftOf(line);
    if (StartsWithText(left, kWeaponPriority)) {
        const std::int32_t index = ToLong(left.substr(kWeaponPriority.size(), kLongestKeyword));
        return {"weaponpriority", {.Value = IniValue(line), .Index = index}};
    }
    return {KeywordOf(left), {.Value = IniValue(line)}};
}

/// The value behind the second "=" of MouseX=Axis aMouseX Speed=6.0.
TextView AxisSpeed(TextView right) {
    return TrimmedView(LeftOf(RightOf(right)));
}

Parts TakeInputLine(TextView line) {
    const TextView right = RightOf(line);
    if (StartsWithText(line, kAlias)) {
        return {Text(kAlias), {}};
    }
    if (StartsWithText(line, "mousex") && StartsWithText(right, "axis amousex speed")) {
        return {"mousex", {.Value = AxisSpeed(right)}};
    }
    if (StartsWithText(line, "mousey") && StartsWithText(right, "axis amousey speed")) {
        return {"mousey", {.Value = AxisSpeed(right)}};
    }
    return {"bind", {.Value = LeftOf(line), .Value2 = right}};
}

void TurnTabsIntoBlanks(std::span<char> bytes) {
    bool inQuotes = false;
    for (char& c : bytes) {
        inQuotes = inQuotes != (c == '"');
        if (c == '\t' && !inQuotes) {
            c = ' ';
        }
    }
}

bool IsKeptComment(TextView line) {
    return !line.starts_with(kWrittenComment) && std::ranges::find(kOldMarkers, line) == kOldMarkers.end();
}

class SecondPass {
  public:
    SecondPass(ScriptLines& lines, ScriptDocument& document, ScriptView& view, std::uint64_t firstLineWithoutAlias)
        : context_{.Document = document,
                   .View = view,
                   .Lines = lines,
                   .Aliases = AliasNames(document.AliasTable),
                   .FirstLineWithoutAlias = firstLineWithoutAlias},
          sections_(document) {}

    void TakeLine(std::span<char> bytes);
    void Finish(const std::function<void()>& modelChosen);
    /// An ini has no banner; there the program's own section tells who wrote it.
    [[nodiscard]] bool Foreign() const {
        const bool isIni = context_.Document.Dialect.GameKind == Game::Unreal;
        return !sawBanner_ && !(isIni && sections_.SawOwn());
    }

  private:
    TextView TakeComment(TextView line);
    void TakeStatement(TextView line);
    void FillWeapons();
    void ChooseSkin(const std::function<void()>& modelChosen);

    KeywordContext context_;
    SectionReader sections_;
    bool sawBanner_ = false;
};

/// The line without its comment, which may be one to keep.
TextView SecondPass::TakeComment(TextView line) {
    const std::size_t at = line.find(kComment);
    if (at == TextView::npos) {
        return line;
    }
    sawBanner_ = sawBanner_ || std::ranges::any_of(kBanners, [line](TextView each) { return Holds(line, each); });
    if (at == 0 && !sections_.IsOwn() && IsKeptComment(line)) {
        AddFreeForm(sections_.Current(), line);
    }
    return line.substr(0, at);
}

void SecondPass::TakeLine(std::span<char> bytes) {
    if (sections_.IsInput()) {
        bytes = bytes.subspan(AxesWithoutSpeed(TextView(bytes.data(), bytes.size())));
    }
    const TextView whole(bytes.data(), bytes.size());
    const TextView statement = TakeComment(TrimmedView(whole, kScriptBlanks));
    for (std::size_t at = whole.find(kHardBlank); at != TextView::npos; at = whole.find(kHardBlank, at)) {
        bytes[at] = ' ';
    }
    if (sections_.IsInput()) {
        TurnTabsIntoBlanks(bytes);  // a command there has no quotes around it
    }
    const TextView line = TrimmedView(statement, kScriptBlanks);
    if (line.starts_with('[')) {
        sections_.Open(line);
    } else if (!line.empty() && !sections_.IsOwn()) {
        TakeStatement(line);
    }
}

void SecondPass::TakeStatement(TextView line) {
    Parts parts = sections_.IsInput()           ? TakeInputLine(line)
                  : IsUnreal(context_.Document) ? TakeIniLine(line)
                                                : TakeConsoleLine(line);
    const KeywordRow* row = FindKeyword(parts.Keyword);
    if (row == nullptr || row->Effect(context_, parts.Values, *row) == LineUse::kFreeForm) {
        AddFreeForm(sections_.Current(), line);
    }
    if (!context_.PendingFreeForm.empty()) {
        AddFreeForm(sections_.Current(), std::exchange(context_.PendingFreeForm, {}));
    }
}

void SecondPass::Finish(const std::function<void()>& modelChosen) {
    ScriptDocument& document = context_.Document;
    const bool unreal = IsUnreal(document);
    if (unreal) {
        FillWeapons();
        // An ini without any head still has its text shown, and written.
        if (!sections_.SawHead() && !sections_.Current().empty()) {
            document.Section_Cbo.Items.emplace_back();
        }
    }
    document.Section_Cbo.Visible = unreal;
    document.Section_Cbo.ListIndex = unreal && !document.Section_Cbo.Items.empty() ? 0 : -1;
    if (context_.Skin) {
        ChooseSkin(modelChosen);
    }
}

/// Upwards from the least wanted: the list's last entry is priority 0.
void SecondPass::FillWeapons() {
    ScriptDocument& document = context_.Document;
    std::vector<Text>& available = document.WeaponsAvailable_Lst.Items;
    for (auto weapon = document.WeaponPriority.rbegin(); weapon != document.WeaponPriority.rend(); ++weapon) {
        const int row = weapon->empty() ? -1 : RowOf(document.WeaponsAvailable_Lst, *weapon);
        if (row >= 0) {
            const auto place = available.begin() + row;
            document.WeaponsPriority_Lst.Items.push_back(std::move(*place));
            available.erase(place);
        }
    }
}

void SecondPass::ChooseSkin(const std::function<void()>& modelChosen) {
    ScriptDocument& document = context_.Document;
    const TextView skin = *context_.Skin;
    if (document.Dialect.ScriptFamily != Dialect::Quake2) {
        const bool hasEnding =
            skin.size() >= kSkinEnding.size() && SameText(skin.substr(skin.size() - kSkinEnding.size()), kSkinEnding);
        const int row = RowOf(document.Skin_Fil, hasEnding ? Text(skin) : Join(skin, kSkinEnding));
        document.Skin_Fil.ListIndex = row >= 0 ? row : document.Skin_Fil.ListIndex;
        return;
    }
    const std::size_t slash = skin.find('/');
    const TextView model = skin.substr(0, slash);
    const TextView itsSkin = slash == TextView::npos ? TextView() : skin.substr(slash + 1);
    if (!model.empty()) {
        SelectInList(document.Sex_Cbo, model);
        modelChosen();
    }
    if (!itsSkin.empty()) {
        SelectInList(document.Skin_Cbo, itsSkin);
    }
}

}  // namespace

bool LineHoldsAlias(TextView name, TextView body) {
    const Text line = Join("alias \"", name, "\" \"", body, DoubleQuote);
    const AliasLine read = ConsoleAlias(BeforeComment(line));
    return Trim(read.Name) == LowerCase(Trim(name)) && Trim(read.Body) == LowerCase(Trim(body));
}

std::uint64_t ReadAliases(RandomAccessFile& file, ScriptDocument& document) {
    const bool unreal = IsUnreal(document);
    bool inInput = false;
    ScriptLines lines(file);
    std::span<char> bytes;
    while (lines.Next(bytes)) {
        const TextView whole(bytes.data(), bytes.size());
        const TextView line = BeforeComment(whole.substr(inInput ? AxesWithoutSpeed(whole) : 0));
        if (unreal && line.starts_with('[')) {
            inInput = SameText(LeftOf(line), "[engine.input]");
        }
        if (line.empty() || (unreal && !inInput)) {
            continue;
        }
        const AliasLine alias = unreal ? IniAlias(line) : ConsoleAlias(line);
        if (alias.Name.empty() || alias.Body.empty()) {
            continue;
        }
        if (document.AliasTable.AliasCount() >= kMostAliases) {
            return lines.Number();
        }
        lines.Release();
        AddAlias(document, alias.Name, alias.Body);
    }
    return std::numeric_limits<std::uint64_t>::max();
}

void ReadLines(RandomAccessFile& file, ScriptDocument& document, ScriptView& view, std::uint64_t firstLineWithoutAlias,
               const std::function<void()>& modelChosen) {
    ScriptLines lines(file);
    SecondPass pass(lines, document, view, firstLineWithoutAlias);
    std::span<char> bytes;
    while (lines.Next(bytes)) {
        pass.TakeLine(bytes);
    }
    pass.Finish(modelChosen);
    document.Foreign = pass.Foreign();
}

}  // namespace lv
