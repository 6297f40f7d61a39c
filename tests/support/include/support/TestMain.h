#pragma once

#include <support/LeftOut.h>
#include <support/Surroundings.h>

#include <zenvora/app/Application.h>

#include <glog/logging.h>
#include <gtest/gtest.h>

#include <QLocale>
#include <QTemporaryDir>

#include <filesystem>

namespace Zenvora::Test {

/// The main function of a test program: a host application of Qt's class `QtApplication`, in surroundings
/// that no machine changes. A test program brings a main function of its own only to choose another class.
template <class QtApplication>
int RunTests(int argc, char** argv) {
  LeaveMark();
  ::testing::InitGoogleTest(&argc, argv);
  // The build asks for the names, in surroundings of its own.
  if (::testing::GTEST_FLAG(list_tests)) {
    return RUN_ALL_TESTS();
  }

  const QTemporaryDir home;
  qputenv("HOME", home.path().toUtf8());
  for (const char* folder : {"XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"}) {
    qputenv(folder, (home.path() + QLatin1Char('/') + QLatin1String(folder)).toUtf8());
  }
  qputenv("TZ", "UTC");
  qputenv("LC_ALL", "C.UTF-8");
  // Without a screen, unless the tests are run on one on purpose.
  const QByteArray screen = qgetenv("LUMIDEX_TEST_SCREEN");
  qputenv("QT_QPA_PLATFORM", screen.isEmpty() ? QByteArray("offscreen") : screen);
  KeepDesktopOut();
  QLocale::setDefault(QLocale(QStringLiteral("en_US")));

  FLAGS_logtostderr = true;
  FLAGS_stderrthreshold = google::GLOG_FATAL;
  google::InitGoogleLogging(argv[0]);

  App::ApplicationOf<QtApplication> application(argc, argv);
  const bool isListTrue = WatchWhatIsLeftOut(std::filesystem::path(argv[0]).stem().string());
  return RUN_ALL_TESTS() == 0 && isListTrue ? 0 : 1;
}

}  // namespace Zenvora::Test
