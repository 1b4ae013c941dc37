// The characters of a page that matter to generation, found in one look at all of them.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace cvlang {

class PageOutline {
  public:
    /// Notes what the page holds, instead of what was noted before.
    void Take(std::string_view page);

    /// Whether CR and LF stand nowhere but side by side.
    bool HasOnlyPairs() const { return singleLineEnds_.empty(); }

    /// Calls the function with the position of each CR and LF without the other, in order.
    template <typename Function>
    void ForEachSingleLineEnd(Function function) const {
        ForEach(singleLineEnds_, function);
    }

    /// Calls the function with the position of each "[" and "]", in order.
    template <typename Function>
    void ForEachBracket(Function function) const {
        ForEach(brackets_, function);
    }

    /// Where "<SCRIPT " and "</SCRIPT>" stand, in any case.
    const std::vector<std::size_t>& ScriptTags() const { return scriptTags_; }

  private:
    /// A bit for each place from `start` where something stands.
    struct Block {
        std::size_t start;
        std::uint64_t bits;
    };

    template <typename Function>
    static void ForEach(const std::vector<Block>& blocks, Function function) {
        for (const Block& block : blocks) {
            for (std::uint64_t bits = block.bits; bits != 0; bits &= bits - 1)
                function(block.start + static_cast<std::size_t>(std::countr_zero(bits)));
        }
    }

    std::vector<Block> singleLineEnds_;  // blocks from the first one that has some
    std::vector<Block> brackets_;        // only blocks that have some
    std::vector<std::size_t> scriptTags_;
};

}  // namespace cvlang
