#include <support/PhotoMaker.h>
#include <support/TempTree.h>

#include <zenvora/core/FileState.h>
#include <zenvora/strandel/PhotoEdit.h>
#include <zenvora/strandel/SidecarEdit.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QString>

#include <string>

namespace Zenvora::Strandel {
namespace {

using std::chrono::seconds;
using testing::HasSubstr;

PhotoEdit Turned(Turn turn) {
  PhotoEdit edit;
  edit.turn = turn;
  return edit;
}

PhotoEdit ShiftedBy(seconds shift) {
  PhotoEdit edit;
  edit.shift = shift;
  return edit;
}

PhotoEdit SetTo() {
  PhotoEdit edit;
  edit.date = QDateTime(QDate(2003, 2, 1), QTime(4, 5, 6));
  return edit;
}

/// A packet whose description has these attributes and elements.
std::string Packet(const std::string& attributes, const std::string& elements = "") {
  return "<?xpacket begin=\"\xEF\xBB\xBF\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>\n"
         "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\">\n"
         " <rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">\n"
         "  <rdf:Description rdf:about=\"\" xmlns:xmp=\"http://ns.adobe.com/xap/1.0/\"\n"
         "    xmlns:exif=\"http://ns.adobe.com/exif/1.0/\" xmlns:tiff='http://ns.adobe.com/tiff/1.0/'\n"
         "    xmlns:photoshop=\"http://ns.adobe.com/photoshop/1.0/\"\n    " +
         attributes + ">\n" + elements + "  </rdf:Description>\n </rdf:RDF>\n</x:xmpmeta>\n" +
         std::string(300, ' ') + "\n<?xpacket end=\"w\"?>";
}

std::string Replaced(std::string text, const std::string& before, const std::string& after) {
  for (std::size_t at = text.find(before); at != std::string::npos;
       at = text.find(before, at + after.size())) {
    text.replace(at, before.size(), after);
  }
  return text;
}

std::string Utf16(const std::string& utf8, bool bigEndian, bool withMark) {
  std::string bytes = !withMark ? "" : bigEndian ? "\xFE\xFF" : "\xFF\xFE";
  for (const QChar unit : QString::fromStdString(utf8)) {
    const char high = static_cast<char>(unit.unicode() >> 8U);
    const char low = static_cast<char>(unit.unicode() & 0xFFU);
    bytes += bigEndian ? high : low;
    bytes += bigEndian ? low : high;
  }
  return bytes;
}

class SidecarEdits : public testing::Test {
 protected:
  SidecarEdits() {
    Zenvora::Test::PhotoTags tags;
    tags.dateTimeOriginal = "2024:05:17 10:00:00";
    tags.dateTimeDigitized = "2024:05:17 10:00:00";
    photo = Zenvora::Test::WriteJpeg(tree.Path("a.jpg"), tags);
  }

  /// What the edit makes of the bytes; the same bytes where it changes nothing.
  std::string Edited(const std::string& bytes, const PhotoEdit& edit) const {
    const ioPath sidecar = tree.Write("a.xmp", bytes);
    const ioPath staging = tree.Path(".staging.xmp");
    const bool tried = TryEditSidecar(sidecar, photo, edit);
    EXPECT_EQ(WriteEditedSidecar(sidecar, staging, photo, edit), tried);
    EXPECT_EQ(Zenvora::Test::ReadFile(sidecar), bytes);
    EXPECT_EQ(staging.exists(), tried);
    if (!tried) {
      return bytes;
    }
    EXPECT_EQ(QueryFile(staging).modifiedNs, QueryFile(sidecar).modifiedNs);
    std::string result = Zenvora::Test::ReadFile(staging);
    staging.remove();
    return result;
  }
  /// Why it is refused; both ways say the same.
  std::string Refusal(const std::string& bytes, const PhotoEdit& edit) const {
    const ioPath sidecar = tree.Write("a.xmp", bytes);
    std::string tried = "(none)";
    std::string written = "(none)";
    try {
      TryEditSidecar(sidecar, photo, edit);
    } catch (const PhotoEditError& error) {
      tried = error.what();
    }
    try {
      WriteEditedSidecar(sidecar, tree.Path(".staging.xmp"), photo, edit);
    } catch (const PhotoEditError& error) {
      written = error.what();
    }
    EXPECT_EQ(tried, written);
    EXPECT_FALSE(tree.Path(".staging.xmp").exists());
    return tried;
  }

