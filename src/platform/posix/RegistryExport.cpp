#include "platform/posix/RegistryExport.h"

#include <algorithm>
#include <charconv>
#include <vector>

#include "platform/LetterCase.h"
#include "text/Unicode.h"

namespace cvlang {
namespace {

constexpr std::u16string_view kRoot = u"HKEY_LOCAL_MACHINE\\";
constexpr std::u16string_view kBlanks = u" \t";

// The kinds of value that matter here, by the registry's own numbers.
constexpr unsigned kString = 1;
constexpr unsigned kExpandableString = 2;
constexpr unsigned kDword = 4;

std::u16string DecodeFile(std::string_view file) {
    const bool marked = file.substr(0, 2) == "\xFF\xFE";
    // Without a mark: an export begins with ASCII, whose high bytes are zero in UTF-16.
    if (!marked && !(file.size() >= 2 && file[1] == '\0')) {
        if (file.substr(0, 3) == "\xEF\xBB\xBF")
            file.remove_prefix(3);
        return Utf8ToUtf16(file);
    }
    file.remove_prefix(marked ? 2 : 0);
    std::u16string text;
    for (std::size_t i = 0; i + 1 < file.size(); i += 2) {
        text += static_cast<char16_t>(static_cast<unsigned char>(file[i]) |
                                      static_cast<unsigned char>(file[i + 1]) << 8);
    }
    return text;
}

std::u16string_view Trim(std::u16string_view text) {
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::u16string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

/// Takes the next line off the text, trimmed.
std::u16string_view TakeLine(std::u16string_view& text) {
    const std::size_t end = text.find_first_of(u"\r\n");
    const std::u16string_view line = text.substr(0, end);
    text.remove_prefix(end == std::u16string_view::npos ? text.size() : end + 1);
    return Trim(line);
}

/// Takes the next line and those that continue it. Only bytes in hexadecimal are continued: a
/// string may end in "\".
std::u16string TakeEntry(std::u16string_view& text) {
    std::u16string entry(TakeLine(text));
    const bool hasBytes = entry.rfind(u'"', 0) == 0 && entry.find(u"=hex") != std::u16string::npos;
    while (hasBytes && entry.back() == u'\\' && !text.empty()) {
        entry.pop_back();
        entry += TakeLine(text);
    }
    return entry;
}

/// Takes a quoted text off the front; nothing when it is not one.
std::optional<std::u16string> TakeQuoted(std::u16string_view& text) {
    std::u16string unquoted;
    for (std::size_t i = 1; i < text.size() && text[0] == u'"'; ++i) {
        if (text[i] == u'"') {
            text.remove_prefix(i + 1);
            return unquoted;
        }
        if (text[i] == u'\\' && ++i == text.size())
            break;
        unquoted += text[i];
    }
    return std::nullopt;
}

std::optional<std::uint32_t> HexNumber(std::u16string_view digits, std::size_t mostDigits) {
    const std::string ascii = Utf16ToUtf8(digits);
    std::uint32_t number = 0;
    const char* end = ascii.data() + ascii.size();
    const auto [parsed, error] = std::from_chars(ascii.data(), end, number, 16);
    if (ascii.size() > mostDigits || error != std::errc() || parsed != end)
        return std::nullopt;
    return number;
}

/// The bytes of "61,00,62,00"; nothing when a byte is malformed.
std::optional<std::vector<std::uint8_t>> HexBytes(std::u16string_view list) {
    std::vector<std::uint8_t> bytes;
    while (!Trim(list).empty()) {
        const std::size_t comma = list.find(u',');
        const auto byte = HexNumber(Trim(list.substr(0, comma)), 2);
        if (!byte)
            return std::nullopt;
        bytes.push_back(static_cast<std::uint8_t>(*byte));
        list.remove_prefix(comma == std::u16string_view::npos ? list.size() : comma + 1);
    }
    return bytes;
}

RegistryValue ValueFromBytes(unsigned kind, const std::vector<std::uint8_t>& bytes) {
    RegistryValue value;
    if (kind == kString || kind == kExpandableString) {
        value.text = std::u16string();
        for (std::size_t i = 0; i + 1 < bytes.size(); i += 2)
            *value.text += static_cast<char16_t>(bytes[i] | bytes[i + 1] << 8);
        if (!value.text->empty() && value.text->back() == u'\0')
            value.text->pop_back();
    } else if (kind == kDword && bytes.size() == 4) {
        std::uint32_t number = 0;
        for (std::size_t i = 0; i < bytes.size(); ++i)
            number |= static_cast<std::uint32_t>(bytes[i]) << (8 * i);
        value.number = static_cast<std::int32_t>(number);
    }
    return value;
}

bool TakePrefix(std::u16string_view& text, std::u16string_view prefix) {
    if (text.substr(0, prefix.size()) != prefix)
        return false;
    text.remove_prefix(prefix.size());
    return true;
}

/// What stands behind "name"=; nothing when it is malformed.
std::optional<RegistryValue> ParseValue(std::u16string_view data) {
    if (data == u"-")
        return RegistryValue();
    if (auto text = TakeQuoted(data))
        return Trim(data).empty() ? std::optional(RegistryValue{std::move(text), {}})
                                  : std::nullopt;
    if (TakePrefix(data, u"dword:")) {
        const auto number = HexNumber(data, 8);
        return number ? std::optional(RegistryValue{{}, static_cast<std::int32_t>(*number)})
                      : std::nullopt;
    }
    if (!TakePrefix(data, u"hex"))
        return std::nullopt;
    std::optional<std::uint32_t> kind = 3;  // plain "hex:" is binary
    if (TakePrefix(data, u"(")) {
        const std::size_t closing = std::min(data.find(u')'), data.size());
        kind = HexNumber(data.substr(0, closing), 8);
        data.remove_prefix(std::min(closing + 1, data.size()));
    }
    if (!kind || !TakePrefix(data, u":"))
        return std::nullopt;
    const auto bytes = HexBytes(data);
    return bytes ? std::optional(ValueFromBytes(*kind, *bytes)) : std::nullopt;
}

/// Follows which key the lines belong to.
class Section {
  public:
    explicit Section(std::u16string_view key)
        : wanted_(ToUpper(std::u16string(kRoot) + std::u16string(key))) {}

    bool IsWanted() const { return isWanted_; }

    /// Takes a line such as [HKEY_...]. True when it takes away the key that is looked for.
    bool Enter(std::u16string_view line) {
        const std::u16string key = ToUpper(line.substr(1, line.size() - 2));
        isWanted_ = key == wanted_;
        return key.size() > 1 && key[0] == u'-' &&
               (wanted_ + u'\\').rfind(key.substr(1) + u'\\', 0) == 0;
    }

  private:
    std::u16string wanted_;
    bool isWanted_ = false;
};

/// Takes a line "name"=data; nothing when it is malformed or names another value.
std::optional<RegistryValue> ParseEntry(std::u16string_view entry,
                                        const std::u16string& upperName) {
    const auto name = TakeQuoted(entry);
    if (!name || ToUpper(*name) != upperName)
        return std::nullopt;
    entry = Trim(entry);
    return TakePrefix(entry, u"=") ? ParseValue(Trim(entry)) : std::nullopt;
}

}  // namespace

RegistryValue FindInRegistryExport(std::string_view file, std::u16string_view key,
                                   std::u16string_view name) {
    const std::u16string text = DecodeFile(file);
    const std::u16string upperName = ToUpper(name);
    Section section(key);
    RegistryValue found;
    for (std::u16string_view rest = text; !rest.empty();) {
        const std::u16string entry = TakeEntry(rest);
        if (entry.size() > 2 && entry.front() == u'[' && entry.back() == u']') {
            if (section.Enter(entry))
                found = {};
        } else if (section.IsWanted()) {
            if (const auto value = ParseEntry(entry, upperName))
                found = *value;
        }
    }
    return found;
}

}  // namespace cvlang
