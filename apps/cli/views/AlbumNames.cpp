#include <cli/views/AlbumNames.h>
#include <host/settings/IntervalText.h>

#include <zenvora/app/Application.h>

#include <QLocale>
#include <QStringList>

#include <algorithm>
#include <numeric>
#include <set>

namespace Zenvora::Lumidex::Cli {

namespace {

QLocale Language() {
  return QLocale(QString::fromStdString(App::GetCurrentLocale()));
}

QString Composed(const QString& text) {
  return text.normalized(QString::NormalizationForm_C);
}

std::vector<std::string> OneLineNames(const std::vector<QString>& names,
                                      const std::vector<std::size_t>& places) {
  std::vector<std::string> texts;
  texts.reserve(places.size());
  for (const std::size_t place : places) {
    texts.push_back(OneLineName(names[place]));
  }
  return texts;
}

std::vector<std::size_t> AllPlaces(const std::vector<QString>& names) {
  std::vector<std::size_t> places(names.size());
  std::iota(places.begin(), places.end(), 0);
  return places;
}

std::vector<std::size_t> Similar(const std::string& wish, const std::vector<QString>& names) {
  const QString part = Composed(QString::fromStdString(wish)).trimmed();
  std::vector<std::size_t> places;
  for (std::size_t i = 0; i < names.size(); ++i) {
    const QString name = Composed(QString::fromStdString(OneLineName(names[i])));
    if (!part.isEmpty() && name.contains(part, Qt::CaseInsensitive)) {
      places.push_back(i);
    }
  }
  return places;
}

}  // namespace

AlbumTitle TitleOf(const QString& name) {
  QStringList lines = name.split(QLatin1Char('\n'));
  const QString first = lines.takeFirst();
  return {first.toStdString(), lines.join(QStringLiteral(", ")).toStdString()};
}

AlbumTitle ShownTitle(const QString& name) {
  const AlbumTitle title = TitleOf(name);
  return {title.title, Host::IntervalText(QString::fromStdString(title.interval), Language()).toStdString()};
}

std::string ShownName(const QString& name) {
  const auto [title, interval] = TitleOf(name);
  return interval.empty()
             ? title
             : title + ", " +
                   Host::IntervalInSentence(QString::fromStdString(interval), Language()).toStdString();
}

std::string OneLineName(const QString& name) {
  return QString(name).replace(QLatin1Char('\n'), QStringLiteral(", ")).toStdString();
}

bool MeansAlbum(const std::string& wish, const QString& name) {
  const QString wanted = Composed(QString::fromStdString(wish));
  const AlbumTitle shown = ShownTitle(name);
  if (Composed(QString::fromStdString(shown.title + ", " + shown.interval)) == wanted ||
      Composed(QString::fromStdString(ShownName(name))) == wanted) {
    return true;
  }
  for (const char* const separator : {"\n", ", ", " - ", "\\n"}) {
    if (Composed(QString(name).replace(QLatin1Char('\n'), QLatin1String(separator))) == wanted) {
      return true;
    }
  }
  return false;
}

AlbumChoice ChooseAlbums(const std::vector<std::string>& wishes, const std::vector<QString>& names) {
  AlbumChoice choice;
  std::set<std::size_t> chosen;
  for (const std::string& wish : wishes) {
    std::vector<std::size_t> fitting = AllPlaces(names);
    if (wish != "all") {
      fitting.erase(std::remove_if(fitting.begin(), fitting.end(),
                                   [&](std::size_t place) { return !MeansAlbum(wish, names[place]); }),
                    fitting.end());
      if (fitting.size() != 1) {
        choice.refused = wish;
        choice.isAmbiguous = !fitting.empty();
        const auto similar = choice.isAmbiguous ? fitting : Similar(wish, names);
        choice.candidates = OneLineNames(names, similar.empty() ? AllPlaces(names) : similar);
        return choice;
      }
    }
    chosen.insert(fitting.begin(), fitting.end());
  }
  choice.chosen.assign(chosen.begin(), chosen.end());
  return choice;
}

}  // namespace Zenvora::Lumidex::Cli
