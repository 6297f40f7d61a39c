// What the readers say beside what exiftool says of the same files: made ones always, and those of the folder
// that LUMIDEX_TEST_PHOTOS names.

#include <LumidexUtil/MetadataReaders.h>
#include <support/PhotoMaker.h>
#include <support/TempTree.h>

#include <zenvora/strandel/MetadataSettings.h>
#include <zenvora/tavolin/FileDateTime.h>

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>

#include <cmath>
#include <filesystem>
#include <initializer_list>
#include <iostream>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace Zenvora::Test {
namespace {

using Quillet::Geo::GPSData;

constexpr char kNoExifTool[] = "exiftool is not installed";
constexpr double kTolerance = 1e-9;

/// What exiftool says of a file, by group and name: "IFD0:Model".
using Truth = std::map<std::string, QJsonObject>;

QString ExifTool() {
  return QStandardPaths::findExecutable(QStringLiteral("exiftool"));
}

Truth AskExifTool(const TempTree& tree, const std::vector<ioPath>& files) {
  std::string names;
  for (const ioPath& file : files) {
    names += file.utf8string() + '\n';
  }
  const ioPath list = tree.Write("files.txt", names);
  QProcess process;
  // Numbers as they are; the names by the group that they stand in.
  process.start(ExifTool(),
                {"-j", "-n", "-G1", "-Model", "-GPSLatitude", "-GPSLongitude", "-DateTimeOriginal",
                 "-ImageWidth", "-ImageHeight", "-Orientation", "-MIMEType", "-@", list.qstring()});
  constexpr int kPatienceMs = 300'000;
  EXPECT_TRUE(process.waitForFinished(kPatienceMs)) << process.errorString().toStdString();
  Truth truth;
  const QJsonArray all = QJsonDocument::fromJson(process.readAllStandardOutput()).array();
  for (const auto& entry : all) {
    const QJsonObject object = entry.toObject();
    truth[object["SourceFile"].toString().toStdString()] = object;
  }
  EXPECT_EQ(truth.size(), files.size());
  return truth;
}

QJsonValue First(const QJsonObject& truth, std::initializer_list<const char*> names) {
  for (const char* name : names) {
    if (truth.contains(QLatin1String(name))) {
      return truth[QLatin1String(name)];
    }
  }
  return QJsonValue::Undefined;
}

/// Nothing when exiftool makes no number of it.
std::optional<double> Coordinate(const QJsonObject& truth, const char* signedName, const char* plainName) {
  const QJsonValue value = First(truth, {signedName, plainName});
  return value.isDouble() ? std::optional<double>(value.toDouble()) : std::nullopt;
}

/// With its sign when exiftool knows the reference.
std::optional<double> LatitudeOf(const QJsonObject& truth) {
  return Coordinate(truth, "Composite:GPSLatitude", "GPS:GPSLatitude");
}

std::optional<double> LongitudeOf(const QJsonObject& truth) {
  return Coordinate(truth, "Composite:GPSLongitude", "GPS:GPSLongitude");
}

std::string Text(std::optional<double> number) {
  return number ? std::to_string(*number) : "none";
}

bool IsSame(std::optional<double> left, std::optional<double> right) {
  return left && right ? std::abs(*left - *right) <= kTolerance : left.has_value() == right.has_value();
}

// Made files.

/// A latitude with its reference; the longitude is sound.
struct Row {
  const char* name;
  const char* value;
  const char* reference;  ///< Null: none.
  std::optional<double> ours;
  /// What exiftool makes of it where that is something else, and why it may be.
  std::optional<double> theirs;
  const char* why;
  const char* type = "";
};

const std::vector<Row>& Rows() {
  constexpr double kUsual = 48.8567666666667;
  static const std::vector<Row> rows = {
      {"north", "48/1 51/1 2436/100", "N", kUsual, kUsual, nullptr},
      {"south", "48/1 51/1 2436/100", "S", -kUsual, -kUsual, nullptr},
      {"decimal minutes", "48/1 5130/100 0/1", "N", 48.855, 48.855, nullptr},
      {"decimal degrees", "4885/100 0/1 0/1", "S", -48.85, -48.85, nullptr},
      {"no reference", "48/1 51/1 2436/100", nullptr, kUsual, kUsual, nullptr},
      {"empty reference", "48/1 51/1 2436/100", "", kUsual, kUsual, nullptr},
      {"digit for a reference", "48/1 51/1 2436/100", "1", kUsual, kUsual, nullptr},
      {"small letter", "48/1 51/1 2436/100", "s", kUsual, -kUsual, "only exactly S counts as south"},
      {"whole word", "48/1 51/1 2436/100", "South", kUsual, -kUsual, "only exactly S counts as south"},
      {"the other axis", "48/1 51/1 2436/100", "W", -kUsual, kUsual, "W is negative on either axis"},
      {"seconds not known", "48/1 51/1 0/0", "N", 48.85, std::nullopt, "parts that are not known count as 0"},
      {"nothing known", "0/0 0/0 0/0", "N", std::nullopt, std::nullopt, nullptr},
      {"nothing but the equator", "0/1 0/1 0/1", "N", 0, 0, nullptr},
      {"seconds over zero", "48/1 51/1 1/0", "N", std::nullopt, std::nullopt, nullptr},
      {"degrees over zero", "48/0 51/1 0/1", "N", std::nullopt, std::nullopt, nullptr},
      {"minutes not known", "48/1 0/0 36/1", "N", 48.01, std::nullopt, "parts that are not known count as 0"},
      {"text", "48 51 24.36", "N", 48.85, kUsual, "a decimal point makes no fraction", "Ascii"},
      {"text with two blanks", "10  30", "N", 10 + 30 / 3600.0, 10.5, "empty parts are kept", "Ascii"},
      {"two parts", "48/1 51/1", "N", 48.85, 48.85, nullptr},
  };
  return rows;
}

PhotoTags TagsOf(const Row& row) {
  PhotoTags tags;
  tags.more = {{"Exif.GPSInfo.GPSLatitude", row.value, row.type},
               {"Exif.GPSInfo.GPSLongitude", "2/1 17/1 4020/100", ""},
               {"Exif.GPSInfo.GPSLongitudeRef", "E", ""}};
  if (row.reference != nullptr) {
    tags.more.push_back({"Exif.GPSInfo.GPSLatitudeRef", row.reference, ""});
  }
  return tags;
}

TEST(MetadataTruth, PositionsAgreeWithExifToolOrDifferForAReason) {
  if (ExifTool().isEmpty()) {
    GTEST_SKIP() << kNoExifTool;
  }
  const TempTree tree;
  std::vector<ioPath> files;
  for (const Row& row : Rows()) {
    files.push_back(WriteJpeg(tree.Path(std::to_string(files.size()) + ".jpg"), TagsOf(row)));
  }
  const Truth truth = AskExifTool(tree, files);
  for (std::size_t i = 0; i < files.size(); ++i) {
    const Row& row = Rows()[i];
    const GPSData position = Util::GetGPSData(Util::GetMetadata(files[i]));
    const std::optional<double> ours =
        position == GPSData::Invalid() ? std::nullopt : std::optional<double>(position.GetLatitude());
    const std::optional<double> theirs = LatitudeOf(truth.at(files[i].utf8string()));
    EXPECT_TRUE(IsSame(ours, row.ours)) << row.name << ": " << Text(ours);
    EXPECT_TRUE(IsSame(theirs, row.theirs)) << row.name << ": exiftool says " << Text(theirs);
    EXPECT_EQ(IsSame(row.ours, row.theirs), row.why == nullptr) << row.name;
  }
}

TEST(MetadataTruth, EveryFormatAndHemisphereAgreesWithExifTool) {
  if (ExifTool().isEmpty()) {
    GTEST_SKIP() << kNoExifTool;
  }
  const struct {
    const char* extension;
    std::string (*make)(const PhotoTags&);
  } formats[] = {{"jpg", MakeJpeg}, {"png", MakePng}, {"tif", MakeTiff}, {"webp", MakeWebP}};
  const TempTree tree;
  std::vector<ioPath> files;
  for (const auto& format : formats) {
    for (const char* latitude : {"N", "S"}) {
      for (const char* longitude : {"E", "W"}) {
        PhotoTags tags;
        tags.model = " Model X ";
        tags.dateTimeOriginal = "2021:05:01 10:20:30";
        tags.orientation = 6;
        tags.more = {{"Exif.GPSInfo.GPSLatitude", "33/1 52/1 123456/10000", ""},
                     {"Exif.GPSInfo.GPSLongitude", "151/1 12/1 364/100", ""},
                     {"Exif.GPSInfo.GPSLatitudeRef", latitude, ""},
                     {"Exif.GPSInfo.GPSLongitudeRef", longitude, ""}};
        files.push_back(
            tree.Write(std::string(latitude) + longitude + '.' + format.extension, format.make(tags)));
      }
    }
  }
  const Truth truth = AskExifTool(tree, files);
  for (const ioPath& file : files) {
    const QJsonObject& theirs = truth.at(file.utf8string());
    const auto metadata = Util::GetMetadata(file);
    const GPSData position = Util::GetGPSData(metadata);
    EXPECT_TRUE(IsSame(position.GetLatitude(), LatitudeOf(theirs))) << file;
    EXPECT_TRUE(IsSame(position.GetLongitude(), LongitudeOf(theirs))) << file;
    EXPECT_EQ(Util::GetCameraModel(metadata).trimmed(), theirs["IFD0:Model"].toString().trimmed()) << file;
    EXPECT_EQ(Util::GetFileDateTime(file).toString(QStringLiteral("yyyy:MM:dd hh:mm:ss")),
              theirs["ExifIFD:DateTimeOriginal"].toString())
        << file;
    EXPECT_EQ(Util::GetFrameInfo(file).orientation, theirs["IFD0:Orientation"].toInt()) << file;
  }
}

// Files of others.

class Comparison {
 public:
  Comparison(const ioPath& file, const QJsonObject& theirs) : file_(file), theirs_(theirs) {}

