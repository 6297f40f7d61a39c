#include "DialogFixture.h"

#include <LumidexUtil/CheckFormatsWritable.h>

#include <gtest/gtest.h>

namespace Zenvora::Util {
namespace {

using App::AlertButton;
using App::AlertLevel;

using FormatsDialog = Zenvora::Test::DialogFixture;

std::vector<Lumidex::DataModel> Items(const std::vector<ioPath>& paths) {
  std::vector<Lumidex::DataModel> items(paths.size());
  for (std::size_t i = 0; i < paths.size(); ++i) {
    items[i].SetPath(paths[i]);
  }
  return items;
}

TEST_F(FormatsDialog, IsNotShownWhenAllCanBeWritten) {
  EXPECT_TRUE(CheckFormatsWritableDialog({}));
  EXPECT_TRUE(CheckFormatsWritableDialog(Items({"/a.jpg", "/b.PNG"})));
}

TEST_F(FormatsDialog, GoesOnAfterOkOnly) {
  Answer({AlertButton::Ok, AlertButton::Cancel});
  EXPECT_TRUE(CheckFormatsWritableDialog(Items({"/a.jpg", "/b.nef"})));
  EXPECT_FALSE(CheckFormatsWritableDialog(Items({"/a.gif"})));
  ExpectAlert(
      0, AlertLevel::Warning,
      "Some of the selected photos are in read-only formats (for example, RAW). They will be converted to "
      "JPG or PNG after applying the tool.",
      AlertButton::Ok | AlertButton::Cancel);
  ExpectAlert(
      1, AlertLevel::Warning,
      "The selected photo is in read-only formats (GIF). It will be converted to JPG or PNG after applying "
      "the tool.",
      AlertButton::Ok | AlertButton::Cancel);
}

}  // namespace
}  // namespace Zenvora::Util
