#include <cli/commands/Commands.h>
#include <cli/session/OpenJournal.h>
#include <cli/session/Options.h>
#include <cli/terminal/Words.h>
#include <cli/views/TagText.h>
#include <cli/views/TagView.h>
#include <host/base/LookAlikes.h>
#include <host/scan/PhotoChoice.h>
#include <host/search/TagDictionary.h>

#include <zenvora/app/Application.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <unordered_map>

namespace Zenvora::Lumidex::Cli {

namespace {

using Host::Catalogue;
using Host::Tag;
using Host::TagDictionary;

constexpr char kDescription[] =
    "Add tags to photos, remove tags, or list them.\n"
    "\n"
    "+TAG adds a tag, -TAG removes it. With files only, their tags are shown;\n"
    "without arguments, all tags. Tags are kept in the catalogue: your files do not\n"
    "change, and photos keep their tags through renames, the trash and undo.\n"
    "\"lumidex undo\" undoes a change.";

constexpr char kFooter[] =
    R"(A word that names a built-in tag in your language or in English means that tag,
which is shown in the language of each user: Landscape, Hobby, Travel, Family,
and those with an icon, such as Car, Flower or Home. Any other word is a tag of
your own; words that look alike are the same tag.

A folder stands for the photos in it, without subfolders; a link stands for the
photo it leads to. To remove a tag of one letter, write --remove; for a file
whose name begins with + or -, write ./+file. All words after -- are files.

Examples:
  lumidex tag ~/Pictures/trip +Beach +Family
  lumidex tag IMG_1.jpg IMG_2.jpg -Family
  lumidex tag IMG_1.jpg                 the tags of a photo
  lumidex tag --lang de_DE              all tags, in German

Exit codes: 0 done; 1 there is nothing to show or to change; 3 some photos are
not in the catalogue; 4 no photo is in it, or it cannot be written.)";

constexpr int kMostLetters = 200;

struct TagArguments {
  std::vector<std::string> files;
  std::vector<std::string> add;
  std::vector<std::string> remove;

  bool Changes() const { return !add.empty() || !remove.empty(); }
};

[[noreturn]] void ThrowUsage(const std::string& fault) {
  throw UsageError(fault + " (see: lumidex help tag)");
}

/// The word without blanks around it.
QString CleanWord(const std::string& word) {
  const QString clean = QString::fromStdString(word).simplified();
  const bool isText = std::all_of(clean.begin(), clean.end(), [](QChar letter) {
    return letter.category() != QChar::Other_Control && letter != QChar(QChar::ReplacementCharacter);
  });
  if (Host::LookAlikeForm(clean).isEmpty() || !isText || clean.size() > kMostLetters) {
    ThrowUsage("\"" + word + "\" cannot be a tag; write a text of 1 to " + std::to_string(kMostLetters) +
               " letters");
  }
  return clean;
}

/// The words of the command line as tags.
class TagWords {
 public:
  explicit TagWords(std::vector<Host::TagUse> known)
      : known_(std::move(known)), locale_(App::GetCurrentLocale()) {}

  /// Later words that look alike mean the same tag.
  Tag ToAdd(const std::string& text) {
    const QString word = CleanWord(text);
    if (const std::optional<Tag> named = TagDictionary::Shipped().Named(word, locale_)) {
      return *named;
    }
    const QString form = Host::LookAlikeForm(word);
    for (const Host::TagUse& use : known_) {
      // Else there would be two that nobody can tell apart.
      if (use.tag.type == Host::TagType::Own && Host::LookAlikeForm(use.tag.name) == form) {
        return use.tag;
      }
    }
    known_.push_back({{Host::TagType::Own, word}, 0});
    return known_.back().tag;
  }

  /// All tags that the word can mean, as they are shown, in English or by their keys.
  std::vector<Tag> ToRemove(const std::string& text) const {
    const QString form = Host::LookAlikeForm(CleanWord(text));
    std::vector<Tag> meant;
    for (const Host::TagUse& use : known_) {
      const TagDictionary& dictionary = TagDictionary::Shipped();
      for (const QString& name :
           {dictionary.NameOf(use.tag, locale_), dictionary.NameOf(use.tag, "en_US"), use.tag.name}) {
        if (Host::LookAlikeForm(name) == form) {
          meant.push_back(use.tag);
          break;
        }
      }
    }
    return meant;
  }

 private:
  std::vector<Host::TagUse> known_;
  const std::string locale_;
};

void AddOnce(std::vector<Tag>& tags, const Tag& tag) {
  if (std::find(tags.begin(), tags.end(), tag) == tags.end()) {
    tags.push_back(tag);
  }
}

/// One run of the command.
class TagRun {
 public:
  TagRun(const TagArguments& arguments, Session& session) : arguments_(arguments), session_(session) {
    view_.catalogue = session.CatalogueFile();
    view_.kind = arguments.Changes()       ? TagView::Kind::Change
                 : arguments.files.empty() ? TagView::Kind::Tags
                                           : TagView::Kind::Photos;
  }

