#include "shell/webpage.h"

#include "platform/runtime_error.h"

#include <filesystem>
#include <string_view>

namespace arbolith {

namespace {

constexpr std::string_view kDocumentsSite = ARBOLITH_DOCUMENTS_SITE;
constexpr const char* kHelpFolder = "help";

}  // namespace

std::string AddressOf(const Application& application, const std::string& path) {
    if (!kDocumentsSite.empty()) return std::string(kDocumentsSite) + path;
    return std::filesystem::path(application.PathOf(kHelpFolder) + path).make_preferred().string();
}

void Launch_Webpage(Application& application, const std::string& address) {
    try {
        const auto result = application.GetHost().Open(address);
        if (result == OpenResult::kNoOpener)
            application.ShowBox("Could not find associated Browser", "Browser Not Found",
                                BoxIcon::kExclamation);
        if (result == OpenResult::kFailed)
            application.ShowBox("Web Page not Opened", "URL Failed", BoxIcon::kExclamation);
    } catch (const RuntimeError& error) {
        if (InFileErrorSet(error.Number()))
            application.ShowBox(
                "An error has occurred while attempting to find your web browser.  The web page "
                "requested cannot be displayed.");
    }
}

}  // namespace arbolith
