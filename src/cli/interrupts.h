// The signals that ask the program to end. They are noted, so that it ends in order: models are
// stopped, the work folder is removed.
#pragma once

namespace arbolith::console {

/// While one of these lives, SIGINT, SIGTERM and SIGHUP are noted instead of ending the program,
/// unless the caller had it ignore them; a closed pipe and a file that may not grow are errors of
/// the write. One at a time.
class Interrupts {
public:
    Interrupts();
    ~Interrupts();
    Interrupts(const Interrupts&) = delete;
    Interrupts& operator=(const Interrupts&) = delete;

    /// The signal that came; 0 for none.
    static int Signal();
    /// Becomes readable when a signal has come.
    static int Descriptor();
};

}  // namespace arbolith::console
