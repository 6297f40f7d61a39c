#pragma once

#ifndef _WIN32
#include <support/TempTree.h>

#include <zenvora/core/ioPath.h>

#include <QProcess>
#include <QStandardPaths>

#include <fstream>
#include <string>
#include <sys/mount.h>
#include <unistd.h>

namespace Zenvora::Test {

/// A volume of its own whose files can share blocks, mounted on an existing folder while it lives. Only the
/// superuser can make one, where the system has a tool for it.
class SharingDisk {
 public:
  explicit SharingDisk(const ioPath& folder) : folder_(folder) {
    missing_ = !IsSuperuser() ? "only the superuser can mount a volume"
               : !MakeImage() ? "neither mkfs.btrfs nor mkfs.xfs makes a volume here"
               : !Run(QStringLiteral("mount"),
                      {QStringLiteral("-o"), QStringLiteral("loop"), Text(image_), Text(folder)})
                   ? "the volume cannot be mounted here"
                   : "";
  }
  ~SharingDisk() {
    // At once where nobody is at it: that gives its device back.
    if (missing_.empty() && umount2(folder_.native().c_str(), 0) != 0) {
      umount2(folder_.native().c_str(), MNT_DETACH);
    }
  }
  SharingDisk(const SharingDisk&) = delete;
  SharingDisk& operator=(const SharingDisk&) = delete;

  /// Why there is none; empty: it is there.
  const std::string& Missing() const { return missing_; }

 private:
  /// Less than this no such file system takes. The file takes no room where nothing is written.
  static constexpr off_t kBytes = off_t{512} << 20U;

  static QString Text(const ioPath& path) { return path.qstring(); }

  static bool Run(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    // What makes file systems is not where people look for programs.
    const QString found = QStandardPaths::findExecutable(program);
    process.start(found.isEmpty() ? QStringLiteral("/usr/sbin/") + program : found, arguments);
    return process.waitForFinished() && process.exitStatus() == QProcess::NormalExit &&
           process.exitCode() == 0;
  }

  bool MakeImage() const {
    std::ofstream(image_.native()).close();
    return truncate(image_.native().c_str(), kBytes) == 0 &&
           (Run(QStringLiteral("mkfs.btrfs"), {QStringLiteral("-q"), Text(image_)}) ||
            Run(QStringLiteral("mkfs.xfs"), {QStringLiteral("-q"), QStringLiteral("-f"), Text(image_)}));
  }

  const TempTree tree_;
  const ioPath image_ = tree_.Path("image");
  const ioPath folder_;
  std::string missing_;
};

}  // namespace Zenvora::Test
#endif
