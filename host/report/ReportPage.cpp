#include "ReportPage.h"

#include "ReportStyle.h"

#include <LumidexUtil/Wording.h>
#include <host/settings/IntervalText.h>

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <map>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

/// Pictures far from square are cut to this shape, so that they leave room for others in the row.
constexpr double kNarrowest = 0.5;
constexpr double kWidest = 2.6;
/// Of the longer side: how tall a row is, before it is stretched to the page's width.
constexpr double kRowShare = 0.66;

const char* const kPictureIcon =
    "<svg viewBox=\"0 0 24 24\" fill=\"none\" stroke=\"currentColor\" stroke-width=\"1.6\" "
    "stroke-linecap=\"round\" "
    "stroke-linejoin=\"round\" aria-hidden=\"true\"><rect x=\"3\" y=\"4.5\" width=\"18\" height=\"15\" "
    "rx=\"2.5\"/>"
    "<circle cx=\"8.6\" cy=\"9.8\" r=\"1.6\"/><path d=\"M3.5 17l5-4.6 3.6 3.1 3.9-4.4 4.6 5\"/></svg>";
const char* const kNoPictureIcon =
    "<svg viewBox=\"0 0 24 24\" fill=\"none\" stroke=\"currentColor\" stroke-width=\"1.6\" "
    "stroke-linecap=\"round\" "
    "stroke-linejoin=\"round\" aria-hidden=\"true\"><path d=\"M7 4.5h11.500a2.500 2.500 0 0 1 2.500 "
    "2.500v10M17.500 19.500H5.500"
    "A2.500 2.500 0 0 1 3 17V6.500M4 16.500l4.600-4.100 4.400 3.800M3 3l18 18\"/></svg>";
const char* const kTickIcon =
    "<svg viewBox=\"0 0 16 16\" fill=\"none\" stroke=\"currentColor\" stroke-width=\"2.4\" "
    "stroke-linecap=\"round\" "
    "stroke-linejoin=\"round\" aria-hidden=\"true\"><path d=\"M2.500 8.600l3.600 3.600 7.400-8\"/></svg>";
const char* const kPageIcon =
    "data:image/svg+xml,%3Csvg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 16 16'%3E%3Crect width='16' "
    "height='16' "
    "rx='4' fill='%239a4a12'/%3E%3Cpath d='M2.500 12l3.500-4 2.500 2.500L11 7l2.500 5z' "
    "fill='%23fff'/%3E%3C/svg%3E";

/// The texts of the page.
class Words {
  Q_DECLARE_TR_FUNCTIONS(Report)
};

/// The keys that counting what stands on pages makes up at run time, written out for the translation tools.
[[maybe_unused]] const char* const kCountKeys[] = {
    QT_TRANSLATE_NOOP("Zenvora::Lumidex::Utils", "One album"),
    QT_TRANSLATE_NOOP("Zenvora::Lumidex::Utils", "Nominative album"),
    QT_TRANSLATE_NOOP("Zenvora::Lumidex::Utils", "Genetive album"),
    QT_TRANSLATE_NOOP("Zenvora::Lumidex::Utils", "Plural album"),
    QT_TRANSLATE_NOOP("Zenvora::Lumidex::Utils", "album"),
    QT_TRANSLATE_NOOP("Zenvora::Lumidex::Utils", "albums"),
    QT_TRANSLATE_NOOP("Zenvora::Lumidex::Utils", "One group"),
    QT_TRANSLATE_NOOP("Zenvora::Lumidex::Utils", "Nominative group"),
    QT_TRANSLATE_NOOP("Zenvora::Lumidex::Utils", "Genetive group"),
    QT_TRANSLATE_NOOP("Zenvora::Lumidex::Utils", "Plural group"),
    QT_TRANSLATE_NOOP("Zenvora::Lumidex::Utils", "group"),
    QT_TRANSLATE_NOOP("Zenvora::Lumidex::Utils", "groups"),
    QT_TRANSLATE_NOOP("Zenvora::Lumidex::Utils", "One photo"),
    QT_TRANSLATE_NOOP("Zenvora::Lumidex::Utils", "Nominative photo"),
    QT_TRANSLATE_NOOP("Zenvora::Lumidex::Utils", "Genetive photo"),
    QT_TRANSLATE_NOOP("Zenvora::Lumidex::Utils", "Plural photo"),
    QT_TRANSLATE_NOOP("Zenvora::Lumidex::Utils", "photo"),
    QT_TRANSLATE_NOOP("Zenvora::Lumidex::Utils", "photos"),
};

