#include "PictureHead.h"

#include <zenvora/core/FileReader.h>
#include <zenvora/core/FileState.h>
#include <zenvora/strandel/FormatByHead.h>

#include <algorithm>
#include <array>
#include <string_view>

namespace Zenvora::Lumidex::Host {

namespace {

struct FilmMark {
  std::size_t at;
  std::string_view bytes;
};

/// Of the containers in which cameras write videos.
constexpr std::array<FilmMark, 9> kFilms = {{
    {4, "ftyp"},                                   // MP4, QuickTime, 3GP
    {4, "moov"},                                   // QuickTime of older cameras
    {4, "mdat"},                                   //
    {4, "wide"},                                   //
    {8, "AVI "},                                   //
    {0, "\x1A\x45\xDF\xA3"},                       // Matroska
    {0, "\x30\x26\xB2\x75"},                       // ASF
    {0, std::string_view("\0\0\1\xBA", 4)},        // MPEG program stream
    {0, std::string_view("\x06\x0E\x2B\x34", 4)},  // MXF
}};

/// Packets of 188 bytes, in camcorders' files with four bytes before each.
bool BeginsLikeTransportStream(std::string_view head) {
  constexpr char kSync = 0x47;
  constexpr std::size_t kPacket = 188;
  constexpr std::size_t kTime = 4;
  const auto syncs = [head](std::size_t at) { return head.size() > at && head[at] == kSync; };
  return (syncs(0) && syncs(kPacket)) || (syncs(kTime) && syncs(2 * kTime + kPacket));
}

bool BeginsLikeFilm(std::string_view head) {
  return BeginsLikeTransportStream(head) ||
         std::any_of(kFilms.begin(), kFilms.end(), [head](const FilmMark& mark) {
           return head.size() >= mark.at && head.substr(mark.at, mark.bytes.size()) == mark.bytes;
         });
}

}  // namespace

bool MayHoldAPicture(const ioPath& file) {
  FileReader reader;
  std::string_view head;
  if (reader.Open(file) || reader.At(0, Strandel::kFormatHeadBytes, head)) {
    return QueryFile(file).kind == FileState::Kind::File;
  }
  return !Strandel::FormatByHead(head).empty() || BeginsLikeFilm(head);
}

}  // namespace Zenvora::Lumidex::Host
