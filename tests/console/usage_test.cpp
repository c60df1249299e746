#include "console/console_run.h"
#include "platform/version.h"

namespace arbolith {

class Usage : public ConsoleTest {};

TEST_F(Usage, HelpGoesToTheOutput) {
    const auto ended = Run({"--help"});
    EXPECT_EQ(ended.status, 0);
    EXPECT_TRUE(ended.output.starts_with("usage: arbolith-cli run FILE.qvn"));
    EXPECT_EQ(ended.errors, "");
}

TEST_F(Usage, VersionIsTheProgramsOne) {
    EXPECT_EQ(Run({"--version"}).output, std::string("arbolith-cli ") + kVersion + "\n");
}

TEST_F(Usage, WrongWordsAreToldOnTheErrors) {
    const auto ended = Run({"grow", "stand.qvn"});
    EXPECT_EQ(ended.status, 2);
    EXPECT_EQ(ended.output, "");
    EXPECT_EQ(ended.errors, "arbolith-cli: unknown command \"grow\"; see arbolith-cli --help\n");
}

TEST_F(Usage, AFileThatCantBeReadIsTold) {
    for (const char* command : {"run", "batch"}) {
        const auto missing = Run({command, "missing"});
        EXPECT_EQ(missing.status, 3);
        EXPECT_EQ(missing.errors, "arbolith-cli: missing: No such file or directory\n");
        const auto folder = Run({command, "/"});
        EXPECT_EQ(folder.status, 3);
        EXPECT_EQ(folder.errors, "arbolith-cli: /: Is a directory\n");
    }
}

TEST_F(Usage, AReportNeverReplacesWhatItIsMadeFrom) {
    work.Write("stand.qvn", StandLines().Text());
    const auto ended = Run({"run", "stand.qvn", "--output", "./stand.qvn"});
    EXPECT_EQ(ended.status, 2);
    EXPECT_EQ(work.Read("stand.qvn"), StandLines().Text());
}

}  // namespace arbolith
