// The steps that act: what a person does, the answers to boxes, and what the desktop answers.
#include "form_script/compile.h"
#include "form_script/lookup.h"
#include "form_script/step_reader.h"
#include "forms/chart.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace arbolith {

namespace {

constexpr const char* kName = "a NAME";
constexpr const char* kValue = "a VALUE";

// Whether a click is something that a person does to this kind of control. Rows of a list are
// selected, cells of a grid are dragged over.
bool TakesClicks(ControlKind kind) {
    switch (kind) {
        case ControlKind::kButton:
        case ControlKind::kOption:
        case ControlKind::kCheckBox:
        case ControlKind::kLabel:
        case ControlKind::kFrame:
        case ControlKind::kMenuItem:
        case ControlKind::kPicture:
        case ControlKind::kTextBox:
            return true;
        default:
            return false;
    }
}

Act CompileClick(StepReader& words) {
    return [name = words.Name(kName)](Stage& stage) {
        Control& control = Find(stage, name);
        if (!TakesClicks(control.Kind())) throw ActionRefused(name + " takes no click");
        stage.driver.Click(control);
    };
}

Act CompileDoubleClick(StepReader& words) {
    return
        [name = words.Name(kName)](Stage& stage) { stage.driver.DoubleClick(Find(stage, name)); };
}

Act CompileFocus(StepReader& words) {
    return [name = words.Name(kName)](Stage& stage) { stage.driver.Focus(Find(stage, name)); };
}

TextBox& FindTextBox(const Stage& stage, const std::string& name) {
    return FindKind<TextBox>(stage, name, "a text field");
}

Act CompileType(StepReader& words) {
    auto name = words.Name(kName);
    return [name, text = words.Text(kValue)](Stage& stage) {
        stage.driver.Type(FindTextBox(stage, name), text);
    };
}

Act CompilePaste(StepReader& words) {
    auto name = words.Name(kName);
    return [name, text = words.Text(kValue)](Stage& stage) {
        stage.driver.Paste(FindTextBox(stage, name), text);
    };
}

Key ReadKey(StepReader& words) {
    constexpr std::array<std::pair<std::string_view, Key::Name>, 11> kKeys = {{
        {"Enter", Key::kEnter},
        {"Backspace", Key::kBackspace},
        {"Delete", Key::kDelete},
        {"Insert", Key::kInsert},
        {"Ctrl+A", Key::kSelectAll},
        {"Ctrl+C", Key::kCopy},
        {"Tab", Key::kTab},
        {"Space", Key::kSpace},
        {"Up", Key::kUp},
        {"Down", Key::kDown},
        {"Escape", Key::kEscape},
    }};
    const auto& text = words.Text("a KEY");
    const auto found = std::find_if(kKeys.begin(), kKeys.end(),
                                    [&](const auto& key) { return key.first == text; });
    if (found != kKeys.end()) return {found->second, 0};
    if (text.size() != 1) words.Refuse("a key's name or one character");
    return {Key::kCharacter, static_cast<unsigned char>(text.front())};
}

Act CompilePress(StepReader& words) {
    auto name = words.Name(kName);
    return
        [name, key = ReadKey(words)](Stage& stage) { stage.driver.Press(Find(stage, name), key); };
}

int RowOfText(const ListBox& list, const std::string& text) {
    const auto& rows = list.List();
    const auto found = std::find(rows.begin(), rows.end(), text);
    if (found == rows.end()) throw ActionRefused(list.Name() + " has no row " + Quoted(text));
    return static_cast<int>(found - rows.begin());
}

Act CompileSelect(StepReader& words) {
    auto name = words.Name(kName);
    const auto& row = words.Next("an INDEX or a VALUE");
    const auto index = row.quoted ? std::nullopt : ReadWholeNumber(row.text);
    return [name, index, text = row.text](Stage& stage) {
        auto& list = FindKind<ListBox>(stage, name, "a list");
        stage.driver.SelectRow(list, index ? *index : RowOfText(list, text));
    };
}

Act CompileDrag(StepReader& words) {
    auto name = words.Name(kName);
    std::array<int, 4> at{};
    for (auto& place : at) place = words.Whole("R1 C1 R2 C2");
    return [name, at](Stage& stage) {
        auto& grid = FindKind<Grid>(stage, name, "a grid");
        stage.driver.DragCells(grid, at[0], at[1], at[2], at[3]);
    };
}

Act CompilePoint(StepReader& words) {
    auto name = words.Name(kName);
    const int series = words.Whole("a SERIES", 1);
    const int point = words.Whole("a POINT", 1);
    return [name, series, point](Stage& stage) {
        stage.driver.PickPoint(FindKind<Chart>(stage, name, "a chart"), series, point);
    };
}

Form& FindForm(const Stage& stage, const std::string& name) {
    return FindKind<Form>(stage, name, "a form");
}

Act CompileResize(StepReader& words) {
    auto name = words.Name("a FORM");
    const int width = words.Whole("a WIDTH", 1);
    const int height = words.Whole("a HEIGHT", 1);
    return [name, width, height](Stage& stage) {
        stage.driver.Resize(FindForm(stage, name), {width, height});
    };
}

Act CompileClose(StepReader& words) {
    return
        [name = words.Name("a FORM")](Stage& stage) { stage.driver.Close(FindForm(stage, name)); };
}

Act CompileTick(StepReader& words) {
    return [name = words.Name("FORM.TIMER")](Stage& stage) {
        stage.driver.Tick(FindKind<Timer>(stage, name, "a timer"));
    };
}

Act CompileReread(StepReader&) {
    return [](Stage& stage) {
        const auto forms = stage.application.FormsByFirstShowing();
        for (Form* form : forms)
            if (form->Visible()) stage.driver.ComeBack(*form);
    };
}

DialogAnswer ReadFileAnswer(StepReader& words) {
    DialogAnswer answer{DialogAnswer::kFile, words.Text("a file's name"), 0};
    if (words.Left() > 0) answer.filterIndex = words.Whole("a FILTER", 1);
    return answer;
}

Act CompileAnswer(StepReader& words) {
    const auto& kind = words.Name("yes, no, file, cancel or text");
    if (kind == "yes" || kind == "no")
        return [yes = kind == "yes"](Stage& stage) { stage.host.QueuedAnswers().Add(yes); };
    DialogAnswer answer;
    if (kind == "file") {
        answer = ReadFileAnswer(words);
    } else if (kind == "text") {
        answer = {DialogAnswer::kText, words.Text(kValue), 0};
    } else if (kind != "cancel") {
        words.Refuse("answer yes, no, file, cancel or text");
    }
    return [answer](Stage& stage) { stage.host.QueuedAnswers().Add(answer); };
}

Act CompileHost(StepReader& words) {
    if (words.Takes("opener")) {
        const auto& answer = words.Name("none, failed or ok");
        const auto opener = answer == "none"     ? OpenerAnswer::kNone
                            : answer == "failed" ? OpenerAnswer::kFailed
                                                 : OpenerAnswer::kOk;
        if (opener == OpenerAnswer::kOk && answer != "ok") words.Refuse("none, failed or ok");
        return [opener](Stage& stage) { stage.host.opener = opener; };
    }
    if (!words.Takes("printer")) words.Refuse("host opener or host printer");
    const auto& answer = words.Name("none or ok");
    if (answer != "none" && answer != "ok") words.Refuse("none or ok");
    const auto printer = answer == "none" ? PrinterAnswer::kNone : PrinterAnswer::kOk;
    return [printer](Stage& stage) { stage.host.printer = printer; };
}

struct Action {
    std::string_view word;
    bool needsProgram;
    Act (*compile)(StepReader& words);
};

constexpr Action kActions[] = {
    {"click", true, CompileClick},   {"doubleclick", true, CompileDoubleClick},
    {"focus", true, CompileFocus},   {"type", true, CompileType},
    {"press", true, CompilePress},   {"paste", true, CompilePaste},
    {"select", true, CompileSelect}, {"drag", true, CompileDrag},
    {"point", true, CompilePoint},   {"resize", true, CompileResize},
    {"close", true, CompileClose},   {"tick", true, CompileTick},
    {"reread", true, CompileReread}, {"answer", false, CompileAnswer},
    {"host", true, CompileHost},
};

}  // namespace

CompiledStep CompileAction(const Step& step) {
    const auto& word = step.words.front();
    for (const auto& action : kActions) {
        if (!word.Is(action.word)) continue;
        StepReader words(step, 1);
        auto act = action.compile(words);
        words.End();
        return {step.line, step.source, action.needsProgram, std::move(act)};
    }
    throw ScriptError(step.line, "a step of the language, not " + Quoted(word.text));
}

}  // namespace arbolith
