#include <cli/session/TerminalQuestions.h>
#include <cli/terminal/Question.h>
#include <cli/terminal/TerminalText.h>
#include <cli/terminal/Words.h>
#include <host/base/PathText.h>

#include <QDir>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace Zenvora::Lumidex::Cli {

namespace {

using App::AlertButton;
using App::AlertButtons;

constexpr std::array<std::pair<AlertButton, const char*>, 18> kNames = {{
    {AlertButton::Ok, QT_TRANSLATE_NOOP("Terminal", "OK")},
    {AlertButton::Yes, QT_TRANSLATE_NOOP("Terminal", "Yes")},
    {AlertButton::YesToAll, QT_TRANSLATE_NOOP("Terminal", "Yes to all")},
    {AlertButton::No, QT_TRANSLATE_NOOP("Terminal", "No")},
    {AlertButton::NoToAll, QT_TRANSLATE_NOOP("Terminal", "No to all")},
    {AlertButton::Save, QT_TRANSLATE_NOOP("Terminal", "Save")},
    {AlertButton::SaveAll, QT_TRANSLATE_NOOP("Terminal", "Save all")},
    {AlertButton::Open, QT_TRANSLATE_NOOP("Terminal", "Open")},
    {AlertButton::Retry, QT_TRANSLATE_NOOP("Terminal", "Retry")},
    {AlertButton::Ignore, QT_TRANSLATE_NOOP("Terminal", "Ignore")},
    {AlertButton::Abort, QT_TRANSLATE_NOOP("Terminal", "Abort")},
    {AlertButton::Close, QT_TRANSLATE_NOOP("Terminal", "Close")},
    {AlertButton::Discard, QT_TRANSLATE_NOOP("Terminal", "Discard")},
    {AlertButton::Help, QT_TRANSLATE_NOOP("Terminal", "Help")},
    {AlertButton::Apply, QT_TRANSLATE_NOOP("Terminal", "Apply")},
    {AlertButton::Reset, QT_TRANSLATE_NOOP("Terminal", "Reset")},
    {AlertButton::RestoreDefaults, QT_TRANSLATE_NOOP("Terminal", "Restore defaults")},
    {AlertButton::Cancel, QT_TRANSLATE_NOOP("Terminal", "Cancel")},
}};

std::string Trimmed(const std::string& text) {
  const std::size_t begin = text.find_first_not_of(" \t\r\n");
  const std::size_t end = text.find_last_not_of(" \t\r\n");
  return begin == std::string::npos ? std::string() : text.substr(begin, end - begin + 1);
}

/// The button whose name, as `nameOf` gives it, begins so; `None`: no button or more than one.
template <class NameOf>
AlertButton Named(const QString& word, AlertButtons buttons, const NameOf& nameOf) {
  AlertButton found = AlertButton::None;
  for (const auto& [button, name] : kNames) {
    const QString known = PlainAnswer(nameOf(name));
    if (!buttons.testFlag(button) || !known.startsWith(word)) {
      continue;
    }
    if (known == word) {
      return button;
    }
    if (found != AlertButton::None) {
      return AlertButton::None;
    }
    found = button;
  }
  return found;
}

std::string Translated(const char* name) {
  return Say(Words::tr(name));
}

}  // namespace

QString FolderOf(const std::string& line, const QString& startFolder) {
  std::string folder = Trimmed(line);
  if (folder.empty()) {
    return startFolder;
  }
  if (folder == "~" || folder.compare(0, 2, "~/") == 0) {
    folder.replace(0, 1, QDir::homePath().toStdString());
  }
  const ioPath absolute = AbsolutePath(folder);
  const QString text = absolute.qstring();
  return ioPath(text) == absolute ? QDir::cleanPath(text) : QString();
}

App::AlertButton ButtonOf(const std::string& line, AlertButtons buttons, AlertButton first) {
  const QString word = PlainAnswer(line);
  if (word.isEmpty()) {
    return first;
  }
  const AlertButton button = Named(word, buttons, Translated);
  // Fingers are used to English; where both could be meant, what is shown counts.
  return button != AlertButton::None
             ? button
             : Named(word, buttons, [](const char* name) { return std::string(name); });
}

