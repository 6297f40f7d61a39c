#include <host/albums/CalendarCheck.h>
#include <host/base/HostError.h>
#include <host/base/WaitLoop.h>

#include <zenvora/app/Application.h>
#include <zenvora/app/IDownloads.h>
#include <zenvora/app/RealServices.h>
#include <zenvora/core/Exception.h>
#include <zenvora/quillet/config/Config.h>
#include <zenvora/tavolin/DownloadableResource.h>

#include <QDateTime>
#include <QFile>

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <set>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

using Quillet::ISerializer;

constexpr int kDaysInYear = 365;

// The names under which album proposals know the calendar.
const QString& ResourceName() {
  static const QString name = QStringLiteral("HolidayEvents");
  return name;
}

/// An event with its texts, as far as they tell more than the dates.
struct WrittenEvent {
  CalendarEvent event;
  std::string start;
  std::string end;
};

class Calendar : public Quillet::Config::IParserConfigBase {
 public:
  explicit Calendar(const ioPath& file) {
    Quillet::Config::BaseConfig().Parse(*this, std::string(), file.utf8string(), false);
  }

  void Deserialize(const boost::intrusive_ptr<const ISerializer>& root) override {
    locales_ = root->GetChild("events");
  }

  bool Has(const std::string& locale) const { return locales_->HasChild(locale); }

  std::vector<std::string> Locales() const { return locales_->GetNames(); }

  std::vector<WrittenEvent> Read(const std::string& locale) const {
    std::vector<WrittenEvent> events;
    const auto list = locales_->GetArray(locale);
    for (std::size_t i = 0; i < list->GetLength(); ++i) {
      events.push_back(ReadEvent(*list->GetElement(i)));
    }
    return events;
  }

 private:
  static WrittenEvent ReadEvent(const ISerializer& node) {
    WrittenEvent written;
    written.event.name = QString::fromStdString(node.GetText("event", ""));
    written.start = node.GetText("start", "");
    written.end = node.GetText("end", "");
    written.event.start = ReadDay(written.start);
    written.event.end = ReadDay(written.end);
    return written;
  }

  // As album proposals read it.
  static QDate ReadDay(const std::string& text) {
    return QDateTime::fromString(QString::fromStdString(text), QStringLiteral("dd.MM")).date();
  }

  boost::intrusive_ptr<const ISerializer> locales_;
};

bool HasDayForm(const std::string& text) {
  const auto isDigit = [&text](std::size_t i) { return text[i] >= '0' && text[i] <= '9'; };
  return text.size() == 5 && isDigit(0) && isDigit(1) && text[2] == '.' && isDigit(3) && isDigit(4);
}

std::optional<std::string> FindDayFault(const std::string& text, const QDate& day) {
  if (text.empty()) {
    return " is missing";
  }
  if (text == "29.02") {
    return " is 29.02, which not every year has";
  }
  if (!HasDayForm(text)) {
    return ", \"" + text + "\", is not in the form dd.MM";
  }
  if (!day.isValid()) {
    return ", \"" + text + "\", is not a day of the year";
  }
  return std::nullopt;
}

std::string Quoted(const QString& name) {
  return name.isEmpty() ? "without a name" : "\"" + name.toStdString() + "\"";
}

// One day of the event, from 0: the first of January.
std::vector<int> DaysOf(const CalendarEvent& event) {
  std::vector<int> days;
  if (!event.start.isValid() || !event.end.isValid()) {
    return days;
  }
  const int last = event.end.dayOfYear() - 1;
  int day = event.start.dayOfYear() - 1;
  days.push_back(day);
  while (day != last) {
    day = (day + 1) % kDaysInYear;
    days.push_back(day);
  }
  return days;
}

/// Collects the findings of one locale.
class LocaleCheck {
 public:
  LocaleCheck(std::string locale, std::vector<WrittenEvent> events, std::vector<CalendarFinding>& findings)
      : locale_(std::move(locale)), events_(std::move(events)), findings_(findings) {}