  const Zenvora::Test::TempTree tree;
  ioPath photo;
};

TEST_F(SidecarEdits, ChangeTheValuesAndNoOtherByte) {
  const std::string dates =
      "exif:DateTimeOriginal=\"2024-05-17T10:00:00\" xmp:CreateDate='2024-05-17T10:00:00+02:00'\n"
      "xmp:ModifyDate = \"2024-05-18T23:30\" xmp:MetadataDate=\"2024-05-17T10:00:00\"\n"
      "tiff:Orientation=\"6\" xmp:Rating=\"5\"";
  const std::string elements =
      "<photoshop:DateCreated>\n 2024-05-17T10:00:00.25 </photoshop:DateCreated>\n"
      "<!-- <xmp:CreateDate>2024-05-17T10:00:00+02:00</xmp:CreateDate> -->";
  const std::string packet = Packet(dates, elements);
  std::string shifted =
      Replaced(packet, "exif:DateTimeOriginal=\"2024-05-17T10", "exif:DateTimeOriginal=\"2024-05-17T11");
  shifted = Replaced(shifted, "xmp:CreateDate='2024-05-17T10", "xmp:CreateDate='2024-05-17T11");
  shifted = Replaced(shifted, "2024-05-18T23:30", "2024-05-19T00:30");
  shifted = Replaced(shifted, "2024-05-17T10:00:00.25", "2024-05-17T11:00:00.25");
  EXPECT_EQ(Edited(packet, ShiftedBy(seconds(3600))), shifted);
  EXPECT_EQ(Edited(packet, Turned(Turn::Right)), Replaced(packet, "Orientation=\"6\"", "Orientation=\"3\""));
  const std::string set = Edited(packet, SetTo());
  EXPECT_THAT(set, HasSubstr("exif:DateTimeOriginal=\"2003-02-01T04:05:06\""));
  EXPECT_THAT(set, HasSubstr("xmp:CreateDate='2003-02-01T04:05:06+02:00'"));
  EXPECT_THAT(set, HasSubstr("xmp:MetadataDate=\"2024-05-17T10:00:00\""));
  EXPECT_THAT(set, HasSubstr("<photoshop:DateCreated>\n 2003-02-01T04:05:06.00 </photoshop:DateCreated>"));
  EXPECT_THAT(set, HasSubstr("<!-- <xmp:CreateDate>2024-05-17T10:00:00+02:00</xmp:CreateDate> -->"));
}

TEST_F(SidecarEdits, GiveATextMoreRoomThanItHad) {
  const std::string packet = Packet("xmp:CreateDate=\"2024-05-17T10:00\"");
  EXPECT_EQ(Edited(packet, ShiftedBy(seconds(45))), Replaced(packet, "T10:00\"", "T10:00:45\""));
}

TEST_F(SidecarEdits, FindPropertiesByTheirNameSpace) {
  const std::string old =
      Replaced(Replaced(Packet("xmp:CreateDate=\"2024-05-17T10:00:00\""), "xmlns:xmp", "xmlns:xap"),
               "xmp:CreateDate", "xap:CreateDate");
  EXPECT_EQ(Edited(old, ShiftedBy(seconds(3600))), Replaced(old, "T10:00", "T11:00"));
  // The same name in another name space is another property.
  const std::string other =
      Packet("xmlns:my=\"http://example.org/my/\" my:CreateDate=\"2024-05-17T10:00:00\"");
  EXPECT_EQ(Edited(other, ShiftedBy(seconds(3600))), other);
}

TEST_F(SidecarEdits, KeepTheEncoding) {
  const std::string plain = Packet("tiff:Orientation=\"1\" xmp:Label=\"Caf\xC3\xA9 \xF0\x9F\x93\xB7\"");
  const std::string turned = Replaced(plain, "tiff:Orientation=\"1\"", "tiff:Orientation=\"8\"");
  for (const bool bigEndian : {false, true}) {
    EXPECT_EQ(Edited(Utf16(plain, bigEndian, true), Turned(Turn::Left)), Utf16(turned, bigEndian, true));
    EXPECT_EQ(Edited(Utf16(plain, bigEndian, false), Turned(Turn::Left)), Utf16(turned, bigEndian, false));
  }
  EXPECT_EQ(Edited("\xEF\xBB\xBF" + plain, Turned(Turn::Left)), "\xEF\xBB\xBF" + turned);
  const std::string declared = "<?xml version=\"1.0\" encoding=\"UTF-16\"?>\n";
  EXPECT_EQ(Edited(Utf16(declared + plain, true, true), Turned(Turn::Left)),
            Utf16(declared + turned, true, true));
  EXPECT_EQ(Edited("<?xml version='1.0' encoding='UTF-8'?>" + plain, Turned(Turn::Left)),
            "<?xml version='1.0' encoding='UTF-8'?>" + turned);
}

TEST_F(SidecarEdits, KeepTheTimeZoneThatTheDateStandsIn) {
  // The same moment as the camera's ten o'clock, two hours east.
  const std::string packet = Packet("exif:DateTimeOriginal=\"2024-05-17T08:00:00Z\"");
  EXPECT_EQ(Edited(packet, SetTo()), Replaced(packet, "2024-05-17T08:00:00Z", "2003-02-01T02:05:06Z"));
}

TEST_F(SidecarEdits, LeaveAloneWhatHasNoneOfTheValues) {
  for (const std::string& bytes : {std::string(), std::string(2000, '\0'), std::string("no XMP at all"),
                                   Packet("xmp:Rating=\"5\""), Utf16("odd", true, true) + "x"}) {
    EXPECT_EQ(Edited(bytes, ShiftedBy(seconds(60))), bytes);
    EXPECT_EQ(Edited(bytes, SetTo()), bytes);
    EXPECT_EQ(Edited(bytes, Turned(Turn::Half)), bytes);
  }
  const std::string dated = Packet("xmp:CreateDate=\"2024-05-17T10:00:00\"");
  EXPECT_EQ(Edited(dated, Turned(Turn::Half)), dated);
}

TEST_F(SidecarEdits, RefuseWhatTheyCannotChange) {
  const std::string dated = Packet("xmp:CreateDate=\"2024-05-17T10:00:00\"");
  const std::string name = tree.Path("a.xmp").utf8string();
  for (std::size_t size = dated.find("CreateDate=") + 30; size < dated.find("</x:xmpmeta>"); size += 7) {
    EXPECT_THAT(Refusal(dated.substr(0, size), SetTo()),
                HasSubstr("Cannot edit " + name + ": its XMP data are damaged"))
        << size;
  }
  EXPECT_THAT(Refusal(Packet("xmp:CreateDate=\"2024-05-17T10&#58;00:00\""), SetTo()),
              HasSubstr("its xmp:CreateDate cannot be changed in place"));
  EXPECT_THAT(Refusal(dated + std::string(kMostSidecarBytes, ' '), SetTo()), HasSubstr("larger than 4 MiB"));
  EXPECT_THAT(Refusal(Packet("xmp:CreateDate=\"9999-12-31T23:59:59\""), ShiftedBy(seconds(1))),
              HasSubstr("year would not be 1 to 9999"));
  tree.MakeFolder("folder.xmp");
  EXPECT_THROW(TryEditSidecar(tree.Path("folder.xmp"), photo, SetTo()), PhotoEditError);
  EXPECT_THROW(TryEditSidecar(tree.Path("gone.xmp"), photo, SetTo()), PhotoEditError);
}

TEST_F(SidecarEdits, RefuseWhatIsCutWhereverTheCutIs) {
  // What they change may have stood behind the cut.
  for (const std::string& whole : {Packet("xmp:Rating=\"5\" tiff:Orientation=\"1\""),
                                   Packet("xmp:Rating=\"5\"", "<tiff:Orientation>1</tiff:Orientation>")}) {
    for (std::size_t size = 1; size < whole.size() - 20; size += 23) {
      const std::string cut = whole.substr(0, size);
      EXPECT_NE(Refusal(cut, Turned(Turn::Right)), "") << size;
      EXPECT_NE(Refusal(cut, ShiftedBy(seconds(60))), "") << size;
      EXPECT_NE(Refusal(Utf16(cut, true, true), SetTo()), "") << size;
    }
  }
  const std::string whole = Packet("tiff:Orientation=\"1\"");
  EXPECT_THAT(Refusal(whole.substr(0, whole.find("<?xpacket end")), Turned(Turn::Right)),
              HasSubstr("it breaks off before its end"));
  // A packet may go without its frame.
  const std::size_t begin = whole.find("<x:xmpmeta");
  const std::string bare = whole.substr(begin, whole.find("<?xpacket end") - begin);
  EXPECT_EQ(Edited(bare, Turned(Turn::Right)), Replaced(bare, "Orientation=\"1\"", "Orientation=\"6\""));
}

TEST_F(SidecarEdits, NeverWriteOverAnything) {
  const ioPath sidecar = tree.Write("a.xmp", Packet("tiff:Orientation=\"1\""));
  const ioPath taken = tree.Write("taken", "something");
  EXPECT_THROW(WriteEditedSidecar(sidecar, taken, photo, Turned(Turn::Left)), PhotoEditError);
  EXPECT_EQ(Zenvora::Test::ReadFile(taken), "something");
}

}  // namespace
}  // namespace Zenvora::Strandel
