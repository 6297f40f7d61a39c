#include <support/SmallDisk.h>
#include <support/TempTree.h>

#include <fstream>
#include <string>

#ifdef _WIN32
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>

#include <windows.h>
#else
#include <sys/mount.h>
#endif

namespace Zenvora::Test {

#ifdef _WIN32

namespace {

bool RunDisks(const ioPath& folder, const QString& what, const QString& more = {}) {
  const QString program = qEnvironmentVariable("LUMIDEX_TEST_DISKS");
  const QString answer = folder.qstring() + QStringLiteral(".answer");
  if (program.isEmpty() || !QProcess::startDetached(program, {answer, what, folder.qstring(), more})) {
    return false;
  }
  constexpr qint64 kHangMs = 20'000;
  QElapsedTimer timer;
  timer.start();
  // Programs of Linux have no end that could be waited for.
  while (!QFile::exists(answer) && timer.elapsed() < kHangMs) {
    SwitchToThread();
  }
  const bool isDone = ReadText(ioPath(answer)) == "0\n";
  QFile::remove(answer);
  return isDone;
}

}  // namespace

SmallDisk::SmallDisk(const ioPath& folder, std::size_t bytes)
    : folder_(folder), mounted_(RunDisks(folder, QStringLiteral("mount"), QString::number(bytes))) {}

SmallDisk::~SmallDisk() {
  if (mounted_) {
    RunDisks(folder_, QStringLiteral("unmount"));
  }
}

bool SmallDisk::MakeReadOnly() const {
  return mounted_ && RunDisks(folder_, QStringLiteral("close"));
}

#else

SmallDisk::SmallDisk(const ioPath& folder, std::size_t bytes) : folder_(folder) {
  const std::string options = "size=" + std::to_string(bytes);
  mounted_ = mount("lumidex-test", folder.native().c_str(), "tmpfs", 0, options.c_str()) == 0;
}

SmallDisk::~SmallDisk() {
  if (mounted_) {
    umount2(folder_.native().c_str(), MNT_DETACH);
  }
}

bool SmallDisk::MakeReadOnly() const {
  return mounted_ && mount(nullptr, folder_.native().c_str(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr) == 0;
}

#endif

void SmallDisk::Fill(std::uintmax_t but) {
  if (const std::uintmax_t free = Free(); free > but) {
    fillers_.push_back(folder_ / ("filler" + std::to_string(fillers_.size())));
    std::ofstream(fillers_.back().native(), std::ios::binary) << std::string(free - but, 'f');
  }
}

void SmallDisk::Clear() {
  for (const ioPath& filler : fillers_) {
    filler.remove();
  }
  fillers_.clear();
}

}  // namespace Zenvora::Test