  ExitCode Run() {
    if (arguments_.Changes() && arguments_.files.empty()) {
      ThrowUsage("A file is missing");
    }
    session_.ExistingCatalogue();
    if (arguments_.Changes()) {
      Change();
    } else {
      RecoverIfNeeded(session_);
      List();
    }
    session_.Count(ItemType::Tag, view_.photos.size(), view_.changed);
    view_.recovered = session_.recovered;
    session_.output.Print(session_.globals.json ? TagDocument(view_) : TagTextOf(view_));
    if (!arguments_.files.empty() && view_.photos.empty() && view_.findings.empty()) {
      session_.console.Note(Say(Words::tr("There are no photos in the given folders.")));
    }
    return Judge();
  }

 private:
  void List() {
    const Catalogue catalogue(view_.catalogue, Catalogue::Mode::ReadOnly);
    if (view_.kind == TagView::Kind::Photos) {
      Choose(catalogue);
      return;
    }
    for (Host::TagUse& use : catalogue.Tags()) {
      if (use.photos > 0) {
        view_.tags.push_back(std::move(use));
      }
    }
  }

  /// The photos that were named, with their tags now.
  void Choose(const Catalogue& catalogue) {
    view_.photos.clear();
    view_.findings.clear();
    std::vector<ioPath> named;
    for (const std::string& file : arguments_.files) {
      named.push_back(AbsolutePath(file));
    }
    Host::EditChoice choice = Host::ChooseForEdit(named);
    view_.findings = std::move(choice.refused);
    std::unordered_map<ioPath, QString> ids;
    for (const Host::PhotoRecord& photo : catalogue.Photos()) {
      ids.emplace(photo.path, photo.id);
    }
    auto tags = catalogue.PhotoTags();
    for (const ioPath& path : choice.photos) {
      const auto id = ids.find(path);
      if (id == ids.end()) {
        view_.findings.push_back(
            {path, path.utf8string() + " is not in the catalogue. Run: lumidex scan DIR"});
        continue;
      }
      const std::string text = id->second.toStdString();
      view_.photos.push_back({path, text, tags[text]});
    }
  }

  void Change() {
    OpenJournal journal(session_);
    const Catalogue catalogue(view_.catalogue, Catalogue::Mode::ReadWrite);
    Host::TagWishes wishes = WishesFor(catalogue);
    Choose(catalogue);
    for (const TagView::Row& row : view_.photos) {
      wishes.photos.push_back(row.path);
    }
    if (wishes.photos.empty() || (wishes.add.empty() && wishes.remove.empty())) {
      return;
    }
    view_.changed = journal.Get().Tags().Run(QString::fromStdString(StepName(wishes)), wishes).files;
    if (view_.changed > 0) {
      journal.Prune();
      view_.canBeUndone = journal.CanUndoLast();
      Choose(catalogue);
    }
  }

  Host::TagWishes WishesFor(const Catalogue& catalogue) {
    TagWords words(catalogue.Tags());
    Host::TagWishes wishes;
    for (const std::string& word : arguments_.add) {
      AddOnce(wishes.add, words.ToAdd(word));
    }
    for (const std::string& word : arguments_.remove) {
      const std::vector<Tag> meant = words.ToRemove(word);
      if (meant.empty()) {
        session_.console.Note(Say(Words::tr("No photo has the tag \"%1\"."), {word}));
      }
      for (const Tag& tag : meant) {
        if (std::find(wishes.add.begin(), wishes.add.end(), tag) != wishes.add.end()) {
          ThrowUsage("The tag \"" + word + "\" cannot be added and removed at once");
        }
        AddOnce(wishes.remove, tag);
      }
    }
    view_.added = wishes.add;
    view_.removed = wishes.remove;
    return wishes;
  }

  static std::string StepName(const Host::TagWishes& wishes) {
    std::string name = "tag";
    for (const Tag& tag : wishes.add) {
      name += " +" + TagName(tag);
    }
    for (const Tag& tag : wishes.remove) {
      name += " -" + TagName(tag);
    }
    return name;
  }

  ExitCode Judge() const {
    if (!view_.findings.empty()) {
      return view_.photos.empty() ? ExitCode::Failed : ExitCode::Partly;
    }
    const bool isEmpty = view_.kind == TagView::Kind::Tags     ? view_.tags.empty()
                         : view_.kind == TagView::Kind::Photos ? view_.photos.empty()
                                                               : view_.changed == 0;
    return isEmpty ? ExitCode::Findings : ExitCode::Done;
  }

  const TagArguments& arguments_;
  Session& session_;
  TagView view_;
};

}  // namespace

void AddTagCommand(CLI::App& program, Action& chosen) {
  CLI::App* const command = program.add_subcommand("tag", kDescription);
  const auto arguments = std::make_shared<TagArguments>();
  command->footer(kFooter);
  command->add_option("FILE", arguments->files, "Photos or folders; tags as +TAG and -TAG.")
      ->transform(Text());
  command->add_option("--add", arguments->add, "The same as +TAG. Can be given several times.")
      ->option_text("TAG")
      ->allow_extra_args(false)
      ->transform(Text());
  command->add_option("--remove", arguments->remove, "The same as -TAG. Can be given several times.")
      ->option_text("TAG")
      ->allow_extra_args(false)
      ->transform(Text());
  command->callback([arguments, &chosen] {
    chosen = [arguments](Session& session) { return TagRun(*arguments, session).Run(); };
  });
}

}  // namespace Zenvora::Lumidex::Cli
