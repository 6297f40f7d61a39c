#pragma once

#include <zenvora/core/ioPath.h>
#include <zenvora/quillet/Export.h>

#include <QIODevice>

#include <fstream>

namespace Zenvora::Quillet {

/// Lets Qt's decoders read a file whose name is any bytes, piece by piece, without taking it into memory. Not
/// open when the file cannot be read. Opening waits for a pipe until somebody writes to it: ask `QueryFile`
/// first. An object belongs to one thread.
class ZENVORA_QUILLET_EXPORT FileDevice : public QIODevice {
 public:
  explicit FileDevice(const ioPath& file);
  ~FileDevice() override;

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

}  // namespace Zenvora::Quillet
