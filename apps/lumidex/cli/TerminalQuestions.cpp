#include "TerminalQuestions.h"

#include "Question.h"
#include "TerminalText.h"

#include <QDir>

#include <algorithm>
#include <array>
#include <cctype>
#include <optional>
#include <string_view>
#include <utility>

namespace Zenvora::Lumidex::Cli {

namespace {

using App::AlertButton;
using App::AlertButtons;

constexpr std::array<std::pair<AlertButton, const char*>, 18> kNames = {{
    {AlertButton::Ok, "OK"},
    {AlertButton::Yes, "Yes"},
    {AlertButton::YesToAll, "Yes to all"},
    {AlertButton::No, "No"},
    {AlertButton::NoToAll, "No to all"},
    {AlertButton::Save, "Save"},
    {AlertButton::SaveAll, "Save all"},
    {AlertButton::Open, "Open"},
    {AlertButton::Retry, "Retry"},
    {AlertButton::Ignore, "Ignore"},
    {AlertButton::Abort, "Abort"},
    {AlertButton::Close, "Close"},
    {AlertButton::Discard, "Discard"},
    {AlertButton::Help, "Help"},
    {AlertButton::Apply, "Apply"},
    {AlertButton::Reset, "Reset"},
    {AlertButton::RestoreDefaults, "Restore defaults"},
    {AlertButton::Cancel, "Cancel"},
}};

std::string Lowered(std::string_view text) {
  std::string lowered(text);
  std::transform(lowered.begin(), lowered.end(), lowered.begin(),
                 [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
  return lowered;
}

std::string Trimmed(const std::string& text) {
  const std::size_t begin = text.find_first_not_of(" \t\r\n");
  const std::size_t end = text.find_last_not_of(" \t\r\n");
  return begin == std::string::npos ? std::string() : text.substr(begin, end - begin + 1);
}

}  // namespace

App::AlertButton ButtonOf(const std::string& line, AlertButtons buttons, AlertButton first) {
  const std::string word = Lowered(Trimmed(line));
  if (word.empty()) {
    return first;
  }
  AlertButton found = AlertButton::None;
  for (const auto& [button, name] : kNames) {
    const std::string known = Lowered(name);
    if (!buttons.testFlag(button) || known.compare(0, word.size(), word) != 0) {
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

std::string ButtonsText(AlertButtons buttons, AlertButton first) {
  std::string text;
  for (const auto& [button, name] : kNames) {
    if (buttons.testFlag(button)) {
      text += (text.empty() ? "[" : "/") + std::string(name) + (button == first ? "*" : "");
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

 private:
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
