#include "EditRefusal.h"
#include "ExivImage.h"
#include "ExivLock.h"
#include "MetadataPlan.h"
#include "PlanCheck.h"
#include "StagingFile.h"
#include "XmpPlaces.h"

#include <zenvora/core/FileState.h>
#include <zenvora/strandel/PhotoSource.h>
#include <zenvora/strandel/SidecarEdit.h>

#include <exiv2/exiv2.hpp>

#include <QByteArray>
#include <QString>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <exception>
#include <new>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace Zenvora::Strandel {

namespace {

/// The text of a sidecar in UTF-8, and how it is written in the file.
class SidecarText {
 public:
  explicit SidecarText(const std::string& bytes) : form_(FormOf(bytes)) {
    // Qt would leave the mark out.
    mark_ = bytes.substr(0, form_ == Form::Bytes || bytes[0] == '\0' || bytes[1] == '\0' ? 0 : 2);
    text_ = form_ == Form::Bytes ? bytes : FromUtf16(bytes.substr(mark_.size()));
  }

  const std::string& Utf8() const { return text_; }
  std::string BytesOf(const std::string& text) const {
    return form_ == Form::Bytes ? text : mark_ + ToUtf16(text);
  }

 private:
  enum class Form { Bytes, BigEndian, LittleEndian };

  /// By the mark at the beginning, or by where the zeros of the first '<' stand.
  static Form FormOf(const std::string& bytes) {
    const auto begins = [&bytes](char first, char second) {
      return bytes.size() >= 2 && bytes[0] == first && bytes[1] == second;
    };
    return begins('\xFE', '\xFF') || begins('\0', '<')   ? Form::BigEndian
           : begins('\xFF', '\xFE') || begins('<', '\0') ? Form::LittleEndian
                                                         : Form::Bytes;
  }

  std::string FromUtf16(const std::string& bytes) const {
    QString text(static_cast<int>(bytes.size() / 2), Qt::Uninitialized);
    for (int i = 0; i < text.size(); ++i) {
      const char* const unit = bytes.data() + std::ptrdiff_t{2} * i;
      text[i] =
          QChar(form_ == Form::BigEndian ? qFromBigEndian<quint16>(unit) : qFromLittleEndian<quint16>(unit));
    }
    return text.toStdString();
  }

  std::string ToUtf16(const std::string& utf8) const {
    const QString text = QString::fromStdString(utf8);
    std::string bytes(static_cast<std::size_t>(text.size()) * 2, '\0');
    for (int i = 0; i < text.size(); ++i) {
      char* const unit = bytes.data() + std::ptrdiff_t{2} * i;
      const quint16 value = text[i].unicode();
      form_ == Form::BigEndian ? qToBigEndian(value, unit) : qToLittleEndian(value, unit);
    }
    return bytes;
  }

