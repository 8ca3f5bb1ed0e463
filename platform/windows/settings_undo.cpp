#include "platform/windows/settings_undo.h"

#include <cstdint>
#include <cstring>

#include "platform/windows/registry_key.h"

namespace lv {

namespace {

void AddNumber(std::string& packed, std::size_t number) {
    for (int shift = 0; shift < 32; shift += 8) {
        packed += static_cast<char>(number >> shift & 0xFF);
    }
}

void AddBytes(std::string& packed, std::string_view bytes) {
    AddNumber(packed, bytes.size());
    packed += bytes;
}

std::string_view BytesOf(const std::wstring& text) {
    return {reinterpret_cast<const char*>(text.data()), text.size() * sizeof(wchar_t)};
}

// Takes from the front; once something is missing there is nothing more.
class Packed {
  public:
    explicit Packed(std::string_view bytes) : rest_(bytes) {}

    std::uint32_t Number() {
        std::uint32_t number = 0;
        int shift = 0;
        for (const char c : Take(4)) {
            number |= static_cast<std::uint32_t>(static_cast<unsigned char>(c)) << shift;
            shift += 8;
        }
        return number;
    }
    std::string Bytes() { return std::string(Take(Number())); }
    std::wstring Text() {
        const std::string bytes = Bytes();
        std::wstring text(bytes.size() / sizeof(wchar_t), L'\0');
        std::memcpy(text.data(), bytes.data(), text.size() * sizeof(wchar_t));
        whole_ = whole_ && bytes.size() % sizeof(wchar_t) == 0 && text.find(L'\0') == std::wstring::npos;
        return text;
    }
    bool Flag() {
        const std::uint32_t flag = Number();
        whole_ = whole_ && flag <= 1;
        return flag == 1;
    }
    [[nodiscard]] bool IsWhole() const { return whole_; }
    [[nodiscard]] bool IsAtEnd() const { return rest_.empty(); }

  private:
    std::string_view Take(std::size_t count) {
        whole_ = whole_ && count <= rest_.size();
        if (!whole_) {
            return {};
        }
        const std::string_view taken = rest_.substr(0, count);
        rest_.remove_prefix(count);
        return taken;
    }

    std::string_view rest_;
    bool whole_ = true;
};

}  // namespace

std::string PackFormerValues(const std::vector<FormerValue>& values) {
    std::string packed;
    AddNumber(packed, values.size());
    for (const FormerValue& value : values) {
        AddBytes(packed, BytesOf(value.Path));
        AddBytes(packed, BytesOf(value.Name));
        AddNumber(packed, value.WasThere ? 1 : 0);
        AddNumber(packed, value.Type);
        AddBytes(packed, value.Bytes);
    }
    return packed;
}

std::optional<std::vector<FormerValue>> UnpackFormerValues(std::string_view packed) {
    Packed from(packed);
    std::vector<FormerValue> values;
    for (std::uint32_t left = from.Number(); left > 0 && from.IsWhole(); --left) {
        FormerValue value;
        value.Path = from.Text();
        value.Name = from.Text();
        value.WasThere = from.Flag();
        value.Type = from.Number();
        value.Bytes = from.Bytes();
        values.push_back(std::move(value));
    }
    return from.IsWhole() && from.IsAtEnd() ? std::optional(std::move(values)) : std::nullopt;
}

FormerValue ValueNow(const std::wstring& path, const std::wstring& name) {
    FormerValue value{path, name, false, REG_NONE, {}};
    RegistryKeyHandle key;
    value.WasThere = key.Open(path, KEY_QUERY_VALUE) == ERROR_SUCCESS &&
                     key.QueryBytes(name, value.Type, value.Bytes) == ERROR_SUCCESS;
    return value;
}

LSTATUS PutBack(const FormerValue& value) {
    RegistryKeyHandle key;
    if (value.WasThere) {
        const LSTATUS opened = key.OpenOrMake(value.Path, KEY_SET_VALUE);
        return opened != ERROR_SUCCESS ? opened : key.SetBytes(value.Name, value.Type, value.Bytes);
    }
    const LSTATUS opened = key.Open(value.Path, KEY_SET_VALUE);
    const LSTATUS gone = opened != ERROR_SUCCESS ? opened : key.Delete(value.Name);
    return gone == ERROR_FILE_NOT_FOUND ? ERROR_SUCCESS : gone;
}

}  // namespace lv
