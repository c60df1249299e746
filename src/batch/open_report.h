// Shows a finished report to the person.
#pragma once

#include "batch/batch.h"

namespace arbolith {

/// Opens the report, text in the editor and HTML in the desktop's own program, and doesn't wait. A
/// browser that isn't there or fails is told in a box. Throws 53 where the editor can't be started.
void OpenReport(Batch& batch);

}  // namespace arbolith
