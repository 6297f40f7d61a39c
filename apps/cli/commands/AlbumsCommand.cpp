#include "AlbumsRows.h"

#include <cli/commands/Commands.h>
#include <cli/session/CalendarWatch.h>
#include <cli/session/OpenJournal.h>
#include <cli/session/Options.h>
#include <cli/session/ReportTarget.h>
#include <cli/terminal/Failure.h>
#include <cli/terminal/Interrupt.h>
#include <cli/terminal/Progress.h>
#include <cli/terminal/TerminalText.h>
#include <cli/terminal/Words.h>
#include <cli/views/AlbumNames.h>
#include <cli/views/AlbumsView.h>
#include <host/albums/Albums.h>
#include <host/base/HostError.h>
#include <host/catalogue/Catalogue.h>
#include <host/report/Report.h>
#include <host/settings/InterfaceTexts.h>

#include <zenvora/app/Application.h>
#include <zenvora/app/RealServices.h>

#include <algorithm>
#include <memory>
#include <string>
#include <tuple>

namespace Zenvora::Lumidex::Cli {

namespace {

using Host::Catalogue;
using Host::PhotoRecord;

constexpr char kDescription[] =
    "Show which albums your photos could form, and accept those you like.\n"
    "\n"
    "Proposes an album for each holiday and for the weekends of each month that have\n"
    "20 photos or more, sorted by time. FIRST DAY is the first day of the holiday or\n"
    "weekend, LAST DAY is the day of the latest photo. Photos without a date are\n"
    "left out, because the time of a file often says only when it was copied.\n"
    "Accepting stores an album in the catalogue; \"lumidex undo\" undoes it. Your\n"
    "files do not change.";

constexpr char kFooter[] =
    R"(NAME is the name and time of an album as shown: "Christmas, December 2023". It
must match exactly one album; if one name does not, nothing is accepted.
Accepting an album again adds its new photos. Undo treats all albums of one run
as one step: it removes new albums, and removes added photos from the others.

Examples:
  lumidex albums
  lumidex albums --list                  with the files of each album
  lumidex albums --file-times            also photos without a date
  lumidex albums --locale ja_JP          with the holidays of Japan
  lumidex albums --accept "Christmas, December 2023"
  lumidex albums --accept all --report albums.html
  lumidex albums --accepted              the albums accepted so far

A report replaces an older report of the same name, but never a photo, a file
of the catalogue or any other file.

Exit codes: 0 done; 1 the catalogue has no photos, or the holiday calendar
cannot be read; 3 pictures are missing in the report; 4 there is no catalogue,
it cannot be read or written, NAME matches no album or several albums, or the
report cannot be written; 130 interrupted.)";

struct AlbumsArguments {
  std::string locale;
  bool list = false;
  bool fileTimes = false;
  bool accepted = false;
  std::vector<std::string> accept;
  std::string report;
};

// By first day, then name. By days alone: where the clocks go forward at midnight a day has no 00:00.
void SortByTime(std::vector<Album>& proposals) {
  std::sort(proposals.begin(), proposals.end(), [](const Album& left, const Album& right) {
    const DataModel& a = left.GetModel();
    const DataModel& b = right.GetModel();
    const QDate dayOfA = a.GetDateTime().date();
    const QDate dayOfB = b.GetDateTime().date();
    return std::forward_as_tuple(dayOfA, a.GetName()) < std::forward_as_tuple(dayOfB, b.GetName());
  });
}

std::vector<std::size_t> ChosenAlbums(const std::vector<std::string>& wishes,
                                      const std::vector<Album>& proposals) {
  std::vector<QString> names;
  names.reserve(proposals.size());
  for (const Album& proposal : proposals) {
    names.push_back(proposal.GetModel().GetName());
  }
  const AlbumChoice choice = ChooseAlbums(wishes, names);
  if (!choice.refused.empty()) {
    const std::string wish = '"' + choice.refused + '"';
    throw Failure(choice.isAmbiguous ? "ambiguous-album" : "unknown-album",
                  choice.isAmbiguous
                      ? "Several albums are called " + wish + "; nothing was accepted. They are:"
                  : names.empty() ? "No album is called " + wish + ": there are no proposals."
                                  : "No album is called " + wish + "; nothing was accepted. There are:",
                  choice.candidates);
  }
  return choice.chosen;
}

int WriteReport(const AlbumsView& view, Session& session) {
  std::vector<Host::ReportAlbum> albums;
  for (const AlbumRow& row : view.rows) {
    Host::ReportAlbum album;
    album.name = row.name;
    album.firstDay = row.firstDay;
    album.accepted = row.accepted;
    for (const PhotoRecord* const photo : row.photos) {
      album.photos.push_back(*photo);
    }
    albums.push_back(std::move(album));
  }
  Host::ReportOptions options;
  options.locale = QString::fromStdString(view.locale);
  options.cancel = &session.interrupted;
  Progress progress(session.console, Say(Words::tr("Drawing")), Say(Words::tr("pictures", "of so many")));
  // The page is in the language of its albums, whatever the program speaks.
  const Host::InterfaceTexts pageTexts(view.locale);
  options.title = view.areStored ? QCoreApplication::translate("Report", "Albums")
                                 : QCoreApplication::translate("Report", "Proposed albums");
  return Host::WriteReport(*view.report, albums, options, [&progress](int done, int total) {
    progress.Update(static_cast<std::uint64_t>(done), static_cast<std::uint64_t>(total));
  });
}

Catalogue OpenCatalogue(const Session& session, bool forWriting) {
  return {session.ExistingCatalogue(), forWriting ? Catalogue::Mode::ReadWrite : Catalogue::Mode::ReadOnly};
}

ExitCode ShowEmpty(const AlbumsView& view, std::size_t known, Session& session) {
  if (session.globals.json) {
    session.output.Print(AlbumsDocument(view));
  } else if (known == 0) {
    session.output.Print(Say(Words::tr("The catalogue holds no photos yet. Run: lumidex scan DIR")) + '\n');
  } else {
    session.output.Print(
        Say(Words::tr(
                "All %1 photos of the catalogue were missing at the last scan. Is a disk not connected?",
                nullptr, Amount(known)),
            {GroupDigits(known)}) +
        '\n');
  }
  return ExitCode::Findings;
}

/// One run of the command.
class AlbumsRun {
 public:
  AlbumsRun(const AlbumsArguments& arguments, Session& session)
      : arguments_(arguments),
        session_(session),
        catalogue_(OpenCatalogue(session, !arguments.accept.empty())),
        photos_(catalogue_.Photos()) {}

