#include "platform/posix/RegistryExport.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>

#include "platform/Ansi.h"
#include "platform/FileSystem.h"
#include "platform/Registry.h"
#include "text/Unicode.h"

namespace cvlang {
namespace {

constexpr std::u16string_view kRoot = u"HKEY_LOCAL_MACHINE\\";
constexpr std::u16string_view kShortRoot = u"HKLM\\";
constexpr std::u16string_view kBlanks = u" \t";
constexpr std::string_view kAnsiHeader = "REGEDIT4";

// The types of values that are read, with the registry's numbers.
constexpr unsigned kString = 1;
constexpr unsigned kExpandableString = 2;
constexpr unsigned kBinary = 3;
constexpr unsigned kDword = 4;

std::u16string FromUtf16Bytes(std::string_view bytes) {
    std::u16string text;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        text += static_cast<char16_t>(static_cast<unsigned char>(bytes[i]) |
                                      static_cast<unsigned char>(bytes[i + 1]) << 8);
    }
    return text;
}

std::u16string DecodeFile(std::string_view file) {
    if (file.starts_with("\xFF\xFE"))
        return FromUtf16Bytes(file.substr(2));
    // Without a byte-order mark: an export begins with ASCII, whose high bytes are 0 in UTF-16.
    if (file.size() >= 2 && file[1] == '\0')
        return FromUtf16Bytes(file);
    if (file.starts_with(kAnsiHeader))
        return AnsiToUtf16(file);
    return Utf8ToUtf16(file.substr(file.starts_with("\xEF\xBB\xBF") ? 3 : 0));
}

void SkipBlanks(std::u16string_view& text) {
    text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
}

bool TakePrefix(std::u16string_view& text, std::u16string_view prefix) {
    const bool starts = text.starts_with(prefix);
    text.remove_prefix(starts ? prefix.size() : 0);
    return starts;
}

/// Whether the rest of a line is blank or a comment.
bool IsAtEnd(std::u16string_view line) {
    SkipBlanks(line);
    return line.empty() || line.front() == u';';
}

/// Removes blanks and a hexadecimal number from a text; nothing when there is none or it is too
/// long.
std::optional<std::uint32_t> TakeHex(std::u16string_view& text, std::size_t mostDigits) {
    SkipBlanks(text);
    const std::size_t size =
        std::min(text.find_first_not_of(u"0123456789abcdefABCDEF"), text.size());
    if (size == 0 || size > mostDigits)
        return std::nullopt;
    const auto number = std::stoul(Utf16ToUtf8(text.substr(0, size)), nullptr, 16);
    text.remove_prefix(size);
    return static_cast<std::uint32_t>(number);
}

/// Removes a text in quotation marks; nothing when there is none.
std::optional<std::u16string> TakeQuoted(std::u16string_view& text) {
    std::u16string unquoted;
    for (std::size_t i = 1; i < text.size() && text[0] == u'"'; ++i) {
        if (text[i] == u'"') {
            text.remove_prefix(i + 1);
            return unquoted;
        }
        if (text[i] != u'\\') {
            unquoted += text[i];
            continue;
        }
        if (++i == text.size() || text[i] == u'0')
            break;
        unquoted += text[i] == u'n' ? u'\n' : text[i] == u'r' ? u'\r' : text[i];
    }
    return std::nullopt;
}

/// Reads the lines of a file once, and keeps the last setting of the wanted value.
class ExportReader {
  public:
    ExportReader(std::string_view file, std::u16string_view key, std::u16string_view name)
        : isAnsi_(file.starts_with(kAnsiHeader)),
          text_(DecodeFile(file)),
          rest_(text_),
          wantedKey_(Normalise(std::u16string(kRoot).append(key))),
          wantedName_(ToUpper(name)) {}

    RegistryValue Read() {
        while (!rest_.empty()) {
            std::u16string_view line = TakeLine();
            if (line.starts_with(u'['))
                EnterKey(line);
            else if (line.starts_with(u'"'))
                ReadEntry(line);
        }
        return found_;
    }

  private:
    /// A key's name for comparison: in upper case, with the root's full name, without superfluous
    /// backslashes.
    static std::u16string Normalise(std::u16string_view key) {
        const std::u16string upper = ToUpper(key);
        std::u16string_view path = upper;
        std::u16string normal(TakePrefix(path, kShortRoot) ? kRoot : u"");
        for (const char16_t c : path) {
            if (c != u'\\' || !normal.ends_with(u'\\'))
                normal += c;
        }
        if (!normal.ends_with(u'\\'))
            normal += u'\\';
        return normal;
    }

    /// The next line that is neither blank nor a comment; empty at the end of the file.
    std::u16string_view TakeLine() {
        std::u16string_view line;
        while (IsAtEnd(line) && !rest_.empty()) {
            line = rest_.substr(0, rest_.find_first_of(u"\r\n"));
            rest_.remove_prefix(std::min(line.size() + 1, rest_.size()));
            SkipBlanks(line);
        }
        return IsAtEnd(line) ? std::u16string_view() : line;
    }

