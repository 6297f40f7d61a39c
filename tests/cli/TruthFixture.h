#pragma once

#include "ChangeFixture.h"

#include <QJsonArray>
#include <QJsonObject>

#include <filesystem>
#include <map>
#include <string>
#include <system_error>

namespace Zenvora::Test {

/// Sentences by the file that they are of.
using Sentences = std::map<std::string, std::string>;

/// Files of all kinds, and what each command says of them.
class TruthTest : public ChangeTest {
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

  /// The folder that LUMIDEX_TEST_PHOTOS names, to be written to; false: it names none.
  bool CopyRealPhotos() const {
    const std::string folder = qgetenv("LUMIDEX_TEST_PHOTOS").toStdString();
    if (folder.empty()) {
      return false;
    }
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
      if (entry.is_regular_file()) {
        const ioPath copy =
            tree.Write(ioPath("photos") / ioPath(entry.path().filename()), ReadFile(ioPath(entry.path())));
        std::filesystem::permissions(copy.for_system(), std::filesystem::perms(0644));
      }
    }
    return true;
  }
};

}  // namespace Zenvora::Test
