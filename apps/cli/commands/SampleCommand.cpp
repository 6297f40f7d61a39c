#include <cli/commands/Commands.h>
#include <cli/session/Options.h>
#include <cli/terminal/Interrupt.h>
#include <cli/terminal/JsonWriter.h>
#include <cli/terminal/Progress.h>
#include <cli/terminal/TerminalText.h>
#include <cli/terminal/Words.h>
#include <samples/Sample.h>

#include <memory>

namespace Zenvora::Lumidex::Cli {

namespace {

constexpr int kLeastPhotos = 50;
constexpr int kMostPhotos = 100'000;

constexpr char kDescription[] =
    "Make a folder of sample photos to try things out.\n"
    "\n"
    "Draws pictures and dates them over several years: holidays, weekends, bursts,\n"
    "several cameras. The folder must be empty or missing, so nothing of yours is\n"
    "ever overwritten.";

constexpr char kFooter[] =
    R"(The same seed and number of photos give the same files.

Examples:
  lumidex sample /tmp/demo
  lumidex sample /tmp/demo --photos 2000 --seed 7
  lumidex -c /tmp/demo.sqlite scan /tmp/demo
  lumidex -c /tmp/demo.sqlite albums

Exit codes: 0 done; 4 the folder is not empty or cannot be written;
130 interrupted.)";

struct SampleArguments {
  std::string folder;
  std::uint32_t seed = Host::SampleOptions().seed;
  int photos = Host::SampleOptions().photos;
};

std::string ResultDocument(const SampleArguments& arguments, const ioPath& folder,
                           const Host::SampleResult& result) {
  JsonWriter json("lumidex.sample", 1);
  json.Path("path", folder);
  json.Number("seed", arguments.seed);
  json.Number("photos", result.photos);
  json.Truth("interrupted", result.cancelled);
  return json.Finish();
}

ExitCode RunSample(const SampleArguments& arguments, Session& session) {
  const ioPath folder = AbsolutePath(arguments.folder);
  Host::SampleOptions options;
  options.seed = arguments.seed;
  options.photos = arguments.photos;
  options.cancel = &session.interrupted;
  Host::SampleResult result;
  {
    Progress progress(session.console, Say(Words::tr("Drawing")), Say(Words::tr("photos", "of so many")));
    result = Host::MakeSample(folder, options, [&progress](int done, int total) {
      progress.Update(static_cast<std::uint64_t>(done), static_cast<std::uint64_t>(total));
    });
  }

  if (session.globals.json) {
    session.output.Print(ResultDocument(arguments, folder, result));
  } else {
    session.output.Print(Say(Words::tr("Made %1 photos in %2", nullptr, result.photos),
                             {GroupDigits(static_cast<unsigned long long>(result.photos)),
                              EscapeForTerminal(folder.utf8string())}) +
                         '\n');
  }
  if (result.cancelled) {
    session.console.Note(
        Say(Words::tr("Interrupted. The photos made so far stay; delete the folder before you try again.")));
    return ExitCode::Interrupted;
  }
  return ExitCode::Done;
}

}  // namespace

void AddSampleCommand(CLI::App& program, Action& chosen) {
  CLI::App* const command = program.add_subcommand("sample", kDescription);
  const auto arguments = std::make_shared<SampleArguments>();
  command->footer(kFooter);
  command->add_option("DIR", arguments->folder, "The folder to create.")->required()->transform(Text());
  command->add_option("--seed", arguments->seed, "The number of the collection, 0 to 4294967295. Default: 1.")
      ->option_text("N")
      ->check(WholeNumber(0, 4'294'967'295));
  command
      ->add_option("--photos", arguments->photos,
                   "The approximate number of photos, 50 to 100000. Default: 360.")
      ->option_text("N")
      ->check(WholeNumber(kLeastPhotos, kMostPhotos));
  command->callback([arguments, &chosen] {
    chosen = [arguments](Session& session) { return RunSample(*arguments, session); };
  });
}

}  // namespace Zenvora::Lumidex::Cli
