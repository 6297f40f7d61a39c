#include "CliFixture.h"

#include <QRegularExpression>

#include <set>
#include <sstream>

namespace Zenvora::Test {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;

const std::vector<QStringList>& Commands() {
  static const std::vector<QStringList> commands = {{},
                                                    {"scan"},
                                                    {"import"},
                                                    {"check"},
                                                    {"albums"},
                                                    {"info"},
                                                    {"rename"},
                                                    {"similar"},
                                                    {"rotate"},
                                                    {"shift-date"},
                                                    {"set-date"},
                                                    {"undo"},
                                                    {"redo"},
                                                    {"calendar"},
                                                    {"calendar", "show"},
                                                    {"calendar", "check"},
                                                    {"calendar", "update"},
                                                    {"sample"},
                                                    {"find"},
                                                    {"tag"},
                                                    {"stats"},
                                                    {"stats", "show"},
                                                    {"stats", "clear"},
                                                    {"stats", "on"},
                                                    {"stats", "off"}};
  return commands;
}

class HelpPages : public CliTest {};

TEST_F(HelpPages, ComeOnDemandInEveryForm) {
  for (const QStringList& command : Commands()) {
    const Ran asOption = Run(command + QStringList{"--help"});
    const Ran asCommand = Run(QStringList{"help"} + command);
    const std::string name = command.join(QLatin1Char(' ')).toStdString();
    EXPECT_EQ(asOption.exitCode, 0) << name;
    EXPECT_THAT(asOption.err, IsEmpty()) << name;
    EXPECT_EQ(asOption.out, asCommand.out) << name;
    EXPECT_EQ(asOption.out, Run(command + QStringList{"-h"}).out) << name;
    EXPECT_THAT(asOption.out, HasSubstr("Usage: lumidex" + (name.empty() ? "" : " " + name))) << name;
  }
}

TEST_F(HelpPages, ComeWithOptionsOfTheProgram) {
  const std::string page = Run({"help", "albums"}).out;
  for (const QStringList& line : std::vector<QStringList>{{"-q", "help", "albums"},
                                                          {"--json", "help", "albums"},
                                                          {"-c", "help", "help", "albums"},
                                                          {"-qc", "x", "help", "albums"},
                                                          {"-cx", "help", "albums"},
                                                          {"--catalogue=x", "help", "albums"},
                                                          {"--catalogue", "x", "help", "albums"},
                                                          {"help", "-q", "albums"},
                                                          {"help", "help", "albums"},
                                                          {"help", "albums", "--report"},
                                                          {"help", "albums", "--frob", "x"}}) {
    const Ran ran = Run(line);
    EXPECT_EQ(ran.exitCode, 0) << line.join(QLatin1Char(' ')).toStdString();
    EXPECT_EQ(ran.out, page) << line.join(QLatin1Char(' ')).toStdString();
  }
  EXPECT_EQ(Run({"help", "help"}).out, Run({"help"}).out);
}

TEST_F(HelpPages, ExplainGlobalOptionsOnceAndNameThemElsewhere) {
  const std::string first = Run({"--help"}).out;
  EXPECT_THAT(first, HasSubstr("\nGlobal options:\n"));
  EXPECT_THAT(first, HasSubstr("The language of messages"));
  const std::string page = Run({"help", "albums"}).out;
  EXPECT_THAT(page, HasSubstr("\nGlobal options (see: lumidex --help):\n  --help, "));
  EXPECT_THAT(page, HasSubstr("--lang"));
  EXPECT_THAT(page, Not(HasSubstr("The language of messages")));
}

TEST_F(HelpPages, AreNotThereForCommandsThatDoNotExist) {
  for (const QStringList& line : std::vector<QStringList>{
           {"help", "calendr"}, {"--help", "calendr"}, {"calendr", "--help"}, {"-q", "help", "calendr"}}) {
    const Ran ran = Run(line);
    EXPECT_EQ(ran.exitCode, 2) << line.join(QLatin1Char(' ')).toStdString();
    EXPECT_THAT(ran.out, IsEmpty());
    EXPECT_THAT(ran.err, HasSubstr("did you mean \"calendar\"?"));
  }
  EXPECT_THAT(Run({"help", "calendar", "chek"}).err, HasSubstr("did you mean \"check\"?"));
}

TEST_F(HelpPages, FitEveryTerminal) {
  for (const QStringList& command : Commands()) {
    std::istringstream page(Run(QStringList{"help"} + command).out);
    for (std::string line; std::getline(page, line);) {
      EXPECT_LE(line.size(), 79U) << line;
      EXPECT_TRUE(line.empty() || line.back() != ' ') << line;
    }
  }
}

TEST_F(HelpPages, HaveExamplesAndExitCodes) {
  for (const QStringList& command : Commands()) {
    if (command == QStringList{"calendar"} || command == QStringList{"stats"}) {
      continue;
    }
    const std::string page = Run(QStringList{"help"} + command).out;
    EXPECT_THAT(page, HasSubstr("Exit codes:")) << page;
    if (command != QStringList{"calendar", "update"}) {
      EXPECT_THAT(page, HasSubstr("Examples:\n  lumidex ")) << page;
    }
  }
}

TEST_F(HelpPages, AgreeWithTheManual) {
  // An option is written "Fl Fl name" there.
  std::string manual = ReadFile(LUMIDEX_MANUAL);
  ASSERT_FALSE(manual.empty());
  std::set<std::string> options;
  for (const QStringList& command : Commands()) {
    const QString page = QString::fromStdString(Run(QStringList{"help"} + command).out);
    auto match =
        QRegularExpression(QStringLiteral("^  (?:-.,|   ) --([a-z-]+)"), QRegularExpression::MultilineOption)
            .globalMatch(page);
    while (match.hasNext()) {
      options.insert(match.next().captured(1).toStdString());
    }
  }
  EXPECT_GE(options.size(), 15U);
  for (const std::string& option : options) {
    EXPECT_THAT(manual, HasSubstr("Fl Fl " + option));
  }
  for (const char* const code : {"0", "1", "2", "3", "4", "130"}) {
    EXPECT_THAT(manual, HasSubstr(std::string(".It ") + code + "\n"));
  }
}

TEST_F(HelpPages, StandInForACommandThatIsMissing) {
  const Ran ran = Run({});
  EXPECT_EQ(ran.exitCode, 2);
  EXPECT_THAT(ran.out, IsEmpty());
  EXPECT_THAT(ran.err, HasSubstr("Usage: lumidex COMMAND"));
}

TEST_F(HelpPages, AreNotNeededForTheVersion) {
  for (const char* const option : {"--version", "-V"}) {
    const Ran ran = Run({option});
    EXPECT_EQ(ran.exitCode, 0);
    EXPECT_TRUE(QRegularExpression(QStringLiteral("^lumidex \\d+\\.\\d+\\.\\d+\\nmodels: [^\\n]+\\n$"))
                    .match(QString::fromStdString(ran.out))
                    .hasMatch())
        << ran.out;
  }
}

TEST_F(HelpPages, LeaveTheVersionToADocumentWhereJsonIsAskedFor) {
  const std::string text = Run({"--version"}).out;
  for (const QStringList& arguments : {QStringList{"--json", "--version"}, QStringList{"-V", "--json"}}) {
    const Ran ran = Run(arguments);
    EXPECT_EQ(ran.exitCode, 0);
    const QJsonObject document = ran.Json();
    EXPECT_EQ(document["format"].toString(), QStringLiteral("lumidex.version"));
    EXPECT_EQ(document["version"].toInt(), 1);
    EXPECT_EQ(text.substr(0, text.find('\n')), "lumidex " + document["lumidex"].toString().toStdString());
    EXPECT_EQ(document["models"].isNull(), text.find("models: none") != std::string::npos);
  }
}

}  // namespace
}  // namespace Zenvora::Test