  Form form_;
  std::string mark_;  ///< Of the order of bytes; may be empty.
  std::string text_;
};

/// What it declares of its encoding is not true of the text any more.
std::string WithoutDeclaration(std::string text) {
  const std::size_t begin = text.find("<?xml ");
  const std::size_t end = begin == std::string::npos ? begin : text.find("?>", begin);
  if (end != std::string::npos) {
    std::fill(text.begin() + static_cast<std::ptrdiff_t>(begin),
              text.begin() + static_cast<std::ptrdiff_t>(end) + 2, ' ');
  }
  return text;
}

/// Needs the lock.
Exiv2::XmpData Decode(const std::string& text) {
  constexpr std::string_view kMark = "\xEF\xBB\xBF";
  const std::size_t begin = std::string_view(text).substr(0, kMark.size()) == kMark ? kMark.size() : 0;
  Exiv2::XmpData data;
  if (Exiv2::XmpParser::decode(data, WithoutDeclaration(text.substr(begin))) != 0) {
    throw EditRefusal("its XMP data are damaged");
  }
  return data;
}

/// The dates that the photo itself says; none where nothing can be read of it.
Exiv2::ExifData ExifOf(const ioPath& photo) {
  Exiv2::ExifData exif;
  try {
    std::string cause;
    PhotoSource source;
    if (source.Open(photo, cause)) {
      ExivImage image(source);
      if (image.IsPicture()) {
        image.ReadMetadata(cause);
        std::swap(exif, image.Image().exifData());
      }
    }
  } catch (const Exiv2::AnyError&) {
    return {};
  }
  return exif;
}

/// Anything else in a file is none of an edit's business, damaged or not.
bool NamesWhatChanges(const std::string& text, const PhotoEdit& edit) {
  static constexpr std::array<const char*, 6> kDates = {
      "DateTimeOriginal", "DateCreated", "DateTimeDigitized", "CreateDate", "DateTime", "ModifyDate"};
  const auto isThere = [&text](const char* name) { return text.find(name) != std::string::npos; };
  return (edit.turn != Turn::None && isThere("Orientation")) ||
         ((edit.shift.count() != 0 || edit.date.isValid()) &&
          std::any_of(kDates.begin(), kDates.end(), isThere));
}

void ChangeInPlace(std::string& text, const XmpChange& change) {
  const std::size_t colon = change.name.find(':');
  const std::string space = Exiv2::XmpProperties::ns(change.name.substr(0, colon));
  std::vector<XmpPlace> places = FindXmpPlaces(text);
  // From the end, so that the places before stay true.
  std::reverse(places.begin(), places.end());
  bool found = false;
  for (const XmpPlace& place : places) {
    if (place.space != space || place.name != change.name.substr(colon + 1)) {
      continue;
    }
    const std::size_t at = text.find(change.before, place.at);
    if (at == std::string::npos || at + change.before.size() > place.at + place.size) {
      found = false;
      break;
    }
    text.replace(at, change.before.size(), change.after);
    found = true;
  }
  if (!found) {
    throw EditRefusal("its " + change.name + " cannot be changed in place");
  }
}

/// The reader of XMP looks each property up among all others: too many of them keep it busy for a minute.
bool HoldsTooMany(const std::string& text) {
  constexpr std::ptrdiff_t kMostProperties = 10'000;
  return std::count(text.begin(), text.end(), '=') > kMostProperties;
}

/// What is cut may have had what the edit changes behind the cut. Other files than XML are none of its
/// business.
void RefuseCut(const std::string& text) {
  constexpr std::string_view kBefore = "\xEF\xBB\xBF \t\r\n";
  const std::size_t begin = text.find_first_not_of(kBefore);
  if (begin == std::string::npos || text[begin] != '<' || HoldsTooMany(text)) {
    return;
  }
  FindXmpPlaces(text);
  const std::size_t packet = text.find("<?xpacket begin");
  if (packet != std::string::npos && text.find("<?xpacket end", packet) == std::string::npos) {
    throw EditRefusal("it breaks off before its end");
  }
}

/// Nothing when the edit changes nothing in it.
std::optional<std::string> Edited(const std::string& bytes, const ioPath& photo, const PhotoEdit& edit) {
  const SidecarText sidecar(bytes);
  RefuseCut(sidecar.Utf8());
  if (!NamesWhatChanges(sidecar.Utf8(), edit)) {
    return std::nullopt;
  }
  if (sidecar.BytesOf(sidecar.Utf8()) != bytes) {
    throw EditRefusal("its text is damaged");
  }
  if (HoldsTooMany(sidecar.Utf8())) {
    throw EditRefusal("it has too many properties");
  }
  const Exiv2::ExifData exif = ExifOf(photo);
  const auto lock = LockExiv();
  const Exiv2::XmpData before = Decode(sidecar.Utf8());
  const MetadataPlan plan = PlanSidecarEdit(exif, before, edit);
  if (plan.xmp.empty()) {
    return std::nullopt;
  }
  std::string text = sidecar.Utf8();
  for (const XmpChange& change : plan.xmp) {
    ChangeInPlace(text, change);
  }
  CheckXmpAgainstPlan(before, Decode(text), plan);
  return sidecar.BytesOf(text);
}

std::string ReadWhole(const ioPath& sidecar) {
  PhotoSource source;
  std::string cause;
  if (!source.Open(sidecar, cause)) {
    throw EditRefusal(cause);
  }
  static_assert(kMostSidecarBytes >> 20U == 4, "the cause below says so");
  if (source.Size() > kMostSidecarBytes) {
    throw EditRefusal("it is larger than 4 MiB");
  }
  std::string bytes(static_cast<std::size_t>(source.Size()), '\0');
  const bool whole = source.ReadAll(0, bytes.data(), bytes.size());
  if (!whole) {
    throw EditRefusal(source.Failure().empty() ? "it was changed while it was read" : source.Failure());
  }
  return bytes;
}

[[noreturn]] void Throw(const ioPath& sidecar, const std::string& cause) {
  BOOST_THROW_EXCEPTION(PhotoEditError()
                        << TagFilename(sidecar.utf8string())
                        << TagDescription("Cannot edit " + sidecar.utf8string() + ": " + cause));
}

template <class Work>
bool Explaining(const ioPath& sidecar, const Work& work) {
  try {
    return work();
  } catch (const EditRefusal& refusal) {
    Throw(sidecar, refusal.what());
  } catch (const std::bad_alloc&) {
    Throw(sidecar, "editing it takes more memory than there is");
  } catch (const Exception&) {
    throw;
  } catch (const std::exception& error) {
    Throw(sidecar, std::string("it is damaged: ") + error.what());
  }
}

}  // namespace

bool TryEditSidecar(const ioPath& sidecar, const ioPath& photo, const PhotoEdit& edit) {
  return Explaining(sidecar, [&] { return Edited(ReadWhole(sidecar), photo, edit).has_value(); });
}

bool WriteEditedSidecar(const ioPath& sidecar, const ioPath& staging, const ioPath& photo,
                        const PhotoEdit& edit) {
  return Explaining(sidecar, [&] {
    const std::int64_t modifiedNs = QueryFile(sidecar).modifiedNs;
    const std::optional<std::string> bytes = Edited(ReadWhole(sidecar), photo, edit);
    if (bytes) {
      WriteStagingFile(staging, sidecar, modifiedNs, *bytes);
    }
    return bytes.has_value();
  });
}

}  // namespace Zenvora::Strandel
