// Takes the words of a step one after the other, each as what it has to be. What doesn't fit makes
// the script unusable.
#pragma once

#include "form_script/script.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace arbolith {

/// Every function throws a ScriptError that says what was expected.
class StepReader {
public:
    /// Begins behind the first `taken` words. The step must outlive the reader.
    StepReader(const Step& step, std::size_t taken) : step_(step), next_(taken) {}

    const Step& TheStep() const { return step_; }
    int Line() const { return step_.line; }
    std::size_t Left() const { return step_.words.size() - next_; }

    const Word& Next(const std::string& what);
    /// A VALUE: a word or a text in quotes.
    const std::string& Text(const std::string& what) { return Next(what).text; }
    /// A NAME, never in quotes.
    const std::string& Name(const std::string& what);
    /// A whole number of at least `least`.
    int Whole(const std::string& what, int least = 0);
    /// Takes the next word if it is this one.
    bool Takes(std::string_view keyword);
    /// Nothing may be left.
    void End() const;
    [[noreturn]] void Refuse(const std::string& what) const;

private:
    const Step& step_;
    std::size_t next_;
};

}  // namespace arbolith
