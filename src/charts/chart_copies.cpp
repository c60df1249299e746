#include "charts/chart_copies.h"

#include "forms/application.h"
#include "platform/numbers.h"
#include "platform/runtime_error.h"

#include <memory>
#include <string>

namespace arbolith {

namespace {

constexpr int kFile = 1;
// One fixed square, whatever the window's size.
constexpr Size kPictureSize = {10000, 10000};

void CopyPicture(const ChartWindow& window) {
    // The chart's own size is 16-bit too: a window that is too large for that can't be copied.
    ToInt16(window.Chart.GetPlace().width);
    ToInt16(window.Chart.GetPlace().height);
    window.Chart.EditCopy(kPictureSize);
}

// Another program may have put something else on the clipboard meanwhile.
std::shared_ptr<const Drawing> CopiedPicture(Host& host) {
    auto picture = host.ClipboardPicture();
    if (!picture) throw RuntimeError(ErrorNumber::kInvalidCall);
    return picture;
}

void SavePair(Application& application, const std::string& name) {
    auto& host = application.GetHost();
    auto& files = application.Files();
    NumberedFiles::WriteWhole(name + ".bmp", CopiedPicture(host)->BitmapFile());
    files.OpenForOutput(kFile, name + ".txt");
    files.PrintLine(kFile, host.ClipboardText());
    files.Close(kFile);
    application.ShowBox("The files: " + name + ".bmp & " + name + ".txt were saved successfully.");
}

}  // namespace

void CopyGraph(ChartWindow& window) {
    CopyPicture(window);
    window.GetApplication().ShowBox(
        "Table copied to clipboard.\n"
        "In excel, use 'Paste' to paste the data into a table, or use \n"
        "Paste->Special to paste the image itself");
}

void SaveGraph(ChartWindow& window) {
    auto& application = window.GetApplication();
    try {
        CopyPicture(window);
        const auto name =
            application.GetHost().AskForText("Select a filename to save as with no extension:");
        if (name.value_or("").empty()) return;
        SavePair(application, *name);
    } catch (const RuntimeError& error) {
        if (InFileErrorSet(error.Number()))
            application.ShowBox(
                "Error saving...  Ensure that the file exists and is not in use by another "
                "program.");
    }
    application.Files().CloseQuietly(kFile);
}

void PrintGraph(ChartWindow& window) {
    auto& application = window.GetApplication();
    CopyPicture(window);
    application.GetHost().Print(*CopiedPicture(application.GetHost()));
    application.ShowBox("Chart sent to default printer.");
}

}  // namespace arbolith
