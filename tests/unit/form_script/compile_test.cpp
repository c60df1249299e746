// Which scripts can be used at all.
#include "form_script/compile.h"

#include <gtest/gtest.h>

namespace arbolith {

namespace {

CompiledScript CompileText(const std::string& text) {
    return Compile(ReadScript(text, {"/folder", "/", "2.1.0"}));
}

// The line of what makes a script unusable; 0 when it can be used.
int BadLine(const std::string& text) {
    try {
        CompileText(text);
    } catch (const ScriptError& error) {
        return error.Line();
    }
    return 0;
}

}  // namespace

TEST(Compile, TakesEveryStepOfTheLanguage) {
    for (const char* step : {"splash",
                             "click Run",
                             "doubleclick Batch_Seq",
                             "focus Age1",
                             "type Age1 25",
                             "type Age1 \"2 5\"",
                             "press Age1 Enter",
                             "press Age1 Ctrl+A",
                             "press Age1 7",
                             "press Age1 \" \"",
                             "paste Age1 25",
                             "select Lcap 6",
                             "select Lcap \"6\"",
                             "drag Output.Table 1 1 2 2",
                             "point Chart_Frm.Chart 1 1",
                             "resize QvlySwd 1500 1500",
                             "close Output",
                             "tick frmSplash.Timer2",
                             "during 1\nclick Run\nend",
                             "host opener none",
                             "host opener failed",
                             "host opener ok",
                             "host printer none",
                             "host printer ok",
                             "reread",
                             "answer yes",
                             "answer no",
                             "answer file a.qvn",
                             "answer file \"a b.qvn\" 2",
                             "answer cancel",
                             "answer text \"\"",
                             "expect Run.Enabled true",
                             "expect var RunRecord.STK% 100",
                             "expect box text",
                             "expect box text buttons yesno icon stop title \"a b\"",
                             "expect no box",
                             "expect input prompt",
                             "expect beeps 0",
                             "expect started SWQVL.exe",
                             "expect started SWQVL.exe 1",
                             "expect starts 2",
                             "expect opened address",
                             "expect clipboard text",
                             "expect clipboard picture",
                             "expect clipboard picture 100 200",
                             "expect printed 1",
                             "expect dialog filter",
                             "expect dialog open filter",
                             "expect dialog save filter",
                             "expect file a.txt bytes",
                             "expect file a.txt contains bytes",
                             "expect file a.txt lacks bytes",
                             "expect no file a.txt",
                             "expect result SiteIndexFromLc \"White Pine\" 6 = 17.06",
                             "expect ended",
                             "print Run.Enabled",
                             "print var UnitSystem"})
        EXPECT_EQ(BadLine(step), 0) << step;
}

TEST(Compile, RefusesWhatIsNoStep) {
    for (const char* step : {"Click Run", "\"click\" Run", "wait 5", "end", "no box", "box text"})
        EXPECT_EQ(BadLine(step), 1) << step;
}

TEST(Compile, RefusesMissingWordsAndThoseTooMany) {
    for (const char* step : {"click",
                             "click A B",
                             "type Age1",
                             "press Age1",
                             "select Lcap",
                             "drag T 1 1 2",
                             "drag T 1 1 2 2 3",
                             "resize QvlySwd 100",
                             "reread x",
                             "during",
                             "during 1 2\nend",
                             "answer",
                             "answer yes no",
                             "answer file",
                             "answer text",
                             "host",
                             "host opener",
                             "expect",
                             "expect Run.Enabled",
                             "expect Run.Enabled true x",
                             "expect var X",
                             "expect box",
                             "expect box a title",
                             "expect no",
                             "expect no box x",
                             "expect beeps",
                             "expect file a",
                             "expect ended x",
                             "expect result Val 1",
                             "print",
                             "print var",
                             "splash x"})
        EXPECT_EQ(BadLine(step), 1) << step;
}

TEST(Compile, RefusesWordsThatDoNotFit) {
    for (const char* step : {"press Age1 Return",
                             "press Age1 12",
                             "press Age1 \"\"",
                             "drag T a 1 2 2",
                             "drag T -1 1 2 2",
                             "resize QvlySwd 0 10",
                             "point C 0 1",
                             "during 0\nend",
                             "during x\nend",
                             "answer maybe",
                             "answer file a 0",
                             "host opener maybe",
                             "host printer failed",
                             "host scanner ok",
                             "expect Run true",
                             "expect .Enabled true",
                             "expect no title",
                             "expect beeps -1",
                             "expect beeps x",
                             "expect box a icon big",
                             "expect box a buttons cancel",
                             "expect box a b",
                             "expect started a x",
                             "expect dialog close f",
                             "expect file a holds b",
                             "expect clipboard picture 0 1",
                             "expect result Val 1 is 1",
                             "print Run"})
        EXPECT_EQ(BadLine(step), 1) << step;
}

TEST(Compile, TellsTheLineInsideADuring) {
    EXPECT_EQ(BadLine("click A\nduring 1\nclick B\nclick\nend\n"), 4);
}

TEST(Compile, TakesASplashAsTheFirstStepOnly) {
    EXPECT_TRUE(CompileText("splash\nclick A\n").beginsWithSplash);
    EXPECT_TRUE(CompileText("# comment\n\nanswer yes\nsplash\n").beginsWithSplash);
    EXPECT_FALSE(CompileText("click A\n").beginsWithSplash);
    EXPECT_EQ(BadLine("click A\nsplash\n"), 2);
    EXPECT_EQ(BadLine("splash\nsplash\n"), 2);
    EXPECT_EQ(BadLine("during 1\nsplash\nend\n"), 2);
}

TEST(Compile, TakesTheAnswersAtTheHeadApart) {
    const auto script = CompileText("answer yes\nanswer cancel\nclick A\nanswer no\n");
    EXPECT_EQ(script.head.size(), 2U);
    EXPECT_EQ(script.rest.size(), 2U);
    EXPECT_EQ(CompileText("splash\nanswer yes\nclick A\n").head.size(), 1U);
}

}  // namespace arbolith
