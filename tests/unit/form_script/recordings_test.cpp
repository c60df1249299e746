#include "form_script/recordings.h"

#include <gtest/gtest.h>

namespace arbolith {

namespace {

DialogAnswer File(const std::string& name) {
    return {DialogAnswer::kFile, name, 0};
}

DialogAnswer Text(const std::string& text) {
    return {DialogAnswer::kText, text, 0};
}

}  // namespace

TEST(Answers, ComeFirstInFirstOut) {
    Answers answers;
    answers.Add(true);
    answers.Add(false);
    EXPECT_EQ(answers.TakeYesNo(), true);
    EXPECT_EQ(answers.TakeYesNo(), false);
    EXPECT_EQ(answers.TakeYesNo(), std::nullopt);
}

TEST(Answers, AreQueuedByTheirKind) {
    Answers answers;
    answers.Add(Text("plot 7"));
    answers.Add(File("a.qvn"));
    answers.Add(true);
    EXPECT_EQ(answers.TakeForFileDialog()->text, "a.qvn");
    EXPECT_EQ(answers.TakeForFileDialog(), std::nullopt);
    EXPECT_EQ(answers.TakeForInputBox()->text, "plot 7");
    EXPECT_EQ(answers.TakeForInputBox(), std::nullopt);
    EXPECT_EQ(answers.TakeYesNo(), true);
}

TEST(Answers, CancelWhateverDialogComesNext) {
    Answers answers;
    answers.Add(DialogAnswer{});
    answers.Add(File("a.qvn"));
    EXPECT_EQ(answers.TakeForFileDialog()->kind, DialogAnswer::kCancel);
    EXPECT_EQ(answers.TakeForFileDialog()->text, "a.qvn");
    answers.Add(DialogAnswer{});
    EXPECT_EQ(answers.TakeForInputBox()->kind, DialogAnswer::kCancel);
    EXPECT_EQ(answers.TakeForFileDialog(), std::nullopt);
}

TEST(Answers, KeepTheFilterOfAFile) {
    Answers answers;
    answers.Add(DialogAnswer{DialogAnswer::kFile, "a.txt", 2});
    EXPECT_EQ(answers.TakeForFileDialog()->filterIndex, 2);
}

}  // namespace arbolith
