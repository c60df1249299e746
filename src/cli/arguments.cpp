#include "cli/arguments.h"

#include "cli/exit_status.h"
#include "platform/text.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace arbolith::console {

namespace {

struct FormatNames {
    Format format;
    const char* name;
    const char* extension;
};

constexpr std::array<FormatNames, 3> kFormats = {{{Format::kText, "text", "txt"},
                                                  {Format::kHtml, "html", "html"},
                                                  {Format::kCsv, "csv", "csv"}}};

constexpr std::string_view kHelp =
    R"(usage: arbolith-cli run FILE.qvn [options]
       arbolith-cli batch FILE.qvb [options]

Runs the stand of a run file, or all stands of a batch file, through the growth
models and writes the yield tables. Nothing is asked and no window opens.

  --output NAME   write the report to NAME; - is the standard output. By default
                  a run goes to the standard output and a batch to the file that
                  the batch file names.
  --format FORMAT text, html or csv. By default as the ending of NAME says.
  --folder DIR    the folder of the model programs SWQVL.exe and HWQVL.exe. By
                  default the program's own.
  --help          show this text
  --version       show the version

Exit status: 0 done; 1 failed; 2 wrong use; 3 the file can't be read; 4 the
checks refuse the stand; 5 a model program is missing or failed; 6 the report
can't be written; 7 stands are missing from the report.
The manual page arbolith-cli(1) tells more.
)";

[[noreturn]] void Refuse(const std::string& message) {
    throw Failure{ExitStatus::kUsage, message + "; see arbolith-cli --help"};
}

Format FormatOf(const std::string& name) {
    const auto* found = std::find_if(kFormats.begin(), kFormats.end(),
                                     [&name](const auto& known) { return name == known.name; });
    if (found == kFormats.end())
        Refuse("there is no format \"" + name + "\", but text, html and csv");
    return found->format;
}

/// The words, taken one after the other.
class Words {
public:
    explicit Words(const std::vector<std::string>& words) : words_(words) {}

    bool AtEnd() const { return next_ == words_.size(); }
    const std::string& Take() { return words_[next_++]; }

private:
    const std::vector<std::string>& words_;
    std::size_t next_ = 0;
};

/// One option, which may carry its value behind an equals sign.
class Option {
public:
    Option(const std::string& word, Words& rest)
        : word_(word), equals_(word.find('=')), rest_(rest) {}

    std::string Name() const { return word_.substr(0, equals_); }
    std::string Value() {
        const bool isInside = equals_ != std::string::npos;
        auto value = isInside        ? word_.substr(equals_ + 1)
                     : rest_.AtEnd() ? std::string()
                                     : rest_.Take();
        if (value.empty()) Refuse(Name() + " needs a value");
        return value;
    }

private:
    const std::string& word_;
    std::size_t equals_;
    Words& rest_;
};

void TakeOption(Option option, Request& request) {
    const auto name = option.Name();
    if (name == "--output") {
        request.output = option.Value();
    } else if (name == "--format") {
        request.format = FormatOf(option.Value());
    } else if (name == "--folder") {
        request.folder = option.Value();
    } else {
        Refuse("unknown option " + name);
    }
}

Command CommandOf(const std::string& word) {
    if (word == "run") return Command::kRun;
    if (word == "batch") return Command::kBatch;
    Refuse("unknown command \"" + word + "\"");
}

void TakePlainWords(const std::vector<std::string>& words, Request& request) {
    if (words.empty()) Refuse("no command is given");
    request.command = CommandOf(words[0]);
    if (words.size() < 2) Refuse("no file is given");
    if (words.size() > 2) Refuse("more than one file is given");
    request.file = words[1];
}

}  // namespace

const char* ExtensionOf(Format format) {
    return kFormats[static_cast<std::size_t>(format)].extension;
}

Format FormatByName(std::string_view name) {
    const auto point = name.rfind('.');
    const auto ending = point == std::string_view::npos ? "" : ToLower(name.substr(point + 1));
    if (ending == "htm") return Format::kHtml;
    const auto* found =
        std::find_if(kFormats.begin(), kFormats.end(),
                     [&ending](const auto& known) { return ending == known.extension; });
    return found == kFormats.end() ? Format::kText : found->format;
}

Request ParseArguments(const std::vector<std::string>& words) {
    Request request;
    std::vector<std::string> plain;
    bool optionsEnded = false;
    for (Words rest(words); !rest.AtEnd();) {
        const auto& word = rest.Take();
        if (optionsEnded || !word.starts_with('-')) {
            plain.push_back(word);
        } else if (word == "--") {
            optionsEnded = true;
        } else if (word == "--help" || word == "-h") {
            return {Command::kHelp, {}, {}, {}, {}};
        } else if (word == "--version") {
            return {Command::kVersion, {}, {}, {}, {}};
        } else {
            TakeOption(Option(word, rest), request);
        }
    }
    TakePlainWords(plain, request);
    return request;
}

std::string_view HelpText() {
    return kHelp;
}

}  // namespace arbolith::console
