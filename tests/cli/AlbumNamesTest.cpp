#include <cli/views/AlbumNames.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Zenvora::Lumidex::Cli {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const QString kChristmas = QStringLiteral("Christmas\nDecember 2023");
const QString kWeekend = QStringLiteral("Weekend\nMay 2023");

TEST(AlbumNames, SplitIntoTitleAndInterval) {
  struct Row {
    const char* name;
    const char* title;
    const char* interval;
    const char* line;
  };
  for (const Row& row :
       {Row{"Christmas\nDecember 2023", "Christmas", "December 2023", "Christmas, December 2023"},
        Row{"Christmas", "Christmas", "", "Christmas"}, Row{"", "", "", ""},
        Row{"A\nB\nC", "A", "B, C", "A, B, C"}}) {
    const AlbumTitle parts = TitleOf(QString::fromUtf8(row.name));
    EXPECT_EQ(parts.title, row.title) << row.name;
    EXPECT_EQ(parts.interval, row.interval) << row.name;
    EXPECT_EQ(OneLineName(QString::fromUtf8(row.name)), row.line);
  }
}

TEST(AlbumNames, AreMeantInAnyOfTheirForms) {
  for (const char* const wish : {"Christmas, December 2023", "Christmas\nDecember 2023",
                                 "Christmas - December 2023", "Christmas\\nDecember 2023"}) {
    EXPECT_TRUE(MeansAlbum(wish, kChristmas)) << wish;
  }
  for (const char* const wish : {"Christmas", "christmas, december 2023", "Christmas December 2023",
                                 "Christmas, December 2022", " Christmas, December 2023", ""}) {
    EXPECT_FALSE(MeansAlbum(wish, kChristmas)) << wish;
  }
}

TEST(AlbumNames, AreMeantWithAccentsOfEitherForm) {
  const QString composed = QStringLiteral("F\u00EAte\n2023");
  EXPECT_TRUE(MeansAlbum("Fe\xCC\x82te, 2023", composed));
  EXPECT_FALSE(MeansAlbum("Fete, 2023", composed));
}

TEST(AlbumNames, AreChosenOnceEachInTheOrderOfTheList) {
  const AlbumChoice choice = ChooseAlbums(
      {"Weekend, May 2023", "Christmas - December 2023", "Weekend, May 2023"}, {kChristmas, kWeekend});
  EXPECT_EQ(choice.refused, "");
  EXPECT_THAT(choice.chosen, ElementsAre(0, 1));
}

TEST(AlbumNames, AreAllChosenByOneWord) {
  EXPECT_THAT(ChooseAlbums({"all"}, {kChristmas, kWeekend}).chosen, ElementsAre(0, 1));
  EXPECT_THAT(ChooseAlbums({"all", "Weekend, May 2023"}, {kChristmas, kWeekend}).chosen, ElementsAre(0, 1));
  EXPECT_THAT(ChooseAlbums({"all"}, {}).chosen, IsEmpty());
}

TEST(AlbumNames, ThatNoAlbumHasAreRefusedWithSimilarOnes) {
  const AlbumChoice similar = ChooseAlbums({"Weekend, May 2023", "christ"}, {kChristmas, kWeekend});
  EXPECT_EQ(similar.refused, "christ");
  EXPECT_FALSE(similar.isAmbiguous);
  EXPECT_THAT(similar.candidates, ElementsAre("Christmas, December 2023"));
  const AlbumChoice foreign = ChooseAlbums({"Easter"}, {kChristmas, kWeekend});
  EXPECT_THAT(foreign.candidates, ElementsAre("Christmas, December 2023", "Weekend, May 2023"));
}

TEST(AlbumNames, ThatSeveralAlbumsHaveAreRefused) {
  const std::vector<QString> names = {QStringLiteral("A, B\nC"), QStringLiteral("A\nB, C"), kWeekend};
  const AlbumChoice choice = ChooseAlbums({"A, B, C"}, names);
  EXPECT_TRUE(choice.isAmbiguous);
  EXPECT_EQ(choice.refused, "A, B, C");
  EXPECT_THAT(choice.candidates, ElementsAre("A, B, C", "A, B, C"));
  EXPECT_THAT(ChooseAlbums({"A, B\nC"}, names).chosen, ElementsAre(0));
}

}  // namespace
}  // namespace Zenvora::Lumidex::Cli
