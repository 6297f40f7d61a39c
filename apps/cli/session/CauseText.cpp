#include <cli/session/CauseText.h>
#include <cli/session/StepText.h>
#include <cli/terminal/Words.h>

#include <QCoreApplication>

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>

namespace Zenvora::Lumidex::Cli {

namespace {

/// A sentence of the host; "%1" to "%9", in this order, stand for what differs.
struct Sentence {
  const char* english;
  int cause = 0;  ///< The place that holds another cause; 0: none.
  int step = 0;   ///< The place that holds the name of a step; 0: none.
};

constexpr Sentence kSentences[] = {
    {QT_TRANSLATE_NOOP("Causes", "%1."), 1},
    {QT_TRANSLATE_NOOP("Causes", "%1: %2"), 2},
    {QT_TRANSLATE_NOOP("Causes", "Cannot edit %1: %2"), 2},
    {QT_TRANSLATE_NOOP("Causes", "Cannot rename %1: %2"), 2},
    {QT_TRANSLATE_NOOP("Causes", "Cannot rename %1 to %2: %3"), 3},
    {QT_TRANSLATE_NOOP("Causes", "has a link of the same name beside it, which would not be renamed: %1")},
    {QT_TRANSLATE_NOOP("Causes", "has no date")},
    {QT_TRANSLATE_NOOP("Causes", "has no readable date: %1"), 1},
    {QT_TRANSLATE_NOOP("Causes", "is given twice")},
    {QT_TRANSLATE_NOOP("Causes", "would be the name of two photos: %1")},
    {QT_TRANSLATE_NOOP("Causes", "would be the name of two files: %1")},
    {QT_TRANSLATE_NOOP("Causes", "is the name of another file: %1")},
    {QT_TRANSLATE_NOOP("Causes", "is the name of another photo or its sidecar: %1")},
    {QT_TRANSLATE_NOOP("Causes", "is the name of a photo that cannot be renamed: %1")},
    {QT_TRANSLATE_NOOP("Causes", "holds a separator of folders %1")},
    {QT_TRANSLATE_NOOP("Causes", "holds the sign for unreadable characters")},
    {QT_TRANSLATE_NOOP("Causes", "holds a control character")},
    {QT_TRANSLATE_NOOP("Causes", "holds the character %1")},
    {QT_TRANSLATE_NOOP("Causes", "is not valid UTF-8")},
    {QT_TRANSLATE_NOOP("Causes", "begins with a dot, which hides the file")},
    {QT_TRANSLATE_NOOP("Causes", "is longer than %1 bytes")},
    {QT_TRANSLATE_NOOP("Causes", "names a device of Windows")},
    {QT_TRANSLATE_NOOP("Causes", "ends in a dot, which Windows drops")},
    {QT_TRANSLATE_NOOP("Causes", "ends in a blank, which Windows drops")},
    {QT_TRANSLATE_NOOP("Causes", "Cannot read %1: %2"), 2},
    {QT_TRANSLATE_NOOP("Causes", "Cannot write %1: %2"), 2},
    {QT_TRANSLATE_NOOP("Causes", "cannot write %1: %2"), 2},
    {QT_TRANSLATE_NOOP("Causes", "its folder cannot be written to; change the permissions of %1")},
    {QT_TRANSLATE_NOOP(
        "Causes", "its folder lets only its owner change it; change the owner, or the permissions of %1")},
    {QT_TRANSLATE_NOOP("Causes", "the system lets nobody move it; take its attribute \"immutable\" away")},
    {QT_TRANSLATE_NOOP(
        "Causes",
        "its disk has no room for a new version of it (%1 bytes are needed, %2 are free); free space there")},
    {QT_TRANSLATE_NOOP("Causes", "it is write-protected; allow writing to it, or use --force")},
    {QT_TRANSLATE_NOOP("Causes", "its sidecar %1 is write-protected; allow writing to it, or use --force")},
    {QT_TRANSLATE_NOOP("Causes", "its sidecar must be edited with it. %1; repair or move the sidecar"), 1},
    {QT_TRANSLATE_NOOP("Causes", "its sidecar %1 must be edited with it, but %2"), 2},
    {QT_TRANSLATE_NOOP("Causes", "it has no date to shift")},
    {QT_TRANSLATE_NOOP("Causes", "its year would not be 1 to 9999")},
    {QT_TRANSLATE_NOOP("Causes", "its metadata cannot be changed without losing data (%1)")},
    {QT_TRANSLATE_NOOP("Causes", "its metadata would be wrong afterwards")},
    {QT_TRANSLATE_NOOP("Causes", "its EXIF data, which are kept as text, are damaged")},
    {QT_TRANSLATE_NOOP("Causes", "its EXIF data are damaged")},
    {QT_TRANSLATE_NOOP("Causes", "its XMP data are damaged")},
    {QT_TRANSLATE_NOOP("Causes", "its TIFF directory is damaged")},
    {QT_TRANSLATE_NOOP("Causes", "its picture format is not known")},
    {QT_TRANSLATE_NOOP("Causes", "its format cannot be edited")},
    {QT_TRANSLATE_NOOP("Causes", "photos of the format %1 cannot be edited")},
    {QT_TRANSLATE_NOOP("Causes", "its picture would change")},
    {QT_TRANSLATE_NOOP("Causes", "it is empty")},
    {QT_TRANSLATE_NOOP("Causes", "it is damaged: %1")},
    {QT_TRANSLATE_NOOP("Causes", "it is larger than 2 GiB")},
    {QT_TRANSLATE_NOOP("Causes", "it is larger than 4 MiB")},
    {QT_TRANSLATE_NOOP("Causes", "it was changed while it was read")},
    {QT_TRANSLATE_NOOP("Causes", "editing it takes more memory than there is")},
    {QT_TRANSLATE_NOOP("Causes", "its JPEG data is damaged")},
    {QT_TRANSLATE_NOOP("Causes", "its JPEG data ends before the picture")},
    {QT_TRANSLATE_NOOP("Causes", "its JPEG data breaks off before the picture")},
    {QT_TRANSLATE_NOOP("Causes", "there is no room left in its EXIF block")},
    {QT_TRANSLATE_NOOP("Causes", "its PNG data breaks off")},
    {QT_TRANSLATE_NOOP("Causes", "its PNG data does not begin with a picture")},
    {QT_TRANSLATE_NOOP("Causes", "it has two EXIF blocks")},
    {QT_TRANSLATE_NOOP("Causes", "its WebP data breaks off")},
    {QT_TRANSLATE_NOOP("Causes", "its WebP data holds no picture")},
    {QT_TRANSLATE_NOOP("Causes", "its %1 cannot be changed in place")},
    {QT_TRANSLATE_NOOP("Causes", "its date cannot be changed in its %1 data")},
    {QT_TRANSLATE_NOOP("Causes", "its %1 cannot be changed in its %2 data")},
    {QT_TRANSLATE_NOOP("Causes", "it breaks off before its end")},
    {QT_TRANSLATE_NOOP("Causes", "its text is damaged")},
    {QT_TRANSLATE_NOOP("Causes", "it has too many properties")},
    {QT_TRANSLATE_NOOP("Causes", "%1 is unchanged: %2"), 2},
    {QT_TRANSLATE_NOOP("Causes",
                       "%1 was edited, but the catalogue could not be updated (%2). The next run updates it"),
     2},
    {QT_TRANSLATE_NOOP("Causes", "%1 cannot be read back as what was written")},
    {QT_TRANSLATE_NOOP("Causes", "%1 is left as it is, because it belongs to %2")},
    {QT_TRANSLATE_NOOP("Causes",
                       "%1 is missing for now, but its versions are kept (%2). Free space on its disk and "
                       "run \"lumidex undo\" again"),
     2},
    {QT_TRANSLATE_NOOP("Causes",
                       "%1 is left as it is: another program changed %2, where its other version was kept")},
    {QT_TRANSLATE_NOOP("Causes",
                       "%1 is left as it is: its disk has no room for its other version (%2 bytes). Free "
                       "space there and try again")},
    {QT_TRANSLATE_NOOP("Causes", "%1 is left as it is: its other version is no longer kept")},
    {QT_TRANSLATE_NOOP("Causes", "%1 was changed later and is left as it is")},
    {QT_TRANSLATE_NOOP("Causes", "%1 no longer exists")},
    {QT_TRANSLATE_NOOP("Causes", "%1 cannot be reached: its disk may not be connected")},
    {QT_TRANSLATE_NOOP("Causes", "%1 cannot be read: %2"), 2},
    {QT_TRANSLATE_NOOP("Causes", "The undo journal %1 cannot be used: %2"), 2},
    {QT_TRANSLATE_NOOP(
        "Causes", "another program is renaming or editing photos with it; try again when that has finished")},
    {QT_TRANSLATE_NOOP("Causes", "no step is started without %1 MiB free for finishing and undoing it (%2)")},
    {QT_TRANSLATE_NOOP("Causes", "there is no room for undoing it (%1)")},
    {QT_TRANSLATE_NOOP("Causes", "Cannot change the target of the link %1: %2"), 2},
    {QT_TRANSLATE_NOOP("Causes", "Cannot move %1 to the trash: %2"), 2},
    {QT_TRANSLATE_NOOP("Causes", "no free name in the trash")},
    {QT_TRANSLATE_NOOP("Causes", "another file has that name")},
    {QT_TRANSLATE_NOOP("Causes", "another file has its former name")},
    {QT_TRANSLATE_NOOP("Causes", "it is on another volume")},
    {QT_TRANSLATE_NOOP("Causes", "it is no longer a file")},
    {QT_TRANSLATE_NOOP("Causes", "%1 was kept, because its photo was kept")},
    {QT_TRANSLATE_NOOP("Causes", "%1 was kept, because the photo kept in its place, %2, no longer exists")},
    {QT_TRANSLATE_NOOP("Causes",
                       "%1 is in the trash as %2, which cannot be reached: its disk may not be connected")},
    {QT_TRANSLATE_NOOP("Causes", "%1 may be in the trash as %2, which cannot be read: %3"), 3},
    {QT_TRANSLATE_NOOP("Causes", "%1 is no longer in the trash; another file has its name")},
    {QT_TRANSLATE_NOOP("Causes", "%1 is no longer in the trash and cannot be brought back")},
    {QT_TRANSLATE_NOOP("Causes", "%1 remains in the trash as %2: %3"), 3},
    {QT_TRANSLATE_NOOP("Causes", "The album \"%1\" is kept, because photos were added to it later")},
    {QT_TRANSLATE_NOOP("Causes", "The album \"%1\" no longer exists")},
    {QT_TRANSLATE_NOOP("Causes", "Another album has the name \"%1\" now")},
    {QT_TRANSLATE_NOOP("Causes", "%1 is kept: %2."), 2},
    {QT_TRANSLATE_NOOP("Causes", "it is already in a trash")},
    {QT_TRANSLATE_NOOP("Causes", "it is a link to another file")},
    {QT_TRANSLATE_NOOP("Causes", "it no longer exists")},
    {QT_TRANSLATE_NOOP("Causes", "it was changed after it was analysed")},
    {QT_TRANSLATE_NOOP("Causes", "it was changed after it was compared")},
    {QT_TRANSLATE_NOOP("Causes", "it is another name of a file that is kept")},
    {QT_TRANSLATE_NOOP("Causes", "it is of the same shot as %1, which is kept")},
    {QT_TRANSLATE_NOOP("Causes", "it is like others of its group, but not like the photo to keep, %1")},
    {QT_TRANSLATE_NOOP("Causes", "it has tags or albums that the photo to keep, %1, does not have")},
    {QT_TRANSLATE_NOOP("Causes", "it is a raw file, and no raw file of its group is kept")},
    {QT_TRANSLATE_NOOP("Causes",
                       "its settings, %1, would be lost: the photo to keep, %2, does not have them")},
    {QT_TRANSLATE_NOOP("Causes", "the link %1 leads to it")},
    {QT_TRANSLATE_NOOP("Causes", "%1, to which it belongs, is kept")},
    {QT_TRANSLATE_NOOP("Causes", "the settings in %1 were changed")},
    {QT_TRANSLATE_NOOP("Causes", "the photo to keep, %1, no longer exists")},
    {QT_TRANSLATE_NOOP("Causes", "the photo to keep, %1, was changed after it was analysed")},
    {QT_TRANSLATE_NOOP("Causes", "the photo to keep, %1, is no longer a file")},
    {QT_TRANSLATE_NOOP("Causes", "the photo to keep, %1, cannot be read (%2)")},
    {QT_TRANSLATE_NOOP("Causes", "the photo to keep, %1, is in a trash")},
    {QT_TRANSLATE_NOOP("Causes", "the photo to keep, %1, is a link to another file")},
    {QT_TRANSLATE_NOOP("Causes", "the photo to keep, %1, breaks off before the end of its picture")},
    {QT_TRANSLATE_NOOP("Causes", "the photo to keep, %1, is damaged: %2"), 2},
    {QT_TRANSLATE_NOOP("Causes", "Interrupted undo of \"%1\" is now complete."), 0, 1},
    {QT_TRANSLATE_NOOP("Causes", "Interrupted redo of \"%1\" is now complete."), 0, 1},
    {QT_TRANSLATE_NOOP("Causes", "Interrupted undo of \"%1\" is now complete, except for:"), 0, 1},
    {QT_TRANSLATE_NOOP("Causes", "Interrupted redo of \"%1\" is now complete, except for:"), 0, 1},
    {QT_TRANSLATE_NOOP("Causes", "Interrupted step \"%1\" is now complete."), 0, 1},
    {QT_TRANSLATE_NOOP("Causes", "\"%1\" was interrupted and will be finished once %2 can be reached."), 0,
     1},
    {QT_TRANSLATE_NOOP(
         "Causes", "\"%1\" was interrupted and cannot be finished (%2); the files have their former names."),
     2, 1},
    {QT_TRANSLATE_NOOP("Causes", "\"%1\" was interrupted and cannot be finished (%2), nor undone (%3)."), 2,
     1},
    {QT_TRANSLATE_NOOP("Causes", "\"%1\" was interrupted. Photos edited: %2; the others are unchanged."), 0,
     1},
    {QT_TRANSLATE_NOOP("Causes",
                       "\"%1\" was interrupted. Copies made: %2; run the same import to copy the rest."),
     0, 1},
    {QT_TRANSLATE_NOOP("Causes", "\"%1\" was interrupted. Files moved: %2; the others are where they were."),
     0, 1},
    {QT_TRANSLATE_NOOP("Causes", "Originals that this catalogue does not know were moved to %1.")},
    {QT_TRANSLATE_NOOP("Causes", "%1 and its sidecar disagree, because only one of them was edited (%2).")},
    {QT_TRANSLATE_NOOP("Causes", "It cannot be read")},
    {QT_TRANSLATE_NOOP("Causes", "It is a pipe or a device")},
    {QT_TRANSLATE_NOOP("Causes", "It is not a regular file")},
    {QT_TRANSLATE_NOOP("Causes", "It is empty")},
    {QT_TRANSLATE_NOOP("Causes", "It is damaged: %1")},
    {QT_TRANSLATE_NOOP("Causes", "Its picture format is not known")},
    {QT_TRANSLATE_NOOP("Causes", "Its name is not valid text")},
    {QT_TRANSLATE_NOOP("Causes", "It is named like a housekeeping file, but may be a picture or a video")},
    {QT_TRANSLATE_NOOP("Causes", "The link leads to a file that is missing")},
    {QT_TRANSLATE_NOOP("Causes", "The link leads to a file that cannot be read")},
    {QT_TRANSLATE_NOOP("Causes", "The link leads back to itself")},
    {QT_TRANSLATE_NOOP("Causes", "The link leads to a folder that cannot be read")},
    {QT_TRANSLATE_NOOP("Causes", "The link leads back to a folder above it")},
    {QT_TRANSLATE_NOOP("Causes", "The link leads to a folder that was already visited")},
    {QT_TRANSLATE_NOOP("Causes", "%1 is hidden")},
    {QT_TRANSLATE_NOOP("Causes", "%1 is not named like a photo")},
    {QT_TRANSLATE_NOOP("Causes", "%1 is a link to a file that is missing")},
    {QT_TRANSLATE_NOOP("Causes",
                       "%1 is a link to somewhere else, and imports do not write through links. Remove the "
                       "link, then import again.")},
    {QT_TRANSLATE_NOOP("Causes", "%1 is no file, and imports keep one there. Remove it, then import again.")},
    {QT_TRANSLATE_NOOP("Causes",
                       "%1 is a second name of another file (a hard link), and imports do not write to such. "
                       "Put a copy of it in its place, or remove it, then import again.")},
    {QT_TRANSLATE_NOOP("Causes", "%1 is not a folder.")},
    {QT_TRANSLATE_NOOP("Causes", "There is not enough space in %1: %2 bytes are needed, %3 are free.")},
    {QT_TRANSLATE_NOOP("Causes", "it was changed while it was copied")},
    {QT_TRANSLATE_NOOP("Causes", "the copy differs from the original")},
    {QT_TRANSLATE_NOOP("Causes", "the copy cannot be written: %1")},
    {QT_TRANSLATE_NOOP("Causes", "the copy cannot be read back: %1")},
    {QT_TRANSLATE_NOOP("Causes", "the copy cannot be recorded")},
    {QT_TRANSLATE_NOOP("Causes", "another file got the name %1 meanwhile")},
    {QT_TRANSLATE_NOOP("Causes", "it is identical to %1, which could not be copied")},
    {QT_TRANSLATE_NOOP("Causes", "the import was interrupted")},
    {QT_TRANSLATE_NOOP("Causes", "identical files")},
    {QT_TRANSLATE_NOOP("Causes", "the same pixels")},
    {QT_TRANSLATE_NOOP("Causes", "the same picture, smaller")},
    {QT_TRANSLATE_NOOP("Causes", "the same picture, larger")},
    {QT_TRANSLATE_NOOP("Causes", "the same picture, compressed again or in another format")},
    {QT_TRANSLATE_NOOP("Causes", "the same picture, mirrored")},
    {QT_TRANSLATE_NOOP("Causes", "the same picture, brighter")},
    {QT_TRANSLATE_NOOP("Causes", "the same picture, darker")},
    {QT_TRANSLATE_NOOP("Causes", "the same picture, with more contrast")},
    {QT_TRANSLATE_NOOP("Causes", "the same picture, with less contrast")},
    {QT_TRANSLATE_NOOP("Causes", "the same picture, sharpened")},
    {QT_TRANSLATE_NOOP("Causes", "the same picture, changed all over")},
    {QT_TRANSLATE_NOOP("Causes", "the same picture, larger and with more detail")},
    {QT_TRANSLATE_NOOP("Causes", "the same picture with a border or a caption")},
    {QT_TRANSLATE_NOOP("Causes", "the same picture without colours")},
    {QT_TRANSLATE_NOOP("Causes", "the same picture with colours")},
    {QT_TRANSLATE_NOOP("Causes", "the same picture as far as a preview shows")},
    {QT_TRANSLATE_NOOP("Causes", "the same picture as far as so few pixels show")},
    {QT_TRANSLATE_NOOP("Causes", "the same picture as far as it shows when it is made smaller")},
    {QT_TRANSLATE_NOOP("Causes", "the same picture, but for something small at %1"), 1},
    {QT_TRANSLATE_NOOP("Causes", "nearly the same view")},
    {QT_TRANSLATE_NOOP("Causes", "the same view, turned a little")},
    {QT_TRANSLATE_NOOP("Causes", "the same view, cropped")},
    {QT_TRANSLATE_NOOP("Causes", "the same view with more around it")},
    {QT_TRANSLATE_NOOP("Causes", "the same view, brighter")},
    {QT_TRANSLATE_NOOP("Causes", "the same view, darker")},
    {QT_TRANSLATE_NOOP("Causes", "another plain colour")},
    {QT_TRANSLATE_NOOP("Causes", "shows something else")},
    {QT_TRANSLATE_NOOP("Causes", "differs in some places")},
    {QT_TRANSLATE_NOOP("Causes", "differs at %1"), 1},
    {QT_TRANSLATE_NOOP("Causes", "the upper left")},
    {QT_TRANSLATE_NOOP("Causes", "the top")},
    {QT_TRANSLATE_NOOP("Causes", "the upper right")},
    {QT_TRANSLATE_NOOP("Causes", "the left")},
    {QT_TRANSLATE_NOOP("Causes", "the middle")},
    {QT_TRANSLATE_NOOP("Causes", "the right")},
    {QT_TRANSLATE_NOOP("Causes", "the lower left")},
    {QT_TRANSLATE_NOOP("Causes", "the bottom")},
    {QT_TRANSLATE_NOOP("Causes", "the lower right")},
    {QT_TRANSLATE_NOOP("Causes", "it cannot be compared: %1"), 1},
    {QT_TRANSLATE_NOOP("Causes", "the photo to keep cannot be compared: %1"), 1},
    {QT_TRANSLATE_NOOP("Causes", "it has too few pixels")},
    {QT_TRANSLATE_NOOP("Causes", "it is partly transparent")},
    {QT_TRANSLATE_NOOP("Causes", "it breaks off before the end of its picture")},
    {QT_TRANSLATE_NOOP("Causes", "it holds more behind its picture")},
    {QT_TRANSLATE_NOOP("Causes", "of several pictures in a file only the first can be compared")},
    {QT_TRANSLATE_NOOP("Causes", "there is not enough memory to compare it")},
    {QT_TRANSLATE_NOOP("Causes", "nothing of the picture can be decoded")},
    {QT_TRANSLATE_NOOP("Causes", "the head of the picture is damaged")},
    {QT_TRANSLATE_NOOP("Causes", "a part of the picture is damaged")},
    {QT_TRANSLATE_NOOP("Causes", "its content is not a picture of a known format")},
    {QT_TRANSLATE_NOOP("Causes", "the file is empty")},
    {QT_TRANSLATE_NOOP("Causes", "It may be any of %1 photos that are missing")},
    {QT_TRANSLATE_NOOP("Causes", "It is missing, and %1 files may be it")},
    {QT_TRANSLATE_NOOP("Causes", "It was changed or replaced, and a file has its former content")},
};

constexpr std::size_t kMostPlaces = 9;

struct Match {
  std::array<std::string, kMostPlaces> values;
  std::size_t places = 0;
  std::size_t literal = 0;  ///< How many bytes of the text are the sentence's own.
};

/// How the text reads as `sentence`; none: it is not that sentence.
std::optional<Match> MatchSentence(std::string_view sentence, std::string_view text) {
  Match match;
  std::string* open = nullptr;
  while (true) {
    const std::size_t place = sentence.find('%');
    const std::string_view literal = sentence.substr(0, place);
    const bool isLast = place == std::string_view::npos;
    // What ends the sentence ends the text; of what is inside it the first one counts.
    std::size_t at = 0;
    if (open != nullptr) {
      at = !isLast                        ? text.find(literal, 1)
           : text.size() > literal.size() ? text.size() - literal.size()
                                          : std::string_view::npos;
    }
    if (at == std::string_view::npos || text.substr(at, literal.size()) != literal ||
        (isLast && at + literal.size() != text.size())) {
      return std::nullopt;
    }
    if (open != nullptr) {
      *open = text.substr(0, at);
    }
    match.literal += literal.size();
    if (isLast) {
      return match;
    }
    text.remove_prefix(at + literal.size());
    sentence.remove_prefix(place + 2);
    open = &match.values[match.places++];
  }
}

std::string Translated(const std::string& english, const Sentence& sentence, Match match) {
  if (sentence.cause > 0) {
    std::string& cause = match.values[static_cast<std::size_t>(sentence.cause - 1)];
    std::string translated = CauseText(cause);
    // Nothing but marks around a text that is none of ours.
    if (translated == cause && match.literal <= 2) {
      return english;
    }
    cause = std::move(translated);
  }
  if (sentence.step > 0) {
    std::string& step = match.values[static_cast<std::size_t>(sentence.step - 1)];
    step = StepText(step);
  }
  return Say(QCoreApplication::translate("Causes", sentence.english),
             {match.values[0], match.values[1], match.values[2]});
}

}  // namespace

std::string CauseText(const std::string& english) {
  const Sentence* best = nullptr;
  std::optional<Match> bestMatch;
  for (const Sentence& sentence : kSentences) {
    std::optional<Match> match = MatchSentence(sentence.english, english);
    if (match && (!bestMatch || match->literal > bestMatch->literal)) {
      best = &sentence;
      bestMatch = std::move(match);
    }
  }
  return best == nullptr ? english : Translated(english, *best, std::move(*bestMatch));
}

}  // namespace Zenvora::Lumidex::Cli
