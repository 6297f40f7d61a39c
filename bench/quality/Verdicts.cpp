#include "Verdicts.h"

#include "Drawn.h"
#include "Photos.h"
#include "SampleScenes.h"

#include <host/pixels/DetailMeter.h>
#include <host/pixels/PhotoAnalysis.h>
#include <host/pixels/PictureVerdict.h>
#include <host/shots/PhotoOrigin.h>
#include <host/similar/SimilarKeeper.h>

#include <exiv2/exiv2.hpp>

#include <QBuffer>
#include <QPainter>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <cstdio>
#include <fstream>
#include <functional>
#include <stdexcept>
#include <string>
#include <utility>

namespace Zenvora::Bench {

namespace {

using namespace Lumidex::Host;  // NOLINT(google-build-using-namespace): a program's own file.

enum class Goal { Same, Alike, Never, NotSame };

bool IsAsWished(Goal goal, Verdict verdict) {
  switch (goal) {
    case Goal::Same:
      return verdict == Verdict::Same;
    case Goal::Alike:
      return verdict == Verdict::Alike;
    case Goal::Never:
      return verdict == Verdict::Different || verdict == Verdict::Unknown;
    case Goal::NotSame:
      return verdict != Verdict::Same;
  }
  return false;
}

struct RowCount {
  std::string name;
  Goal goal;
  std::array<int, 4> verdicts{};
  double worst = 0;  ///< Of those that are the same the largest, of the others the smallest.

  int All() const { return verdicts[0] + verdicts[1] + verdicts[2] + verdicts[3]; }
  int Of(Verdict verdict) const { return verdicts.at(static_cast<std::size_t>(verdict)); }
  /// How many are as they should be.
  int Right() const {
    int right = 0;
    for (const Verdict verdict : {Verdict::Unknown, Verdict::Same, Verdict::Alike, Verdict::Different}) {
      right += IsAsWished(goal, verdict) ? Of(verdict) : 0;
    }
    return right;
  }
};

constexpr double kMostMissed = 0.05;

class Table {
 public:
  void Add(const std::string& name, Goal goal, const PictureVerdict& verdict) {
    auto row = std::find_if(rows_.begin(), rows_.end(), [&](const RowCount& r) { return r.name == name; });
    if (row == rows_.end()) {
      rows_.push_back({name, goal, {}, 0});
      row = rows_.end() - 1;
    }
    ++row->verdicts.at(static_cast<std::size_t>(verdict.verdict));
    row->worst = std::max(row->worst, verdict.worst);
  }

  /// What must never happen decides; of copies and versions some may be missed.
  bool Print() const {
    bool met = true;
    std::printf("| %-34s | pairs | same | alike | different | unknown | as wished |\n", "verdicts");
    std::printf(
        "|------------------------------------|-------|------|-------|-----------|---------|-----------|\n");
    for (const RowCount& row : rows_) {
      std::printf("| %-34s | %5d | %4d | %5d | %9d | %7d | %9d |\n", row.name.c_str(), row.All(),
                  row.Of(Verdict::Same), row.Of(Verdict::Alike), row.Of(Verdict::Different),
                  row.Of(Verdict::Unknown), row.Right());
      const bool isPromise = row.goal == Goal::Never || row.goal == Goal::NotSame;
      const bool hasFalseCopies = row.goal == Goal::Alike && row.Of(Verdict::Same) > 0;
      met = met && !hasFalseCopies &&
            row.All() - row.Right() <= (isPromise ? 0 : static_cast<int>(kMostMissed * row.All() + 0.5));
    }
    return met;
  }

