#include "form_script/session.h"

#include "form_script/file_bytes.h"
#include "form_script/interpreter.h"
#include "form_script/lookup.h"
#include "form_script/variables.h"
#include "platform/version.h"

#include <filesystem>

namespace arbolith {

namespace {

// Failures of the start itself belong to the script's first line.
constexpr int kFirstLine = 1;

void StartProgram(Program& program, const CompiledScript& script, Driver& driver) {
    program.Start();
    if (!script.beginsWithSplash) driver.Tick(program.GetSplash().Timer1);
}

void SavePictures(const Stage& stage, const Arguments& arguments) {
    if (arguments.pictureOf.empty()) {
        stage.driver.SavePictures(arguments.picture);
    } else {
        stage.driver.SavePictureOf(Find(stage, arguments.pictureOf), arguments.picture);
    }
}

}  // namespace

CompiledScript LoadScript(const Arguments& arguments) {
    const auto text = ReadFileBytes(std::filesystem::current_path().string(), arguments.script);
    if (!text) throw BadArguments("can't read " + arguments.script);
    const std::string separator(1, static_cast<char>(std::filesystem::path::preferred_separator));
    return Compile(ReadScript(*text, {arguments.folder, separator, kVersion}));
}

ExitStatus RunSession(const Arguments& arguments, const CompiledScript& script, Host& inner,
                      const MakeDriver& makeDriver, std::ostream& output, std::ostream& errors) {
    std::filesystem::current_path(arguments.folder);
    RecordingHost host(inner, arguments.folder);
    if (arguments.screen) host.SetScreenSize(*arguments.screen);
    if (arguments.date) host.SetToday(*arguments.date);
    Application application(host, arguments.folder, arguments.commandLine);
    const auto driver = makeDriver(application);
    Program program(application);
    const auto variables = MakeVariables(program);
    const auto functions = MakeFunctions(program);
    Stage stage{application, *driver, host, variables, functions, output, false, {}};
    Interpreter interpreter(stage, arguments.script, arguments.keepGoing, errors);

    interpreter.Run(script.head);
    interpreter.Attempt(kFirstLine, "the program to start",
                        [&] { StartProgram(program, script, *driver); });
    interpreter.Run(script.rest);
    interpreter.Finish();
    if (!arguments.picture.empty())
        interpreter.Attempt(kFirstLine, "pictures of the windows at the end",
                            [&] { SavePictures(stage, arguments); });
    return interpreter.Held() ? ExitStatus::kHeld : ExitStatus::kFailed;
}

}  // namespace arbolith