  ExitCode Run() {
    view_.catalogue = catalogue_.File();
    view_.locale = App::GetCurrentLocale();
    view_.areStored = arguments_.accepted;
    view_.withMembers = arguments_.list;
    view_.photos = photos_.All().size();
    view_.undated = static_cast<std::size_t>(
        std::count_if(photos_.All().begin(), photos_.All().end(),
                      [](const PhotoRecord& photo) { return !photo.taken.isValid(); }));
    if (arguments_.accepted) {
      view_.rows = RowsOf(catalogue_.Albums(), photos_);
    } else if (photos_.All().empty()) {
      return ShowEmpty(view_, catalogue_.CountPhotos(), session_);
    } else {
      Propose();
    }
    Report();
    Accept();
    session_.Count(ItemType::Album, view_.photos, view_.rows.size());
    session_.output.Print(session_.globals.json ? AlbumsDocument(view_) : AlbumsText(view_));
    return Judge();
  }

 private:
  void Propose() {
    const CalendarWatch watch;
    proposals_ = Host::ProposeAlbums(Host::MakeModels(ToPropose()), &session_.interrupted);
    view_.calendarFault = watch.Fault();
    SortByTime(proposals_);
    chosen_ = ChosenAlbums(arguments_.accept, proposals_);
    view_.rows = RowsOf(proposals_, catalogue_.Albums(), photos_);
    for (const std::size_t place : chosen_) {
      view_.rows[place].accepted = true;
      view_.rows[place].notAccepted = 0;
    }
  }

  /// The time of a file tells when it was copied as often as when the photo was taken.
  std::vector<PhotoRecord> ToPropose() {
    std::vector<PhotoRecord> photos = photos_.All();
    if (!arguments_.fileTimes) {
      const auto end = std::remove_if(photos.begin(), photos.end(), [](const PhotoRecord& photo) {
        return photo.takenSource == Host::DateSource::FileTime;
      });
      view_.leftOut = static_cast<std::size_t>(std::distance(end, photos.end()));
      photos.erase(end, photos.end());
    }
    return photos;
  }

