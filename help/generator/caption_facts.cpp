// What stands on the screen: captions of controls, ways through menus, shortcuts, lengths of
// fields.
#include "generator/facts.h"
#include "generator/html.h"
#include "platform/headless_host.h"
#include "platform/version.h"
#include "shell/program.h"

#include <memory>

namespace arbolith::help {

namespace {

/// The program's forms as they are when they are made.
class Forms {
public:
    Forms() {
        auto& windows = program_.Results();
        windows.output.Get();
        windows.chart.Get();
        windows.chartOptions.Get();
        windows.customChart.Get();
        windows.definitions.Get();
    }

    /// Throws BadPage where there is no such control.
    const Control& Find(const std::string& name) {
        const auto point = name.find('.');
        const auto form =
            point == std::string::npos ? program_.Run().form.Name() : name.substr(0, point);
        for (const Form* each : application_.Forms()) {
            if (each->Name() != form) continue;
            if (const Control* control = each->Find(name.substr(point + 1))) return *control;
        }
        throw BadPage("no control named " + name);
    }

private:
    HeadlessHost host_;
    Application application_{host_, "", ""};
    Program program_{application_};
};

// As a person reads it: no mark of the access key, no colon and no blanks at the end.
std::string Readable(const std::string& caption) {
    std::string text;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == '&' && i + 1 < caption.size()) ++i;
        text += caption[i];
    }
    const auto last = text.find_last_not_of(" :");
    return text.substr(0, last + 1);
}

std::string Bold(const Control& control) {
    return "<b>" + EscapedProgramText(Readable(control.Caption())) + "</b>";
}

std::string MenuWay(const Control& entry) {
    const Control& above = entry.Parent();
    return (above.Kind() == ControlKind::kMenuItem ? MenuWay(above) + ", " : "") + Bold(entry);
}

std::string KeysOf(const Control& control) {
    const auto* entry = dynamic_cast<const MenuItem*>(&control);
    if (entry == nullptr || entry->Shortcut().empty())
        throw BadPage(control.Name() + " has no shortcut");
    return "<kbd>" + Escaped(entry->Shortcut()) + "</kbd>";
}

std::string SizeOf(const Control& control) {
    const auto* box = dynamic_cast<const TextBox*>(&control);
    if (box == nullptr || box->MaxLength() == 0)
        throw BadPage(control.Name() + " has no limit of its length");
    return std::to_string(box->MaxLength());
}

}  // namespace

void AddCaptionFacts(Facts& facts) {
    const auto forms = std::make_shared<Forms>();
    const auto about = [forms](std::string (*tell)(const Control&)) {
        return [forms, tell](const Words& words, const Page&) {
            return tell(forms->Find(WordAt(words, 0)));
        };
    };
    facts["ui"] = about(Bold);
    facts["menu"] = about(MenuWay);
    facts["keys"] = about(KeysOf);
    facts["size"] = about(SizeOf);
    facts["version"] = [](const Words&, const Page&) { return std::string(kVersion); };
}

}  // namespace arbolith::help
