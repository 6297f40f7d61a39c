#include <cli/commands/Commands.h>
#include <cli/session/Options.h>
#include <cli/terminal/LogLines.h>
#include <cli/terminal/Progress.h>
#include <cli/terminal/Words.h>
#include <cli/views/InfoView.h>
#include <host/base/HostError.h>
#include <host/scan/PhotoChoice.h>

#include <memory>

namespace Zenvora::Lumidex::Cli {

namespace {

constexpr char kDescription[] =
    "Show the metadata of photos: date, camera, position, picture.\n"
    "\n"
    "The date is that of DateTimeOriginal, else of DateTimeDigitized, else that of\n"
    "XMP or IPTC, else the time of the file; FROM says which. Positions are in\n"
    "decimal degrees. A question mark after a hemisphere means that the photo does\n"
    "not give it, or gives it wrongly. The catalogue is not used, and nothing is\n"
    "changed.";

constexpr char kFooter[] =
    R"(A folder stands for the photos in it, without subfolders; a link stands for the
photo it leads to.

Examples:
  lumidex info IMG_1.jpg
  lumidex info ~/Pictures/trip
  lumidex info --json *.jpg

Exit codes: 0 done; 1 there are no photos, or a position is doubtful; 3 some
files cannot be read; 4 no file can be read; 130 interrupted, the files read so
far are shown.)";

class InfoRun {
 public:
  InfoRun(const std::vector<std::string>& files, Session& session) : files_(files), session_(session) {}

  ExitCode Run() {
    Choose();
    Read();
    session_.output.Print(session_.globals.json ? InfoDocument(view_) : InfoText(view_));
    Note();
    return Judge();
  }

 private:
  void Choose() {
    std::vector<ioPath> named;
    for (const std::string& file : files_) {
      named.push_back(AbsolutePath(file));
    }
    Host::EditChoice choice = Host::ChooseForEdit(named);
    chosen_ = std::move(choice.photos);
    view_.findings = std::move(choice.refused);
  }

  void Read() {
    // Doubtful positions are told with the file's name, below.
    const LogLines::Hush hush;
    Progress progress(session_.console, Say(Words::tr("Reading")), Say(Words::tr("photos", "of so many")));
    std::uint64_t done = 0;
    for (const ioPath& photo : chosen_) {
      if (session_.interrupted) {
        view_.interrupted = true;
        break;
      }
      try {
        view_.photos.push_back(Host::ReadPhotoInfo(photo));
      } catch (const Host::HostError& error) {
        view_.findings.push_back({photo, std::string(error.what()) + '.'});
      }
      progress.Update(++done, chosen_.size());
    }
  }

  void Note() const {
    if (view_.interrupted) {
      session_.console.Note(Say(Words::tr("Interrupted.")));
    } else if (view_.photos.empty() && view_.findings.empty()) {
      session_.console.Note(Say(Words::tr("There are no photos in the given folders.")));
    }
  }

  ExitCode Judge() const {
    if (view_.interrupted) {
      return ExitCode::Interrupted;
    }
    if (!view_.findings.empty()) {
      return view_.photos.empty() ? ExitCode::Failed : ExitCode::Partly;
    }
    return view_.photos.empty() || HasDoubts(view_) ? ExitCode::Findings : ExitCode::Done;
  }

  const std::vector<std::string>& files_;
  Session& session_;
  std::vector<ioPath> chosen_;
  InfoView view_;
};

}  // namespace

void AddInfoCommand(CLI::App& program, Action& chosen) {
  CLI::App* const command = program.add_subcommand("info", kDescription);
  const auto files = std::make_shared<std::vector<std::string>>();
  command->footer(kFooter);
  command->add_option("FILE", *files, "Photos, or folders with photos.")->required()->transform(Text());
  command->callback(
      [files, &chosen] { chosen = [files](Session& session) { return InfoRun(*files, session).Run(); }; });
}

}  // namespace Zenvora::Lumidex::Cli
