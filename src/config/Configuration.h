// What the program knows about the installed mail server, read from the mail server's own registry
// key. Every accessor reads anew, and nothing is ever written.
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

    /// The text of a value; empty when it cannot be read. The default is not applied: callers bring
    /// their own.
    std::u16string ReadRegistryString(std::u16string_view key, std::u16string_view valueName,
                                      std::u16string_view defaultText) const;
    /// The number of a value; 0 when it cannot be read or is of another kind.
    std::int32_t ReadRegistryDword(std::u16string_view key, std::u16string_view valueName) const;

    static std::u16string GetProductName() { return u"Corvane"; }

    /// The folder of the post offices; "Default Value" when the registry fails.
    std::u16string GetPostOfficesDirectory() const;
    /// The application directory as it is stored, empty when it is missing; the usual place of
    /// installation when the registry fails.
    std::u16string GetProgramDirectory() const;
    /// The application directory, or the usual place of installation when none is stored.
    std::u16string GetApplicationDirectory() const;
    /// The root of the classic web applications' sources; empty when there are none.
    std::u16string GetSourceRoot() const;
    /// The domain that mail is sent from; "Default Value" when the registry fails.
    std::u16string GetLocalDomainName() const;
    /// Whether translation runs are traced.
    bool IsDebugMode() const;
    /// Below 2 the old names of files and folders are used.
    std::int32_t GetAuthoringVersion() const;
    /// 1 protects existing token map files from being fetched anew.
    std::int32_t GetLanguageAuthoring() const;

  private:
    std::u16string ReadProductString(std::u16string_view valueName) const;
    std::int32_t ReadProductDword(std::u16string_view valueName) const;

    const Registry& registry_;
};

/// A new GUID in capitals, without separators, or "00000000" when the system makes none. 24 to 32
/// characters: deliberately, each of the last eight bytes from 0A to 0F is written with one digit.
std::u16string CreateGuidString(const GuidSource& newGuid = NewGuid);

/// The computer's name; empty when the system does not know it.
std::u16string GetLocalComputerName();

}  // namespace cvlang
