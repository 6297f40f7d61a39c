// The file access locker beside a bare probe of the same file: opening it for reading and closing it.

#include <LumidexUtil/FileAccessLocker.h>

#include <benchmark/benchmark.h>

#include <QTemporaryDir>

#include <fstream>
#include <memory>
#include <string>
#include <vector>

#ifdef _WIN32
#include <cstdio>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace Zenvora::Bench {

namespace {

using Lumidex::FileAccessLocker;
using Lumidex::IFileAccessLocker;

/// A file for each thread, in one folder.
class Files {
 public:
  Files() {
    for (int i = 0; i < 16; ++i) {
      paths_.push_back(ioPath(folder_.path()) / std::to_string(i));
      std::ofstream(paths_.back().native()) << 'x';
    }
  }
  const ioPath& Of(int thread) const { return paths_[static_cast<std::size_t>(thread) % paths_.size()]; }

 private:
  const QTemporaryDir folder_;
  std::vector<ioPath> paths_;
};

const Files& TheFiles() {
  static const Files files;
  return files;
}

void BareProbe(benchmark::State& state) {
  const ioPath& path = TheFiles().Of(state.thread_index());
  for (auto _ : state) {
#ifdef _WIN32
    std::fclose(_wfopen(path.native().c_str(), L"rt"));
#else
    ::close(::open(path.native().c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
#endif
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BareProbe)->Threads(1)->Threads(2)->UseRealTime();

void LockAndUnlock(benchmark::State& state) {
  static boost::intrusive_ptr<IFileAccessLocker> locker = FileAccessLocker::Create();
  const ioPath& path = TheFiles().Of(state.thread_index());
  for (auto _ : state) {
    locker->Lock(path);
    locker->Unlock(path);
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(LockAndUnlock)->Threads(1)->Threads(2)->UseRealTime();

/// A spelling of the file, another one for each number: each of its bits is a step that leads nowhere.
ioPath Spelling(const ioPath& file, std::int64_t number) {
  const ioPath folder = file.parent_path();
  ioPath path = folder;
  for (int bit = 0; bit < 20; ++bit) {
    path /= (number >> bit & 1) != 0 ? ioPath("..") / folder.filename() : ioPath(".");
  }
  return path / file.filename();
}

/// The same when the locker has seen that many paths.
void LockAmongMany(benchmark::State& state) {
  const auto locker = FileAccessLocker::Create();
  const ioPath& file = TheFiles().Of(0);
  for (std::int64_t i = 0; i < state.range(0); ++i) {
    const ioPath path = Spelling(file, i);
    locker->Lock(path);
    locker->Unlock(path);
  }
  std::vector<ioPath> paths;
  paths.reserve(1000);
  for (int i = 0; i < 1000; ++i) {
    paths.push_back(Spelling(file, i * state.range(0) / 1000));
  }
  std::size_t next = 0;
  for (auto _ : state) {
    const ioPath& path = paths[next++ % paths.size()];
    locker->Lock(path);
    locker->Unlock(path);
  }
}
BENCHMARK(LockAmongMany)->Arg(1000)->Arg(1'000'000);

}  // namespace

}  // namespace Zenvora::Bench
