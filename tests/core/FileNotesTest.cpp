#include <support/LogCapture.h>
#include <support/Verbosity.h>

#include <zenvora/core/FileNotes.h>

#include <gmock/gmock.h>

#include <string>
#include <thread>
#include <vector>

namespace Zenvora {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class FileNotesTest : public ::testing::Test {
 protected:
  std::vector<std::string> Texts() const {
    std::vector<std::string> texts;
    for (const Zenvora::Test::LogCapture::Line& line : log_.Lines()) {
      texts.push_back(line.text);
    }
    return texts;
  }

  const Zenvora::Test::LogCapture log_;
};

TEST_F(FileNotesTest, GoToTheLogWithTheFileWhenItIsRead) {
  const Zenvora::Test::Verbosity verbose(1);
  {
    const FileNotes notes("/p/a.tif");
    FileNotes::Take("libtiff", "Warning, tags are not sorted\n");
    EXPECT_THAT(Texts(), IsEmpty());
  }
  EXPECT_THAT(Texts(), ElementsAre("/p/a.tif: libtiff: Warning, tags are not sorted"));
}

TEST_F(FileNotesTest, AreCountedInsteadOfRepeated) {
  const Zenvora::Test::Verbosity verbose(1);
  {
    const FileNotes notes("/p/a.tif");
    for (int line = 0; line < 16'000; ++line) {
      FileNotes::Take("libtiff", "Bad code word at line " + std::to_string(line) + " of strip 0");
    }
    FileNotes::Take("Exiv2", "Bad code word at line 1 of strip 0");
    for (const char* tag : {"64000 (0xfa00)", "64010 (0xFA0A)", "64011 (0xfa0b)"}) {
      FileNotes::Take("x", std::string("Unknown field ") + tag);
    }
    FileNotes::Take("x", "ends in 0x");
    FileNotes::Take("x", "ends in 12");
  }
  EXPECT_THAT(Texts(), ElementsAre("/p/a.tif: Exiv2: Bad code word at line 1 of strip 0",
                                   "/p/a.tif: libtiff: Bad code word at line 0 of strip 0 (16000 times)",
                                   "/p/a.tif: x: Unknown field 64000 (0xfa00) (3 times)",
                                   "/p/a.tif: x: ends in 0x (2 times)"));
}

TEST_F(FileNotesTest, AreLimitedInNumber) {
  const Zenvora::Test::Verbosity verbose(1);
  {
    const FileNotes notes("/p/a");
    for (int kind = 0; kind < 1000; ++kind) {
      FileNotes::Take("x", std::string(static_cast<std::size_t>(kind), 'a'));
    }
  }
  ASSERT_THAT(Texts(), SizeIs(21));
  EXPECT_EQ(Texts().back(), "/p/a: 980 further remarks");
}

TEST_F(FileNotesTest, OfTheSameFileGoTogether) {
  const Zenvora::Test::Verbosity verbose(1);
  {
    const FileNotes outer("/p/a");
    FileNotes::Take("x", "odd");
    {
      const FileNotes inner("/p/a");
      FileNotes::Take("x", "odd");
    }
    {
      const FileNotes other("/p/b");
      FileNotes::Take("x", "odd");
    }
    FileNotes::Take("x", "odd");
  }
  EXPECT_THAT(Texts(), ElementsAre("/p/b: x: odd", "/p/a: x: odd (3 times)"));
}

TEST_F(FileNotesTest, AreOfTheirOwnThread) {
  const Zenvora::Test::Verbosity verbose(1);
  const FileNotes notes("/p/a");
  std::thread([] { FileNotes::Take("x", "of no file"); }).join();
  EXPECT_THAT(Texts(), ElementsAre("x: of no file"));
}

TEST_F(FileNotesTest, AreNotKeptWhenNobodyWantsThem) {
  {
    const FileNotes notes("/p/a");
    FileNotes::Take("x", "odd");
  }
  FileNotes::Take("x", "odd");
  EXPECT_THAT(Texts(), IsEmpty());
}

}  // namespace
}  // namespace Zenvora