 private:
  std::vector<RowCount> rows_;
};

std::string Encoded(const QImage& picture, const char* format, int quality) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  if (!picture.save(&buffer, format, quality)) {
    throw std::runtime_error(std::string("cannot encode a picture as ") + format);
  }
  return buffer.data().toStdString();
}

QImage Scaled(const QImage& picture, double factor) {
  return picture.scaled(qRound(picture.width() * factor), qRound(picture.height() * factor),
                        Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

template <class Change>
QImage EachPixel(QImage picture, const Change& change) {
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      picture.setPixel(x, y, change(x, y));
    }
  }
  return picture;
}

QImage Brighter(const QImage& picture, double factor) {
  const auto value = [factor](int was) { return std::min(255, qRound(was * factor)); };
  return EachPixel(picture, [&](int x, int y) {
    const QRgb was = picture.pixel(x, y);
    return qRgb(value(qRed(was)), value(qGreen(was)), value(qBlue(was)));
  });
}

QImage Grey(const QImage& picture) {
  return EachPixel(picture, [&](int x, int y) {
    const QRgb was = picture.pixel(x, y);
    const int light = (299 * qRed(was) + 587 * qGreen(was) + 114 * qBlue(was)) / 1000;
    return qRgb(light, light, light);
  });
}

QImage Sharpened(const QImage& picture) {
  return EachPixel(picture, [&](int x, int y) {
    if (x == 0 || y == 0 || x + 1 == picture.width() || y + 1 == picture.height()) {
      return picture.pixel(x, y);
    }
    const auto value = [&](int (*of)(QRgb)) {
      const int around = of(picture.pixel(x - 1, y)) + of(picture.pixel(x + 1, y)) +
                         of(picture.pixel(x, y - 1)) + of(picture.pixel(x, y + 1));
      return std::clamp(2 * of(picture.pixel(x, y)) - around / 4, 0, 255);
    };
    return qRgb(value(qRed), value(qGreen), value(qBlue));
  });
}

QImage Turned(const QImage& picture, double degrees) {
  QImage turned(picture.size(), QImage::Format_RGB32);
  turned.fill(Qt::black);
  QPainter painter(&turned);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.translate(picture.width() / 2.0, picture.height() / 2.0);
  painter.rotate(degrees);
  painter.drawImage(QPointF(-picture.width() / 2.0, -picture.height() / 2.0), picture);
  return turned;
}

QImage Framed(const QImage& picture) {
  const int border = std::max(picture.width(), picture.height()) / 15;
  QImage framed(picture.width() + 2 * border, picture.height() + 2 * border, QImage::Format_RGB32);
  framed.fill(Qt::white);
  QPainter(&framed).drawImage(border, border, picture);
  return framed;
}

QImage Part(const QImage& picture, double left, double top, double size) {
  return picture.copy(qRound(picture.width() * left), qRound(picture.height() * top),
                      qRound(picture.width() * size), qRound(picture.height() * size));
}

class Measuring {
 public:
  explicit Measuring(const VerdictOptions& options) : options_(options) {}

  bool Run() {
    if (options_.folder.empty()) {
      for (const std::uint32_t seed : options_.seeds) {
        for (std::size_t i = 0; i < options_.originals; ++i) {
          MeasureOriginal(DrawOriginal(seed, i));
        }
      }
    } else {
      PhotoChoice choice;
      choice.folder = options_.folder;
      const Photos photos = ChoosePhotos(choice);
      for (std::size_t i = 0; i < std::min(options_.originals, photos.files.size()); ++i) {
        MeasureOriginal(
            photos.files[i * photos.files.size() / std::min(options_.originals, photos.files.size())]);
      }
    }
    for (const std::uint32_t seed : options_.seeds) {
      MeasureDrawn(seed);
    }
    const bool met = table_.Print();
    std::printf("\nthe original is kept: %d of %d\n", kept_, keepers_);
    std::printf("the original is kept where neither has EXIF and the copy is enlarged: %d of %d\n", bareKept_,
                bareKeepers_);
    return met && kept_ == keepers_ && bareKeepers_ - bareKept_ <= kMostMissed * bareKeepers_;
  }

 private:
  ioPath Write(const std::string& name, const std::string& bytes) const {
    const ioPath file = ioPath(work_.path()) / name;
    std::ofstream(file.for_system(), std::ios::binary)
        .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return file;
  }

