// Every test program: a host application without a window, in surroundings that no machine changes.

#include <zenvora/app/Application.h>

#include <glog/logging.h>
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QLocale>
#include <QTemporaryDir>

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);

  const QTemporaryDir home;
  qputenv("HOME", home.path().toUtf8());
  for (const char* folder : {"XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"}) {
    qputenv(folder, (home.path() + QLatin1Char('/') + QLatin1String(folder)).toUtf8());
  }
  qputenv("TZ", "UTC");
  qputenv("LC_ALL", "C.UTF-8");
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QLocale::setDefault(QLocale(QStringLiteral("en_US")));

  FLAGS_logtostderr = true;
  FLAGS_stderrthreshold = google::GLOG_FATAL;
  google::InitGoogleLogging(argv[0]);

  Zenvora::App::ApplicationOf<QCoreApplication> application(argc, argv);
  return RUN_ALL_TESTS();
}
