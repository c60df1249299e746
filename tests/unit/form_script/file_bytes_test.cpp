#include "form_script/file_bytes.h"

#include "unit/platform/temporary_folder.h"

#include <gtest/gtest.h>

namespace arbolith {

TEST(FileBytes, AreReadWholeFromTheFolderOrAnAbsolutePath) {
    const TemporaryFolder folder;
    const std::string bytes("a\r\n\0\xFF", 5);
    folder.Write("in.txt", bytes);
    EXPECT_EQ(ReadFileBytes(folder.Path(), "in.txt"), bytes);
    EXPECT_EQ(ReadFileBytes("/elsewhere", folder.PathOf("in.txt")), bytes);
}

TEST(FileBytes, AreNoneOfAMissingFileOrAFolder) {
    const TemporaryFolder folder;
    EXPECT_EQ(ReadFileBytes(folder.Path(), "missing"), std::nullopt);
    EXPECT_EQ(ReadFileBytes(folder.Path(), "."), std::nullopt);
}

TEST(FileBytes, TellWhetherAnythingIsThere) {
    const TemporaryFolder folder;
    folder.Write("in.txt", "");
    std::filesystem::create_symlink("nowhere", folder.PathOf("link"));
    EXPECT_TRUE(FileExists(folder.Path(), "in.txt"));
    EXPECT_TRUE(FileExists(folder.Path(), "link"));
    EXPECT_TRUE(FileExists(folder.Path(), "."));
    EXPECT_FALSE(FileExists(folder.Path(), "missing"));
}

TEST(FileBytes, AreDescribedWholeWhenShort) {
    EXPECT_EQ(DescribedBytes("a\n", "b"), "\"a\\n\"");
}

TEST(FileBytes, AreDescribedFromShortlyBeforeTheDifferenceWhenLong) {
    const std::string same(1000, 'x');
    const auto text = DescribedBytes(same + "found", same + "expected");
    EXPECT_NE(text.find("1005 bytes, other from byte 1000 on"), std::string::npos);
    EXPECT_NE(text.find("xxxfound\""), std::string::npos);
    EXPECT_LT(text.size(), 600U);
    EXPECT_NE(DescribedBytes(same, "").find("from byte 0 on"), std::string::npos);
}

}  // namespace arbolith
