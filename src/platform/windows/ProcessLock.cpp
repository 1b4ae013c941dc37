#include "platform/ProcessLock.h"

#include <windows.h>

#include <functional>
#include <string>

#include "platform/Ansi.h"
#include "platform/Paths.h"

namespace cvlang {
namespace {

constexpr DWORD kPatienceInMilliseconds = 5000;

/// The same name for all spellings of a folder. A name must be short and without backslashes, hence
/// the hash.
std::wstring MutexName(const std::filesystem::path& folder) {
    std::error_code ignored;
    const auto path = std::filesystem::absolute(folder, ignored).lexically_normal();
    const std::size_t hash = std::hash<std::u16string>()(ToUpper(TextFromPath(path)));
    return L"Global\\CVLangTranslator-" + std::to_wstring(hash);
}

}  // namespace

ProcessLock::ProcessLock(const std::filesystem::path& folder) {
    // Without an access list, the processes of all users are allowed.
    SECURITY_DESCRIPTOR everybody{};
    InitializeSecurityDescriptor(&everybody, SECURITY_DESCRIPTOR_REVISION);
    SetSecurityDescriptorDacl(&everybody, TRUE, nullptr, FALSE);
    SECURITY_ATTRIBUTES attributes{sizeof attributes, &everybody, FALSE};
    const HANDLE created = CreateMutexW(&attributes, FALSE, MutexName(folder).c_str());
    if (created == nullptr)
        return;
    WaitForSingleObject(created, kPatienceInMilliseconds);
    held_ = std::shared_ptr<void>(created, [](HANDLE mutex) {
        ReleaseMutex(mutex);  // fails after a time-out
        CloseHandle(mutex);
    });
}

}  // namespace cvlang
