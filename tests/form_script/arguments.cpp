#include "form_script/arguments.h"

#include "form_script/value.h"
#include "platform/text.h"

#include <array>
#include <chrono>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <map>

namespace arbolith {

const char* const kUsage =
    "usage: form_script [--window] --folder DIR [--command-line TEXT] [--screen WxH]\n"
    "                   [--date YYYY-MM-DD] [--keep-going] [--picture FILE [--picture-of NAME]]\n"
    "                   SCRIPT\n";

namespace {

constexpr int kTwipsPerPixel = 15;
constexpr int kMostPixels = 100000;

std::string Absolute(const std::string& path) {
    auto absolute = std::filesystem::absolute(path).lexically_normal().string();
    while (absolute.size() > 1 && absolute.back() == '/') absolute.pop_back();
    return absolute;
}

std::string ReadFolder(const std::string& path) {
    std::error_code ignored;
    if (!std::filesystem::is_directory(path, ignored)) throw BadArguments("no folder " + path);
    return Absolute(path);
}

Size ReadScreen(const std::string& text) {
    const auto cross = text.find('x');
    const auto width = ReadWholeNumber(text.substr(0, cross));
    const auto height =
        cross == std::string::npos ? std::nullopt : ReadWholeNumber(text.substr(cross + 1));
    const auto fits = [](std::optional<int> side) {
        return side && *side > 0 && *side <= kMostPixels;
    };
    if (!fits(width) || !fits(height))
        throw BadArguments("--screen needs a size in pixels such as 1024x768, not " + text);
    return {*width * kTwipsPerPixel, *height * kTwipsPerPixel};
}

Date ReadDate(const std::string& text) {
    const auto parts = Split(text, '-');
    std::array<int, 3> numbers{};
    bool reads = text.size() == 10 && text[4] == '-' && text[7] == '-' && parts.size() == 3;
    for (std::size_t i = 0; reads && i < numbers.size(); ++i) {
        const auto number = ReadWholeNumber(parts[i]);
        reads = number.has_value();
        numbers[i] = number.value_or(0);
    }
    const std::chrono::year_month_day date{std::chrono::year(numbers[0]),
                                           std::chrono::month(static_cast<unsigned>(numbers[1])),
                                           std::chrono::day(static_cast<unsigned>(numbers[2]))};
    if (!reads || !date.ok()) throw BadArguments("--date needs a day as YYYY-MM-DD, not " + text);
    return {numbers[0], numbers[1], numbers[2]};
}

}  // namespace

Arguments ReadArguments(const std::vector<std::string>& words) {
    Arguments arguments;
    const std::map<std::string, std::function<void(const std::string&)>> valued = {
        {"--folder", [&](const std::string& text) { arguments.folder = ReadFolder(text); }},
        {"--command-line", [&](const std::string& text) { arguments.commandLine = text; }},
        {"--screen", [&](const std::string& text) { arguments.screen = ReadScreen(text); }},
        {"--date", [&](const std::string& text) { arguments.date = ReadDate(text); }},
        {"--picture", [&](const std::string& text) { arguments.picture = Absolute(text); }},
        {"--picture-of", [&](const std::string& text) { arguments.pictureOf = text; }},
    };
    for (std::size_t i = 0; i < words.size(); ++i) {
        const auto& word = words[i];
        if (const auto option = valued.find(word); option != valued.end()) {
            if (i + 1 == words.size()) throw BadArguments(word + " needs a value");
            option->second(words[++i]);
        } else if (word == "--window") {
            arguments.window = true;
        } else if (word == "--keep-going") {
            arguments.keepGoing = true;
        } else if (word.starts_with("--")) {
            throw BadArguments("no option " + word);
        } else if (!arguments.script.empty()) {
            throw BadArguments("one script only, not also " + word);
        } else {
            arguments.script = word;
        }
    }
    if (arguments.script.empty()) throw BadArguments("a script is missing");
    if (arguments.folder.empty()) throw BadArguments("--folder is missing");
    return arguments;
}

}  // namespace arbolith