  ioPath DrawOriginal(std::uint32_t seed, std::size_t number) {
    SceneLook look;
    look.kind = static_cast<SceneKind>((seed + number) % kSceneKinds);
    look.seed = seed * 1000 + static_cast<std::uint32_t>(number);
    look.grainSeed = look.seed;
    look.hour = 9 + static_cast<double>(number % 8);
    look.size = {960, 720};
    const QImage picture = DrawScene(look);
    const ioPath file = Write("DSC_" + std::to_string(1000 + number) + ".JPG", Encoded(picture, "JPEG", 94));
    const auto image = Exiv2::ImageFactory::open(file.utf8string());
    Exiv2::ExifData exif;
    exif["Exif.Image.Make"] = "Maker";
    exif["Exif.Image.Model"] = "Model X";
    exif["Exif.Photo.DateTimeOriginal"] = "2021:05:01 10:20:30";
    exif["Exif.Photo.PixelXDimension"] = static_cast<std::uint32_t>(look.size.width());
    exif["Exif.Photo.PixelYDimension"] = static_cast<std::uint32_t>(look.size.height());
    const std::string thumbnail = Encoded(Scaled(picture, 1.0 / 6), "JPEG", 80);
    Exiv2::ExifThumb(exif).setJpegThumbnail(reinterpret_cast<const Exiv2::byte*>(thumbnail.data()),
                                            static_cast<long>(thumbnail.size()));
    image->setExifData(exif);
    image->writeMetadata();
    return file;
  }

  /// The picture as a file with the metadata of another one, its thumbnail as well.
  ioPath WithMetadataOf(const ioPath& from, const std::string& name, const QImage& picture,
                        int quality) const {
    const ioPath file = Write(name, Encoded(picture, "JPEG", quality));
    const auto source = Exiv2::ImageFactory::open(from.utf8string());
    source->readMetadata();
    const auto target = Exiv2::ImageFactory::open(file.utf8string());
    target->setExifData(source->exifData());
    target->writeMetadata();
    return file;
  }

  static int OrientationOf(const ioPath& file) {
    const auto image = Exiv2::ImageFactory::open(file.utf8string());
    image->readMetadata();
    const auto found = image->exifData().findKey(Exiv2::ExifKey("Exif.Image.Orientation"));
    return found == image->exifData().end() ? 1 : static_cast<int>(found->toLong());
  }

  static SimilarMember MemberOf(const ioPath& file) {
    SimilarMember member;
    member.photo.path = file;
    AnalysisOptions whole;
    whole.usePreviews = false;
    const PhotoDescription detail = DescribePhoto(file, DetailMeter(), whole);
    member.features.width = detail.size.width();
    member.features.height = detail.size.height();
    member.features.sharpness =
        detail.descriptor.empty() ? 0 : static_cast<double>(detail.descriptor.front());
    member.origin = ReadPhotoOrigin(file);
    return member;
  }

  /// Says of what file something is not as wished, when that was asked for.
  void List(const ioPath& original, const QImage& picture, const std::string& text) const {
    if (options_.isListing) {
      std::printf("not as wished: %s (%d x %d): %s\n", original.filename().utf8string().c_str(),
                  picture.width(), picture.height(), text.c_str());
    }
  }

  /// True when of an original and its copy the original is suggested; looks for enlarged ones as groups do.
  static bool IsOriginalKept(const ioPath& original, const ioPath& copy, std::string* reason = nullptr) {
    std::vector<SimilarMember> members = {MemberOf(copy), MemberOf(original)};
    members[0].origin->enlarged =
        MayBeEnlarged(members[0], members[1]) && JudgedAgainst(copy).IsKeptEnlarged(original);
    const KeeperChoice choice = SuggestKeeper(members);
    if (reason != nullptr && !choice.reasons.empty()) {
      *reason = KeeperReasonName(choice.reasons.front());
    }
    return choice.index == 1;
  }

  void CountKeeper(const ioPath& original, const QImage& picture, const ioPath& copy) {
    std::string reason;
    const bool isKept = IsOriginalKept(original, copy, &reason);
    ++keepers_;
    kept_ += isKept ? 1 : 0;
    if (!isKept) {
      List(original, picture, row_ + ": the copy is kept, " + reason);
    }
  }

