#include <zenvora/tavolin/Uuid.h>

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QUuid>

#include <set>

namespace Zenvora::Tavolin {

TEST(Uuid, IsThirtySixLowerCaseCharactersWithoutBraces) {
  const QRegularExpression form(
      QStringLiteral("\\A[0-9a-f]{8}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{12}\\z"));
  for (int i = 0; i < 1000; ++i) {
    const QString uuid = GenerateUuid();
    EXPECT_TRUE(form.match(uuid).hasMatch()) << uuid.toStdString();
  }
}

TEST(Uuid, CarriesVersionFourAndTheStandardVariant) {
  for (int i = 0; i < 1000; ++i) {
    const QString text = GenerateUuid();
    EXPECT_EQ(text[14], QLatin1Char('4')) << text.toStdString();
    EXPECT_TRUE(QStringLiteral("89ab").contains(text[19])) << text.toStdString();
    EXPECT_EQ(QUuid(text).version(), QUuid::Random);
  }
}

TEST(Uuid, NeverRepeatsInTenThousand) {
  std::set<QString> seen;
  for (int i = 0; i < 10000; ++i) {
    seen.insert(GenerateUuid());
  }
  EXPECT_EQ(seen.size(), 10000U);
}

TEST(Uuid, VariesInEveryFreeDigit) {
  std::vector<std::set<QChar>> digits(36);
  for (int i = 0; i < 1000; ++i) {
    const QString uuid = GenerateUuid();
    for (std::size_t place = 0; place < digits.size(); ++place) {
      digits[place].insert(uuid[static_cast<int>(place)]);
    }
  }
  for (std::size_t place = 0; place < digits.size(); ++place) {
    const bool fixed = place == 8 || place == 13 || place == 14 || place == 18 || place == 23;
    EXPECT_EQ(digits[place].size(), fixed ? 1U : place == 19 ? 4U : 16U) << "place " << place;
  }
}

}  // namespace Zenvora::Tavolin
