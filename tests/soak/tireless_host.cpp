#include "soak/tireless_host.h"

#include "platform/runtime_error.h"
#include "platform/text.h"

#include <algorithm>
#include <filesystem>
#include <vector>

namespace arbolith {

namespace {

/// The endings that the pairs of a dialog's filter let through.
std::vector<std::string> EndingsOf(const std::string& filter) {
    std::vector<std::string> endings;
    for (const auto& part : Split(filter, '|'))
        if (part.starts_with("*.")) endings.push_back(part.substr(1));
    return endings;
}

std::vector<std::string> FilesWith(const std::string& folder, const std::string& ending) {
    std::vector<std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        if (entry.path().extension() == ending) files.push_back(entry.path().string());
    // The order of a folder is not the same on every machine.
    std::sort(files.begin(), files.end());
    return files;
}

// A text in one line, with a 0 for every number: of those there is no end.
std::string KindOf(const std::string& text) {
    std::string kind;
    for (const char c : text) {
        const bool isDigit = c >= '0' && c <= '9';
        if (isDigit && kind.ends_with('0')) continue;
        kind += isDigit ? '0' : c == '\n' ? ' ' : c;
    }
    return kind;
}

}  // namespace

bool TirelessHost::ShowBox(const Box& box) {
    ++boxes_[KindOf(box.text)];
    return box.buttons == BoxButtons::kOk || OneIn(2);
}

std::optional<FileChoice> TirelessHost::ChooseFile(const FileQuestion& question) {
    const auto endings = EndingsOf(question.filter);
    if (endings.empty() || OneIn(8)) return std::nullopt;
    const auto& ending = dice_.OneOf(endings);
    // Few names, so that files are written again and again.
    const auto saved = folder_ + "/saved-" + std::to_string(dice_.Below(4)) + ending;
    const auto files = FilesWith(folder_, ending);
    if (question.saves || files.empty()) return FileChoice{saved, question.filterIndex};
    return FileChoice{dice_.OneOf(files), question.filterIndex};
}

std::optional<std::string> TirelessHost::AskForText(const std::string&) {
    if (OneIn(8)) return std::nullopt;
    return "asked-" + std::to_string(dice_.Below(4));
}

void TirelessHost::SetClipboard(const std::string& text, std::shared_ptr<const Drawing> picture) {
    clipboard_ = text;
    picture_ = std::move(picture);
}

void TirelessHost::Print(const Drawing&) {
    if (OneIn(8)) throw RuntimeError(ErrorNumber::kPrinter);
}

OpenResult TirelessHost::Open(const std::string&) {
    constexpr OpenResult kResults[] = {OpenResult::kOpened, OpenResult::kNoOpener,
                                       OpenResult::kFailed};
    return kResults[dice_.Below(std::size(kResults))];
}

void TirelessHost::WaitForEnd(Process& process, const std::function<bool()>& giveUp) {
    if (onWait && !giveUp()) onWait();
    inner_.WaitForEnd(process, giveUp);
}

}  // namespace arbolith
