// Stores batches of photos in a catalogue until it is killed or fails:
//   catalogue_writer <catalogue> <prefix of the photos' paths> [<largest file size in bytes>]
// Each line of its output is the number of photos that a finished call stored in all; the last may be an
// error's text.

#include <host/catalogue/Catalogue.h>

#include <QCoreApplication>

#include <csignal>
#include <iostream>
#include <string>
#include <vector>

#ifndef _WIN32
#include <sys/resource.h>
#endif

namespace {

constexpr int kBatch = 100;

void LimitFileSize(unsigned long bytes) {
#ifndef _WIN32
  std::signal(SIGXFSZ, SIG_IGN);
  const rlimit limit{bytes, bytes};
  setrlimit(RLIMIT_FSIZE, &limit);
#else
  static_cast<void>(bytes);
#endif
}

}  // namespace

int main(int argc, char** argv) {
  using Zenvora::Lumidex::Host::Catalogue;
  const QCoreApplication application(argc, argv);
  try {
    Catalogue catalogue(argv[1], Catalogue::Mode::ReadWrite);
    if (argc > 3) {
      LimitFileSize(std::stoul(argv[3]));
    }
    for (int stored = 0;;) {
      std::vector<Zenvora::Lumidex::Host::PhotoRecord> batch(kBatch);
      for (auto& photo : batch) {
        photo.path = argv[2] + std::to_string(stored++);
      }
      catalogue.Store(batch);
      std::cout << stored << std::endl;
    }
  } catch (const std::exception& error) {
    std::cout << error.what() << std::endl;
    return 3;
  }
}
