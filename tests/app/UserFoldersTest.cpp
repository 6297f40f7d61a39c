#include <support/LeftOut.h>
#include <support/TempTree.h>

#include <zenvora/app/RealServices.h>
#include <zenvora/app/UserFolders.h>

#include <gtest/gtest.h>

#include <QByteArray>

#include <optional>

namespace Zenvora::App {
namespace {

using Test::TempTree;

/// An environment variable with another value, or with none, for a scope.
class Variable {
 public:
  Variable(const char* name, const std::optional<std::string>& value)
      : name_(name), wasSet_(qEnvironmentVariableIsSet(name)), former_(qgetenv(name)) {
    if (value) {
      qputenv(name, QByteArray::fromStdString(*value));
    } else {
      qunsetenv(name);
    }
  }
  ~Variable() {
    if (wasSet_) {
      qputenv(name_, former_);
    } else {
      qunsetenv(name_);
    }
  }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;

 private:
  const char* name_;
  const bool wasSet_;
  const QByteArray former_;
};

struct Place {
  UserFolder folder;
  const char* variable;
  const char* belowHome;
};

class UserFolders : public testing::TestWithParam<Place> {
 protected:
  const TempTree tree_;
};

TEST_P(UserFolders, AreWhereTheVariableSays) {
  const Variable variable(GetParam().variable, tree_.Path("own").utf8string());
  EXPECT_EQ(FolderOfUser(GetParam().folder), tree_.Path("own"));
  EXPECT_FALSE(tree_.Path("own").exists());
}

#ifndef _WIN32
TEST_P(UserFolders, KeepEveryByteOfTheirNames) {
  const Variable variable(GetParam().variable, "/caf\xE9");
  EXPECT_EQ(FolderOfUser(GetParam().folder).utf8string(), "/caf\xE9");
}

TEST_P(UserFolders, AreBelowTheHomeFolderOtherwise) {
  const Variable home("HOME", tree_.Path().utf8string());
  for (const auto& value : {std::optional<std::string>(), std::optional<std::string>(""),
                            std::optional<std::string>("relative/folder")}) {
    const Variable variable(GetParam().variable, value);
    EXPECT_EQ(FolderOfUser(GetParam().folder), tree_.Path(GetParam().belowHome)) << value.value_or("unset");
  }
}

TEST_P(UserFolders, KnowTheHomeFolderWithoutItsVariable) {
  const Variable variable(GetParam().variable, std::nullopt);
  const Variable home("HOME", std::nullopt);
  const ioPath folder = FolderOfUser(GetParam().folder);
  EXPECT_TRUE(folder.native().is_absolute()) << folder;
  EXPECT_NE(folder, ioPath("/") / GetParam().belowHome);
}
#else
LUMIDEX_LEFT_OUT_ON_WINDOWS_P(UserFolders, KeepEveryByteOfTheirNames);

TEST_P(UserFolders, AreTheKnownOnesOtherwise) {
  for (const auto& value : {std::optional<std::string>(), std::optional<std::string>("relative\\folder")}) {
    const Variable variable(GetParam().variable, value);
    const ioPath folder = FolderOfUser(GetParam().folder);
    EXPECT_TRUE(folder.native().is_absolute()) << folder;
    EXPECT_NE(folder.utf8string().find("AppData"), std::string::npos) << folder;
  }
}
#endif

INSTANTIATE_TEST_SUITE_P(Table, UserFolders,
                         testing::Values(Place{UserFolder::Settings, "XDG_CONFIG_HOME", ".config"},
                                         Place{UserFolder::Data, "XDG_DATA_HOME", ".local/share"},
                                         Place{UserFolder::Cache, "XDG_CACHE_HOME", ".cache"}));

TEST(UserSettings, LieInTheSettingsFolder) {
  EXPECT_EQ(UserSettingsFile(), FolderOfUser(UserFolder::Settings) / "lumidex" / "lumidex.ini");
}

}  // namespace
}  // namespace Zenvora::App
