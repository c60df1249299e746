#include "qt/toolkit_messages.h"

#include <QString>

#include <iostream>

namespace arbolith {

namespace {

std::string_view programName;
std::string_view adviceGiven;

// Where no platform was asked for, the toolkit looks for one of these displays.
bool LacksDisplay() {
    return qEnvironmentVariableIsEmpty("DISPLAY") &&
           qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
           qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
}

void TakeMessage(QtMsgType type, const QMessageLogContext&, const QString& message) {
    if (type != QtFatalMsg) return;
    std::cerr << programName << ": "
              << (LacksDisplay() ? "there is no display to open windows on"
                                 : message.trimmed().toStdString())
              << '\n';
    if (!adviceGiven.empty()) std::cerr << adviceGiven << '\n';
}

}  // namespace

void TellOnlyWhyItEnds(std::string_view program, std::string_view advice) {
    programName = program;
    adviceGiven = advice;
    qInstallMessageHandler(TakeMessage);
}

}  // namespace arbolith
