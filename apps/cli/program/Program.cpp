#include "Program.h"

#include "CommandLine.h"
#include "ProcessSetup.h"

#include <cli/commands/StatsCommand.h>
#include <cli/session/Options.h>
#include <cli/terminal/Arguments.h>
#include <cli/terminal/Failure.h>
#include <cli/terminal/Interrupt.h>
#include <cli/terminal/JsonWriter.h>
#include <cli/terminal/LogLines.h>
#include <cli/terminal/Words.h>
#include <host/base/HostError.h>

#include <zenvora/app/Application.h>

#include <QCoreApplication>
#include <QTextCodec>

#include <cstdio>
#include <exception>
#include <optional>

namespace Zenvora::Lumidex::Cli {

namespace {

/// In one line, where the candidates are what the advice is about.
std::string WholeMessage(const std::string& message, const std::vector<std::string>& candidates,
                         const std::string& advice) {
  std::string text = message;
  if (!advice.empty()) {
    for (const std::string& candidate : candidates) {
      text += (&candidate == candidates.data() ? " " : "; ") + candidate;
    }
    text += ". " + advice;
  }
  return text;
}

std::string ErrorDocument(const std::string& kind, const std::string& message,
                          const std::vector<std::string>& candidates, const std::string& advice,
                          ExitCode code) {
  JsonWriter json("lumidex.error", 1);
  json.Text("kind", kind);
  json.Text("message", WholeMessage(message, candidates, advice));
  json.BeginArray("candidates");
  for (const std::string& candidate : candidates) {
    json.Text("", candidate);
  }
  json.EndArray();
  json.Number("exitCode", static_cast<int>(code));
  return json.Finish();
}

/// Runs one command and turns what it throws into messages.
class Runner {
 public:
  Runner(Output& output, Console& console, bool json) : output_(output), console_(console), json_(json) {}

  template <class Work>
  ExitCode Run(const Work& work) {
    try {
      return work();
    } catch (const UsageError& error) {
      return Report("usage", error.what(), ExitCode::Usage);
    } catch (const InterruptedError& error) {
      return Report("interrupted", error.what(), ExitCode::Interrupted);
    } catch (const Failure& error) {
      return Report(error.Kind(), error.what(), ExitCode::Failed, error.Candidates(), error.Advice());
    } catch (const std::exception& error) {
      if (Interrupted()) {
        return Report("interrupted", "Interrupted.", ExitCode::Interrupted);
      }
      return Report("failed", error.what(), ExitCode::Failed);
    }
  }

 private:
  ExitCode Report(const std::string& kind, const std::string& message, ExitCode code,
                  const std::vector<std::string>& candidates = {}, const std::string& advice = {}) {
    output_.Clear();
    if (json_) {
      output_.Print(ErrorDocument(kind, message, candidates, advice, code));
    }
    if (code == ExitCode::Interrupted) {
      console_.Note(message);
    } else {
      console_.Error(message, candidates, advice);
    }
    return code;
  }

  Output& output_;
  Console& console_;
  const bool json_;
};

ExitCode RunCommand(const ParsedCommandLine& parsed, Output& output, Console& console, int argc,
                    char** argv) {
  const LogLines log(console, "lumidex", parsed.globals.verbosity);
  App::ApplicationOf<QCoreApplication> application(argc, argv);
  QCoreApplication::setApplicationName(QStringLiteral("lumidex"));
  QCoreApplication::setApplicationVersion(QStringLiteral(LUMIDEX_VERSION));
  const LanguageScope language(parsed.globals, console);
  Session session{parsed.globals, output, console, Interrupted(), {}, {}};
  try {
    const ExitCode code = parsed.action(session);
    NoteUse(parsed.command, session);
    return code;
  } catch (const Host::HostError&) {
    // What the host gives up on request it reports like any failure; here the language is still in force.
    ThrowIfInterrupted(Say(Words::tr("Interrupted.")).c_str());
    throw;
  }
}

}  // namespace

int RunProgram(int argc, char** argv) {
  const ProcessSetup setup;
  // File names are UTF-8 whatever the locale says; Qt would replace what plain "C" cannot spell.
  QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
  WatchInterrupts();
  const std::vector<std::string> arguments = ProgramArguments(argc, argv);
  Console plain(false);
  if (arguments.empty()) {
    std::fputs(ShortHelp().c_str(), stderr);
    return static_cast<int>(ExitCode::Usage);
  }

  Output output;
  Runner runner(output, plain, AsksForJson(arguments));
  std::optional<ParsedCommandLine> parsed;
  ExitCode code = runner.Run([&] {
    parsed = ParseCommandLine(arguments);
    output.Print(parsed->text);
    return ExitCode::Done;
  });
  if (parsed && parsed->action) {
    Console console(parsed->globals.quiet);
    code = Runner(output, console, parsed->globals.json).Run([&] {
      return RunCommand(*parsed, output, console, argc, argv);
    });
  }
  // Also a failure's document; what cannot be written cannot be said in JSON either.
  const ExitCode written = Runner(output, plain, false).Run([&] {
    output.Write();
    return ExitCode::Done;
  });
  return static_cast<int>(Worse(code, written));
}

}  // namespace Zenvora::Lumidex::Cli
