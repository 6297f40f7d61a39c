#pragma once

#include <host/report/Report.h>

#include <QByteArray>
#include <QLocale>
#include <QSize>
#include <QString>

#include <cstddef>

namespace Zenvora::Lumidex::Host {

/// A picture as it goes into the page; without bytes: it could not be read.
struct ReportThumbnail {
  QByteArray jpeg;
  QSize size;
};

/// The pieces of the page in the order in which they are written. Pure but for the translations; every piece
/// is UTF-8, and all of them together are HTML5 that is well-formed XML as well.
class ReportPage {
 public:
  ReportPage(const std::vector<ReportAlbum>& albums, const ReportOptions& options);

  /// Up to the first album: head, title, table of contents; with no albums, a friendly word instead.
  QByteArray Begin() const;
  /// `number` counts from 1.
  QByteArray BeginAlbum(const ReportAlbum& album, int number) const;
  /// The photo with this index, from 0.
  QByteArray Photo(const ReportAlbum& album, std::size_t index, const ReportThumbnail& thumbnail) const;
  /// `hidden`: photos that are not shown.
  QByteArray EndAlbum(int hidden) const;
  QByteArray End() const;

 private:
  QString Title() const;
  QString Totals() const;
  QString Contents() const;
  QString When(const ReportAlbum& album) const;
  QString Counted(qint64 count, const char* noun, const char* plural) const;
  QString TakenText(const QDateTime& taken) const;

  const std::vector<ReportAlbum>& albums_;
  const ReportOptions& options_;
  QLocale locale_;
};

/// Text as content or as an attribute's value: markup characters escaped, line breaks made spaces, and what
/// XML cannot hold (control characters, half surrogates) made U+FFFD. Pure.
QString EscapedForPage(const QString& text);

}  // namespace Zenvora::Lumidex::Host
