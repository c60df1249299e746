// The program around a fuzzer: it goes through the corpus, then through mutations of it for as long
// as it is told to, and keeps those inputs that lead to new places of the reader.
//
//     fuzz_NAME [--runs N | --seconds N] [--seed N] [--findings FOLDER] CORPUS...
//
// CORPUS are files, or folders of files. The same seed, corpus and number of runs make the same
// run.
#include "fuzz/coverage.h"
#include "fuzz/findings.h"
#include "fuzz/fuzzer.h"
#include "fuzz/mutation.h"
#include "platform/text.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <stdexcept>

namespace arbolith {
namespace {

constexpr unsigned kSecondsPerInput = 20;

struct Options {
    unsigned long runs = 0;
    std::optional<std::chrono::seconds> time;
    unsigned seed = 1;
    std::string findings = ".";
    std::vector<std::string> corpus;
};

Options ReadOptions(const std::vector<std::string>& arguments) {
    Options options;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const auto& word = arguments[i];
        if (!word.starts_with("--")) {
            options.corpus.push_back(word);
            continue;
        }
        if (++i == arguments.size()) throw std::invalid_argument(word + " needs a value");
        if (word == "--runs") {
            options.runs = std::stoul(arguments[i]);
        } else if (word == "--seconds") {
            options.time = std::chrono::seconds(std::stoul(arguments[i]));
        } else if (word == "--seed") {
            options.seed = static_cast<unsigned>(std::stoul(arguments[i]));
        } else if (word == "--findings") {
            options.findings = arguments[i];
        } else {
            throw std::invalid_argument("unknown option " + word);
        }
    }
    if (options.corpus.empty()) options.corpus = Split(FUZZ_CORPUS, '|');
    return options;
}

std::string ReadBytes(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) throw std::invalid_argument("can't read " + path.string());
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> ReadCorpus(const std::vector<std::string>& places) {
    std::vector<std::filesystem::path> files;
    for (const auto& place : places) {
        if (!std::filesystem::is_directory(place)) {
            files.emplace_back(place);
            continue;
        }
        for (const auto& entry : std::filesystem::directory_iterator(place))
            files.push_back(entry.path());
    }
    // The order of a folder is not the same on every machine.
    std::sort(files.begin(), files.end());
    std::vector<std::string> corpus;
    std::transform(files.begin(), files.end(), std::back_inserter(corpus), ReadBytes);
    return corpus;
}

void RunOne(const std::string& input) {
    SetCurrentInput(input);
    FuzzOne(input);
}

unsigned long RunMutations(const Options& options, std::vector<std::string>& pool) {
    Dice dice(options.seed);
    const auto start = std::chrono::steady_clock::now();
    unsigned long runs = 0;
    const auto goesOn = [&] {
        if (!options.time) return runs < options.runs;
        return std::chrono::steady_clock::now() - start < *options.time;
    };
    for (; goesOn(); ++runs) {
        auto input = Mutated(pool, FuzzWords(), dice);
        RunOne(input);
        if (TakeNewPlaces() > 0) pool.push_back(std::move(input));
    }
    return runs;
}

void Fuzz(const Options& options) {
    WatchForFailures(options.findings, kSecondsPerInput);
    auto pool = ReadCorpus(options.corpus);
    std::for_each(pool.begin(), pool.end(), RunOne);
    TakeNewPlaces();
    const auto corpusSize = pool.size();
    const auto runs = RunMutations(options, pool);
    std::printf("%zu inputs of the corpus, %lu mutations, %zu of them kept, %zu places reached\n",
                corpusSize, runs, pool.size() - corpusSize, PlacesReached());
}

}  // namespace
}  // namespace arbolith

int main(int argc, char** argv) {
    try {
        arbolith::Fuzz(arbolith::ReadOptions({argv + 1, argv + argc}));
    } catch (const std::invalid_argument& error) {
        std::fprintf(stderr, "%s: %s\n", *argv, error.what());
        return 2;
    }
    return 0;
}
