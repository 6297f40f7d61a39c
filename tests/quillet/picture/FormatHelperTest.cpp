#include <zenvora/quillet/picture/FormatHelper.h>

#include <gtest/gtest.h>

#include <QByteArray>
#include <QImageWriter>
#include <QList>

#include <algorithm>
#include <set>
#include <string>

namespace Zenvora::Quillet {
namespace {

std::string NameOf(const std::string& extension, bool matchCase = false) {
  return FormatHelper::GetFormatDescriptionForExtension(extension, matchCase).first;
}

TEST(FormatHelper, KnowsWhatPeopleHave) {
  const std::pair<const char*, const char*> rows[] = {
      {"jpg", "JPEG"},    {"jpeg", "JPEG"}, {"jpe", "JPEG"},  {"jfif", "JPEG"}, {"png", "PNG"},
      {"tif", "TIFF"},    {"tiff", "TIFF"}, {"webp", "WebP"}, {"heic", "HEIC"}, {"heif", "HEIC"},
      {"hif", "HEIC"},    {"avif", "AVIF"}, {"gif", "GIF"},   {"bmp", "BMP"},   {"jp2", "JPEG 2000"},
      {"jxl", "JPEG XL"}, {"psd", "PSD"}};
  for (const auto& [extension, name] : rows) {
    EXPECT_EQ(NameOf(extension), name) << extension;
  }
}

TEST(FormatHelper, TakesTheFilesOfAllCamerasForRaw) {
  EXPECT_EQ(FormatHelper::FORMAT_RAW, "RAW");
  for (const char* extension :
       {"3fr", "arw", "cr2", "cr3", "crw", "dcr", "dng", "erf", "fff", "gpr", "iiq", "k25", "kdc", "mef",
        "mos", "mrw", "nef", "nrw", "orf", "pef", "raf", "raw", "rw2", "rwl", "sr2", "srf", "srw", "x3f"}) {
    EXPECT_EQ(NameOf(extension), FormatHelper::FORMAT_RAW) << extension;
    EXPECT_TRUE(FormatHelper::GetFormatDescriptionForExtension(extension, false).second.readOnly)
        << extension;
  }
}

TEST(FormatHelper, SaysWhatPhotosAre) {
  for (const auto& [name, record] : FormatHelper::GetFormats()) {
    EXPECT_EQ(record.photo, name != "PSD" && name != "JPEG 2000") << name;
  }
  EXPECT_FALSE(FormatHelper::GetFormatDescriptionForExtension("txt", false).second.photo);
}

TEST(FormatHelper, TakesExtensionsWithAndWithoutTheirDot) {
  EXPECT_EQ(NameOf(".jpg"), "JPEG");
  EXPECT_EQ(NameOf("jpg"), "JPEG");
  EXPECT_EQ(NameOf("..jpg"), "");
}

TEST(FormatHelper, MindsTheCaseOnlyWhenAsked) {
  for (const char* extension : {"JPG", ".Jpg", "jPG"}) {
    EXPECT_EQ(NameOf(extension, false), "JPEG") << extension;
    EXPECT_EQ(NameOf(extension, true), "") << extension;
  }
  EXPECT_EQ(NameOf("jpg", true), "JPEG");
}

TEST(FormatHelper, GivesAnEmptyNameToWhatItDoesNotKnow) {
  for (const std::string& extension :
       {std::string(), std::string("."), std::string("txt"), std::string("jpg "), std::string("\xff\xfe"),
        std::string("jp\0g", 4), std::string(100000, 'x')}) {
    const FormatHelper::Entry& entry = FormatHelper::GetFormatDescriptionForExtension(extension, false);
    EXPECT_EQ(entry.first, "");
    EXPECT_FALSE(entry.second.readOnly);
    EXPECT_TRUE(entry.second.extensions.empty());
  }
}

TEST(FormatHelper, GivesTheSameEntryAgain) {
  EXPECT_EQ(&FormatHelper::GetFormatDescriptionForExtension("jpg", false),
            &FormatHelper::GetFormatDescriptionForExtension(".JPEG", false));
  EXPECT_EQ(&FormatHelper::GetFormatDescriptionForExtension("txt", false),
            &FormatHelper::GetFormatDescriptionForExtension("", false));
}

TEST(FormatHelper, NamesEveryExtensionOnce) {
  std::set<std::string> seen;
  for (const auto& [name, record] : FormatHelper::GetFormats()) {
    EXPECT_FALSE(name.empty());
    EXPECT_FALSE(record.extensions.empty()) << name;
    for (const std::string& extension : record.extensions) {
      EXPECT_TRUE(seen.insert(extension).second) << extension;
      EXPECT_EQ(NameOf(extension, true), name) << extension;
    }
  }
}

// What else a desktop can write makes no difference: the list is what the packages of this program bring
// along.
TEST(FormatHelper, CallsWritableWhatThePackageWrites) {
#ifdef _WIN32
  const std::set<std::string> packaged = {"JPEG", "PNG", "BMP"};
#else
  const std::set<std::string> packaged = {"JPEG", "PNG", "BMP", "TIFF", "WebP"};
#endif
  const QList<QByteArray> writers = QImageWriter::supportedImageFormats();
  for (const auto& [name, record] : FormatHelper::GetFormats()) {
    EXPECT_EQ(!record.readOnly, packaged.count(name) == 1) << name;
    const bool isWritten = std::any_of(
        record.extensions.begin(), record.extensions.end(),
        [&](const std::string& extension) { return writers.contains(QByteArray::fromStdString(extension)); });
    EXPECT_TRUE(record.readOnly || isWritten) << name;
  }
}

}  // namespace
}  // namespace Zenvora::Quillet
