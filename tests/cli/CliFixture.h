#pragma once

#include <support/PhotoMaker.h>
#include <support/TempTree.h>

#include <zenvora/core/ioPath.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QByteArray>
#include <QJsonObject>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QString>
#include <QStringList>

#include <string>
#include <vector>

namespace Zenvora::Test {

/// What a run of the command left behind.
struct Ran {
  int exitCode = -1;
  bool crashed = false;
  std::string out;
  std::string err;

  /// The standard output stream as the one JSON document that it must be; empty when it is none.
  QJsonObject Json() const;
};

/// The text has a part like the pattern. GoogleTest's own expressions are simpler on Windows.
MATCHER_P(HasLike, pattern, "has a part like \"" + std::string(pattern) + '"') {
  return QRegularExpression(QString::fromUtf8(pattern)).match(QString::fromStdString(arg)).hasMatch();
}

/// Runs the command in a home of its own.
class CliTest : public ::testing::Test {
 protected:
  CliTest();

  Ran Run(const QStringList& arguments) const;
  /// `command`: for bash; $LUMIDEX is the command's path.
  Ran RunShell(const std::string& command) const;
  /// Runs a copy of the program in the folder "bin" of the tree, away from its resources.
  Ran RunCopy(const QStringList& arguments) const;
  /// Waits for a started process; a hang fails the test.
  static Ran Finish(QProcess& process);
  void Start(QProcess& process, const QStringList& arguments) const;

  /// Folder of the photos, and the catalogue that runs use without an option.
  ioPath Photos() const { return tree.Path("photos"); }
  ioPath DefaultCatalogue() const { return tree.Path("data/lumidex/catalogue.sqlite"); }
  static QString Text(const ioPath& path) { return path.qstring(); }

  /// `count` JPEG files in `folder` of the photos, taken one minute apart from `day` ("2023:12:24"), 10:00
  /// on.
  void MakePhotos(const std::string& folder, const std::string& day, int count) const;
  /// 21 of Christmas 2023 and 22 of a weekend in May 2023, in the catalogue.
  void ScanTwoAlbums() const;

  TempTree tree;
  QProcessEnvironment environment;
};

/// Holds the catalogue's write lock, so that a scan with something to store cannot finish while it lives.
class WriteLock {
 public:
  explicit WriteLock(const ioPath& catalogue);
  ~WriteLock();
  WriteLock(const WriteLock&) = delete;
  WriteLock& operator=(const WriteLock&) = delete;
};

/// Runs one statement on the catalogue.
void ChangeCatalogue(const ioPath& catalogue, const char* sql);

/// Names in a folder, hidden ones too, in order.
std::vector<std::string> NamesIn(const ioPath& folder);

/// "ok" from SQLite's integrity check, else what it says.
std::string IntegrityOf(const ioPath& catalogue);
int CountPhotosIn(const ioPath& catalogue);

}  // namespace Zenvora::Test
