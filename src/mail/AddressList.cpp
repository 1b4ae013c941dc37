#include "mail/AddressList.h"

#include "text/AsciiCase.h"

namespace cvlang {
namespace {

char SeparatorOf(std::string_view list) {
    return list.find(';') != std::string_view::npos ? ';' : ',';
}

/// Both in lower case. A separator before the field would make no difference, as the field and one
/// behind it suffice.
bool IsRepeated(std::string_view field, std::string_view result, char separator) {
    const std::string followed = std::string(field) + separator;
    return field == result || result.find(followed) != std::string_view::npos;
}

}  // namespace

std::string_view Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') + 1 - first);
}

std::vector<std::string_view> SplitList(std::string_view list, char separator) {
    std::vector<std::string_view> fields;
    std::size_t end = 0;
    while ((end = list.find(separator)) != std::string_view::npos) {
        fields.push_back(list.substr(0, end));
        list.remove_prefix(end + 1);
    }
    fields.push_back(list);
    return fields;
}

std::string MergeAddressList(std::string_view list) {
    const char separator = SeparatorOf(list);
    std::string result;
    std::string resultInLowerCase;
    for (const std::string_view field : SplitList(list, separator)) {
        const std::string lower = ToLowerCase(field);
        if (IsRepeated(lower, resultInLowerCase, separator))
            continue;
        const std::string before(result.empty() ? 0 : 1, separator);
        result.append(before).append(field);
        resultInLowerCase.append(before).append(lower);
    }
    return result;
}

std::vector<std::string> MergedAddresses(const std::vector<std::string_view>& lists) {
    std::string joined;
    for (const std::string_view list : lists) {
        if (!list.empty())
            joined.append(joined.empty() ? "" : ";").append(list);
    }
    const std::string merged = MergeAddressList(joined);
    std::vector<std::string> addresses;
    for (const std::string_view field : SplitList(merged, SeparatorOf(joined))) {
        if (!Trimmed(field).empty())
            addresses.emplace_back(Trimmed(field));
    }
    return addresses;
}

std::string_view GetAddressDomain(std::string_view address) {
    const std::size_t at = address.find('@');
    return at == std::string_view::npos ? "(unknown)" : address.substr(at + 1);
}

}  // namespace cvlang
