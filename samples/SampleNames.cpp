#include "SampleNames.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <map>
#include <unordered_set>

namespace Zenvora::Lumidex::Host {

namespace {

constexpr int kFilesPerCardFolder = 999;

std::string Format(const char* pattern, int a, int b = 0, int c = 0) {
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), pattern, a, b, c);
  return text.data();
}

std::string LongName() {
  // 224 bytes, but only half as many characters: file systems count the one or the other.
  std::string name;
  for (int i = 0; i < 11; ++i) {
    name += "очень долго";
  }
  return name.substr(0, 220) + ".jpg";
}

/// Lower case of the ASCII letters: enough to keep apart what this file makes up.
std::string Folded(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
  return text;
}

class Names {
 public:
  std::string Of(const SampleShot& shot, const SampleShelf& shelf) {
    if (!shelf.byHand.empty()) {
      return Unique(shelf.byHand);
    }
    if (!shelf.album.empty()) {
      const auto slash = shelf.album.rfind('/');
      const std::string base = slash == std::string::npos ? shelf.album : shelf.album.substr(slash + 1);
      return Unique(shelf.album + "/" + base + Format(" %03d.jpg", ++counts_[shelf.album]));
    }
    const SampleCamera& camera = SampleCameras()[shot.camera];
    const QDate day = shot.taken.date();
    const QTime time = shot.taken.time();
    const std::string stamp = Format("%04d%02d%02d", day.year(), day.month(), day.day()) +
                              Format("_%02d%02d%02d", time.hour(), time.minute(), time.second());
    if (camera.folder == nullptr) {
      return Unique(Format("%04d/%02d/", day.year(), day.month()) + stamp + ".jpg");
    }
    const std::string folder = camera.folder;
    if (camera.turns) {
      return Unique(folder + "/IMG_" + stamp + ".jpg");
    }
    const int count = counts_[folder]++;
    return Unique(folder + Format("/DCIM/%03dLUMDX/IMG_%04d.JPG", 100 + count / kFilesPerCardFolder,
                                  count % kFilesPerCardFolder + 1));
  }

 private:
  std::string Unique(const std::string& wished) {
    std::string name = wished;
    const auto dot = wished.rfind('.');
    for (int i = 1; !taken_.insert(Folded(name)).second; ++i) {
      name = wished.substr(0, dot) + Format(" (%d)", i) + wished.substr(dot);
    }
    return name;
  }

  std::map<std::string, int> counts_;
  std::unordered_set<std::string> taken_;
};

}  // namespace

const std::vector<std::string>& OddSampleNames() {
  static const std::vector<std::string> names = {
      "Разное/Пейзаж.jpg",
      "Разное/" + LongName(),
      "scans/SCAN 0001.JPG",
      "scans/old print.jpeg",
      "various/🎆 best of.jpg",
      "various/Grandma's garden.jpg",
      "various/日本の庭.jpg",
      "various/holiday (1).jpg",
      "various/Holiday (2).JPG",
      "various/100% natural & simple.jpg",
      "various/#sunset, take 2.jpeg",
      "various/-first.jpg",
      "various/final.v2.edited.jpg",
      "various/Cafe\xCC\x81 au lait.jpg",
      "various/Größe Ä Ö Ü.JPG",
      "various/تعطیلات.jpg",
      "various/two  spaces.jpg",
      "various/[brackets] {braces}.jpg",
      "various/~backup~.jpg",
      "various/no-umlaut=true;$HOME.jpg",
  };
  return names;
}

void NameSampleShots(std::vector<SampleShot>& shots, const std::vector<SampleShelf>& shelves) {
  Names names;
  for (std::size_t i = 0; i < shots.size(); ++i) {
    shots[i].path = names.Of(shots[i], shelves[i]);
  }
}

}  // namespace Zenvora::Lumidex::Host
