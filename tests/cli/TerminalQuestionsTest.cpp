// Which button a line means, and how buttons are offered.

#include <cli/session/Session.h>
#include <cli/session/TerminalQuestions.h>
#include <cli/terminal/Console.h>
#include <cli/terminal/Output.h>
#include <cli/terminal/Question.h>

#include <zenvora/app/ISettingsManager.h>

#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>

namespace Zenvora::Lumidex::Cli {
namespace {

using App::AlertButton;
using App::AlertButtons;

AlertButtons YesNoCancel() {
  return AlertButtons(AlertButton::Yes) | AlertButton::No | AlertButton::Cancel;
}

TEST(ButtonOf, TakesNamesAndTheirBeginnings) {
  const auto of = [](const char* line) { return ButtonOf(line, YesNoCancel(), AlertButton::Yes); };
  EXPECT_EQ(of("yes"), AlertButton::Yes);
  EXPECT_EQ(of(" Y "), AlertButton::Yes);
  EXPECT_EQ(of("N\r"), AlertButton::No);
  EXPECT_EQ(of("CANCEL"), AlertButton::Cancel);
  EXPECT_EQ(of("c"), AlertButton::Cancel);
  EXPECT_EQ(of(""), AlertButton::Yes) << "Enter presses the first one";
  for (const char* const line : {"ok", "x", "yess", "yes no", "-"}) {
    EXPECT_EQ(of(line), AlertButton::None) << line;
  }
}

TEST(ButtonOf, GuessesNothing) {
  const AlertButtons buttons = AlertButtons(AlertButton::No) | AlertButton::NoToAll;
  EXPECT_EQ(ButtonOf("no", buttons, AlertButton::None), AlertButton::No);
  EXPECT_EQ(ButtonOf("no t", buttons, AlertButton::None), AlertButton::NoToAll);
  EXPECT_EQ(ButtonOf("n", buttons, AlertButton::None), AlertButton::None);
}

TEST(ButtonsText, MarksTheOneOfEnter) {
  EXPECT_EQ(ButtonsText(YesNoCancel(), AlertButton::Yes), "[Yes*/No/Cancel]");
  EXPECT_EQ(ButtonsText(AlertButtons(AlertButton::Ok), AlertButton::None), "[OK]");
}

TEST(FolderOf, LeadsToTheHomeFolder) {
  const QString start = QStringLiteral("/last");
  const QString home = QDir::homePath();
  EXPECT_EQ(FolderOf("", start), start);
  EXPECT_EQ(FolderOf(" \r", start), start);
  EXPECT_EQ(FolderOf("~", start), home);
  EXPECT_EQ(FolderOf(" ~/Pictures/2024 ", start), home + QStringLiteral("/Pictures/2024"));
  EXPECT_EQ(FolderOf(home.toStdString() + "/a/../b", start), home + QStringLiteral("/b"));
  EXPECT_EQ(FolderOf("below", start), QDir::current().filePath(QStringLiteral("below")));
  EXPECT_EQ(FolderOf("~below", start), QDir::current().filePath(QStringLiteral("~below")));
#ifndef _WIN32
  EXPECT_EQ(FolderOf("/a\xFF", start), QString()) << "no text";
#endif
}

class GivenInAdvance : public testing::Test {
 protected:
  AlertButton Answer(const GivenAnswers& given, AlertButtons buttons) {
    const TerminalQuestions questions(session_, given);
    App::Alert alert;
    alert.text = QStringLiteral("Really?");
    alert.buttons = buttons;
    const AlertButton answer = App::Services::Current().Get<App::IAlerts>()->Show(alert);
    unanswered_ = questions.Unanswered();
    return answer;
  }

  Globals globals_;
  Output output_;
  Console console_{true};
  std::atomic<bool> interrupted_{false};
  Session session_{globals_, output_, console_, interrupted_, {}, {}};
  std::string unanswered_;
};

TEST_F(GivenInAdvance, YesGoesOnAndNoCopyRefuses) {
  GivenAnswers yes;
  yes.yes = true;
  EXPECT_EQ(Answer(yes, YesNoCancel()), AlertButton::Yes);
  EXPECT_EQ(Answer(yes, AlertButtons(AlertButton::Ok) | AlertButton::Cancel), AlertButton::Ok);
  GivenAnswers no;
  no.noCopy = true;
  EXPECT_EQ(Answer(no, YesNoCancel()), AlertButton::No);
  EXPECT_EQ(unanswered_, "");
}

TEST_F(GivenInAdvance, WithoutAnswersTheCautiousOneCounts) {
  if (CanAsk()) {
    GTEST_SKIP() << "somebody sits at the terminal of this test";
  }
  EXPECT_EQ(Answer({}, YesNoCancel()), AlertButton::Cancel);
  EXPECT_EQ(unanswered_, "Really?");
}

TEST_F(GivenInAdvance, AFolderSaysThatThereIsToBeCopied) {
  GivenAnswers given;
  given.folder = QStringLiteral("/copies");
  EXPECT_EQ(Answer(given, YesNoCancel()), AlertButton::Yes);
  EXPECT_EQ(unanswered_, "");
}

TEST_F(GivenInAdvance, AFolderAnswersOnce) {
  GivenAnswers given;
  given.folder = QStringLiteral("/copies");
  given.yes = true;
  const TerminalQuestions questions(session_, given);
  const auto dialog = App::Services::Current().Get<App::IFolderDialog>();
  // On Windows a path without a letter lies on the current drive.
  EXPECT_EQ(dialog->Ask({}), QFileInfo(QStringLiteral("/copies")).absoluteFilePath());
  EXPECT_EQ(dialog->Ask({}), QString()) << "it was refused";
}

TEST_F(GivenInAdvance, YesTakesTheFolderThatTheDialogWouldBeginWith) {
  GivenAnswers given;
  given.yes = true;
  const TerminalQuestions questions(session_, given);
  App::FolderQuestion question;
  question.startFolder = QStringLiteral("/last");
  EXPECT_EQ(App::Services::Current().Get<App::IFolderDialog>()->Ask(question),
            QFileInfo(QStringLiteral("/last")).absoluteFilePath());
}

}  // namespace
}  // namespace Zenvora::Lumidex::Cli
