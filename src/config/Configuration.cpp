#include "config/Configuration.h"

#include <exception>

#include "platform/Paths.h"

namespace cvlang {
namespace {

// What a failing registry is answered with. The two folders differ in their last letters, and
// set-up programs know both.
constexpr std::u16string_view kDefaultText = u"Default Value";
constexpr std::u16string_view kDefaultProgramDirectory = u"C:\\Program Files\\Corvane\\Bin";
constexpr std::u16string_view kDefaultApplicationDirectory = u"C:\\Program Files\\Corvane\\BIN";

/// What `read` returns, or the fallback when it raises an error.
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

}  // namespace cvlang
