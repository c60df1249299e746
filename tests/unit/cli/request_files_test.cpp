#include "cli/request_files.h"

#include "cli/exit_status.h"
#include "unit/platform/temporary_folder.h"

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <unistd.h>

namespace arbolith::console {

namespace {

template <class Work>
std::string FailureOf(Work work) {
    try {
        work();
    } catch (const Failure& failure) {
        return std::to_string(static_cast<int>(failure.status)) + " " + failure.message;
    }
    return "";
}

}  // namespace

class RequestFiles : public testing::Test {
public:
    TemporaryFolder folder;
    std::string file = folder.PathOf("stand.qvn");

    RequestFiles() { folder.Write("stand.qvn", "text"); }
    ~RequestFiles() override { unsetenv("ARBOLITH_FOLDER"); }
};

TEST_F(RequestFiles, AFileThatIsThereCanBeRead) {
    EXPECT_EQ(FailureOf([&] { RequireReadable(file); }), "");
    EXPECT_EQ(FailureOf([&] { RequireReadable("/nowhere"); }),
              "3 /nowhere: No such file or directory");
    EXPECT_EQ(FailureOf([] { RequireReadable("/"); }), "3 /: Is a directory");
}

TEST_F(RequestFiles, WhatCantBeReadTwiceIsRefused) {
    EXPECT_EQ(FailureOf([] { RequireReadable("/dev/zero"); }),
              "3 /dev/zero: it is not a regular file");
    std::filesystem::resize_file(file, 65U << 20U);
    EXPECT_EQ(FailureOf([&] { RequireReadable(file); }), "3 " + file + ": it is too large");
}

TEST_F(RequestFiles, AReportIsAnotherFile) {
    EXPECT_EQ(FailureOf([&] { RequireOther(folder.PathOf("report.txt"), file); }), "");
    EXPECT_EQ(FailureOf([&] { RequireOther("-", file); }), "");
    ASSERT_EQ(symlink(file.c_str(), folder.PathOf("link").c_str()), 0);
    EXPECT_NE(FailureOf([&] { RequireOther(folder.PathOf("link"), file); }), "");
}

TEST_F(RequestFiles, TheModelsAreWhereTheRequestSays) {
    setenv("ARBOLITH_FOLDER", "/told/by/environment", 1);
    Request request;
    request.folder = "/asked/for";
    EXPECT_EQ(ModelFolder(request), "/asked/for");
    EXPECT_EQ(ModelFolder({}), "/told/by/environment");
    setenv("ARBOLITH_FOLDER", "", 1);
    EXPECT_EQ(ModelFolder({}), std::filesystem::read_symlink("/proc/self/exe").parent_path());
}

}  // namespace arbolith::console
