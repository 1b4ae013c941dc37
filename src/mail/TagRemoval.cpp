// The result is that of replacing each tag in the whole text before the next one is looked for, which would take time
// with the square of the text. Here the text is gone through once. What makes that possible: a tag holds one ">", its
// last character. So an occurrence of an earlier tag is always the end of what lies before some ">", and only that has
// to be looked at when the ">" comes, provided that the replacements happen in the same order.
#include "mail/TagRemoval.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <set>
#include <unordered_map>
#include <vector>

#include "mail/IgnoringCase.h"

namespace cvlang {
namespace {

/// The number of a replacement, counted from 1; replacements happen in this order.
using Turn = std::size_t;
constexpr Turn kNever = SIZE_MAX;

std::string_view ReplacementOf(std::string_view tagInLowerCase) {
    constexpr std::array<std::string_view, 3> kBreaking = {"<td", "<div", "<li"};
    const bool breaks =
        std::any_of(kBreaking.begin(), kBreaking.end(), [tagInLowerCase](std::string_view start) {
            return tagInLowerCase.substr(0, start.size()) == start;
        });
    return breaks ? "\r\n" : "";
}

/// The text since a "<" that no ">" has ended yet, with hashes of all its tails at hand.
class OpenTag {
  public:
    bool IsEmpty() const { return text_.empty(); }
    std::size_t Size() const { return text_.size(); }
    const std::string& Text() const { return text_; }
    std::string_view LowerCaseTail(std::size_t from) const {
        return std::string_view(lower_).substr(from);
    }
    std::uint64_t HashOfTail(std::size_t from) const {
        return hashes_.back() - hashes_[from] * powers_[Size() - from];
    }

    void Append(std::string_view text) {
        text_ += text;
        lower_ += ToLowerCase(text);
        for (std::size_t i = hashes_.size() - 1; i < lower_.size(); ++i)
            hashes_.push_back(hashes_[i] * kBase + static_cast<unsigned char>(lower_[i]) + 1);
        while (powers_.size() < hashes_.size())
            powers_.push_back(powers_.back() * kBase);
    }

    /// What lies on both sides of the cut belongs together only for the replacements after `turn`.
    void CutAt(std::size_t size, Turn turn) {
        text_.resize(size);
        lower_.resize(size);
        hashes_.resize(size + 1);
        while (!joints_.empty() && (joints_.back().position > size || joints_.back().turn <= turn))
            joints_.pop_back();
        joints_.push_back({size, turn});
    }

    void Clear() {
        CutAt(0, 0);
        joints_.clear();
    }

    /// The replacement that made the tail one piece; 0 when it always was.
    Turn TurnOfTail(std::size_t from) const {
        const auto joint = std::upper_bound(
            joints_.begin(), joints_.end(), from,
            [](std::size_t position, const Joint& j) { return position < j.position; });
        return joint == joints_.end() ? 0 : joint->turn;
    }

  private:
    struct Joint {
        std::size_t position;
        Turn turn;
    };
    static constexpr std::uint64_t kBase = 0x9E3779B97F4A7C15;

    std::string text_;
    std::string lower_;
    std::vector<std::uint64_t> hashes_{0};  // of each beginning
    std::vector<std::uint64_t> powers_{1};  // of the base
    std::vector<Joint> joints_;             // positions rise and turns fall
};

/// The tags found so far and the turns in which they were replaced.
class FoundTags {
  public:
    void Add(const OpenTag& tag) {
        tags_[tag.HashOfTail(0)].push_back({std::string(tag.LowerCaseTail(0)), ++turns_});
        sizes_.insert(tag.Size());
    }

    struct Occurrence {
        std::size_t position;
        Turn turn;
    };

    /// The first replacement that takes away an end of the text, and where that end begins.
    Occurrence FirstAtEndOf(const OpenTag& text) const {
        Occurrence first{0, kNever};
        for (const std::size_t size : sizes_) {
            if (size > text.Size())
                break;
            const std::size_t position = text.Size() - size;
            const Turn turn = FirstTurnAt(text, position);
            if (turn < first.turn)
                first = {position, turn};
        }
        return first;
    }

  private:
    struct Tag {
        std::string text;
        Turn turn;
    };

    Turn FirstTurnAt(const OpenTag& text, std::size_t position) const {
        const auto found = tags_.find(text.HashOfTail(position));
        if (found == tags_.end())
            return kNever;
        const auto& same = found->second;
        const auto next =
            std::upper_bound(same.begin(), same.end(), text.TurnOfTail(position),
                             [](Turn turn, const Tag& tag) { return turn < tag.turn; });
        const auto tag = std::find_if(next, same.end(), [&](const Tag& candidate) {
            return candidate.text == text.LowerCaseTail(position);
        });
        return tag == same.end() ? kNever : tag->turn;
    }

    std::unordered_map<std::uint64_t, std::vector<Tag>> tags_;
    std::set<std::size_t> sizes_;  // few: the sizes of different ones add up to the text's at most
    Turn turns_ = 0;
};

/// Replaces what the ">" at the end of the open tag ends: an earlier tag that was found in it, otherwise all of it.
void Close(OpenTag& open, FoundTags& found, std::string& result) {
    const FoundTags::Occurrence earlier = found.FirstAtEndOf(open);
    if (earlier.turn == kNever)
        found.Add(open);
    const std::string_view replacement = ReplacementOf(open.LowerCaseTail(earlier.position));
    if (earlier.position == 0) {
        result += replacement;
        open.Clear();
    } else {
        open.CutAt(earlier.position, earlier.turn);
        open.Append(replacement);
    }
}

}  // namespace

std::string RemoveTags(std::string_view html) {
    std::string result;
    OpenTag open;
    FoundTags found;
    for (;;) {
        const std::size_t next = html.find(open.IsEmpty() ? '<' : '>');
        if (next == std::string_view::npos)
            return result.append(open.Text()).append(html);
        if (open.IsEmpty()) {
            result += html.substr(0, next);
            open.Append("<");
        } else {
            open.Append(html.substr(0, next + 1));
            Close(open, found, result);
        }
        html.remove_prefix(next + 1);
    }
}

}  // namespace cvlang
