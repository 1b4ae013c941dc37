// Lines of token TAB value up to one without a TAB, which tells by its first character which page
// follows: "s" a script file, "p" a page without regard to scripts, any other an ordinary page.
#include <deque>

#include "fuzz/Fuzz.h"
#include "generation/PlaceholderSubstitution.h"
#include "generation/PlainSubstitution.h"
#include "text/Unicode.h"

void cvlang::Try(std::string_view input) {
    std::deque<std::u16string> texts;
    TextArray tokens(1);
    TextArray values(1);
    std::string_view line = TakeLine(input);
    std::size_t growth = 1;
    for (; line.find('\t') != line.npos; line = TakeLine(input)) {
        tokens.push_back(texts.emplace_back(Utf8ToUtf16(line.substr(0, line.find('\t')))));
        values.push_back(texts.emplace_back(Utf8ToUtf16(line.substr(line.find('\t') + 1))));
        growth *= 1 + values.back().size();
        if (growth > 1000000)  // values within values: the page would become as large
            return;
    }
    const ScriptMode mode = line.starts_with('s')   ? ScriptMode::Always
                            : line.starts_with('p') ? ScriptMode::Ignored
                                                    : ScriptMode::Tracked;
    const plain::Page expected = plain::Substitute(std::string(input), tokens, values, mode);
    const TokenIndex index(tokens, values);
    std::vector<std::int32_t> useCounts(tokens.size());
    PlaceholderSubstitution substitution(index, useCounts);
    PageText text;
    Must(substitution.Translate(input, mode, text), "a page is translated");
    Must(text.View() == expected.text, "the text is that of the plain procedure");
    Must(useCounts == expected.useCounts, "so are the counts");
}
