#include "TrashRules.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <string>

namespace Zenvora::Tavolin {
namespace {

std::string Repeated(const std::string& text, int count) {
  std::string all;
  for (int i = 0; i < count; ++i) {
    all += text;
  }
  return all;
}

TEST(NameInTrash, IsTheFilesOwnFirst) {
  for (const char* const name :
       {"a.jpg", "IMG_1", ".hidden", "a b.tar.gz", "\xff\xfe.jpg", "new\nline.jpg"}) {
    EXPECT_EQ(NameInTrash(name, 1, 255), name);
  }
}

TEST(NameInTrash, HasANumberBeforeTheExtension) {
  EXPECT_EQ(NameInTrash("a.jpg", 2, 255), "a.2.jpg");
  EXPECT_EQ(NameInTrash("IMG_1", 3, 255), "IMG_1.3");
  EXPECT_EQ(NameInTrash(".hidden", 2, 255), ".hidden.2");
  EXPECT_EQ(NameInTrash("a." + std::string(60, 'x'), 2, 255), "a." + std::string(60, 'x') + ".2");
}

TEST(NameInTrash, LeavesRoomForTheNote) {
  // ".trashinfo" takes ten bytes.
  EXPECT_EQ(NameInTrash(std::string(241, 'x') + ".jpg", 1, 255), std::string(241, 'x') + ".jpg");
  EXPECT_EQ(NameInTrash(std::string(242, 'x') + ".jpg", 1, 255), std::string(241, 'x') + ".jpg");
  EXPECT_EQ(NameInTrash(std::string(255, 'x'), 1, 255), std::string(245, 'x'));
  EXPECT_EQ(NameInTrash(std::string(251, 'x') + ".jpg", 12, 255), std::string(238, 'x') + ".12.jpg");
  EXPECT_EQ(NameInTrash(std::string(200, 'x') + ".jpg", 1, 143).size(), 133U);
}

TEST(NameInTrash, IsCutBetweenCharacters) {
  // Two bytes each: 241 is in the middle of one.
  EXPECT_EQ(NameInTrash(Repeated("я", 125) + ".jpg", 1, 255), Repeated("я", 120) + ".jpg");
  EXPECT_EQ(NameInTrash(Repeated("😀", 63), 1, 255), Repeated("😀", 61));
  // What is no text is cut anywhere.
  EXPECT_EQ(NameInTrash(std::string(255, '\x80'), 1, 255), std::string(245, '\x80'));
}

TEST(TrashNote, HoldsPathAndMoment) {
  EXPECT_EQ(TrashNoteText("/photos/a.jpg", QDateTime(QDate(2026, 2, 3), QTime(4, 5, 6))),
            "[Trash Info]\nPath=/photos/a.jpg\nDeletionDate=2026-02-03T04:05:06\n");
}

TEST(TrashNote, GivesEveryPathBack) {
  const QDateTime moment(QDate(2026, 2, 3), QTime(4, 5, 6));
  for (const char* const path :
       {"/a b.jpg", "50%.jpg", "%41", "new\nline", "Пейзаж.jpg", "\xff\x01\x7f", "a=b;c?d#e"}) {
    const std::string text = TrashNoteText(path, moment);
    EXPECT_EQ(PathInTrashNote(text), std::string(path));
    // All of it is one line of plain characters.
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 3);
    EXPECT_TRUE(
        std::all_of(text.begin(), text.end(), [](char c) { return c == '\n' || (c >= ' ' && c <= '~'); }));
  }
}

TEST(TrashNote, IsReadAsOthersWriteIt) {
  EXPECT_EQ(
      PathInTrashNote("[Trash Info]\nDeletionDate=2026-01-01T00:00:00\nX=1\nPath=a%c3%bc\nPath=second\n"),
      std::string("a\xc3\xbc"));
  EXPECT_EQ(PathInTrashNote("[Trash Info]\nPath=100%"), std::string("100%"));
  EXPECT_EQ(PathInTrashNote("[Trash Info]\nPath=%zz%4"), std::string("%zz%4"));
  for (const char* const none :
       {"", "Path=/a\n", "[Trash Info]\n", "[Trash Info]\npath=/a\n", "[Other]\nPath=/a\n"}) {
    EXPECT_FALSE(PathInTrashNote(none)) << none;
  }
}

TEST(RecycleNoteOf, HasTheBytesThatWindowsWrites) {
  RecycleNote note;
  note.size = 0x0102030405;
  note.deleted = QDateTime(QDate(2026, 2, 3), QTime(4, 5, 6, 7), Qt::UTC);
  note.path = u"C:\\ü.jpg";
  const std::string bytes = RecycleNoteBytes(note);
  ASSERT_EQ(bytes.size(), 28U + 2 * 9);
  EXPECT_EQ(bytes.substr(0, 16), std::string("\2\0\0\0\0\0\0\0\5\4\3\2\1\0\0\0", 16));
  EXPECT_EQ(bytes.substr(24, 12), std::string("\x09\0\0\0C\0:\0\\\0\xfc\0", 12));
  EXPECT_EQ(bytes.substr(bytes.size() - 4), std::string("g\0\0\0", 4));
  const std::optional<RecycleNote> read = ParseRecycleNote(bytes);
  ASSERT_TRUE(read);
  EXPECT_EQ(read->size, note.size);
  EXPECT_EQ(read->deleted, note.deleted);
  EXPECT_EQ(read->path, note.path);
}

TEST(RecycleNoteOf, CountsFrom1601) {
  RecycleNote note;
  note.deleted = QDateTime(QDate(1970, 1, 1), QTime(0, 0), Qt::UTC);
  // 116444736000000000 steps of 100 nanoseconds.
  EXPECT_EQ(RecycleNoteBytes(note).substr(16, 8), std::string("\x00\x80\x3e\xd5\xde\xb1\x9d\x01", 8));
}

TEST(RecycleNoteOf, IsNothingElse) {
  RecycleNote note;
  note.deleted = QDateTime(QDate(2026, 2, 3), QTime(4, 5), Qt::UTC);
  note.path = u"C:\\a.jpg";
  const std::string bytes = RecycleNoteBytes(note);
  for (std::size_t length = 0; length < bytes.size(); ++length) {
    EXPECT_FALSE(ParseRecycleNote(bytes.substr(0, length))) << length;
  }
  std::string other = bytes;
  other[0] = 1;
  EXPECT_FALSE(ParseRecycleNote(other));
  other = bytes;
  other[24] = 0;
  EXPECT_FALSE(ParseRecycleNote(other));
  other[27] = '\x7f';
  EXPECT_FALSE(ParseRecycleNote(other));
}

}  // namespace
}  // namespace Zenvora::Tavolin
