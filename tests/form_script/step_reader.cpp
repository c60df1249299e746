#include "form_script/step_reader.h"

#include "form_script/value.h"

namespace arbolith {

void StepReader::Refuse(const std::string& what) const {
    throw ScriptError(step_.line, what);
}

const Word& StepReader::Next(const std::string& what) {
    if (Left() == 0) Refuse(what + " behind it");
    return step_.words[next_++];
}

const std::string& StepReader::Name(const std::string& what) {
    const auto& word = Next(what);
    if (word.quoted) Refuse(what + " without quotes");
    return word.text;
}

int StepReader::Whole(const std::string& what, int least) {
    const auto& word = Next(what);
    const auto number = word.quoted ? std::nullopt : ReadWholeNumber(word.text);
    if (!number || *number < least) Refuse(what + ", a whole number from " + std::to_string(least));
    return *number;
}

bool StepReader::Takes(std::string_view keyword) {
    if (Left() == 0 || !step_.words[next_].Is(keyword)) return false;
    ++next_;
    return true;
}

void StepReader::End() const {
    if (Left() != 0) Refuse("nothing behind " + Quoted(step_.words[next_ - 1].text));
}

}  // namespace arbolith
