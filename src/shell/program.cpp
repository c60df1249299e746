#include "shell/program.h"

#include "model_bridge/treatment_probe.h"
#include "platform/version.h"
#include "run_definition/reset.h"
#include "shell/events.h"

#include <cmath>

namespace arbolith {

namespace {

// The six colours of the main form, blue-green-red.
constexpr Colour kFormColours[] = {0xFF0000, 0xFFFF00, 0, kButtonFace, 255, 0x808080};
// The splash waits this part of its time before it shows the hourglass.
constexpr double kHourglassDivisor = 26.5;
constexpr int kAboveCentre = 100;

}  // namespace

Program::Program(Application& application)
    : application_(application),
      splash_(application),
      run_(application),
      batch_(run_),
      saved_{run_, batch_, ""},
      results_(run_, batch_, resize_),
      runCommand_{run_, [this]() -> YieldTable& { return results_.output.Get(); },
                  [this] { ApplySequence(batch_); }} {
    run_.probeTreatments = [this] { TreatmentProbe(run_); };
    run_.onReset = [this] {
        ForgetBatch(batch_);
        saved_.RunFilePath.clear();
    };
    WireMainForm(run_, runCommand_, results_.definitions, resize_);
    WireBatch(batch_);
    WireFileMenu(saved_);
}

void Program::Start() {
    application_.Enter([this] { LoadSplash(); });
}

void Program::LoadSplash() {
    splash_.Timer2.SetInterval(
        static_cast<int>(std::nearbyint(splash_.Timer1.Interval() / kHourglassDivisor)));
    splash_.Picture1.SetCaption(std::string("Arbolith ") + kVersion);
    LoadMainForm();
    Centre(splash_);
    splash_.Timer2.onTimer = [this] { splash_.SetPointer(MousePointer::kHourglass); };
    splash_.Timer1.onTimer = splash_.Frame1.onClick =
        splash_.Picture1.onClick = [this] { EndSplash(); };
    splash_.Show();
}

void Program::EndSplash() {
    splash_.Timer1.SetEnabled(false);
    splash_.Timer2.SetEnabled(false);
    splash_.Hide();
    run_.form.Show();
}

void Program::LoadMainForm() {
    auto& form = run_.form;
    run_.SoftwoodT2Allowed = true;
    run_.ShortHardwoodList = false;
    form.Adv_Mode.SetChecked(false);
    Centre(form);
    form.SetCaption(std::string("Arbolith ") + kVersion);
    ReadCommandLine();
    run_.FocusColour = kFormColours[1];
    run_.RestColour = kFormColours[3];
    ResetInput(run_);
}

// A run is read, with its messages, and is gone again with the reset behind it; a batch stays.
void Program::ReadCommandLine() {
    const auto& commandLine = application_.CommandLine();
    if (commandLine.size() < 2) return;
    // What stands around the path is taken for quotes.
    const auto path = commandLine.substr(1, commandLine.size() - 2);
    if (path.ends_with("qvn")) ReadRunFile(saved_, path);
    if (path.ends_with("qvb")) ReadBatch(batch_, path);
}

void Program::Centre(Form& form) {
    const auto screen = application_.GetHost().ScreenSize();
    auto place = form.GetPlace();
    place.top = screen.height / 2 - place.height / 2 - kAboveCentre;
    place.left = screen.width / 2 - place.width / 2;
    form.SetPlace(place);
}

}  // namespace arbolith
