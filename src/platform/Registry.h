// The settings of the mail server, below HKEY_LOCAL_MACHINE. This program only reads them.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace cvlang {

/// A source of settings. Every call reads the source again; nothing is cached. A registry may raise
/// an error; the system's registry does so only when memory runs out.
class Registry {
  public:
    virtual ~Registry() = default;

    /// The text stored under the key and name; empty when the key or the value is missing.
    virtual std::u16string ReadString(std::u16string_view key, std::u16string_view name) const = 0;

    /// The number stored under the key and name; 0 when it is missing or not a DWORD.
    virtual std::int32_t ReadDword(std::u16string_view key, std::u16string_view name) const = 0;
};

/// The system's registry. On Linux it is a registry export file: the one that the environment
/// variable CORVANE_REGISTRY names, otherwise /etc/corvane/registry.reg.
std::unique_ptr<Registry> SystemRegistry();

}  // namespace cvlang
