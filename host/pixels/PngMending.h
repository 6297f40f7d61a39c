#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QImage>
#include <QSize>

#include <vector>

namespace Zenvora::Lumidex::Host {

/// A damaged PNG file as far as its pixels can be unpacked.
struct MendedPng {
  /// A pass of an interlaced picture, or all of another one.
  struct Pass {
    QSize size;
    int rows = 0;  ///< Those that were unpacked, from its top.
  };

  QSize size;  ///< The picture's; empty when its head is damaged.
  /// A PNG file that every decoder goes through to the end; empty when hardly anything can be unpacked, or
  /// the picture is too large.
  QByteArray bytes;
  std::vector<Pass> passes;
  bool isTooLarge = false;
};

/// Writes a file of the rows up to the damage. Below them their last one is repeated; behind a damaged byte
/// that unpacks nevertheless, rows may look wrong. The device must be able to seek, and is left where it was.
/// Takes as much memory as the file and a row. Blocks on a disk; never throws for bad content.
MendedPng MendPng(QIODevice& device);

/// The picture decoded from the mended file: where a pass of an interlaced picture lacks rows, the pixels of
/// those before it are repeated. Pure.
QImage WithoutGaps(QImage picture, const MendedPng& png);

}  // namespace Zenvora::Lumidex::Host
