#include "launcher/setups/setup_text.h"

#include <algorithm>

#include "foundation/field_strings.h"
#include "foundation/percent_text.h"

namespace lv {

namespace {

constexpr TextView kForm = "1";
constexpr TextView kHexDigits = "0123456789ABCDEF";
constexpr unsigned kHexBase = 16;
constexpr unsigned char kFirstPrintable = 0x20;
constexpr unsigned char kDelete = 0x7F;

struct TextField {
    TextView Key;
    Text Setup::*Value;
};

struct RowField {
    TextView Key;
    std::optional<Text> Setup::*Value;
};

constexpr TextView kTicked = "Ticked";

constexpr TextField kTexts[] = {
    {"Executable", &Setup::ExecutablePath},
    {"VideoProfile", &Setup::VideoProfile},
    {"CommandLine", &Setup::CommandLineAdditions},
};

constexpr RowField kRows[] = {
    {"Modification", &Setup::Modification},
    {"Memory", &Setup::Memory},
    {"Script", &Setup::Script},
    {"Demo", &Setup::Demo},
    {"Server", &Setup::Server},
    {"Map", &Setup::Map},
};

void Append(Text& text, TextView key, TextView value) {
    text.append(";").append(key).append("=").append(Escaped(value));
}

std::optional<OptionSet> BoxesOf(TextView names) {
    OptionSet boxes;
    while (!names.empty()) {
        const TextView name = names.substr(0, names.find(','));
        names.remove_prefix(std::min(names.size(), name.size() + 1));
        const auto box =
            std::ranges::find(OptionBoxes(), name, [](const OptionBox& row) { return TextView(row.Name); });
        if (box == OptionBoxes().end()) {
            return std::nullopt;
        }
        boxes.Set(box->Box);
    }
    return boxes;
}

bool TakeField(Setup& setup, TextView key, const Text& value) {
    if (const auto* const text = std::ranges::find(kTexts, key, &TextField::Key); text != std::end(kTexts)) {
        setup.*text->Value = value;
        return true;
    }
    if (const auto* const row = std::ranges::find(kRows, key, &RowField::Key); row != std::end(kRows)) {
        setup.*row->Value = value;
        return true;
    }
    const auto boxes = key == kTicked ? BoxesOf(value) : std::nullopt;
    setup.Ticked = boxes.value_or(setup.Ticked);
    return boxes.has_value();
}

}  // namespace

Text Escaped(TextView text) {
    Text escaped;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        const bool atAnEnd = i == 0 || i + 1 == text.size();
        if (byte < kFirstPrintable || byte == kDelete || byte == '%' || byte == ';' || (byte == ' ' && atAnEnd)) {
            escaped += '%';
            escaped += kHexDigits[byte / kHexBase];
            escaped += kHexDigits[byte % kHexBase];
        } else {
            escaped += text[i];
        }
    }
    return escaped;
}

std::optional<Text> Unescaped(TextView text) {
    return FromPercentText(text);
}

Text TextOfSetup(const Setup& setup) {
    Text text(kForm);
    Append(text, kTexts[0].Key, setup.*kTexts[0].Value);
    Text names;
    for (const OptionBox& option : OptionBoxes()) {
        if (setup.Ticked.Has(option.Box)) {
            names.append(names.empty() ? "" : ",").append(option.Name);
        }
    }
    Append(text, kTicked, names);
    for (const RowField& row : kRows) {
        if (setup.*row.Value) {
            Append(text, row.Key, *(setup.*row.Value));
        }
    }
    for (const TextField& field : std::span(kTexts).subspan(1)) {
        Append(text, field.Key, setup.*field.Value);
    }
    return text;
}

std::optional<Setup> SetupOfText(TextView text) {
    const TextView form = text.substr(0, text.find(';'));
    if (form != kForm) {
        return std::nullopt;
    }
    Setup setup;
    text.remove_prefix(form.size());
    while (!text.empty()) {
        text.remove_prefix(1);
        const TextView field = text.substr(0, text.find(';'));
        text.remove_prefix(field.size());
        const std::size_t at = field.find('=');
        const auto value = at == TextView::npos ? std::nullopt : Unescaped(field.substr(at + 1));
        if (!value || !TakeField(setup, field.substr(0, at), *value)) {
            return std::nullopt;
        }
    }
    return setup.ExecutablePath.empty() ? std::nullopt : std::optional(std::move(setup));
}

}  // namespace lv