QByteArray ClassOf(ReportMark::Tone tone) {
  switch (tone) {
    case ReportMark::Tone::Chosen:
      return "keep";
    case ReportMark::Tone::Good:
      return "good";
    case ReportMark::Tone::Careful:
      return "careful";
    case ReportMark::Tone::Plain:
      break;
  }
  return "plain";
}

QString FirstLine(const QString& name) {
  const QString line = name.section(QLatin1Char('\n'), 0, 0).trimmed();
  return line.isEmpty() ? Words::tr("Unnamed album") : line;
}

/// Short dates with all four digits of the year: albums may be older than a camera's century.
QString DateFormat(const QLocale& locale) {
  QString format = locale.dateFormat(QLocale::ShortFormat);
  if (!format.contains(QLatin1String("yyyy"))) {
    format.replace(QLatin1String("yy"), QLatin1String("yyyy"));
  }
  return format;
}

QString Tip(const PhotoRecord& photo) {
  const QString name = photo.path.filename().qstring();
  return photo.camera.isEmpty() ? name : name + QStringLiteral(" – ") + photo.camera;
}

}  // namespace

QString EscapedForPage(const QString& text) {
  QString result;
  result.reserve(text.size() + text.size() / 8);
  for (int i = 0; i < text.size(); ++i) {
    const QChar c = text[i];
    if (c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
      result += c;
      result += text[++i];
      continue;
    }
    switch (c.unicode()) {
      case '&':
        result += QLatin1String("&amp;");
        break;
      case '<':
        result += QLatin1String("&lt;");
        break;
      case '>':
        result += QLatin1String("&gt;");
        break;
      case '"':
        result += QLatin1String("&quot;");
        break;
      case '\'':
        result += QLatin1String("&#39;");
        break;
      case '\n':
      case '\r':
      case '\t':
        result += QLatin1Char(' ');
        break;
      default:
        // The C1 controls are allowed in XML, but not in HTML.
        result += c.unicode() < 0x20 || (c.unicode() >= 0x7F && c.unicode() < 0xA0) || c.isSurrogate() ||
                          c.unicode() >= 0xFFFE
                      ? QChar(QChar::ReplacementCharacter)
                      : c;
    }
  }
  return result;
}

ReportPage::ReportPage(const std::vector<ReportAlbum>& albums, const ReportOptions& options)
    : albums_(albums), options_(options), locale_(options.locale) {}

QString ReportPage::Title() const {
  const QString title = options_.title.simplified();
  return title.isEmpty() ? Words::tr("Albums") : title;
}

