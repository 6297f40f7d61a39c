#pragma once

#include <cli/session/Session.h>

#include <zenvora/app/IAlerts.h>
#include <zenvora/app/IFolderDialog.h>
#include <zenvora/app/Services.h>

#include <QString>

#include <memory>
#include <string>

namespace Zenvora::Lumidex::Cli {

/// What the command line says in advance.
struct GivenAnswers {
  bool yes = false;     ///< To every question what goes on.
  bool noCopy = false;  ///< No to whoever can be told so.
  /// To the question for a folder, once, and Yes to whether to copy anything there; empty: not said.
  QString folder;
};

/// Puts the library's questions to whoever sits at the terminal while it lives: each answer is a button of
/// the window's own box, Enter the one that it has in front. At the end of the input, and where nobody sits,
/// the answer is the cautious one. A folder is asked for as a line, and given without links. Belongs to the
/// main thread.
class TerminalQuestions {
 public:
  TerminalQuestions(Session& session, const GivenAnswers& given);
  ~TerminalQuestions();
  TerminalQuestions(const TerminalQuestions&) = delete;
  TerminalQuestions& operator=(const TerminalQuestions&) = delete;

  /// The last question that nobody was there to answer; empty: none.
  const std::string& Unanswered() const;

 private:
  class Asker;
  class Alerts;
  class FolderDialog;

  std::shared_ptr<Asker> asker_;
  App::ServiceScope<App::IAlerts> alerts_;
  App::ServiceScope<App::IFolderDialog> folderDialog_;
};

/// The button that the line names, by its name in the interface language or in English or the beginning of
/// it, case and accents ignored; an empty line: `first`. `None`: no button or more than one.
App::AlertButton ButtonOf(const std::string& line, App::AlertButtons buttons, App::AlertButton first);

/// The folder that the line names, absolute: an empty line `startFolder`, and "~" the home folder, since no
/// shell was there to put it in. Empty: none, since it is no text, as which folders are remembered.
QString FolderOf(const std::string& line, const QString& startFolder);

/// "[Yes/No/Cancel]" in the interface language, the one that Enter presses marked: "Yes*".
std::string ButtonsText(App::AlertButtons buttons, App::AlertButton first);

}  // namespace Zenvora::Lumidex::Cli