  void Run() const {
    const auto metadata = Util::GetMetadata(file_);
    CompareModel(Util::GetCameraModel(metadata));
    ComparePosition(Util::GetGPSData(metadata));
    CompareDate(Tavolin::GetFileDate(metadata));
    CompareFrame(Util::GetFrameInfo(file_));
  }

 private:
  void CompareModel(const QString& model) const {
    const QString expected = First(theirs_, {"IFD0:Model"}).toVariant().toString();
    EXPECT_EQ(model.trimmed(), expected.trimmed()) << file_;
  }

  void ComparePosition(const GPSData& position) const {
    const auto latitude = LatitudeOf(theirs_);
    const auto longitude = LongitudeOf(theirs_);
    const bool expected = latitude && longitude;
    ASSERT_EQ(position != GPSData::Invalid(), expected) << file_;
    if (expected) {
      EXPECT_NEAR(position.GetLatitude(), *latitude, kTolerance) << file_;
      EXPECT_NEAR(position.GetLongitude(), *longitude, kTolerance) << file_;
    }
  }

  void CompareDate(const Tavolin::FileDate& date) const {
    const QString form = QStringLiteral("yyyy:MM:dd hh:mm:ss");
    const QString text = First(theirs_, {"ExifIFD:DateTimeOriginal", "IFD0:DateTimeOriginal"}).toString();
    const QString expected = text.left(form.size());
    const bool isDate = QDateTime::fromString(expected, form).isValid();
    ASSERT_EQ(date.source == Tavolin::FileDate::Source::Original, isDate) << file_;
    if (isDate) {
      EXPECT_EQ(date.date.toString(form), expected) << file_;
    }
  }

