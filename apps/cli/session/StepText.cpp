#include <cli/session/StepText.h>
#include <cli/terminal/TerminalText.h>
#include <cli/terminal/Words.h>

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <string_view>

namespace Zenvora::Lumidex::Cli {

namespace {

/// What stands behind `beginning`; none: the name does not begin so.
std::optional<std::string> Behind(const std::string& name, std::string_view beginning) {
  return name.compare(0, beginning.size(), beginning) == 0 ? std::optional(name.substr(beginning.size()))
                                                           : std::nullopt;
}

/// Takes "1,234" from the beginning of the text; none: it begins with no number.
std::optional<std::size_t> TakeNumber(std::string& text) {
  constexpr std::size_t kMostDigits = 12;
  const std::size_t end = std::min(text.find_first_not_of("0123456789,"), text.size());
  std::string digits = text.substr(0, end);
  digits.erase(std::remove(digits.begin(), digits.end(), ','), digits.end());
  if (digits.empty() || digits.size() > kMostDigits) {
    return std::nullopt;
  }
  text.erase(0, end);
  return static_cast<std::size_t>(std::strtoull(digits.c_str(), nullptr, 10));
}

/// "3 photos (6 files)", as the journal has it.
std::optional<std::string> CountsText(std::string text) {
  const auto photos = TakeNumber(text);
  if (!photos) {
    return std::nullopt;
  }
  if (text == " photos" || text == " photo") {
    return PhotosText(*photos);
  }
  auto rest = Behind(text, *photos == 1 ? " photo (" : " photos (");
  const auto files = rest ? TakeNumber(*rest) : std::nullopt;
  const bool isWhole = files && (*rest == " files)" || *rest == " file)");
  return isWhole ? std::optional(PhotosAndFilesText(*photos, *files)) : std::nullopt;
}

/// "3 files to /folder", as the journal has it.
std::optional<std::string> ImportText(std::string text) {
  const auto files = TakeNumber(text);
  const auto folder = files ? Behind(text, *files == 1 ? " file to " : " files to ") : std::nullopt;
  return folder ? std::optional(Say(Words::tr("import %1 files to %2", nullptr, Amount(*files)),
                                    {GroupDigits(*files), *folder}))
                : std::nullopt;
}

}  // namespace

std::string PhotosText(std::size_t photos) {
  return Say(Words::tr("%1 photos", nullptr, Amount(photos)), {GroupDigits(photos)});
}

std::string PhotosAndFilesText(std::size_t photos, std::size_t files) {
  return photos == files ? PhotosText(photos)
                         : Say(Words::tr("%1 (%2 files)", "so many photos", Amount(files)),
                               {PhotosText(photos), GroupDigits(files)});
}

std::string StepText(const std::string& name) {
  if (const auto what = Behind(name, "rename ")) {
    const auto counts = CountsText(*what);
    return counts ? Say(Words::tr("rename %1", "so many photos"), {*counts}) : name;
  }
  if (const auto offset = Behind(name, "shift dates by ")) {
    return Say(Words::tr("shift dates by %1"), {*offset});
  }
  if (const auto date = Behind(name, "set dates to ")) {
    return Say(Words::tr("set dates to %1"), {*date});
  }
  if (const auto tags = Behind(name, "tag ")) {
    return Say(Words::tr("tag %1", "+one -another"), {*tags});
  }
  if (const auto what = Behind(name, "import ")) {
    return ImportText(*what).value_or(name);
  }
  if (const auto album = Behind(name, "accept album ")) {
    return Say(Words::tr("accept album %1"), {*album});
  }
  if (auto what = Behind(name, "accept ")) {
    const auto albums = TakeNumber(*what);
    return albums && *what == " albums"
               ? Say(Words::tr("accept %1 albums", nullptr, Amount(*albums)), {GroupDigits(*albums)})
               : name;
  }
  constexpr const char* kWhole[] = {QT_TRANSLATE_NOOP("Terminal", "rotate left"),
                                    QT_TRANSLATE_NOOP("Terminal", "rotate right"),
                                    QT_TRANSLATE_NOOP("Terminal", "rotate 180"),
                                    QT_TRANSLATE_NOOP("Terminal", "move similar photos to the trash")};
  const auto* const whole = std::find(std::begin(kWhole), std::end(kWhole), name);
  return whole != std::end(kWhole) ? Say(Words::tr(*whole)) : name;
}

}  // namespace Zenvora::Lumidex::Cli
