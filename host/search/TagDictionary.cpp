#include "TagSynonyms.h"

#include <LumidexUtil/Resource.h>
#include <host/base/HostError.h>
#include <host/base/LookAlikes.h>
#include <host/search/TagDictionary.h>

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>
#include <cstddef>

namespace Zenvora::Lumidex::Host {

namespace {

constexpr char kEnglish[] = "en_US";
constexpr char kRussian[] = "ru_RU";

/// As `TagSynonym` orders them.
constexpr std::array kLocales = {kEnglish, "de_DE", "es_ES", "fr_FR", "it_IT",
                                 "ja_JP",  "nl_NL", "pt_BR", kRussian};

QJsonObject ReadJson(const QString& path) {
  QFile file(path);
  const QJsonDocument document =
      file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()) : QJsonDocument();
  if (!document.isObject()) {
    ThrowHostError(path.toStdString(), "The dictionary " + path.toStdString() + " cannot be read.");
  }
  return document.object();
}

/// "de" of "de_DE".
std::string LanguageOf(const std::string& locale) {
  return locale.substr(0, locale.find_first_of("_-."));
}

bool HasForm(const QStringList& words, const QString& form) {
  return std::any_of(words.begin(), words.end(),
                     [&form](const QString& word) { return LookAlikeForm(word) == form; });
}

/// The words in the locale, else in its language; null: the dictionary does not speak it.
const QStringList* WordsIn(const std::map<std::string, QStringList>& words, const std::string& locale) {
  const auto exact = words.find(locale);
  if (exact != words.end()) {
    return &exact->second;
  }
  const auto near = std::find_if(words.begin(), words.end(), [&locale](const auto& entry) {
    return LanguageOf(entry.first) == LanguageOf(locale);
  });
  return near == words.end() ? nullptr : &near->second;
}

bool Share(const std::set<QString>& left, const std::set<QString>& right) {
  return std::any_of(left.begin(), left.end(),
                     [&right](const QString& form) { return right.count(form) > 0; });
}

}  // namespace

bool TagMeaning::Includes(const Tag& tag) const {
  return tag.type == TagType::Own ? words.count(LookAlikeForm(tag.name)) > 0 : tags.count(tag) > 0;
}

const TagDictionary& TagDictionary::Shipped() {
  static const TagDictionary dictionary;
  return dictionary;
}

TagDictionary::TagDictionary() {
  Read(TagType::System, Util::Resource::GetName(Util::Resource::SysTagTr));
  Read(TagType::Icon, Util::Resource::GetName(QStringLiteral("IconTag")));
  Read(TagType::Automatic, Util::Resource::GetName(Util::Resource::AutoTag));
  LoadSynonyms();
}

void TagDictionary::Read(TagType type, const QString& name) {
  const QJsonObject dictionary = ReadJson(name);
  for (auto member = dictionary.begin(); member != dictionary.end(); ++member) {
    Entry entry;
    entry.tag = {type, member.key()};
    entry.forms.insert(LookAlikeForm(member.key()));
    const QJsonObject texts = member.value().toObject();
    for (auto text = texts.begin(); text != texts.end(); ++text) {
      entry.Take(text.key().toStdString(), text.value().toString());
    }
    entries_.push_back(std::move(entry));
  }
}

void TagDictionary::LoadSynonyms() {
  for (const TagSynonym& synonym : TagSynonyms()) {
    Entry entry;
    for (std::size_t i = 0; i < kLocales.size(); ++i) {
      entry.Take(kLocales[i], QString::fromUtf8(synonym[i]));
    }
    entries_.push_back(std::move(entry));
  }
}

void TagDictionary::Entry::Take(const std::string& locale, const QString& list) {
  const QStringList taken = list.split(QLatin1Char(','));
  for (const QString& word : taken) {
    forms.insert(LookAlikeForm(word));
    if (locale == kEnglish || locale == kRussian) {
      bridges.insert(LookAlikeForm(word));
    }
  }
  words.emplace(locale, taken);
}

const TagDictionary::Entry* TagDictionary::Find(const Tag& tag) const {
  const auto entry = std::find_if(entries_.begin(), entries_.end(),
                                  [&tag](const Entry& candidate) { return candidate.tag == tag; });
  return entry == entries_.end() ? nullptr : &*entry;
}

QString TagDictionary::NameOf(const Tag& tag, const std::string& locale) const {
  const Entry* const entry = tag.type == TagType::Own ? nullptr : Find(tag);
  if (entry == nullptr) {
    return tag.name;
  }
  const QStringList* words = WordsIn(entry->words, locale);
  words = words == nullptr ? WordsIn(entry->words, kEnglish) : words;
  return words == nullptr ? tag.name : words->first();
}

std::optional<Tag> TagDictionary::Named(const QString& word, const std::string& locale) const {
  const QString form = LookAlikeForm(word);
  const auto find = [this](const auto& fits) -> std::optional<Tag> {
    for (const Entry& entry : entries_) {
      if (entry.tag && entry.tag->type != TagType::Automatic && fits(entry)) {
        return entry.tag;
      }
    }
    return std::nullopt;
  };
  // The person's own language first: a word can mean something else in another.
  for (const std::string& spoken : {locale, std::string(kEnglish)}) {
    const std::optional<Tag> tag = find([&](const Entry& entry) {
      const QStringList* const words = WordsIn(entry.words, spoken);
      return words != nullptr && HasForm(*words, form);
    });
    if (tag) {
      return tag;
    }
  }
  return find([&form](const Entry& entry) { return LookAlikeForm(entry.tag->name) == form; });
}

TagMeaning TagDictionary::MeaningOf(const QString& word) const {
  TagMeaning meaning;
  const auto take = [&meaning](const Entry& entry) {
    if (entry.tag) {
      meaning.tags.insert(*entry.tag);
    }
    meaning.words.insert(entry.forms.begin(), entry.forms.end());
  };
  const QString form = LookAlikeForm(word);
  meaning.words.insert(form);
  std::set<QString> bridges;
  for (const Entry& entry : entries_) {
    if (entry.forms.count(form) > 0) {
      take(entry);
      bridges.insert(entry.bridges.begin(), entry.bridges.end());
    }
  }
  // One step only: from word to word one would get anywhere.
  for (const Entry& entry : entries_) {
    if (Share(entry.bridges, bridges)) {
      take(entry);
    }
  }
  return meaning;
}

}  // namespace Zenvora::Lumidex::Host