  void Run() {
    std::vector<CalendarEvent> plain;
    for (const WrittenEvent& written : events_) {
      plain.push_back(written.event);
    }
    const auto hiddenBehind = FindHidden(plain);
    for (std::size_t i = 0; i < events_.size(); ++i) {
      const int number = static_cast<int>(i) + 1;
      CheckName(number, events_[i].event.name);
      CheckDay(number, "start", events_[i].start, events_[i].event.start);
      CheckDay(number, "end", events_[i].end, events_[i].event.end);
      CheckHidden(number, hiddenBehind[i]);
    }
  }

 private:
  void Add(int number, const std::string& text) { findings_.push_back({locale_, number, text}); }

  const QString& NameOf(int number) const { return events_[static_cast<std::size_t>(number) - 1].event.name; }

  void CheckName(int number, const QString& name) {
    if (name.isEmpty()) {
      Add(number, "The event has no name, so its days count as days without an event.");
      return;
    }
    const auto [first, isNew] = firstOfName_.try_emplace(name, number);
    if (!isNew) {
      Add(number,
          "The name " + Quoted(name) + " is already that of event " + std::to_string(first->second) + ".");
    }
  }

  void CheckDay(int number, const std::string& which, const std::string& text, const QDate& day) {
    if (const auto fault = FindDayFault(text, day)) {
      Add(number, "The " + which + " of the event " + Quoted(NameOf(number)) + *fault + ".");
    }
  }

  void CheckHidden(int number, const std::vector<int>& behind) {
    if (behind.empty()) {
      return;
    }
    std::string text = "The event " + Quoted(NameOf(number)) + " is never found: its days belong to ";
    for (std::size_t i = 0; i < behind.size(); ++i) {
      text += i == 0 ? "" : i + 1 == behind.size() ? " and " : ", ";
      text += "event " + std::to_string(behind[i]) + " " + Quoted(NameOf(behind[i]));
    }
    Add(number, text + ", which the list has before it.");
  }

  const std::string locale_;
  const std::vector<WrittenEvent> events_;
  std::vector<CalendarFinding>& findings_;
  std::map<QString, int> firstOfName_;
};

bool IsInterfaceLanguage(const std::string& locale) {
  const auto& spoken = App::InterfaceLanguages();
  return std::find(spoken.begin(), spoken.end(), locale) != spoken.end();
}

// Of a list that nobody asks for: a slip in its name, or the list of a language still to come.
void CheckUnknownLocale(const Calendar& calendar, const std::string& locale,
                        std::vector<CalendarFinding>& findings) {
  const App::InterfaceLanguage nearest = App::FindInterfaceLanguage(locale);
  findings.push_back(
      {locale, 0,
       "No interface language has this name" +
           (nearest.match == App::LanguageMatch::None ? "." : "; did you mean " + nearest.locale + "?")});
  try {
    LocaleCheck(locale, calendar.Read(locale), findings).Run();
  } catch (const Core::JsonException&) {
    // Album proposals never read it, so the file serves all the same.
    findings.push_back({locale, 0, "This is not a list of events."});
  }
}

ioPath ShippedCalendar() {
  return App::GetPathToResources() / (ResourceName().toStdString() + ".json");
}

bool CanBeRead(const ioPath& file) {
  try {
    const Calendar calendar(file);
    return true;
  } catch (const Core::JsonException&) {
    return false;
  }
}

/// The calendar's resource; keeps the server's answer, of which the resource itself only tells whether
/// something serves.
class CalendarResource : public Tavolin::DownloadableResource {
 public:
  CalendarResource() { Init(ResourceName(), QStringLiteral("json"), QStringLiteral("holidayEvents")); }

  /// Empty while there is none.
  const std::optional<App::DownloadReply>& Answer() const { return answer_; }

 protected:
  void Response(const App::DownloadReply& reply) override {
    answer_ = reply;
    DownloadableResource::Response(reply);
  }

 private:
  std::optional<App::DownloadReply> answer_;
};

