// Base64 as the mail transport writes and reads it. Text and bytes are ANSI throughout, so the
// operations on bytes serve strings, too.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace cvlang {

class Base64 {
  public:
    /// Text longer than one line of 76 characters is cut into lines, each with a line break behind
    /// it but for a last line that is not full. Deliberate: a single full line has no line break,
    /// two full lines have two.
    static std::string EncodeByteArr(std::string_view bytInput);
    /// Appends the same text, without a copy in between.
    static void AppendEncoded(std::string& text, std::string_view bytes);
    /// How long the text of so many bytes is, line breaks included.
    static std::size_t EncodedSize(std::size_t byteCount);

    /// The text of a whole file; empty when it cannot be read.
    static std::string EncodeFile(const std::filesystem::path& file);

    /// CR LF and "=" are skipped; other characters outside the alphabet count as zero bits.
    static std::string DecodeToByteArr(std::string_view text);
    /// Raises an error when the file exists already. False when it cannot be written.
    static bool DecodeToFile(std::string_view text, const std::filesystem::path& file);
};

}  // namespace cvlang
