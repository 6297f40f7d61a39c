#include <gtest/gtest.h>

#include <QProcess>

#include <string>

namespace Zenvora::Test {
namespace {

TEST(DictionariesOfTheLibrary, AreThereWhileItIsLoaded) {
  QProcess process;
  process.start(QStringLiteral(LIBRARY_LOADER), {QStringLiteral(LIBRARY_FILE)});
  ASSERT_TRUE(process.waitForFinished(60'000)) << process.errorString().toStdString();
  EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
  const std::string told =
      QString::fromUtf8(process.readAllStandardOutput()).remove(QLatin1Char('\r')).toStdString();
  EXPECT_EQ(told,
            "-1 -1 -1\n"
            "846 4308 9299\n"
            "-1 -1 -1\n"
            "846 4308 9299\n"
            "-1 -1 -1\n");
}

}  // namespace
}  // namespace Zenvora::Test