std::string ButtonsText(AlertButtons buttons, AlertButton first) {
  std::string text;
  for (const auto& [button, name] : kNames) {
    if (buttons.testFlag(button)) {
      text += (text.empty() ? "[" : "/") + Translated(name) + (button == first ? "*" : "");
    }
  }
  return text + "]";
}

class TerminalQuestions::Asker {
 public:
  Asker(Session& session, GivenAnswers given) : session_(session), given_(std::move(given)) {}

  GivenAnswers& Given() { return given_; }
  Console& Out() { return session_.console; }
  const std::string& Unanswered() const { return unanswered_; }

  /// The line; none at the end of the input, on Ctrl-C, and where nobody is to be asked.
  std::optional<std::string> Ask(const std::string& question, const std::string& hint) {
    if (!CanAsk()) {
      unanswered_ = question;
      return std::nullopt;
    }
    return AskForLine(session_.console, EscapeForTerminal(question + ' ' + hint), session_.interrupted);
  }

 private:
  Session& session_;
  GivenAnswers given_;
  std::string unanswered_;
};

class TerminalQuestions::Alerts : public App::IAlerts {
 public:
  explicit Alerts(std::shared_ptr<Asker> asker) : asker_(std::move(asker)) {}

  AlertButton Show(const App::Alert& alert) override {
    const AlertButtons buttons = alert.buttons ? alert.buttons : AlertButtons(AlertButton::Ok);
    const std::string text = alert.text.toStdString();
    if (buttons == AlertButtons(AlertButton::Ok)) {
      // Nothing to be chosen.
      asker_->Out().Warning(text);
      return AlertButton::Ok;
    }
    if (asker_->Given().noCopy && buttons.testFlag(AlertButton::No)) {
      return AlertButton::No;
    }
    if (!asker_->Given().folder.isEmpty() && buttons.testFlag(AlertButton::Yes)) {
      return AlertButton::Yes;
    }
    const AlertButton first =
        alert.defaultButton != AlertButton::None ? alert.defaultButton : App::DefaultButton(buttons);
    if (asker_->Given().yes) {
      return first;
    }
    for (;;) {
      const auto line = asker_->Ask(text, ButtonsText(buttons, first));
      if (!line) {
        return App::UnansweredButton(buttons);
      }
      const AlertButton answer = ButtonOf(*line, buttons, first);
      if (answer != AlertButton::None) {
        return answer;
      }
    }
  }

 private:
  const std::shared_ptr<Asker> asker_;
};

class TerminalQuestions::FolderDialog : public App::IFolderDialog {
 public:
  explicit FolderDialog(std::shared_ptr<Asker> asker) : asker_(std::move(asker)) {}

  QString Ask(const App::FolderQuestion& question) override {
    return Host::RealFolder(ioPath(Choose(question))).qstring();
  }

 private:
  QString Choose(const App::FolderQuestion& question) {
    const QString given = std::exchange(asker_->Given().folder, QString());
    if (!given.isEmpty() || wasGiven_) {
      // Asked again, the given one was refused.
      wasGiven_ = true;
      return given;
    }
    if (asker_->Given().yes) {
      wasGiven_ = true;
      return question.startFolder;
    }
    for (;;) {
      const auto line =
          asker_->Ask(question.caption.toStdString(), "[" + question.startFolder.toStdString() + "]");
      if (!line) {
        return QString();
      }
      const QString folder = FolderOf(*line, question.startFolder);
      if (!folder.isEmpty()) {
        return folder;
      }
    }
  }

  const std::shared_ptr<Asker> asker_;
  bool wasGiven_ = false;
};

TerminalQuestions::TerminalQuestions(Session& session, const GivenAnswers& given)
    : asker_(std::make_shared<Asker>(session, given)),
      alerts_(std::make_shared<Alerts>(asker_)),
      folderDialog_(std::make_shared<FolderDialog>(asker_)) {}

TerminalQuestions::~TerminalQuestions() = default;

const std::string& TerminalQuestions::Unanswered() const {
  return asker_->Unanswered();
}

}  // namespace Zenvora::Lumidex::Cli
