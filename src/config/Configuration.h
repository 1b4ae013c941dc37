// The settings of the installed mail server, from its registry key. Deliberate: every accessor
// reads the registry at each call. Nothing is ever written.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/Registry.h"
#include "platform/SystemInformation.h"

namespace cvlang {

class Configuration {
  public:
    /// The registry must outlive the configuration.
    explicit Configuration(const Registry& registry) : registry_(registry) {}

    /// The text of a value; empty when it cannot be read. Deliberate: the default is ignored.
    std::u16string ReadRegistryString(std::u16string_view key, std::u16string_view valueName,
                                      std::u16string_view defaultText) const;
    /// The number of a value; 0 when it cannot be read or is no DWORD.
    std::int32_t ReadRegistryDword(std::u16string_view key, std::u16string_view valueName) const;

    static std::u16string GetProductName() { return u"Corvane"; }

    /// The folder of the post offices; "Default Value" when the registry fails.
    std::u16string GetPostOfficesDirectory() const;
    /// The application directory as stored: empty when missing, the default folder when the
    /// registry fails.
    std::u16string GetProgramDirectory() const;
    /// The application directory; the default folder when none is stored.
    std::u16string GetApplicationDirectory() const;
    /// The root of the sources of the classic web applications; empty when there are none.
    std::u16string GetSourceRoot() const;
    /// The domain that mail is sent from; "Default Value" when the registry fails.
    std::u16string GetLocalDomainName() const;
    /// Whether translation runs are traced.
    bool IsDebugMode() const;
    /// Below 2, files and folders have their old names.
    std::int32_t GetAuthoringVersion() const;
    /// 1 protects existing token map files from being replaced by a download.
    std::int32_t GetLanguageAuthoring() const;

  private:
    std::u16string ReadProductString(std::u16string_view valueName) const;
    std::int32_t ReadProductDword(std::u16string_view valueName) const;

    const Registry& registry_;
};

/// A new GUID in upper-case hexadecimal without separators; "00000000" when the system fails.
/// Deliberate: each of the last eight bytes from 0A to 0F has one digit, so it has 24 to 32 digits.
std::u16string CreateGuidString(const GuidSource& newGuid = NewGuid);

}  // namespace cvlang
