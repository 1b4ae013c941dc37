#include "config/Configuration.h"

#include <exception>

#include "platform/FileSystem.h"
#include "text/Strings.h"

namespace cvlang {
namespace {

// The results when the registry fails. Deliberate: the folders differ in case ("Bin" and "BIN").
constexpr std::u16string_view kDefaultText = u"Default Value";
constexpr std::u16string_view kDefaultProgramDirectory = u"C:\\Program Files\\Corvane\\Bin";
constexpr std::u16string_view kDefaultApplicationDirectory = u"C:\\Program Files\\Corvane\\BIN";

/// The result of `read`, or the fallback when it raises an error.
template <typename Read>
std::u16string OrOnFailure(std::u16string_view fallback, Read read) {
    try {
        return read();
    } catch (const std::exception&) {
        return std::u16string(fallback);
    }
}

std::u16string ProductKey() {
    const std::u16string product = Configuration::GetProductName();
    return u"SOFTWARE\\" + product + u"\\" + product;
}

std::u16string Hexadecimal(std::uint32_t number) {
    std::u16string digits;
    do {
        digits.insert(digits.begin(), u"0123456789ABCDEF"[number % 16]);
        number /= 16;
    } while (number != 0);
    return digits;
}

std::u16string PaddedHexadecimal(std::uint32_t number, int width) {
    const std::u16string digits = Hexadecimal(number);
    return ZeroPad(width, static_cast<int>(digits.size())) + digits;
}

/// Deliberate: only bytes below 10 are padded to two digits, so 0A to 0F have one.
std::u16string FormattedByte(std::uint8_t byte) {
    return byte < 10 ? PaddedHexadecimal(byte, 2) : Hexadecimal(byte);
}

}  // namespace

std::u16string Configuration::ReadRegistryString(std::u16string_view key,
                                                 std::u16string_view valueName,
                                                 std::u16string_view /*defaultText*/) const {
    return registry_.ReadString(key, valueName);
}

std::int32_t Configuration::ReadRegistryDword(std::u16string_view key,
                                              std::u16string_view valueName) const {
    return registry_.ReadDword(key, valueName);
}

std::u16string Configuration::ReadProductString(std::u16string_view valueName) const {
    return ReadRegistryString(ProductKey(), valueName, u"");
}

std::int32_t Configuration::ReadProductDword(std::u16string_view valueName) const {
    return ReadRegistryDword(ProductKey(), valueName);
}

std::u16string Configuration::GetPostOfficesDirectory() const {
    return OrOnFailure(kDefaultText, [this] {
        return ReadProductString(u"Data Directory") + kSeparator + u"POSTOFFICES";
    });
}

std::u16string Configuration::GetProgramDirectory() const {
    return OrOnFailure(kDefaultProgramDirectory,
                       [this] { return ReadProductString(u"Application Directory"); });
}

std::u16string Configuration::GetApplicationDirectory() const {
    const std::u16string stored = ReadProductString(u"Application Directory");
    return stored.empty() ? std::u16string(kDefaultApplicationDirectory) : stored;
}

std::u16string Configuration::GetSourceRoot() const {
    return ReadProductString(u"Source Root");
}

std::u16string Configuration::GetLocalDomainName() const {
    return OrOnFailure(kDefaultText, [this] { return ReadProductString(u"SMTPLocalDomainName"); });
}

bool Configuration::IsDebugMode() const {
    return OrOnFailure(u"", [this] { return ReadProductString(u"DebugMode"); }) == u"True";
}

std::int32_t Configuration::GetAuthoringVersion() const {
    return ReadProductDword(u"Authoring Version");
}

std::int32_t Configuration::GetLanguageAuthoring() const {
    return ReadProductDword(u"Language Authoring");
}

std::u16string CreateGuidString(const GuidSource& newGuid) {
    const auto guid = newGuid();
    if (!guid)
        return u"00000000";
    std::u16string text = PaddedHexadecimal(guid->first, 8) + PaddedHexadecimal(guid->second, 4) +
                          PaddedHexadecimal(guid->third, 4);
    for (const std::uint8_t byte : guid->last)
        text += FormattedByte(byte);
    return text;
}

}  // namespace cvlang
