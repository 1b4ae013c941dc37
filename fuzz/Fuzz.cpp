#include "fuzz/Fuzz.h"

#include <cstdint>
#include <stdexcept>

#include "text/Unicode.h"

namespace cvlang {

void Must(bool holds, const std::string& property) {
    if (!holds)
        throw std::logic_error("Does not hold: " + property);
}

FakeProgram& Surroundings() {
    static FakeProgram fake;
    return fake;
}

std::size_t Choices::Number(std::size_t count) {
    if (rest_.empty())
        return 0;
    const auto byte = static_cast<unsigned char>(rest_.front());
    rest_.remove_prefix(1);
    return byte % count;
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
