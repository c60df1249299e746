#include "forms/common_dialog.h"

namespace arbolith {

bool CommonDialog::Show(bool saves) {
    FileQuestion question;
    question.saves = saves;
    question.filter = Filter;
    question.filterIndex = FilterIndex;
    question.folder = InitDir;
    question.fileName = FileName;
    question.mustExist = (Flags & kFileMustExist) != 0;
    question.asksBeforeOverwriting = (Flags & kAsksBeforeOverwriting) != 0;
    const auto choice = application.GetHost().ChooseFile(question);
    if (!choice) return false;
    FileName = choice->fileName;
    FilterIndex = choice->filterIndex;
    return true;
}

}  // namespace arbolith
