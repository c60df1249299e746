#include "form_script/recordings.h"

#include <algorithm>

namespace arbolith {

std::optional<bool> Answers::TakeYesNo() {
    if (yesNo_.empty()) return std::nullopt;
    const bool yes = yesNo_.front();
    yesNo_.pop_front();
    return yes;
}

std::optional<DialogAnswer> Answers::Take(DialogAnswer::Kind kind) {
    const auto found =
        std::find_if(dialogs_.begin(), dialogs_.end(), [kind](const DialogAnswer& answer) {
            return answer.kind == kind || answer.kind == DialogAnswer::kCancel;
        });
    if (found == dialogs_.end()) return std::nullopt;
    auto answer = *found;
    dialogs_.erase(found);
    return answer;
}

}  // namespace arbolith
