#include "mail/Base64.h"

#include "fuzz/Fuzz.h"

void cvlang::Try(std::string_view input) {
    const std::string text = Base64::EncodeByteArr(input);
    Must(Base64::DecodeToByteArr(text) == input, "what was encoded decodes to itself");
    Must(text.size() == Base64::EncodedSize(input.size()), "the size is known beforehand");
    const std::string bytes = Base64::DecodeToByteArr(input);
    Must(bytes.size() <= input.size() / 4 * 3 + 2, "four characters are three bytes at most");
    Must(Base64::DecodeToByteArr(Base64::EncodeByteArr(bytes)) == bytes, "so does what was read");
}
