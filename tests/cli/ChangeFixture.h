#pragma once

#include "CliFixture.h"

#include <string>
#include <vector>

namespace Zenvora::Test {

// The matchers of these tests.
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

/// For the commands that change photos.
class ChangeTest : public CliTest {
 protected:
  /// A photo with all that the commands change, and like no other. Returns its path.
  ioPath Photo(const std::string& name, const std::string& taken = "2024:05:17 10:00:00",
               int orientation = 1) const;
  Ran Rename(const QString& pattern, const QStringList& more = {QStringLiteral("photos")}) const;
  std::vector<std::string> Names() const { return NamesIn(Photos()); }
};

}  // namespace Zenvora::Test
