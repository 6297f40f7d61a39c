#include <support/LeftOut.h>

#include <algorithm>
#include <fstream>
#include <iostream>
#include <map>
#include <vector>

namespace Zenvora::Test {

namespace {

/// Names and reasons of this program's tests in the list.
std::map<std::string, std::string> list;
/// How reasons begin that are up to the machine.
std::vector<std::string> ofMachines;

/// What a test is called, without the numbers of its parameters.
std::string NameOf(const ::testing::TestInfo& test) {
  std::string suite = test.test_suite_name();
  suite.erase(0, suite.find('/') + 1);
  const std::string name = test.name();
  return suite + '.' + name.substr(0, name.find('/'));
}

void ReadList(const std::string& program) {
  std::ifstream stream(LEFT_OUT_ON_WINDOWS);
  EXPECT_TRUE(stream) << "cannot read " << LEFT_OUT_ON_WINDOWS;
  std::string reason;
  for (std::string line; std::getline(stream, line);) {
    const std::size_t blank = line.find(' ');
    if (!line.empty() && line.front() == '[') {
      reason = line.substr(1, line.find(']') - 1);
    } else if (line.substr(0, blank) == "*") {
      ofMachines.push_back(line.substr(blank + 1));
    } else if (line.substr(0, blank) == program) {
      list.emplace(line.substr(blank + 1), reason);
    }
  }
}

#ifdef _WIN32
bool IsUpToTheMachine(const ::testing::TestResult& result) {
  for (int i = 0; i < result.total_part_count(); ++i) {
    const std::string message = result.GetTestPartResult(i).message();
    if (std::any_of(ofMachines.begin(), ofMachines.end(),
                    [&](const std::string& reason) { return message.find(reason) != std::string::npos; })) {
      return true;
    }
  }
  return false;
}

class Watch : public ::testing::EmptyTestEventListener {
  void OnTestEnd(const ::testing::TestInfo& test) override {
    const bool isListed = list.count(NameOf(test)) != 0;
    const bool isSkipped = test.result()->Skipped();
    EXPECT_TRUE(isListed || !isSkipped || IsUpToTheMachine(*test.result()))
        << "list this test with the reason in LeftOutOnWindows.txt";
    EXPECT_TRUE(isSkipped || !isListed) << "this test runs: take it from LeftOutOnWindows.txt";
  }
};
#endif

}  // namespace

std::string WhyLeftOut() {
  const auto found = list.find(NameOf(*::testing::UnitTest::GetInstance()->current_test_info()));
  return found == list.end() ? "without a reason" : found->second;
}

bool WatchWhatIsLeftOut(const std::string& program) {
  ReadList(program);
  ::testing::UnitTest& tests = *::testing::UnitTest::GetInstance();
  std::map<std::string, std::string> unknown = list;
  for (int i = 0; i < tests.total_test_suite_count(); ++i) {
    const ::testing::TestSuite& suite = *tests.GetTestSuite(i);
    for (int j = 0; j < suite.total_test_count(); ++j) {
      unknown.erase(NameOf(*suite.GetTestInfo(j)));
    }
  }
  for (const auto& [name, reason] : unknown) {
    std::cerr << "LeftOutOnWindows.txt: " << program << " has no test " << name << '\n';
  }
#ifdef _WIN32
  tests.listeners().Append(new Watch);
#endif
  return unknown.empty();
}

}  // namespace Zenvora::Test
