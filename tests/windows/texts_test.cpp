#include "qt/texts.h"

#include <gtest/gtest.h>

namespace arbolith {

TEST(Texts, EveryByteComesBack) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
    EXPECT_EQ(FromQString(ToQString(all)), all);
}

TEST(Texts, CharactersOfTheCodePageKeepTheirMeaning) {
    EXPECT_EQ(ToQString("m\xB2/ha \x80"), QString::fromUtf8("m²/ha €"));
}

TEST(Texts, APathIsShownAsTheFileSystemMeansIt) {
    EXPECT_EQ(ToShownText("saved /home/\xC3\xA9t\xC3\xA9.bmp"),
              QString::fromUtf8("saved /home/été.bmp"));
    EXPECT_EQ(ToShownText("Volume (m\xB3/ha)"), QString::fromUtf8("Volume (m³/ha)"));
    EXPECT_EQ(ToShownText("caf\xE9"), QString::fromUtf8("café"));
    EXPECT_EQ(ToShownText("/home/\xC3"), QString::fromUtf8("/home/Ã"));
}

TEST(Texts, WhatTheCodePageLacksIsAQuestionMark) {
    EXPECT_EQ(FromQString(QString::fromUtf8("a→b")), "a?b");
}

TEST(Texts, ACharacterOfTwoUnitsIsOneQuestionMark) {
    EXPECT_EQ(FromQString(QString::fromUtf8("a🌲b")), "a?b");
}

TEST(Texts, TheAccessKeysMarkIsTakenOut) {
    EXPECT_EQ(WithoutAccessKey("B.&A. Reduction"), "B.A. Reduction");
    EXPECT_EQ(WithoutAccessKey("Save && go"), "Save & go");
}

}  // namespace arbolith
