#include "cli/delivery.h"

#include "cli/exit_status.h"
#include "cli/interrupts.h"
#include "unit/platform/temporary_folder.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <fstream>
#include <future>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace arbolith::console {

namespace {

Failure FailureOf(const std::string& name) {
    try {
        Deliver("report", name);
    } catch (const Failure& failure) {
        return failure;
    }
    return {ExitStatus::kOk, ""};
}

}  // namespace

TEST(Delivery, AReportReplacesTheFile) {
    const TemporaryFolder folder;
    folder.Write("report.txt", "an older and longer report");
    Deliver("report\r\n", folder.PathOf("report.txt"));
    EXPECT_EQ(folder.Read("report.txt"), "report\r\n");
}

TEST(Delivery, AFileThatCantBeWrittenIsTold) {
    const TemporaryFolder folder;
    const auto missing = folder.PathOf("no/report.txt");
    const auto failure = FailureOf(missing);
    EXPECT_EQ(failure.status, ExitStatus::kCannotWrite);
    EXPECT_EQ(failure.message, missing + ": No such file or directory");
    EXPECT_EQ(FailureOf("/dev/full").message, "/dev/full: No space left on device");
    EXPECT_EQ(FailureOf(folder.Path()).message, folder.Path() + ": Is a directory");
}

TEST(Delivery, TheSystemsNumberTellsWhyAWriteFailed) {
    const int full = open("/dev/full", O_WRONLY | O_CLOEXEC);
    EXPECT_EQ(TryWrite(full, "text"), ENOSPC);
    close(full);
}

TEST(Delivery, AClosedPipeIsAnErrorOfTheWrite) {
    const Interrupts interrupts;
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe(ends.data()), 0);
    close(ends[0]);
    EXPECT_EQ(TryWrite(ends[1], "text"), EPIPE);
    close(ends[1]);
}

// Many times what a pipe holds.
TEST(Delivery, APipeGetsAllThatItsReaderTakes) {
    const TemporaryFolder folder;
    const auto name = folder.PathOf("pipe");
    ASSERT_EQ(mkfifo(name.c_str(), 0600), 0);
    const std::string report(1'000'000, 'x');
    auto taken = std::async(std::launch::async, [&name] {
        std::ifstream pipe(name);
        return std::string(std::istreambuf_iterator<char>(pipe), {});
    });
    EXPECT_NO_THROW(Deliver(report, name));
    EXPECT_EQ(taken.get(), report);
}

TEST(Delivery, APipeWhoseReaderHasGoneIsTold) {
    const Interrupts interrupts;
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe(ends.data()), 0);
    const auto name = "/dev/fd/" + std::to_string(ends[1]);
    std::thread reader([&ends] {
        char byte = 0;
        EXPECT_EQ(read(ends[0], &byte, 1), 1);
        close(ends[0]);
    });
    try {
        Deliver(std::string(1'000'000, 'x'), name);
        ADD_FAILURE() << "no failure";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.message, name + ": Broken pipe");
    }
    reader.join();
    close(ends[1]);
}

TEST(Delivery, WritesAllOfALongText) {
    const TemporaryFolder folder;
    const std::string text(1'000'000, 'x');
    const int file = open(folder.PathOf("out").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    EXPECT_EQ(TryWrite(file, text), 0);
    close(file);
    EXPECT_EQ(folder.Read("out"), text);
}

}  // namespace arbolith::console