QString ReportPage::Counted(qint64 count, const char* noun, const char* plural) const {
  // Not every language has a blank between them.
  return QCoreApplication::translate("Zenvora::Lumidex::Utils", "%1 %2")
      .arg(locale_.toString(count),
           Util::GetCountString(noun, plural, static_cast<int>(std::min<qint64>(count, 1'000'000'000))));
}

QString ReportPage::Totals() const {
  qint64 photos = 0;
  int first = 0;
  int last = 0;
  for (const ReportAlbum& album : albums_) {
    photos += static_cast<qint64>(album.photos.size());
    if (album.firstDay.isValid()) {
      const int year = album.firstDay.year();
      first = first == 0 ? year : std::min(first, year);
      last = std::max(last, year);
    }
  }
  QStringList parts = {
      Counted(static_cast<qint64>(albums_.size()), options_.words.noun, options_.words.nouns),
      Counted(photos, "photo", "photos")};
  if (first != 0) {
    // A year is a name, not a quantity: no separators.
    parts << (first == last ? QString::number(first)
                            : QString::number(first) + QStringLiteral("–") + QString::number(last));
  }
  return parts.join(QStringLiteral(" · "));
}

QString ReportPage::Contents() const {
  // The albums keep their order within a year; those without a date come last.
  constexpr int kUndated = 1'000'000;
  const auto yearOf = [](const ReportAlbum& album) {
    return album.firstDay.isValid() ? album.firstDay.year() : kUndated;
  };
  std::map<std::pair<int, QString>, int> namesakes;
  for (const ReportAlbum& album : albums_) {
    ++namesakes[{yearOf(album), FirstLine(album.name)}];
  }
  std::map<int, QString> years;
  for (std::size_t i = 0; i < albums_.size(); ++i) {
    const ReportAlbum& album = albums_[i];
    QString name = FirstLine(album.name);
    if (namesakes[{yearOf(album), name}] > 1 && !When(album).isEmpty()) {
      name += QStringLiteral(", ") + When(album);
    }
    years[yearOf(album)] +=
        QStringLiteral("<li><a href=\"#album-%1\" title=\"").arg(i + 1) + EscapedForPage(album.name) +
        QLatin1String("\"><span dir=\"auto\">") + EscapedForPage(name) + QLatin1String("</span> <span>") +
        locale_.toString(static_cast<qint64>(album.photos.size())) + QLatin1String("</span></a></li>\n");
  }
  QString result = QStringLiteral("<nav class=\"wrap\" aria-label=\"") +
                   EscapedForPage(Words::tr(options_.words.contents)) + QLatin1String("\">\n");
  for (const auto& [year, entries] : years) {
    const QString label = year == kUndated ? Words::tr("Undated") : QString::number(year);
    result += QLatin1String("<div class=\"year\"><p>") + EscapedForPage(label) + QLatin1String("</p><ul>\n") +
              entries + QLatin1String("</ul></div>\n");
  }
  return result + QLatin1String("</nav>\n");
}

QByteArray ReportPage::Begin() const {
  const QString direction =
      locale_.textDirection() == Qt::RightToLeft ? QStringLiteral("rtl") : QStringLiteral("ltr");
  const QString title = EscapedForPage(Title());
  QString page = QStringLiteral("<!DOCTYPE html>\n<html lang=\"") + locale_.bcp47Name() +
                 QLatin1String("\" dir=\"") + direction +
                 QLatin1String("\">\n<head>\n<meta charset=\"utf-8\"/>\n");
  page += QLatin1String(
      "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; img-src data:; style-src "
      "'unsafe-inline'\"/>\n<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\"/>\n"
      "<meta name=\"generator\" content=\"Lumidex\"/>\n<meta name=\"color-scheme\" content=\"light "
      "dark\"/>\n<title>");
  page += title + QLatin1String("</title>\n<link rel=\"icon\" href=\"") + QLatin1String(kPageIcon) +
          QLatin1String("\"/>\n<style>") + QLatin1String(kReportStyle) +
          QStringLiteral(":root { --row: %1px; }\n</style>\n</head>\n<body>\n")
              .arg(qRound(options_.thumbnailSize * kRowShare));
  page += QLatin1String("<header class=\"top wrap\">\n<p class=\"brand\">") + QLatin1String(kPictureIcon) +
          QLatin1String("Lumidex</p>\n<h1 dir=\"auto\">") + title + QLatin1String("</h1>\n");
  if (albums_.empty()) {
    page += QLatin1String("</header>\n<main class=\"wrap\">\n<section class=\"album empty\">") +
            QLatin1String(kPictureIcon) + QLatin1String("<h2>") +
            EscapedForPage(Words::tr(options_.words.none)) + QLatin1String("</h2><p>") +
            EscapedForPage(Words::tr(options_.words.hint)) + QLatin1String("</p></section>\n");
    return page.toUtf8();
  }
  page +=
      QLatin1String("<p class=\"totals\">") + EscapedForPage(Totals()) + QLatin1String("</p>\n</header>\n");
  if (albums_.size() > 1) {
    page += Contents();
  }
  page += QLatin1String("<main class=\"wrap\">\n");
  return page.toUtf8();
}

QString ReportPage::When(const ReportAlbum& album) const {
  const QString rest = album.name.section(QLatin1Char('\n'), 1).simplified();
  return rest.isEmpty() && album.firstDay.isValid() ? locale_.toString(album.firstDay, QLocale::LongFormat)
                                                    : IntervalText(rest, locale_);
}

QByteArray ReportPage::BeginAlbum(const ReportAlbum& album, int number) const {
  const QString id = QString::number(number);
  QString html = QLatin1String("<article class=\"album\" id=\"album-") + id +
                 QLatin1String("\" aria-labelledby=\"name-") + id +
                 QLatin1String("\">\n<header>\n<h2 dir=\"auto\" id=\"name-") + id + QLatin1String("\">") +
                 EscapedForPage(FirstLine(album.name)) + QLatin1String("</h2>\n<p class=\"when\">");
  const QString when = When(album);
  if (!when.isEmpty()) {
    html += QLatin1String("<span dir=\"auto\">") + EscapedForPage(when) +
            QStringLiteral("</span> <span aria-hidden=\"true\">·</span> ");
  }
  html += QLatin1String("<span>") +
          EscapedForPage(Counted(static_cast<qint64>(album.photos.size()), "photo", "photos")) +
          QLatin1String("</span>");
  if (album.accepted) {
    html += QLatin1String(" <span class=\"badge\">") + QLatin1String(kTickIcon) +
            EscapedForPage(Words::tr("Accepted")) + QLatin1String("</span>");
  }
  html += QLatin1String("</p>\n</header>\n<ul class=\"photos\">\n");
  return html.toUtf8();
}

QString ReportPage::TakenText(const QDateTime& taken) const {
  if (!taken.isValid()) {
    return Words::tr("Undated");
  }
  return locale_.toString(taken.date(), DateFormat(locale_)) + QLatin1Char(' ') +
         locale_.toString(taken.time(), QLocale::ShortFormat);
}

QByteArray ReportPage::Photo(const ReportAlbum& album, std::size_t index,
                             const ReportThumbnail& thumbnail) const {
  const PhotoRecord& photo = album.photos[index];
  const QString name = EscapedForPage(photo.path.filename().qstring());
  const QString tip = EscapedForPage(Tip(photo));
  const QString taken = EscapedForPage(TakenText(photo.taken));
  const bool shown = !thumbnail.jpeg.isEmpty() && !thumbnail.size.isEmpty();
  const double ratio =
      shown ? static_cast<double>(thumbnail.size.width()) / thumbnail.size.height() : 4.0 / 3;
  QByteArray html = QStringLiteral("<li%1 style=\"--r:%2\"><figure title=\"%3\">")
                        .arg(album.chosen == index ? QStringLiteral(" class=\"chosen\"") : QString(),
                             QString::number(std::clamp(ratio, kNarrowest, kWidest), 'f', 3), tip)
                        .toUtf8();
  if (shown) {
    html += "<img alt=\"" + (name + QLatin1String(", ") + taken).toUtf8() + "\" width=\"" +
            QByteArray::number(thumbnail.size.width()) + "\" height=\"" +
            QByteArray::number(thumbnail.size.height()) +
            "\" loading=\"lazy\" decoding=\"async\" src=\"data:image/jpeg;base64,";
    html += thumbnail.jpeg.toBase64() + "\"/>";
  } else {
    html += "<div class=\"blank\">" + QByteArray(kNoPictureIcon) + "<span>" +
            EscapedForPage(Words::tr("No picture")).toUtf8() + "</span><span dir=\"auto\">" + name.toUtf8() +
            "</span></div>";
  }
  if (!album.marks.empty() && !album.marks[index].text.isEmpty()) {
    const ReportMark& mark = album.marks[index];
    html +=
        "<span class=\"mark " + ClassOf(mark.tone) + "\">" + EscapedForPage(mark.text).toUtf8() + "</span>";
  }
  html += "<figcaption>";
  if (!album.captions.empty()) {
    for (const QString& line : album.captions[index].split(QLatin1Char('\n'))) {
      html += "<span class=\"line\" dir=\"auto\">" + EscapedForPage(line).toUtf8() + "</span>";
    }
    return html + "</figcaption></figure></li>\n";
  }
  html +=
      (photo.taken.isValid() ? QStringLiteral("<time datetime=\"%1\">%2</time>")
                                   .arg(photo.taken.toString(QStringLiteral("yyyy-MM-ddThh:mm:ss")), taken)
                             : taken)
          .toUtf8();
  return html + "</figcaption></figure></li>\n";
}

QByteArray ReportPage::EndAlbum(int hidden) const {
  QString html;
  if (hidden > 0) {
    const QString text = Words::tr("and %1 more", nullptr, hidden).arg(locale_.toString(hidden));
    html = QLatin1String("<li class=\"more\"><p>") + EscapedForPage(text) + QLatin1String("</p></li>\n");
  }
  html += QLatin1String("</ul>\n</article>\n");
  return html.toUtf8();
}

QByteArray ReportPage::End() const {
  return ("</main>\n<footer class=\"foot wrap\">" +
          EscapedForPage(
              Words::tr("Made with Lumidex. This page holds all its pictures and needs no other file."))
              .toUtf8() +
          "</footer>\n</body>\n</html>\n");
}

}  // namespace Zenvora::Lumidex::Host
