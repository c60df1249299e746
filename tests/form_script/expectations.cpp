// The steps that look: `expect` in all its forms, and `print`.
#include "form_script/compile.h"
#include "form_script/file_bytes.h"
#include "form_script/lookup.h"
#include "form_script/step_reader.h"
#include "platform/code_page.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <ostream>
#include <string_view>
#include <utility>

namespace arbolith {

namespace {

constexpr const char* kValue = "a VALUE";

void Hold(bool holds, const std::string& found) {
    if (!holds) throw StepFailed(found);
}

// Once the script has seen the end, the forms and what belongs to them are gone.
void RequireForms(const Stage& stage) {
    if (stage.endSeen) throw StepFailed("that the program has ended");
}

void ExpectValue(const Value& value, const std::string& expected) {
    Hold(Equals(value, expected), Described(value));
}

Act CompileProperty(StepReader& words) {
    const auto& text = words.Name("what is expected");
    const auto name = ReadPropertyName(text);
    if (!name) words.Refuse("NAME.PROPERTY or a word of the language, not " + Quoted(text));
    return [name = *name, expected = words.Text(kValue)](Stage& stage) {
        RequireForms(stage);
        ExpectValue(ReadNamedProperty(stage, name), expected);
    };
}

Act CompileVar(StepReader& words) {
    auto name = words.Name("a VARIABLE");
    return [name, expected = words.Text(kValue)](Stage& stage) {
        RequireForms(stage);
        ExpectValue(ReadVariable(stage, name), expected);
    };
}

Act CompileResult(StepReader& words) {
    auto name = words.Name("a FUNCTION");
    std::vector<std::string> arguments;
    while (words.Left() > 2) arguments.push_back(words.Text(kValue));
    if (!words.Takes("=")) words.Refuse("an = and a VALUE at the end");
    return [name, arguments, expected = words.Text(kValue)](Stage& stage) {
        RequireForms(stage);
        const auto function = stage.functions.find(name);
        if (function == stage.functions.end()) throw StepFailed("no function " + name);
        const auto count = function->second.arguments;
        if (count != arguments.size())
            throw StepFailed(name + " takes " + std::to_string(count) + " values");
        ExpectValue(function->second.call(arguments), expected);
    };
}

std::string WithPlainLineEnds(const std::string& text) {
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i)
        if (text[i] != '\r' || i + 1 == text.size() || text[i + 1] != '\n') plain += text[i];
    return plain;
}

/// What a box is expected to be; only what the step names is looked at.
struct ExpectedBox {
    std::string text;
    std::optional<std::string> title;
    std::optional<std::string> icon;
    std::optional<std::string> buttons;
};

const char* NameOf(BoxIcon icon) {
    return icon == BoxIcon::kExclamation ? "exclamation" : icon == BoxIcon::kStop ? "stop" : "none";
}

const char* NameOf(BoxButtons buttons) {
    return buttons == BoxButtons::kYesNo ? "yesno" : "ok";
}

std::string Described(const Box& box) {
    return "box " + Quoted(box.text) + " title " + Quoted(box.title) + " icon " + NameOf(box.icon) +
           " buttons " + NameOf(box.buttons);
}

bool Matches(const Box& box, const ExpectedBox& expected) {
    return WithPlainLineEnds(box.text) == WithPlainLineEnds(expected.text) &&
           (!expected.title || *expected.title == box.title) &&
           (!expected.icon || *expected.icon == NameOf(box.icon)) &&
           (!expected.buttons || *expected.buttons == NameOf(box.buttons));
}

ExpectedBox ReadExpectedBox(StepReader& words) {
    ExpectedBox box;
    box.text = words.Text("the box's text");
    while (words.Left() > 0) {
        if (words.Takes("title")) {
            box.title = words.Text("a title");
        } else if (words.Takes("icon")) {
            box.icon = words.Name("an icon");
            if (*box.icon != "none" && *box.icon != "exclamation" && *box.icon != "stop")
                words.Refuse("icon none, exclamation or stop");
        } else if (words.Takes("buttons")) {
            box.buttons = words.Name("buttons");
            if (*box.buttons != "ok" && *box.buttons != "yesno")
                words.Refuse("buttons ok or yesno");
        } else {
            words.Refuse("title, icon or buttons behind the box's text");
        }
    }
    return box;
}

// Takes the oldest entry of a queue of what was recorded.
template <class Queue>
auto TakeOldest(Queue& queue, const std::string& foundNone) {
    if (queue.empty()) throw StepFailed(foundNone);
    auto oldest = std::move(queue.front());
    queue.pop_front();
    return oldest;
}

Act CompileBox(StepReader& words) {
    return [expected = ReadExpectedBox(words)](Stage& stage) {
        const auto box = TakeOldest(stage.host.Recorded().boxes, "no box");
        Hold(Matches(box, expected), Described(box));
    };
}

Act CompileInput(StepReader& words) {
    return [expected = words.Text(kValue)](Stage& stage) {
        const auto& prompt = stage.host.Recorded().inputPrompt;
        if (!prompt) throw StepFailed("no input box");
        Hold(WithPlainLineEnds(*prompt) == WithPlainLineEnds(expected), Quoted(*prompt));
    };
}

// The editor's file may be told without its folder.
bool IsProgram(const std::string& started, const std::string& expected) {
    if (started == expected) return true;
    const auto blank = started.find(' ');
    const auto slash = started.rfind('/');
    if (blank == std::string::npos || slash == std::string::npos || slash < blank) return false;
    return started.substr(0, blank + 1) + started.substr(slash + 1) == expected;
}

Act CompileStarted(StepReader& words) {
    auto expected = words.Text("a PROGRAM");
    const auto mode = words.Left() > 0 ? std::optional(words.Whole("a MODE")) : std::nullopt;
    return [expected, mode](Stage& stage) {
        const auto program = TakeOldest(stage.host.Recorded().started, "that nothing was started");
        Hold(IsProgram(program.text, expected) && (!mode || *mode == program.mode),
             Quoted(program.text) + " in mode " + std::to_string(program.mode));
    };
}

// A count is asked for what came since it was asked last.
void TakeCount(int& count, int expected) {
    const int found = std::exchange(count, 0);
    Hold(found == expected, std::to_string(found));
}

Act CompileBeeps(StepReader& words) {
    return [expected = words.Whole("a number of beeps")](Stage& stage) {
        TakeCount(stage.host.Recorded().beeps, expected);
    };
}

Act CompileStarts(StepReader& words) {
    return [expected = words.Whole("a number of programs")](Stage& stage) {
        stage.host.Recorded().started.clear();
        TakeCount(stage.host.Recorded().starts, expected);
    };
}

Act CompilePrinted(StepReader& words) {
    return [expected = words.Whole("a number of documents")](Stage& stage) {
        TakeCount(stage.host.Recorded().printed, expected);
    };
}

// A path is enough for a document: where its site is, the program's build decides.
bool IsAddress(const std::string& opened, const std::string& expected) {
    return opened == expected || (expected.starts_with('/') && opened.ends_with(expected));
}

Act CompileOpened(StepReader& words) {
    return [expected = words.Text(kValue)](Stage& stage) {
        const auto opened = TakeOldest(stage.host.Recorded().opened, "that nothing was opened");
        Hold(IsAddress(opened, expected), Quoted(opened));
    };
}

// In pixels; two more or less are close enough.
void ExpectClipboardPicture(const Stage& stage, int width, int height) {
    constexpr int kTwipsPerPixel = 15;
    constexpr int kTolerance = 2 * kTwipsPerPixel;
    const auto picture = stage.host.ClipboardPicture();
    if (picture == nullptr) throw StepFailed("no picture on the clipboard");
    const Size size = picture->GetSize();
    Hold(std::abs(size.width - width * kTwipsPerPixel) <= kTolerance &&
             std::abs(size.height - height * kTwipsPerPixel) <= kTolerance,
         std::to_string(size.width / kTwipsPerPixel) + " by " +
             std::to_string(size.height / kTwipsPerPixel) + " pixels");
}

Act CompileClipboard(StepReader& words) {
    if (words.Left() == 3 && words.Takes("picture")) {
        const int width = words.Whole("a width", 1);
        const int height = words.Whole("a height", 1);
        return [width, height](Stage& stage) {
            RequireForms(stage);
            ExpectClipboardPicture(stage, width, height);
        };
    }
    return [expected = words.Text(kValue)](Stage& stage) {
        RequireForms(stage);
        ExpectValue(stage.host.ClipboardText(), expected);
    };
}

Act CompileDialog(StepReader& words) {
    std::optional<bool> saves;
    if (words.Left() > 1) {
        const bool isOpen = words.Takes("open");
        if (!isOpen && !words.Takes("save")) words.Refuse("dialog open or dialog save");
        saves = !isOpen;
    }
    return [saves, expected = words.Text("a filter text")](Stage& stage) {
        const auto& dialog = stage.host.Recorded().dialog;
        if (!dialog) throw StepFailed("no file dialog");
        Hold(dialog->filter == expected && (!saves || *saves == dialog->saves),
             (dialog->saves ? "save " : "open ") + Quoted(dialog->filter));
    };
}

enum class FileTest { kIs, kContains, kLacks };

void ExpectFile(const Stage& stage, const std::string& name, FileTest test,
                const std::string& expected) {
    const auto bytes = ReadFileBytes(stage.application.Folder(), name);
    if (!bytes) throw StepFailed("no file " + name);
    const bool contains = bytes->find(expected) != std::string::npos;
    if (test == FileTest::kIs) {
        Hold(*bytes == expected, DescribedBytes(*bytes, expected));
    } else if (test == FileTest::kContains) {
        Hold(contains, DescribedBytes(*bytes, expected));
    } else {
        Hold(!contains, "it at byte " + std::to_string(bytes->find(expected)));
    }
}

Act CompileFile(StepReader& words) {
    auto name = words.Text("a file's name");
    auto test = FileTest::kIs;
    if (words.Left() > 1) {
        if (words.Takes("contains")) {
            test = FileTest::kContains;
        } else if (words.Takes("lacks")) {
            test = FileTest::kLacks;
        } else {
            words.Refuse("contains or lacks");
        }
    }
    return [name, test, expected = words.Text(kValue)](Stage& stage) {
        ExpectFile(stage, name, test, expected);
    };
}

Act CompileNo(StepReader& words) {
    if (words.Takes("box")) {
        return [](Stage& stage) {
            const auto& boxes = stage.host.Recorded().boxes;
            if (!boxes.empty()) throw StepFailed(Described(boxes.front()));
        };
    }
    if (!words.Takes("file")) words.Refuse("no box or no file");
    return [name = words.Text("a file's name")](Stage& stage) {
        Hold(!FileExists(stage.application.Folder(), name), "it");
    };
}

Act CompileEnded(StepReader&) {
    return [](Stage& stage) {
        Hold(stage.application.HasEnded(), "the program running");
        stage.endSeen = true;
    };
}

struct Expectation {
    std::string_view word;
    Act (*compile)(StepReader& words);
};

// Every other word is NAME.PROPERTY.
constexpr Expectation kExpectations[] = {
    {"var", CompileVar},         {"box", CompileBox},       {"no", CompileNo},
    {"input", CompileInput},     {"beeps", CompileBeeps},   {"started", CompileStarted},
    {"starts", CompileStarts},   {"opened", CompileOpened}, {"clipboard", CompileClipboard},
    {"printed", CompilePrinted}, {"dialog", CompileDialog}, {"file", CompileFile},
    {"result", CompileResult},   {"ended", CompileEnded},
};

Act CompileExpected(StepReader& words) {
    for (const auto& expectation : kExpectations)
        if (words.Takes(expectation.word)) return expectation.compile(words);
    return CompileProperty(words);
}

void Print(Stage& stage, const Value& value) {
    stage.output << ToUtf8(TextOf(value)) << '\n';
}

Act CompilePrinting(StepReader& words) {
    if (words.Takes("var")) {
        return [name = words.Name("a VARIABLE")](Stage& stage) {
            RequireForms(stage);
            Print(stage, ReadVariable(stage, name));
        };
    }
    const auto name = ReadPropertyName(words.Name("NAME.PROPERTY"));
    if (!name) words.Refuse("NAME.PROPERTY or var VARIABLE");
    return [name = *name](Stage& stage) {
        RequireForms(stage);
        Print(stage, ReadNamedProperty(stage, name));
    };
}

CompiledStep CompileWith(const Step& step, Act (*compile)(StepReader& words)) {
    StepReader words(step, 1);
    auto act = compile(words);
    words.End();
    return {step.line, step.source, false, std::move(act)};
}

}  // namespace

CompiledStep CompileExpectation(const Step& step) {
    return CompileWith(step, CompileExpected);
}

CompiledStep CompilePrint(const Step& step) {
    return CompileWith(step, CompilePrinting);
}

}  // namespace arbolith