  // Before anything is accepted: where no page can be written nothing was done.
  void Report() {
    if (arguments_.report.empty()) {
      return;
    }
    const ioPath report = AbsolutePath(arguments_.report);
    RequireReplaceable(report, photos_.All());
    view_.report = report;
    view_.missingPictures = WriteReport(view_, session_);
  }

  void Accept() {
    if (chosen_.empty()) {
      return;
    }
    ThrowIfInterrupted((Say(Words::tr("Interrupted.")) + NothingAccepted()).c_str());
    std::vector<Album> albums;
    for (const std::size_t place : chosen_) {
      albums.push_back(proposals_[place]);
    }
    try {
      OpenJournal journal(session_);
      const std::vector<Host::AcceptResult> results = journal.Get().Albums().Run(StepName(albums), albums);
      bool anyChange = false;
      for (std::size_t i = 0; i < albums.size(); ++i) {
        view_.accepted.push_back({albums[i].GetModel().GetName(), results[i]});
        anyChange = anyChange || results[i].created || results[i].photosAdded > 0;
      }
      journal.Prune();
      view_.canBeUndone = anyChange && journal.CanUndoLast();
    } catch (const Host::HostError& error) {
      throw Failure("failed", error.what() + NothingAccepted());
    }
  }

  /// As the journal has it, in English.
  static QString StepName(const std::vector<Album>& albums) {
    return albums.size() == 1
               ? QStringLiteral("accept album %1")
                     .arg(QString::fromStdString(OneLineName(albums.front().GetModel().GetName())))
               : QStringLiteral("accept %1 albums").arg(albums.size());
  }

  // For a run that ends half way.
  std::string NothingAccepted() const {
    std::string text = ' ' + Say(Words::tr("No album was accepted."));
    if (view_.report) {
      text += ' ' + Say(Words::tr("The page %1 is written; it shows all chosen albums as accepted."),
                        {view_.report->utf8string()});
    }
    return text;
  }

  ExitCode Judge() const {
    ExitCode code = ExitCode::Done;
    if (view_.calendarFault) {
      session_.console.Warning(*view_.calendarFault);
      code = ExitCode::Findings;
    }
    return view_.missingPictures > 0 ? ExitCode::Partly : code;
  }

  const AlbumsArguments& arguments_;
  Session& session_;
  Catalogue catalogue_;
  const PhotoIndex photos_;
  std::vector<Album> proposals_;
  /// Places in `proposals_`, and so in the rows.
  std::vector<std::size_t> chosen_;
  AlbumsView view_;
};

ExitCode RunAlbums(const AlbumsArguments& arguments, Session& session) {
  const LocaleScope locale(arguments.locale, session);
  if (!arguments.report.empty()) {
    RequireReportName(AbsolutePath(arguments.report), session.CatalogueFile());
  }
  RecoverIfNeeded(session);
  return AlbumsRun(arguments, session).Run();
}

}  // namespace

void AddAlbumsCommand(CLI::App& program, Action& chosen) {
  CLI::App* const command = program.add_subcommand("albums", kDescription);
  const auto arguments = std::make_shared<AlbumsArguments>();
  command->footer(kFooter);
  command->add_flag("--list", arguments->list, "Also list the files of each album.")->disable_flag_override();
  command
      ->add_flag("--file-times", arguments->fileTimes,
                 "Also use photos without a date, by the times of their files.")
      ->disable_flag_override();
  auto* const accept =
      command
          ->add_option("--accept", arguments->accept,
                       "Accept the album with this name, or all albums. Can be given several times.")
          ->option_text("NAME|all")
          ->allow_extra_args(false)
          ->transform(Text());
  command->add_flag("--accepted", arguments->accepted, "Show the accepted albums instead of the proposals.")
      ->disable_flag_override()
      ->excludes(accept);
  command->add_option("--report", arguments->report, "Write the albums to an HTML page with their pictures.")
      ->option_text("FILE")
      ->transform(Text());
  command
      ->add_option("--locale", arguments->locale,
                   "Use the holidays and names of this language, such as de_DE.")
      ->option_text("LOCALE")
      ->transform(Text());
  command->callback([arguments, &chosen] {
    chosen = [arguments](Session& session) { return RunAlbums(*arguments, session); };
  });
}

}  // namespace Zenvora::Lumidex::Cli
