#pragma once

#include <zenvora/core/ioPath.h>

#include <QIODevice>

#include <fstream>

namespace Zenvora::Lumidex::Host {

/// Lets Qt's decoders read a file whose name is any bytes, piece by piece, without taking it into memory.
class FileDevice : public QIODevice {
 public:
  explicit FileDevice(const ioPath& file);

  bool isSequential() const override { return false; }
  qint64 size() const override { return size_; }
  bool seek(qint64 position) override;

 protected:
  qint64 readData(char* data, qint64 most) override;
  qint64 writeData(const char*, qint64) override { return -1; }

 private:
  std::ifstream stream_;
  qint64 size_ = 0;
};

}  // namespace Zenvora::Lumidex::Host
