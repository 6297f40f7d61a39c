#pragma once

#include <zenvora/core/ioPath.h>

#include <QSize>

#include <atomic>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

class QImage;

namespace Zenvora::Lumidex::Host {

/// Turns pictures into vectors whose cosine tells how alike the pictures are.
class PhotoAnalyser {
 public:
  virtual ~PhotoAnalyser() = default;

  /// Stored beside every vector. Vectors of different names or versions must never be compared.
  virtual std::string Name() const = 0;
  virtual int Version() const = 0;
  /// How many floats every vector has.
  virtual int Size() const = 0;
  /// The longer side in pixels of the pictures that it wants; at least 1. Smaller ones do when a photo has no
  /// more.
  virtual int LongerSide() const = 0;
  /// The vector of an upright picture in sRGB: finite and of length 1. Empty for a null picture. The same
  /// picture gives the same bits. Throws when it has none for a picture, with the cause as `what()`. Safe
  /// from any thread.
  virtual std::vector<float> Describe(const QImage& picture) const = 0;

 protected:
  PhotoAnalyser() = default;
  PhotoAnalyser(const PhotoAnalyser&) = default;
  PhotoAnalyser& operator=(const PhotoAnalyser&) = default;
};

/// The analyser that needs nothing from outside: layout of light and colour and directions of edges, 256
/// floats. Made for a cosine above 0.91 to mean the same picture or the same moment; what it is made of is in
/// docs/decisions/similar-photos.md.
///
/// Transparent parts count as white. A picture of one colour has a vector too, which says its colour: two of
/// (nearly) the same colour are alike.
class LayoutAnalyser : public PhotoAnalyser {
 public:
  static constexpr int kSize = 256;

  std::string Name() const override { return "layout"; }
  int Version() const override { return 1; }
  int Size() const override { return kSize; }
  int LongerSide() const override { return 160; }
  std::vector<float> Describe(const QImage& picture) const override;
};

/// Where the pixels of a description came from.
enum class PixelSource {
  None,     ///< There were none to be had.
  Preview,  ///< A thumbnail or another preview that the file carries.
  Picture,  ///< The picture itself.
};

/// One photo, described or not.
struct PhotoDescription {
  /// Empty when the photo could not be described.
  std::vector<float> descriptor;
  PixelSource source = PixelSource::None;
  /// The whole picture's pixels, upright; empty when not known.
  QSize size;
  /// Why there is no descriptor, in English, without the file's name.
  std::string cause;
  /// The cause is not the file's own: another try may do better.
  bool mayPass = false;
};

struct AnalysisOptions {
  /// 0: one per core, at most 8.
  int threads = 0;
  /// Also takes pixels from previews of JPEG files, where these show the picture's shape. Files whose picture
  /// nothing here can decode are described from their previews in any case.
  bool usePreviews = true;
  /// Set from any thread (a signal handler too) to stop soon.
  const std::atomic<bool>* cancel = nullptr;
};

/// Describes one photo from the cheapest pixels that will do. Never throws for bad content and never changes
/// the file; does not wait on what is no regular file. Huge pictures are refused before memory is taken for
/// them. Blocks on the disk; safe from any thread. `options.threads` and `options.cancel` mean nothing here.
PhotoDescription DescribePhoto(const ioPath& file, const PhotoAnalyser& analyser,
                               const AnalysisOptions& options = AnalysisOptions());

/// The description of the file with this index.
using DescriptionHandler = std::function<void(std::size_t, PhotoDescription&&)>;

/// Describes many photos in several threads. `take` is called on the calling thread, in the order of the
/// files, once for each; its exceptions end the work and are passed on. Returns how many were handed out: all
/// but after a cancel. What is handed out does not depend on the number of threads. Memory is bounded by the
/// threads, not by the files.
std::size_t DescribePhotos(const std::vector<ioPath>& files, const PhotoAnalyser& analyser,
                           const AnalysisOptions& options, const DescriptionHandler& take);

}  // namespace Zenvora::Lumidex::Host