  /// Of an original and its enlarged copy, both without EXIF; the names say nothing.
  void CountBareKeeper(const QImage& picture, double factor) {
    const ioPath original = Write("b.jpg", Encoded(picture, "JPEG", 94));
    const ioPath copy = Write("a.jpg", Encoded(Scaled(picture, factor), "JPEG", 88));
    ++bareKeepers_;
    bareKept_ += IsOriginalKept(original, copy) ? 1 : 0;
  }

  void MeasureOriginal(const ioPath& original) {
    constexpr int kSide = 2000;
    constexpr int kQuality = 88;
    const QImage picture = PictureOf(original, kSide).convertToFormat(QImage::Format_RGB32);
    const std::string own = "copy.jpg";
    JudgedAgainst against(original);
    const auto judge = [&](const std::string& name, Goal goal, const ioPath& file) {
      const PictureVerdict verdict = against.Judge(file);
      table_.Add(name, goal, verdict);
      row_ = name;
      if (!IsAsWished(goal, verdict.verdict)) {
        List(original, picture, name + ": " + VerdictName(verdict.verdict) + ", " + verdict.why);
      }
      return file;
    };
    const auto jpeg = [&](const QImage& changed, int quality) {
      return Write(own, Encoded(changed, "JPEG", quality));
    };
    CountKeeper(original, picture, judge("quality 20", Goal::Same, jpeg(picture, 20)));
    judge("quality 40", Goal::Same, jpeg(picture, 40));
    CountKeeper(original, picture, judge("quality 70", Goal::Same, jpeg(picture, 70)));
    CountKeeper(original, picture,
                judge("resized to 50 %", Goal::Same, jpeg(Scaled(picture, 0.5), kQuality)));
    CountKeeper(original, picture,
                judge("enlarged to 150 %", Goal::Same, jpeg(Scaled(picture, 1.5), kQuality)));
    CountBareKeeper(picture, 1.25);
    CountBareKeeper(picture, 2);
    judge("PNG", Goal::Same, Write("copy.png", Encoded(picture, "PNG", -1)));
    {
      const std::string bytes = [&] {
        std::ifstream in(original.for_system(), std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(in), {});
      }();
      const ioPath stripped = Write("stripped" + original.extension().utf8string(), bytes);
      const auto image = Exiv2::ImageFactory::open(stripped.utf8string());
      image->readMetadata();
      image->clearMetadata();
      // Without its orientation it would be another picture.
      if (const int turn = OrientationOf(original); turn > 1) {
        image->exifData()["Exif.Image.Orientation"] = static_cast<std::uint16_t>(turn);
      }
      image->writeMetadata();
      CountKeeper(original, picture, judge("stripped of metadata", Goal::Same, stripped));
    }
    CountKeeper(original, picture,
                judge("sharpened", Goal::Alike, WithMetadataOf(original, own, Sharpened(picture), kQuality)));
    judge("cropped by 5 %", Goal::Alike, jpeg(Part(picture, 0.05, 0.05, 0.95), kQuality));
    judge("turned 2 degrees", Goal::Alike, jpeg(Turned(picture, 2), kQuality));
    judge("15 % darker", Goal::Alike, jpeg(Brighter(picture, 0.85), kQuality));
    judge("15 % brighter", Goal::Alike, jpeg(Brighter(picture, 1.15), kQuality));
    judge("framed", Goal::Alike, jpeg(Framed(picture), kQuality));
    judge("mirrored", Goal::Alike, jpeg(picture.mirrored(true, false), kQuality));
    judge("greyscale", Goal::Alike, jpeg(Grey(picture), kQuality));
    judge("lower right 40 %, EXIF kept", Goal::Never,
          WithMetadataOf(original, own, Part(picture, 0.6, 0.6, 0.4), kQuality));
    QImage other = picture;
    QPainter painter(&other);
    const int side = std::max(8, std::max(other.width(), other.height()) / 30);
    const QRect place(other.width() * 3 / 5, other.height() / 3, side, side);
    const bool isLight = qGray(other.pixel(place.center())) > 128;
    painter.setBrush(isLight ? QColor(40, 40, 40) : QColor(220, 220, 220));
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(place);
    painter.end();
    judge("a small thing more", Goal::NotSame, jpeg(other, kQuality));
    if (!last_.isNull()) {
      judge("another photo, EXIF kept", Goal::Never, WithMetadataOf(original, own, last_, kQuality));
    }
    last_ = picture;
  }

