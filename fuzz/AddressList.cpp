#include "mail/HeaderValues.h"

#include "fuzz/Fuzz.h"
#include "text/Strings.h"

void cvlang::Try(std::string_view input) {
    const char separator = input.find(';') == input.npos ? ',' : ';';
    const std::string merged = MergeAddressList(input);
    const std::string lower = ToLowerCase(merged);
    for (const std::string_view address : SplitList(input, separator))
        Must(lower.find(ToLowerCase(address)) != lower.npos, "no address is lost");
    std::string_view rest = input;
    for (const std::string_view address : SplitList(merged, separator)) {
        Must(rest.find(address) != rest.npos, "addresses stay as they are, in their order");
        rest.remove_prefix(rest.find(address) + address.size());
    }
    for (const std::string& address : MergedAddresses({input, "a@x", input}))
        Must(!address.empty() && address.front() != ' ' && address.back() != ' ',
             "a recipient has no blanks around it");
}
