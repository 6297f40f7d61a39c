#include <zenvora/quillet/picture/FormatHelper.h>

#include <algorithm>
#include <string_view>
#include <unordered_map>

namespace Zenvora::Quillet {

namespace {

// The package for Windows brings only those writers of pictures that Qt itself has.
#ifdef _WIN32
constexpr bool kHasAdditionalWriters = false;
#else
constexpr bool kHasAdditionalWriters = true;
#endif

FormatHelper::Entry Writable(const char* name, std::vector<std::string> extensions) {
  return {name, {false, std::move(extensions), true}};
}

FormatHelper::Entry ReadOnly(const char* name, std::vector<std::string> extensions) {
  return {name, {true, std::move(extensions), true}};
}

/// What belongs to a photo, or comes from no camera.
FormatHelper::Entry NoPhoto(const char* name, std::vector<std::string> extensions) {
  return {name, {true, std::move(extensions), false}};
}

FormatHelper::Entry Additional(const char* name, std::vector<std::string> extensions) {
  return {name, {!kHasAdditionalWriters, std::move(extensions), true}};
}

std::vector<FormatHelper::Entry> MakeFormats() {
  return {
      Writable("JPEG", {"jpg", "jpeg", "jpe", "jfif"}),
      Writable("PNG", {"png"}),
      Writable("BMP", {"bmp", "dib"}),
      Additional("TIFF", {"tif", "tiff"}),
      Additional("WebP", {"webp"}),
      ReadOnly("GIF", {"gif"}),
      ReadOnly("HEIC", {"heic", "heif", "hif"}),
      ReadOnly("AVIF", {"avif"}),
      ReadOnly("JPEG XL", {"jxl"}),
      NoPhoto("JPEG 2000", {"jp2", "j2k", "j2c", "jpc", "jpf", "jpx"}),
      NoPhoto("PSD", {"psd", "psb"}),
      ReadOnly(
          FormatHelper::FORMAT_RAW.c_str(),
          {"3fr", "arw", "cr2", "cr3", "crw", "dcr", "dng", "erf", "fff", "gpr", "iiq", "k25", "kdc", "mef",
           "mos", "mrw", "nef", "nrw", "orf", "pef", "raf", "raw", "rw2", "rwl", "sr2", "srf", "srw", "x3f"}),
  };
}

/// Of ASCII letters only, whatever the locale.
std::string LowerCase(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(), [](char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
  });
  return lower;
}

using Index = std::unordered_map<std::string, const FormatHelper::Entry*>;

Index MakeIndex() {
  Index index;
  for (const FormatHelper::Entry& entry : FormatHelper::GetFormats()) {
    for (const std::string& extension : entry.second.extensions) {
      index.emplace(extension, &entry);
    }
  }
  return index;
}

}  // namespace

const std::string FormatHelper::FORMAT_RAW = "RAW";

const std::vector<FormatHelper::Entry>& FormatHelper::GetFormats() {
  static const std::vector<Entry> formats = MakeFormats();
  return formats;
}

const FormatHelper::Entry& FormatHelper::GetFormatDescriptionForExtension(const std::string& extension,
                                                                          bool matchCase) {
  static const Index index = MakeIndex();
  static const Entry unknown;
  std::string_view ending = extension;
  if (!ending.empty() && ending.front() == '.') {
    ending.remove_prefix(1);
  }
  const auto found = index.find(matchCase ? std::string(ending) : LowerCase(ending));
  return found == index.end() ? unknown : *found->second;
}

}  // namespace Zenvora::Quillet
