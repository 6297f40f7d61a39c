#include "DialogFixture.h"

#include <LumidexUtil/CheckFilesReadable.h>
#include <support/TextCatalogue.h>

#include <gtest/gtest.h>

namespace Zenvora::Util {
namespace {

using App::AlertButton;
using App::AlertLevel;

constexpr char kAll[] = "All of the selected files do not have read permissions, they will not be added.";
constexpr char kSome[] = "Some of the selected files do not have read permissions, they will not be added.";

class ReadableDialog : public Zenvora::Test::DialogFixture {
 protected:
  const QString good_ = tree_.Write("good.jpg", "x").qstring();
  const QString other_ = tree_.Write("other.jpg", "x").qstring();
  const QString missing_ = tree_.Path("missing.jpg").qstring();
};

TEST_F(ReadableDialog, SaysThatNoneIsReadableOfNone) {
  Answer({AlertButton::Ok});
  EXPECT_EQ(CheckFilesReadableDialog({}), QList<QString>());
  ExpectAlert(0, AlertLevel::Warning, kAll, AlertButton::Ok);
}

TEST_F(ReadableDialog, SaysThatNoneIsReadable) {
  Answer({AlertButton::Ok});
  EXPECT_EQ(CheckFilesReadableDialog({missing_, missing_}), QList<QString>());
  ExpectAlert(0, AlertLevel::Warning, kAll, AlertButton::Ok);
}

TEST_F(ReadableDialog, IsNotShownWhenAllAreReadable) {
  EXPECT_EQ(CheckFilesReadableDialog({good_, other_}), (QList<QString>{good_, other_}));
  EXPECT_EQ(CheckFilesReadableDialog({good_, good_}), (QList<QString>{good_, good_}));
}

TEST_F(ReadableDialog, GoesOnWithTheReadableOnesAfterOk) {
  Answer({AlertButton::Ok});
  EXPECT_EQ(CheckFilesReadableDialog({other_, missing_, good_, other_}),
            (QList<QString>{other_, good_, other_}));
  ExpectAlert(0, AlertLevel::Warning, kSome, AlertButton::Ok | AlertButton::Cancel);
  EXPECT_EQ(alerts_->shown.size(), 1U);
}

TEST_F(ReadableDialog, GoesOnWithNoneAfterCancel) {
  Answer({AlertButton::Cancel});
  EXPECT_EQ(CheckFilesReadableDialog({good_, missing_}), QList<QString>());
}

TEST_F(ReadableDialog, SpeaksTheLanguageInForce) {
  const Zenvora::Test::TextCatalogue texts(QStringLiteral("Zenvora::Lumidex::Utils"),
                                           {{QStringLiteral("Attention"), QStringLiteral("Achtung")},
                                            {QString::fromUtf8(kAll), QStringLiteral("alle")},
                                            {QString::fromUtf8(kSome), QStringLiteral("einige")}});
  Answer({AlertButton::Ok, AlertButton::Ok});
  CheckFilesReadableDialog({});
  CheckFilesReadableDialog({good_, missing_});
  ASSERT_EQ(alerts_->shown.size(), 2U);
  EXPECT_EQ(alerts_->shown[0].title, QStringLiteral("Achtung"));
  EXPECT_EQ(alerts_->shown[0].text, QStringLiteral("alle"));
  EXPECT_EQ(alerts_->shown[1].text, QStringLiteral("einige"));
}

TEST_F(ReadableDialog, HasNoParentWithoutAWindow) {
  environment_->window = nullptr;
  Answer({AlertButton::Ok});
  CheckFilesReadableDialog({});
  ExpectAlert(0, AlertLevel::Warning, kAll, AlertButton::Ok);
}

}  // namespace
}  // namespace Zenvora::Util
