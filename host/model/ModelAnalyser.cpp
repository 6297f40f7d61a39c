#include "ModelFault.h"
#include "ModelHead.h"
#include "ModelNet.h"
#include "ModelPixels.h"

#include <host/base/ContentHash.h>
#include <host/base/HostError.h>
#include <host/model/OnnxModel.h>

#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileState.h>

#include <QImage>

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <mutex>
#include <new>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

/// There is a copy in each thread.
constexpr std::uint64_t kMostModelBytes = 512ULL * 1024 * 1024;
constexpr std::size_t kMostNumbers = 65'536;

std::string ReadModel(const ioPath& file) {
  const FileState state = QueryFile(file);
  switch (state.kind) {
    case FileState::Kind::Missing:
      throw ModelFault("there is no such file");
    case FileState::Kind::Loop:
    case FileState::Kind::Unknown:
      throw ModelFault(ErrorText(state.error));
    case FileState::Kind::Folder:
      throw ModelFault("it is a folder");
    case FileState::Kind::Other:
      throw ModelFault("it is not a regular file");
    case FileState::Kind::File:
      break;
  }
  if (state.size == 0) {
    throw ModelFault("the file is empty");
  }
  if (state.size > kMostModelBytes) {
    throw ModelFault("the file is larger than 512 MiB");
  }
  std::ifstream stream(file.for_system(), std::ios::binary);
  if (!stream) {
    throw ModelFault("the file cannot be opened");
  }
  std::string bytes(static_cast<std::size_t>(state.size), '\0');
  if (!stream.read(bytes.data(), static_cast<std::streamsize>(bytes.size()))) {
    throw ModelFault("the file cannot be read to its end");
  }
  return bytes;
}

std::string DigestOf(const std::string& bytes) {
  ContentHash hash;
  hash.Add(bytes);
  return hash.Finish().toHex().toStdString();
}

/// Light from corner to corner: plain pictures lead some models into a division by zero.
QImage TrialPicture(const ModelHead& head) {
  constexpr int kWhite = 255;
  QImage picture(head.width, head.height, QImage::Format_RGB32);
  for (int y = 0; y < head.height; ++y) {
    for (int x = 0; x < head.width; ++x) {
      const int across = kWhite * x / head.width;
      const int down = kWhite * y / head.height;
      picture.setPixel(x, y, qRgb(across, down, (across + down) / 2));
    }
  }
  return picture;
}

class ModelAnalyser : public PhotoAnalyser {
 public:
  explicit ModelAnalyser(const ioPath& file)
      : bytes_(ReadModel(file)), head_(ReadModelHead(bytes_)), name_("onnx:" + DigestOf(bytes_)) {
    std::unique_ptr<ModelNet> net = MakeModelNet(bytes_, head_);
    length_ = net->Run(ModelPixels(TrialPicture(head_), head_)).size();
    if (length_ == 0 || length_ > kMostNumbers) {
      throw ModelFault("its output has " + std::to_string(length_) + " numbers, and needed are 1 to " +
                       std::to_string(kMostNumbers));
    }
    idle_.push_back(std::move(net));
  }

  std::string Name() const override { return name_; }
  int Version() const override { return kModelPixelsVersion; }
  int Size() const override { return static_cast<int>(length_); }
  /// Enough for pictures twice as wide as the model's; the middle of wider ones is made larger.
  int LongerSide() const override { return 2 * std::max(head_.width, head_.height); }

  std::vector<float> Describe(const QImage& picture) const override {
    if (picture.isNull()) {
      return {};
    }
    // After a failure it is not put back: it must not be used again.
    std::unique_ptr<ModelNet> net = TakeNet();
    std::vector<float> output = net->Run(ModelPixels(picture, head_));
    PutBack(std::move(net));
    return ModelVector(std::move(output), length_);
  }

 private:
  std::unique_ptr<ModelNet> TakeNet() const {
    {
      const std::lock_guard<std::mutex> lock(mutex_);
      if (!idle_.empty()) {
        std::unique_ptr<ModelNet> net = std::move(idle_.back());
        idle_.pop_back();
        return net;
      }
    }
    return MakeModelNet(bytes_, head_);
  }
  void PutBack(std::unique_ptr<ModelNet> net) const {
    const std::lock_guard<std::mutex> lock(mutex_);
    idle_.push_back(std::move(net));
  }

  const std::string bytes_;
  const ModelHead head_;
  const std::string name_;
  std::size_t length_ = 0;
  mutable std::mutex mutex_;
  mutable std::vector<std::unique_ptr<ModelNet>> idle_;
};

}  // namespace

std::unique_ptr<PhotoAnalyser> OpenOnnxModel(const ioPath& file) {
  std::string cause;
  try {
    return std::make_unique<ModelAnalyser>(file);
  } catch (const ModelFault& fault) {
    cause = fault.what();
  } catch (const std::bad_alloc&) {
    cause = "there is not enough memory";
  }
  ThrowHostError(file.utf8string(), "Cannot use the model " + file.utf8string() + ": " + cause);
}

}  // namespace Zenvora::Lumidex::Host
