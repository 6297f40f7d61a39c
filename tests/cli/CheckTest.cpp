// What check, a dry run and the run say of every file, side by side: of made files, whole and damaged,
// always, and of the folder that LUMIDEX_TEST_PHOTOS names.
#include "ChangeFixture.h"

#include <support/LeftOut.h>

#include <QJsonArray>

#include <filesystem>
#include <map>

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace Zenvora::Test {
namespace {

/// Sentences by the file that they are of.
using Sentences = std::map<std::string, std::string>;

class CheckTruth : public ChangeTest {
 protected:
  static std::string PathOf(const QJsonObject& finding) {
    // Names that are no text are told apart by their bytes.
    return (finding["path"].toString() + finding["pathBytes"].toString()).toStdString();
  }
  static Sentences Findings(const QJsonObject& document, const char* text) {
    Sentences sentences;
    for (const auto& entry : document["findings"].toArray()) {
      const QJsonObject finding = entry.toObject();
      sentences[PathOf(finding)] = finding[QLatin1String(text)].toString().toStdString();
    }
    return sentences;
  }

  std::map<std::string, std::string> Contents() const {
    std::map<std::string, std::string> contents;
    for (const auto& entry : std::filesystem::directory_iterator(Photos().for_system())) {
      std::error_code error;
      // What is huge is sparse and refused; nobody waits for its zeros.
      if (entry.is_regular_file(error) && entry.file_size(error) < (1U << 28U)) {
        const ioPath path(entry.path());
        contents[path.utf8string()] = ReadFile(path);
      }
    }
    return contents;
  }

  /// All three agree about every photo of the folder, and so do the files afterwards.
  void ExpectOneTruth(const QString& command, const QString& argument) const {
    const Sentences checked = Findings(Run({"check", "--json", "--for", command, "photos"}).Json(), "text");
    const QJsonObject dry = Run({command, "--json", "--dry-run", argument, "photos"}).Json();
    const auto before = Contents();
    const QJsonObject wet = Run({command, "--json", argument, "photos"}).Json();
    EXPECT_EQ(Findings(dry, "cause"), checked) << command.toStdString();
    EXPECT_EQ(Findings(wet, "cause"), checked) << command.toStdString();
    EXPECT_EQ(dry["edited"], wet["edited"]);
    EXPECT_EQ(dry["sidecars"], wet["sidecars"]);
    EXPECT_EQ(wet["edited"].toInt(), wet["photos"].toInt() - static_cast<int>(checked.size()));
    EXPECT_GT(wet["edited"].toInt(), 0);
    const auto after = Contents();
    int changed = 0;
    for (const auto& [path, content] : after) {
      changed += content != before.at(path) ? 1 : 0;
      EXPECT_TRUE(content == before.at(path) || checked.count(path) == 0) << path << " was refused";
    }
    EXPECT_EQ(after.size(), before.size());
    EXPECT_EQ(changed, wet["edited"].toInt() + wet["sidecars"].toInt());
    EXPECT_EQ(Run({"undo"}).exitCode, 0);
    EXPECT_EQ(Contents(), before);
  }
  void ExpectOneTruth() const {
    ExpectOneTruth("rotate", "right");
    ExpectOneTruth("shift-date", "+1h");
    ExpectOneTruth("set-date", "2003-02-01 04:05");
  }

  static std::string Sidecar(const std::string& attributes) {
    return "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\"><rdf:RDF "
           "xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">"
           "<rdf:Description rdf:about=\"\" xmlns:xmp=\"http://ns.adobe.com/xap/1.0/\""
           " xmlns:tiff=\"http://ns.adobe.com/tiff/1.0/\" " +
           attributes + "/></rdf:RDF></x:xmpmeta>";
  }

  /// Files of each format that can be made, whole, cut and spoilt, and under wrong names.
  void MakeAllKinds() const {
    PhotoTags tags;
    tags.dateTimeOriginal = "2024:05:17 10:00:00";
    tags.orientation = 1;
    const std::map<std::string, std::string> formats = {
        {"jpg", MakeJpeg(tags)}, {"png", MakePng(tags)}, {"tif", MakeTiff(tags)}, {"webp", MakeWebP(tags)}};
    for (const auto& [extension, content] : formats) {
      const auto write = [&, end = "." + extension](const std::string& name, const std::string& bytes) {
        tree.Write("photos/" + extension + '-' + name + end, bytes);
      };
      write("whole", content);
      for (const std::size_t part : {1U, 3U, 5U, 7U}) {
        write("cut" + std::to_string(part), content.substr(0, content.size() * part / 8));
        std::string spoilt = content;
        spoilt.replace(content.size() * part / 8, content.size() / 8, content.size() / 8, '\0');
        write("spoilt" + std::to_string(part), spoilt);
      }
      write("zeros", std::string(content.size(), '\0'));
      write("empty", "");
      tree.Write("photos/" + extension + "-named-otherwise.jpg", content);
    }
    PhotoTags undated;
    undated.model = "X";
    tree.Write("photos/undated.jpg", MakeJpeg(undated));
    tree.Write("photos/heic.heic", std::string("\0\0\0\x18"
                                               "ftypheic\0\0\0\0mif1heic",
                                               24) +
                                       std::string(200, 'x'));
    tree.Write("photos/words.dng", "this is no picture");
    tree.MakeFolder("photos/folder.jpg");
  }

  void MakeSidecars() const {
    const std::string both = Sidecar("xmp:CreateDate=\"2024-05-17T10:00:00\" tiff:Orientation=\"1\"");
    for (const char* const name : {"with", "damaged", "bare", "protected", "shared", "encoded"}) {
      Photo(std::string("sidecar-") + name + ".jpg");
    }
    tree.Write("photos/sidecar-with.xmp", both);
    tree.Write("photos/sidecar-damaged.xmp", both.substr(0, both.size() - 20));
    tree.Write("photos/sidecar-bare.xmp", Sidecar("xmp:Rating=\"3\""));
    tree.Write("photos/sidecar-encoded.jpg.xmp", Sidecar("tiff:Orientation=\"&#49;\""));
    PhotoTags tags;
    tags.dateTimeOriginal = "2024:05:17 10:00:00";
    tree.Write("photos/sidecar-shared.dng", MakeTiff(tags));
    tree.Write("photos/sidecar-shared.xmp", both);
    Protect(tree.Write("photos/sidecar-protected.xmp", both));
  }
  static void Protect(const ioPath& file) {
    std::filesystem::permissions(file.for_system(), std::filesystem::perms(0444));
  }
};

TEST_F(CheckTruth, SaysOfEveryFileWhatBecomesOfIt) {
  MakeAllKinds();
  ExpectOneTruth();
}

TEST_F(CheckTruth, SaysOfEverySidecarWhatBecomesOfIt) {
  MakeSidecars();
  ExpectOneTruth();
}

TEST_F(CheckTruth, SaysOfWhatCannotBeTouchedWhatBecomesOfIt) {
  Photo("whole.jpg");
  Protect(Photo("protected.jpg"));
  const ioPath huge = Photo("huge.jpg");
  std::filesystem::resize_file(huge.for_system(), std::uintmax_t{3} << 30U);
  ExpectOneTruth();
  const Ran check = Run({"check", "photos"});
  EXPECT_EQ(check.exitCode, 1);
  EXPECT_THAT(check.out, HasSubstr("huge.jpg: it is larger than 2 GiB\n"));
  EXPECT_THAT(check.out,
              HasSubstr("protected.jpg: it is write-protected; allow writing to it, or use --force\n"));
  EXPECT_THAT(check.out, HasSubstr("3 files checked; 2 of them would be refused.\n"));
}

TEST_F(CheckTruth, TakesNothingForWhatItIsNotAskedFor) {
  tree.Write("photos/words.jpg", "no picture");
  EXPECT_EQ(Run({"check", "--for", "rename,import,trash", "photos"}).exitCode, 0);
  EXPECT_EQ(Run({"check", "--for", "rotate", "photos"}).exitCode, 1);
  const Ran wrong = Run({"check", "--for", "rotate,turn", "photos"});
  EXPECT_EQ(wrong.exitCode, 2);
  EXPECT_THAT(
      wrong.err,
      HasSubstr("--for must be of import, rename, rotate, shift-date, set-date, trash, not \"turn\""));
}

TEST_F(CheckTruth, NeverSpeaksOfWhatNoCommandDoes) {
  tree.Write("photos/a.nef", "raw");
  tree.Write("photos/a.heic", std::string("\0\0\0\x18"
                                          "ftypheic\0\0\0\0mif1heic",
                                          24));
  EXPECT_THAT(Run({"check", "photos"}).out, Not(HasSubstr("converted")));
}

TEST_F(CheckTruth, LeavesWhatIsWriteProtectedToForce) {
  const ioPath photo = Photo("a.jpg");
  const ioPath sidecar = tree.Write("photos/a.xmp", Sidecar("tiff:Orientation=\"1\""));
  Protect(photo);
  Protect(sidecar);
  const std::string before = ReadFile(photo);
  const Ran ran = Run({"rotate", "right", "photos"});
  EXPECT_EQ(ran.exitCode, 4);
  EXPECT_THAT(ran.out, HasSubstr("use --force"));
  EXPECT_EQ(ReadFile(photo), before);
  const Ran forced = Run({"rotate", "--force", "right", "photos"});
  EXPECT_EQ(forced.exitCode, 0);
  EXPECT_THAT(forced.out,
              HasSubstr("edited along with them.\n1 photo edited; \"lumidex undo\" takes it back.\n"));
  EXPECT_NE(ReadFile(photo), before);
  EXPECT_THAT(ReadFile(sidecar), HasSubstr("tiff:Orientation=\"6\""));
  EXPECT_EQ(Run({"undo"}).exitCode, 0);
  EXPECT_EQ(ReadFile(photo), before);
  EXPECT_THAT(ReadFile(sidecar), HasSubstr("tiff:Orientation=\"1\""));
}

TEST_F(CheckTruth, TellsWhatUndoWouldHaveToForget) {
  Photo("a.jpg");
  ASSERT_EQ(Run({"undo", "--keep-size", "1"}).exitCode, 0);
  const Ran check = Run({"check", "--for", "rotate", "photos"});
  EXPECT_EQ(check.exitCode, 1);
  EXPECT_THAT(check.out, HasSubstr("It would be refused."));
  EXPECT_FALSE(Run({"check", "--json", "photos"}).Json()["undo"].toObject()["fits"].toBool(true));
  EXPECT_EQ(Run({"check", "--for", "rename", "photos"}).exitCode, 0);
}

TEST_F(CheckTruth, AgreesWithTheRunsOnRealPhotos) {
  const std::string folder = qgetenv("LUMIDEX_TEST_PHOTOS").toStdString();
  if (folder.empty()) {
    GTEST_SKIP() << "LUMIDEX_TEST_PHOTOS names no folder of photos to try";
  }
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (entry.is_regular_file()) {
      const ioPath copy =
          tree.Write(ioPath("photos") / ioPath(entry.path().filename()), ReadFile(ioPath(entry.path())));
      std::filesystem::permissions(copy.for_system(), std::filesystem::perms(0644));
    }
  }
  ExpectOneTruth();
}

#ifndef _WIN32

TEST_F(CheckTruth, NeverOpensAPipe) {
  Photo("a.jpg");
  ASSERT_EQ(mkfifo((Photos() / "pipe.jpg").native().c_str(), 0644), 0);
  ExpectOneTruth();
  const std::string text = (Photos() / "pipe.jpg").utf8string() + " is neither a file nor a folder.";
  EXPECT_EQ(
      Findings(Run({"check", "--json", "--for", "rotate", "photos/pipe.jpg"}).Json(), "text").begin()->second,
      text);
  EXPECT_EQ(Findings(Run({"rotate", "--json", "left", "photos/pipe.jpg"}).Json(), "cause").begin()->second,
            text);
}

#else

LUMIDEX_LEFT_OUT_ON_WINDOWS_F(CheckTruth, NeverOpensAPipe, kNoPipesInFolders);

#endif

}  // namespace
}  // namespace Zenvora::Test
