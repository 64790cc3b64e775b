#include <gtest/gtest.h>

#include <string>

#include "widgets/CodePageText.h"

namespace parlate {
namespace {

TEST(CodePageText, EveryByteComesBack) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all += static_cast<char>(byte);
  EXPECT_EQ(ToQString(all).size(), 256);
  EXPECT_EQ(FromQString(ToQString(all)), all);
}

TEST(CodePageText, TheBytesAreThoseOfTheCodePage) {
  EXPECT_EQ(ToQString("A\x80\x8A\x9F\xE4\xFF"), QStringLiteral(u"A\u20AC\u0160\u0178\u00E4\u00FF"));
  EXPECT_EQ(ToQString("\x81"), QString(QChar(0x81)));
  EXPECT_EQ(ToQString("\x9D"), QString(QChar(0x9D)));
}

TEST(CodePageText, ACharacterOutsideTheCodePageBecomesOneQuestionMark) {
  EXPECT_EQ(FromQString(QStringLiteral(u"a\u4E2Db")), "a?b");
  EXPECT_EQ(FromQString(QStringLiteral(u"a\U0001F600b")), "a?b");
  EXPECT_EQ(FromQString(QString(QChar(0x80))), "?");
  EXPECT_EQ(FromQString(QString(QChar(0xD800)) + "b"), "?b");
}

TEST(CodePageText, ASingleLineHasBlanksForControlCharacters) {
  EXPECT_EQ(ToSingleLine("a\rb\nc\td\xA0"), QStringLiteral(u"a b c d\u00A0"));
}

}  // namespace
}  // namespace parlate
