// form_script: drives the program's forms as a script tells and checks what must be seen.
#include "form_script/headless_driver.h"
#include "form_script/session.h"
#include "platform/headless_host.h"

#include <iostream>

namespace arbolith {

namespace {

ExitStatus RunHeadless(const Arguments& arguments, const CompiledScript& script) {
    HeadlessHost host;
    const auto makeDriver = [](Application& application) {
        return std::make_shared<HeadlessDriver>(application);
    };
    return RunSession(arguments, script, host, makeDriver, std::cout, std::cerr);
}

ExitStatus RunWith(const std::vector<std::string>& words) {
    Arguments arguments;
    try {
        arguments = ReadArguments(words);
        const auto script = LoadScript(arguments);
        return arguments.window ? RunOnWindows(arguments, script, std::cout, std::cerr)
                                : RunHeadless(arguments, script);
    } catch (const ScriptError& error) {
        std::cerr << arguments.script << ':' << error.Line() << ": expected " << error.what()
                  << '\n';
    } catch (const BadArguments& error) {
        std::cerr << "form_script: " << error.what() << '\n' << kUsage;
    }
    return ExitStatus::kUnusable;
}

}  // namespace

}  // namespace arbolith

int main(int argc, char* argv[]) {
    return static_cast<int>(arbolith::RunWith({argv + 1, argv + argc}));
}
