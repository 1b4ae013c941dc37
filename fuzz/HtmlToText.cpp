#include "mail/MessageText.h"

#include "fuzz/Fuzz.h"
#include "text/Strings.h"

void cvlang::Try(std::string_view input) {
    const std::string text = HTMLToText(input, LineBreaks::Kept);
    Must(text.find('>', std::min(text.find('<'), text.size())) == text.npos, "no tag is left");
    Must(HTMLToText(input, LineBreaks::AsMarkup) == ReplaceIgnoringCase(text, "\r\n", "<BR>"),
         "line breaks may be written as markup");
    Must(HTMLToText(std::string("<TITLE>t</TITLE>").append(text), LineBreaks::Kept).size() <=
             text.size(),
         "plain text does not grow");
}
