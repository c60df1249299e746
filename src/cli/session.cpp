#include "cli/session.h"

namespace arbolith::console {

Session::Session(Terminal& terminal, const std::string& modelFolder)
    : host(terminal),
      folder_(modelFolder),
      application_(host, folder_.Path(), ""),
      program_(application_),
      person_(application_) {
    host.modelFolder = modelFolder;
    host.onInterrupt = [this] { application_.End(); };
    program_.Start();
    // A click on the splash brings the main form up.
    Click(program_.GetSplash().Picture1);
}

}  // namespace arbolith::console