  void CompareFrame(const Conf::FrameInfo& frame) const {
    const QJsonValue width = First(theirs_, {"File:ImageWidth", "PNG:ImageWidth", "IFD0:ImageWidth"});
    const QJsonValue height = First(theirs_, {"File:ImageHeight", "PNG:ImageHeight", "IFD0:ImageHeight"});
    // It says none of some pictures that are broken behind the header.
    if (width.isDouble()) {
      EXPECT_EQ(frame.width, width.toInt()) << file_;
      EXPECT_EQ(frame.height, height.toInt()) << file_;
    }
    EXPECT_EQ(frame.orientation, First(theirs_, {"IFD0:Orientation"}).toInt(1)) << file_;
  }

  const ioPath& file_;
  const QJsonObject& theirs_;
};

bool IsPicture(const QJsonObject& theirs) {
  return theirs["File:MIMEType"].toString().startsWith(QLatin1String("image/"));
}

/// True when it holds more than its own name and that of its format.
bool SaysAnything(const QJsonObject& theirs) {
  constexpr int kNames = 2;
  return theirs.size() > kNames;
}

TEST(MetadataTruth, PhotosOfTheNamedFolderAgreeWithExifTool) {
  const std::string folder = qgetenv("LUMIDEX_TEST_PHOTOS").toStdString();
  if (folder.empty()) {
    GTEST_SKIP() << "LUMIDEX_TEST_PHOTOS names no folder of photos to compare with";
  }
  if (ExifTool().isEmpty()) {
    GTEST_SKIP() << kNoExifTool;
  }
  std::vector<ioPath> files;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(ioPath(folder).native())) {
    if (entry.is_regular_file()) {
      files.emplace_back(entry.path());
    }
  }
  const TempTree tree;
  const Truth truth = AskExifTool(tree, files);
  int pictures = 0;
  int both = 0;
  for (const ioPath& file : files) {
    const QJsonObject& theirs = truth.at(file.utf8string());
    if (!IsPicture(theirs)) {
      continue;
    }
    ++pictures;
    try {
      Util::GetMetadata(file);
    } catch (const Strandel::MetadataError& error) {
      EXPECT_FALSE(SaysAnything(theirs)) << error.what();
      continue;
    }
    ++both;
    Comparison(file, theirs).Run();
  }
  std::cout << pictures << " pictures, " << both << " of them read by both\n";
  EXPECT_GT(both, 0);
}

}  // namespace
}  // namespace Zenvora::Test
