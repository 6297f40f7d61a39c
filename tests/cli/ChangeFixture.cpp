#include "ChangeFixture.h"

namespace Zenvora::Test {

ioPath ChangeTest::Photo(const std::string& name, const std::string& taken, int orientation) const {
  PhotoTags tags;
  tags.dateTimeOriginal = taken;
  // Nobody takes one date for the other unnoticed.
  tags.dateTimeDigitized = "2024:05:17 10:00:01";
  tags.model = name;  // No two photos are alike.
  tags.orientation = orientation;
  return WriteJpeg(Photos() / name, tags);
}

Ran ChangeTest::Rename(const QString& pattern, const QStringList& more) const {
  return Run(QStringList{"rename", "--pattern", pattern} + more);
}

}  // namespace Zenvora::Test
