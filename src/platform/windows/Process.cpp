#include "platform/Process.h"

#include <windows.h>

#include <algorithm>
#include <cstdlib>
#include <functional>

#include "platform/Ansi.h"
#include "platform/FileSystem.h"

namespace cvlang {
namespace {

/// Standard error if the caller has redirected it, otherwise the console of the caller: a program
/// with windows is not connected to it by default.
HANDLE ErrorOutput() {
    const HANDLE given = GetStdHandle(STD_ERROR_HANDLE);
    if (GetFileType(given) != FILE_TYPE_UNKNOWN)
        return given;
    AttachConsole(ATTACH_PARENT_PROCESS);
    return CreateFileW(L"CONOUT$", GENERIC_READ | GENERIC_WRITE, FILE_SHARE_WRITE, nullptr,
                       OPEN_EXISTING, 0, nullptr);
}

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

std::u16string CommandLineText(int, const char* const*) {
    const std::wstring_view line = GetCommandLineW();
    // Quotes may begin and end anywhere in the program's name. The name is empty when the line
    // begins with a blank: some callers pass the file separately.
    bool quoted = false;
    const auto end = std::ranges::find_if(line, [&quoted](wchar_t c) {
        quoted = quoted != (c == L'"');
        return !quoted && (c == L' ' || c == L'\t');
    });
    // The blanks between the program's name and its arguments belong to neither.
    const std::size_t start =
        line.find_first_not_of(L" \t", static_cast<std::size_t>(end - line.begin()));
    if (start == std::wstring_view::npos)
        return {};
    const std::wstring_view arguments = line.substr(start);
    return {arguments.begin(), arguments.end()};
}

void KeepRunningOnFailedWrites() {}

std::u16string EnvironmentText(const char* name) {
    const char* const text = std::getenv(name);
    return text == nullptr ? std::u16string() : AnsiToUtf16(text);
}

void DisableSystemErrorBoxes() {
    SetErrorMode(GetErrorMode() | SEM_FAILCRITICALERRORS);
}

bool WindowsCanBeSeen() {
    USEROBJECTFLAGS station{};
    return !GetUserObjectInformationW(GetProcessWindowStation(), UOI_FLAGS, &station,
                                      sizeof station, nullptr) ||
           (station.dwFlags & WSF_VISIBLE) != 0;
}

void WriteErrorLine(std::u16string_view text) {
    static const HANDLE error = ErrorOutput();
    std::u16string line(text);
    line += u"\r\n";
    DWORD written = 0;
    // A console accepts UTF-16. A file or a pipe refuses it and gets ANSI bytes.
    if (!WriteConsoleW(error, line.data(), static_cast<DWORD>(line.size()), &written, nullptr)) {
        const std::string bytes = Utf16ToAnsi(line);
        ::WriteFile(error, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    }
}

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
