#include <zenvora/quillet/picture/FileDevice.h>

#include <algorithm>

namespace Zenvora::Quillet {

FileDevice::~FileDevice() = default;

FileDevice::FileDevice(const ioPath& file) : stream_(file.for_system(), std::ios::binary) {
  if (stream_ && stream_.seekg(0, std::ios::end)) {
    size_ = std::max<qint64>(0, stream_.tellg());
    stream_.seekg(0);
    open(QIODevice::ReadOnly);
  }
}

bool FileDevice::seek(qint64 position) {
  if (!QIODevice::seek(position)) {
    return false;
  }
  stream_.clear();
  return static_cast<bool>(stream_.seekg(position));
}

qint64 FileDevice::readData(char* data, qint64 most) {
  stream_.read(data, most);
  const qint64 got = stream_.gcount();
  // A file that got shorter meanwhile ends where it ends.
  return got == 0 && most > 0 ? -1 : got;
}

}  // namespace Zenvora::Quillet
