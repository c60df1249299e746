#include "console/console_run.h"

#include <array>
#include <fcntl.h>
#include <pty.h>
#include <unistd.h>

namespace arbolith {

class TerminalOfRuns : public ConsoleTest {
public:
    // What a run shows on a terminal that its errors go to.
    std::string ShownOnATerminal(const std::vector<std::string>& words) const {
        int reader = -1;
        int writer = -1;
        winsize size{24, 80, 0, 0};
        EXPECT_EQ(openpty(&reader, &writer, nullptr, nullptr, &size), 0);
        EXPECT_EQ(Run(words, -1, writer).status, 0);
        close(writer);
        std::string shown;
        std::array<char, 4096> bytes{};
        for (ssize_t count = 0; (count = read(reader, bytes.data(), bytes.size())) > 0;)
            shown.append(bytes.data(), static_cast<std::size_t>(count));
        close(reader);
        return shown;
    }
};

TEST_F(TerminalOfRuns, SeesTheProgressOfABatch) {
    work.Write("stands.qvb", BatchText({SequenceLine("1", "S"), SequenceLine("2", "H")}));
    const auto shown = ShownOnATerminal({"batch", "stands.qvb", "--output", "-"});
    EXPECT_NE(shown.find("]  25 %  SWQVL.exe"), std::string::npos) << shown;
    EXPECT_NE(shown.find("]  75 %  HWQVL.exe"), std::string::npos) << shown;
    EXPECT_TRUE(shown.ends_with("\r\x1B[K")) << shown;
}

TEST_F(TerminalOfRuns, SeesTheProgressOfARun) {
    work.Write("stand.qvn", StandLines().Text());
    EXPECT_NE(ShownOnATerminal({"run", "stand.qvn"}).find("%  SWQVL.exe"), std::string::npos);
}

TEST_F(TerminalOfRuns, APipeSeesNone) {
    work.Write("stand.qvn", StandLines().Text());
    EXPECT_EQ(Run({"run", "stand.qvn"}).errors, "");
}

}  // namespace arbolith