    /// A malformed key line does not change the current key.
    void EnterKey(std::u16string_view line) {
        const std::size_t closing = line.rfind(u']');
        line = line.substr(1, closing - 1);
        if (closing == std::u16string_view::npos || line.find_first_of(kBlanks) == 0)
            return;
        const bool isRemoved = TakePrefix(line, u"-");
        const std::u16string key = Normalise(line);
        isWanted_ = !isRemoved && key == wantedKey_;
        if (isRemoved && wantedKey_.starts_with(key))
            found_ = {};
    }

    /// Reads "name"=data. All entries are read, because their bytes may continue in the next lines.
    void ReadEntry(std::u16string_view line) {
        const auto name = TakeQuoted(line);
        SkipBlanks(line);
        if (!name || !TakePrefix(line, u"="))
            return;
        SkipBlanks(line);
        const auto value = ReadData(line);
        if (value && isWanted_ && ToUpper(*name) == wantedName_)
            found_ = *value;
    }

    std::optional<RegistryValue> ReadData(std::u16string_view data) {
        RegistryValue value;
        if (data.starts_with(u'"')) {
            value.text = TakeQuoted(data);
            return value.text && IsAtEnd(data) ? std::optional(value) : std::nullopt;
        }
        if (TakePrefix(data, u"dword:")) {
            if (const auto number = TakeHex(data, 8))
                value.number = static_cast<std::int32_t>(*number);
            return value.number && IsAtEnd(data) ? std::optional(value) : std::nullopt;
        }
        if (TakePrefix(data, u"-"))
            return IsAtEnd(data) ? std::optional(value) : std::nullopt;
        return ReadBytes(data);
    }

    /// Reads "hex:00,01" or "hex(2):61,00".
    std::optional<RegistryValue> ReadBytes(std::u16string_view data) {
        if (!TakePrefix(data, u"hex"))
            return std::nullopt;
        std::optional<std::uint32_t> kind = kBinary;
        if (TakePrefix(data, u"(")) {
            kind = TakeHex(data, 8);
            if (!kind || !TakePrefix(data, u")"))
                return std::nullopt;
        }
        const auto bytes = TakePrefix(data, u":") ? TakeBytes(data) : std::nullopt;
        return bytes ? ValueFromBytes(*kind, *bytes) : std::nullopt;
    }

    /// The bytes of a line and its continuations; nothing when one is malformed or the last is
    /// missing.
    std::optional<std::string> TakeBytes(std::u16string_view list) {
        std::string bytes;
        for (bool goesOn = true; goesOn && !IsAtEnd(list);) {
            SkipBlanks(list);
            if (TakePrefix(list, u"\\")) {
                const bool isLast = IsAtEnd(list);
                list = TakeLine();
                if (!isLast || list.empty() || list.front() == u'\\')
                    return std::nullopt;
            }
            const auto byte = TakeHex(list, 8);
            if (!byte || *byte > 0xFF)
                return std::nullopt;
            bytes += static_cast<char>(*byte);
            goesOn = TakePrefix(list, u",");
        }
        return IsAtEnd(list) ? std::optional(bytes) : std::nullopt;
    }

    std::optional<RegistryValue> ValueFromBytes(std::uint32_t kind, std::string_view bytes) const {
        RegistryValue value;
        if (kind == kString || kind == kExpandableString) {
            if (!isAnsi_ && bytes.size() % 2 != 0)
                return std::nullopt;
            value.text = isAnsi_ ? AnsiToUtf16(bytes) : FromUtf16Bytes(bytes);
            if (value.text->ends_with(u'\0'))
                value.text->pop_back();
        } else if (kind == kDword && bytes.size() == 4) {
            const std::u16string halves = FromUtf16Bytes(bytes);
            value.number =
                static_cast<std::int32_t>(halves[0] | static_cast<std::uint32_t>(halves[1]) << 16);
        }
        return value;
    }

    bool isAnsi_;
    std::u16string text_;
    std::u16string_view rest_;
    std::u16string wantedKey_;
    std::u16string wantedName_;
    bool isWanted_ = false;
    RegistryValue found_;
};

/// Larger files are no settings, and could exhaust the memory.
constexpr std::uintmax_t kLargestFile = 256U << 20;

class RegistryFromFile : public Registry {
  public:
    std::u16string ReadString(std::u16string_view key, std::u16string_view name) const override {
        return Find(key, name).text.value_or(u"");
    }

    std::int32_t ReadDword(std::u16string_view key, std::u16string_view name) const override {
        return Find(key, name).number.value_or(0);
    }

  private:
    static RegistryValue Find(std::u16string_view key, std::u16string_view name) {
        FileContent file;
        std::error_code ignored;
        const char* named = std::getenv("CORVANE_REGISTRY");
        const std::filesystem::path path =
            FindExisting(named != nullptr && *named != '\0' ? named : "/etc/corvane/registry.reg");
        if (std::filesystem::file_size(path, ignored) <= kLargestFile)
            ReadFile(path, file);
        return FindInRegistryExport(file.Bytes(), key, name);
    }
};

}  // namespace

RegistryValue FindInRegistryExport(std::string_view file, std::u16string_view key,
                                   std::u16string_view name) {
    return ExportReader(file, key, name).Read();
}

std::unique_ptr<Registry> SystemRegistry() {
    return std::make_unique<RegistryFromFile>();
}

}  // namespace cvlang
