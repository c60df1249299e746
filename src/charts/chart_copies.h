// The chart leaves its window: to the clipboard, into a pair of files, on paper. The clipboard
// carries picture and data in all three, so whatever was on it is replaced.
#pragma once

#include "charts/chart_window.h"

namespace arbolith {

/// Copies picture and data, and tells how to paste them.
void CopyGraph(ChartWindow& window);

/// Asks for a name and writes name.bmp and name.txt, replacing both; a bare name lies in the
/// process's current folder. An empty answer writes nothing. File errors of the usual set are told;
/// no other error is, and none escapes.
void SaveGraph(ChartWindow& window);

/// Prints the picture on the default printer. Throws 482 where there is none.
void PrintGraph(ChartWindow& window);

}  // namespace arbolith
