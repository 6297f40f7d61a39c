#include <cli/commands/Commands.h>
#include <cli/session/OpenJournal.h>
#include <cli/session/Options.h>
#include <cli/views/FindView.h>
#include <host/catalogue/Catalogue.h>
#include <host/catalogue/DateFilter.h>
#include <host/search/PhotoSearch.h>

#include <zenvora/app/Application.h>

#include <memory>

namespace Zenvora::Lumidex::Cli {

namespace {

using Host::Catalogue;

constexpr char kDescription[] =
    "Find photos in the catalogue by date, camera, place, tag or text.\n"
    "\n"
    "Shows the photos that match all options; without options, all photos. Case,\n"
    "accents and letters that look alike make no difference.";

constexpr char kFooter[] =
    R"(DATES is a year, a month or a day: 2015, 2015-03, 2015-03-01; or two of them
separated by " - ": "2015-03-01 - 2015-03-09". One of the two can be left out:
"2015-03 -" means that month and all later ones. A day can also be in the short
form of the interface language, such as 3/1/2015 or 01.03.15; a year with two
digits means the latest such year up to this one.

TAG is a word in any of the nine languages: --tag Flugzeug and --tag jet find
photos with the tag Plane, --tag Strand finds photos with your own tag Beach. A
word that is not known is searched for as it is.

BOX is SOUTH,WEST,NORTH,EAST in degrees; it crosses the date line if WEST is
greater than EAST. TEXT is part of the path, of the camera name or of a tag.

Examples:
  lumidex find --date "2023-06-01 - 2023-08-31" --tag Beach
  lumidex find --date 2023-12 --text Canon
  lumidex find --camera "EOS 80D" --place 48.8,2.2,48.9,2.5
  lumidex find --text trip --tag Family --tag Travel
  lumidex find --tag Screenshot --paths | xargs -r -d '\n' ls -l

Exit codes: 0 photos were found; 1 no photos were found; 4 there is no
catalogue, or it cannot be read.)";

struct FindArguments {
  std::string dates;
  std::string camera;
  std::string place;
  std::vector<std::string> tags;
  std::vector<std::string> texts;
  bool paths = false;
};

[[noreturn]] void ThrowUsage(const char* option, const std::string& fault) {
  throw UsageError(std::string(option) + " needs " + fault + " (see: lumidex help find)");
}

Host::PhotoFilter FilterOf(const FindArguments& arguments) {
  Host::PhotoFilter filter;
  std::string fault;
  if (!arguments.dates.empty()) {
    filter.dates = Host::ReadDates(QString::fromStdString(arguments.dates), App::GetCurrentLocale(),
                                   App::GetCurrentDateTime().date(), fault);
    if (!filter.dates) {
      ThrowUsage("--date", fault);
    }
  }
  if (!arguments.place.empty()) {
    filter.place = Host::ReadPlaceBox(QString::fromStdString(arguments.place), fault);
    if (!filter.place) {
      ThrowUsage("--place", fault);
    }
  }
  filter.camera = QString::fromStdString(arguments.camera);
  for (const std::string& tag : arguments.tags) {
    filter.tags.push_back(Host::TagDictionary::Shipped().MeaningOf(QString::fromStdString(tag)));
  }
  for (const std::string& text : arguments.texts) {
    filter.texts.push_back(QString::fromStdString(text));
  }
  return filter;
}

std::string TextOf(const FindView& view, const FindArguments& arguments, bool json) {
  if (json) {
    return FindDocument(view);
  }
  return arguments.paths ? FindPaths(view) : FindText(view);
}

ExitCode RunFind(const FindArguments& arguments, Session& session) {
  const Host::PhotoFilter filter = FilterOf(arguments);
  FindView view;
  view.catalogue = session.ExistingCatalogue();
  view.dates = filter.dates;
  RecoverIfNeeded(session);
  const Catalogue catalogue(view.catalogue, Catalogue::Mode::ReadOnly);
  const std::vector<Host::PhotoRecord> photos = catalogue.Photos();
  const Host::TagsOfPhotos tags = catalogue.PhotoTags();
  view.photos = photos.size();
  for (const Host::PhotoRecord* const photo :
       Host::FindPhotos(photos, tags, filter, App::GetCurrentLocale())) {
    const auto own = tags.find(photo->id.toStdString());
    view.rows.push_back({*photo, own == tags.end() ? std::vector<Host::Tag>() : own->second});
  }
  session.Count(ItemType::Photo, view.photos, view.rows.size());
  session.output.Print(TextOf(view, arguments, session.globals.json));
  return view.rows.empty() ? ExitCode::Findings : ExitCode::Done;
}

}  // namespace

void AddFindCommand(CLI::App& program, Action& chosen) {
  CLI::App* const command = program.add_subcommand("find", kDescription);
  const auto arguments = std::make_shared<FindArguments>();
  command->footer(kFooter);
  command->add_option("--date", arguments->dates, "Photos taken on these days.")
      ->option_text("DATES")
      ->transform(Text());
  command
      ->add_option("--camera", arguments->camera,
                   "Photos taken with this camera; part of its name is enough.")
      ->option_text("NAME")
      ->transform(Text());
  command->add_option("--place", arguments->place, "Photos taken in this area.")
      ->option_text("BOX")
      ->transform(Text());
  command->add_option("--tag", arguments->tags, "Photos with this tag. Can be given several times.")
      ->option_text("TAG")
      ->allow_extra_args(false)
      ->transform(Text());
  command->add_option("--text", arguments->texts, "Photos with this text. Can be given several times.")
      ->option_text("TEXT")
      ->allow_extra_args(false)
      ->transform(Text());
  command->add_flag("--paths", arguments->paths, "Print only the paths, one per line, unescaped.")
      ->disable_flag_override();
  command->callback([arguments, &chosen] {
    chosen = [arguments](Session& session) { return RunFind(*arguments, session); };
  });
}

}  // namespace Zenvora::Lumidex::Cli
