// A fuzz target without libFuzzer. TARGET CORPUS COUNT tries the files of the corpus and random
// inputs, as many as COUNT says: pieces of the corpus and random bytes, the same in each run.
#include <cstdio>
#include <filesystem>
#include <random>

#include "fuzz/Fuzz.h"

namespace cvlang {
namespace {

bool Holds(const std::string& input) {
    try {
        Try(input);
        return true;
    } catch (const std::exception& error) {
        std::printf("%s\nInput:\n%s\n", error.what(), input.c_str());
        return false;
    }
}

}  // namespace
}  // namespace cvlang

int main(int, char** argv) {
    std::vector<std::string> corpus;
    for (const auto& file : std::filesystem::directory_iterator(argv[1]))
        corpus.push_back(cvlang::FileBytes(file.path()));
    std::sort(corpus.begin(), corpus.end());
    bool holds = std::all_of(corpus.begin(), corpus.end(), cvlang::Holds);
    std::mt19937 random;
    for (int count = std::atoi(argv[2]); count > 0 && holds; --count) {
        std::string input;
        for (auto pieces = random() % 40; pieces > 0; --pieces) {
            const std::string& text = corpus[random() % corpus.size()];
            const std::size_t start = random() % text.size();
            input += text.substr(start, random() % 8);
            if (random() % 2 == 0)
                input += static_cast<char>(random());
        }
        holds = cvlang::Holds(input);
    }
    return holds ? 0 : 1;
}