  void MeasurePairs(const std::string& name, const std::function<QImage(std::uint32_t)>& draw) {
    std::vector<ioPath> files;
    for (std::uint32_t i = 0; i < options_.drawn; ++i) {
      files.push_back(Write(name + std::to_string(i) + ".jpg", Encoded(draw(i), "JPEG", 85)));
    }
    // Each against the next two, and the ones in one group with the first.
    for (std::size_t i = 0; i < files.size(); ++i) {
      for (const std::size_t step : {1U, 2U}) {
        table_.Add(name, Goal::Never, JudgePicture(files[(i + step) % files.size()], files[i]));
      }
    }
  }

  void MeasureDrawn(std::uint32_t seed) {
    MeasurePairs("other pages", [seed](std::uint32_t i) { return DrawPage(seed, i); });
    MeasurePairs("other receipts", [seed](std::uint32_t i) { return DrawReceipt(seed, i); });
    MeasurePairs("other screens", [seed](std::uint32_t i) { return DrawScreen(seed, i); });
    MeasurePairs("other potatoes on a table", [seed](std::uint32_t i) { return DrawPotato(seed, i); });
    MeasurePairs("other plain blues", [seed](std::uint32_t i) {
      QImage image(400, 300, QImage::Format_RGB32);
      image.fill(
          QColor::fromHsv(220, 120 + static_cast<int>((seed + 7 * i) % 130), 90 + static_cast<int>(i) * 8));
      return image;
    });
    const auto save = [&](const QImage& picture, int quality, const std::string& name) {
      return Write(name, Encoded(picture, "JPEG", quality));
    };
    for (std::uint32_t i = 0; i < std::max<std::size_t>(1, options_.drawn / 5); ++i) {
      const QImage screen = DrawLargeScreen(seed, i, false);
      const QImage changed = DrawLargeScreen(seed, i, true);
      for (const int quality : {85, 95}) {
        const ioPath kept = save(screen, quality, "screen.jpg");
        table_.Add("one other letter at 4K", Goal::NotSame,
                   JudgePicture(save(changed, 85, "letter.jpg"), kept));
        table_.Add("one other letter at 4K", Goal::NotSame,
                   JudgePicture(save(changed, 95, "letter.jpg"), kept));
        table_.Add("screen at 4K at quality 75", Goal::Same,
                   JudgePicture(save(screen, 75, "letter.jpg"), kept));
      }
    }
    for (std::uint32_t i = 0; i < options_.drawn / 2; ++i) {
      const ioPath page = save(DrawPage(seed, i), 92, "page.jpg");
      const QImage changed = DrawPage(seed, i, 40 + static_cast<int>(i) * 11);
      table_.Add("one other word", Goal::Never, JudgePicture(save(changed, 90, "word.jpg"), page));
      table_.Add("one other word, quality 20", Goal::Never,
                 JudgePicture(save(changed, 20, "word.jpg"), page));
      table_.Add("one other word, at 60 %", Goal::Never,
                 JudgePicture(save(Scaled(changed, 0.6), 85, "word.jpg"), page));
      table_.Add("page at quality 20", Goal::Same,
                 JudgePicture(save(DrawPage(seed, i), 20, "word.jpg"), page));
    }
  }

  const VerdictOptions options_;
  const QTemporaryDir work_;
  Table table_;
  QImage last_;
  std::string row_;  ///< The one that was measured last.
  int kept_ = 0;
  int keepers_ = 0;
  int bareKept_ = 0;
  int bareKeepers_ = 0;
};

}  // namespace

bool MeasureVerdicts(const VerdictOptions& options) {
  return Measuring(options).Run();
}

}  // namespace Zenvora::Bench
