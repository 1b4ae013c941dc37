#include <gtest/gtest.h>
#include <windows.h>

#include "platform/Registry.h"

namespace cvlang {
namespace {

/// A key of the real registry, removed again when the test ends.
class RegistryKey {
  public:
    RegistryKey() {
        RegCreateKeyExA(HKEY_LOCAL_MACHINE, "SOFTWARE\\CVLangTranslatorTest", 0, nullptr, 0,
                        KEY_ALL_ACCESS, nullptr, &key_, nullptr);
    }
    ~RegistryKey() {
        RegCloseKey(key_);
        RegDeleteKeyA(HKEY_LOCAL_MACHINE, "SOFTWARE\\CVLangTranslatorTest");
    }
    void Set(const char* name, DWORD type, const void* data, DWORD size) {
        RegSetValueExA(key_, name, 0, type, static_cast<const BYTE*>(data), size);
    }

  private:
    HKEY key_ = nullptr;
};

TEST(SystemRegistry, AnswersFromTheRealRegistry) {
    constexpr std::u16string_view kKey = u"SOFTWARE\\CVLangTranslatorTest";
    RegistryKey key;
    const auto registry = SystemRegistry();
    EXPECT_EQ(registry->ReadString(kKey, u"Text"), u"");
    key.Set("Text", REG_SZ, "C:\\Corvane\\\xE9", 13);
    const DWORD number = 0xFFFFFFFE;
    key.Set("Number", REG_DWORD, &number, sizeof number);
    key.Set("Binary", REG_BINARY, &number, sizeof number);
    key.Set("Empty", REG_SZ, "", 1);
    EXPECT_EQ(registry->ReadString(kKey, u"Text"), u"C:\\Corvane\\\u00E9");
    EXPECT_EQ(registry->ReadString(kKey, u"Empty"), u"");
    EXPECT_EQ(registry->ReadDword(kKey, u"Number"), -2);
    EXPECT_EQ(registry->ReadDword(kKey, u"Binary"), 0);
    EXPECT_EQ(registry->ReadDword(kKey, u"Text"), 0);
    EXPECT_EQ(registry->ReadDword(kKey, u"None"), 0);
    EXPECT_EQ(registry->ReadDword(u"SOFTWARE\\No such key", u"Number"), 0);
}

}  // namespace
}  // namespace cvlang
