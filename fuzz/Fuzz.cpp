#include "fuzz/Fuzz.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "text/Unicode.h"

namespace cvlang {

void Must(bool holds, const char* property) {
    if (holds)
        return;
    std::fprintf(stderr, "Does not hold: %s\n", property);
    std::abort();
}

FakeProgram& Surroundings() {
    static FakeProgram fake;
    return fake;
}

std::string_view TakeLine(std::string_view& input) {
    const std::string_view line = input.substr(0, input.find('\n'));
    input.remove_prefix(std::min(input.size(), line.size() + 1));
    return line;
}

std::string StoreFile(std::string_view input) {
    return input.starts_with('\xFF') ? std::string(input) : Utf16Bytes(Utf8ToUtf16(input));
}

}  // namespace cvlang

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    cvlang::Try({reinterpret_cast<const char*>(data), size});
    return 0;
}