QByteArray ContentOf(const QString& fileName) {
  QFile file(fileName);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Empty: the answer is in place.
std::string FindUpdateFault(const std::optional<App::DownloadReply>& answer, bool serves,
                            const QByteArray& stored) {
  if (!answer) {
    return "No server is set.";
  }
  switch (answer->outcome) {
    case App::DownloadReply::Outcome::Fetched:
      return serves && stored == answer->body
                 ? ""
                 : "The server's answer is not a calendar, or it cannot be stored.";
    case App::DownloadReply::Outcome::NotModified:
      return serves ? "" : "The server says that nothing changed, but there is no copy.";
    case App::DownloadReply::Outcome::Failed:
      break;
  }
  return answer->error.isEmpty() ? "The server does not answer." : answer->error.toStdString();
}

}  // namespace

std::vector<CalendarEvent> ReadCalendar(const ioPath& file, const std::string& locale) {
  const Calendar calendar(file);
  std::vector<CalendarEvent> events;
  if (calendar.Has(locale)) {
    for (const WrittenEvent& written : calendar.Read(locale)) {
      events.push_back(written.event);
    }
  }
  return events;
}

std::vector<std::vector<int>> FindHidden(const std::vector<CalendarEvent>& events) {
  // The event that a day belongs to; 0: none so far.
  std::array<int, kDaysInYear> owner{};
  std::vector<std::vector<int>> hiddenBehind;
  for (std::size_t i = 0; i < events.size(); ++i) {
    std::set<int> others;
    bool hasOwnDay = false;
    for (const int day : DaysOf(events[i])) {
      int& owned = owner[static_cast<std::size_t>(day)];
      if (owned == 0) {
        owned = static_cast<int>(i) + 1;
        hasOwnDay = true;
      } else {
        others.insert(owned);
      }
    }
    hiddenBehind.emplace_back();
    if (!hasOwnDay) {
      hiddenBehind.back().assign(others.begin(), others.end());
    }
  }
  return hiddenBehind;
}

std::vector<CalendarFinding> CheckCalendar(const ioPath& file) {
  const Calendar calendar(file);
  std::vector<CalendarFinding> findings;
  for (const std::string& locale : App::InterfaceLanguages()) {
    if (!calendar.Has(locale)) {
      findings.push_back({locale, 0, "The file has no list of events for " + locale + "."});
      continue;
    }
    LocaleCheck(locale, calendar.Read(locale), findings).Run();
  }
  for (const std::string& locale : calendar.Locales()) {
    if (!IsInterfaceLanguage(locale)) {
      CheckUnknownLocale(calendar, locale, findings);
    }
  }
  return findings;
}

CalendarFile FindCurrentCalendar() {
  const CalendarResource resource;
  const ioPath stored(resource.GetFilePath());
  if (!stored.empty() && CanBeRead(stored)) {
    return {CalendarSource::Stored, stored};
  }
  return {CalendarSource::Shipped, ShippedCalendar()};
}

ioPath CurrentCalendar() {
  return FindCurrentCalendar().file;
}

CalendarUpdate UpdateCalendar(const std::atomic<bool>* cancel) {
  CalendarResource resource;
  const QByteArray before = ContentOf(resource.GetFilePath());
  WaitLoop loop;
  bool serves = false;
  resource.SetDownloadHandler([&](bool ok, const Tavolin::IDownloadableResourceInfo&) {
    serves = ok;
    loop.Finish();
  });
  resource.StartDownload(true);
  if (!loop.Wait(cancel)) {
    ThrowHostError("", "Asking for the calendar was interrupted.");
  }

  const QByteArray after = ContentOf(resource.GetFilePath());
  CalendarUpdate update;
  update.cause = FindUpdateFault(resource.Answer(), serves, after);
  update.ok = update.cause.empty();
  update.changed = update.ok && before != after;
  const ioPath current = CurrentCalendar();
  if (CanBeRead(current)) {
    update.file = current;
  }
  return update;
}

}  // namespace Zenvora::Lumidex::Host
