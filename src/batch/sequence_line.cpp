#include "batch/sequence_line.h"

#include "platform/numbers.h"
#include "platform/runtime_error.h"
#include "platform/text.h"

namespace arbolith {

std::string& EntryAt(SequenceTexts& texts, int index) {
    if (index < 0 || index >= kSequences) throw RuntimeError(ErrorNumber::kSubscript);
    return texts[static_cast<std::size_t>(index)];
}

SequenceFields::SequenceFields(std::string_view line) {
    if (!line.empty()) fields_ = Split(line, '\t');
}

const std::string& SequenceFields::operator[](SequenceField field) const {
    const auto index = static_cast<std::size_t>(field);
    if (index >= fields_.size()) throw RuntimeError(ErrorNumber::kSubscript);
    return fields_[index];
}

double SequenceFields::Number(SequenceField field) const {
    return Val((*this)[field]);
}

double SequenceFields::Whole(SequenceField field) const {
    return WholePart(Number(field));
}

}  // namespace arbolith
