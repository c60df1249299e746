// Starting a program and waiting for its end while the person's events flow.
#pragma once

#include "forms/application.h"
#include "platform/process.h"

namespace arbolith {

/// How a started program's window shows.
enum class StartMode : int { kNormal = 0, kHidden = 1 };

/// Starts a program of the application folder and returns when it has ended, at once when it can't
/// be started: neither that nor its exit code is told. Throws ProgramEnded when this program ended
/// meanwhile; the started one is then left alone.
void RunAndWait(Application& application, const std::string& fileName, StartMode mode);

/// Starts the editor on a file, in a normal window, and returns when it has ended. Throws 53 where
/// there is no editor, ProgramEnded as RunAndWait does.
void EditAndWait(Application& application, const std::string& path);

/// Starts the editor on a file, in a normal window, and leaves it to the person. Throws 53 where
/// there is no editor.
void StartEditor(Application& application, const std::string& path);

}  // namespace arbolith
