#include "platform/file_error.h"

#include "unit/platform/temporary_folder.h"

#include <cerrno>
#include <gtest/gtest.h>

namespace arbolith {

TEST(FileErrorTest, TellsAMissingFileFromAMissingFolder) {
    const TemporaryFolder folder;
    EXPECT_EQ(FileErrorOf(ENOENT, folder.PathOf("missing")), ErrorNumber::kFileNotFound);
    EXPECT_EQ(FileErrorOf(ENOENT, folder.PathOf("missing/file")), ErrorNumber::kPathNotFound);
    EXPECT_EQ(FileErrorOf(ENOENT, "missing"), ErrorNumber::kFileNotFound);
    EXPECT_EQ(FileErrorOf(ENOTDIR, "file/file"), ErrorNumber::kPathNotFound);
}

TEST(FileErrorTest, KnowsWhatRefusesAFile) {
    for (const int refusal : {EACCES, EPERM, EROFS, ETXTBSY})
        EXPECT_EQ(FileErrorOf(refusal, "x"), ErrorNumber::kPermissionDenied) << refusal;
    for (const int full : {ENOSPC, EDQUOT, EFBIG})
        EXPECT_EQ(FileErrorOf(full, "x"), ErrorNumber::kDiskFull) << full;
    for (const int gone : {ENODEV, ENXIO})
        EXPECT_EQ(FileErrorOf(gone, "x"), ErrorNumber::kDeviceUnavailable) << gone;
    EXPECT_EQ(FileErrorOf(EIO, "x"), ErrorNumber::kDeviceError);
}

TEST(FileErrorTest, CallsEverythingElseAFailureOfAccess) {
    for (const int other : {EISDIR, ELOOP, ENAMETOOLONG, EMFILE})
        EXPECT_EQ(FileErrorOf(other, "x"), ErrorNumber::kPathFileAccess) << other;
}

}  // namespace arbolith
