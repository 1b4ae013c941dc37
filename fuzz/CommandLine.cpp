// Each line is an argument.
#include "app/CommandLine.h"

#include "fuzz/Fuzz.h"
#include "platform/Process.h"
#include "text/Unicode.h"

void cvlang::Try(std::string_view input) {
    const std::u16string text = Utf8ToUtf16(input);
    std::u16string fields;
    for (int n = 0; n <= 20; ++n)
        fields += GetQuotedField(text, u' ', n);
    Must(fields.size() <= text.size() && fields.find(u'"') == fields.npos,
         "every character is in one field at most");

    std::vector<std::string> arguments = {"program"};
    for (std::string& line : LinesOf(input))
        arguments.push_back(line.substr(0, line.find_first_of(std::string("\"\0", 2))));
    std::vector<const char*> pointers(arguments.size());
    std::transform(arguments.begin(), arguments.end(), pointers.begin(),
                   [](const std::string& argument) { return argument.c_str(); });
    const std::u16string line = CommandLineText(static_cast<int>(pointers.size()), pointers.data());
    for (std::size_t i = 1; i < std::min<std::size_t>(arguments.size(), 20); ++i)
        Must(GetQuotedField(line, u' ', static_cast<int>(i)) == Utf8ToUtf16(arguments[i]),
             "an argument without quotation marks arrives as it is");
}
