#pragma once

#include <zenvora/strandel/ByteView.h>

#include <QByteArray>
#include <QIODevice>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace Zenvora::Lumidex::Host {

inline Strandel::ByteView ViewOf(const QByteArray& bytes) {
  return std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size()));
}

/// The bytes of an open device that can seek, which is put back to where it was afterwards.
class DeviceBytes : public Strandel::ByteReader {
 public:
  explicit DeviceBytes(QIODevice& device) : device_(device), before_(device.pos()) {}
  ~DeviceBytes() override { device_.seek(before_); }
  DeviceBytes(const DeviceBytes&) = delete;
  DeviceBytes& operator=(const DeviceBytes&) = delete;

  std::uint64_t Size() const override { return static_cast<std::uint64_t>(device_.size()); }
  Strandel::ByteView At(std::uint64_t at, std::size_t count) override {
    if (at >= Size()) {
      return {};
    }
    count = static_cast<std::size_t>(std::min<std::uint64_t>(count, Size() - at));
    if (at < windowAt_ || at + count > windowAt_ + static_cast<std::size_t>(window_.size())) {
      constexpr std::size_t kAhead = std::size_t{16} * 1024;
      window_ = device_.seek(static_cast<qint64>(at))
                    ? device_.read(static_cast<qint64>(std::max(count, kAhead)))
                    : QByteArray();
      windowAt_ = at;
    }
    return ViewOf(window_).Part({at - windowAt_, count});
  }

 private:
  QIODevice& device_;
  const qint64 before_;
  QByteArray window_;
  std::uint64_t windowAt_ = 0;
};

}  // namespace Zenvora::Lumidex::Host
