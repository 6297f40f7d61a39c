#pragma once

#include <host/catalogue/Tags.h>

#include <QString>
#include <QStringList>

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// What a word means among tags, in whatever language it was written.
struct TagMeaning {
  std::set<Tag> tags;       ///< Of the dictionaries.
  std::set<QString> words;  ///< Of own tags, in look-alike form.

  bool Includes(const Tag& tag) const;
};

/// The words of the dictionaries that the library carries (docs/formats/dictionaries.md), and words for
/// further things that people tag.
///
/// Words are compared by `LookAlikeForm`. Thread-safety: nothing changes once it is made; any thread.
class TagDictionary {
 public:
  /// The one of this process, read on first use. Throws `HostError` when the library carries none.
  static const TagDictionary& Shipped();

  /// What a tag is called in a language ("de_DE"; the language counts more than the country), else in
  /// English; of an own tag, and of a key that no dictionary has, its name.
  QString NameOf(const Tag& tag, const std::string& locale) const;

  /// The built-in or icon tag that a person means who writes this word in that language, or in English, or
  /// the key. None: it is a word of their own. Words of automatic tags are own ones, too: nobody recognised
  /// anything.
  std::optional<Tag> Named(const QString& word, const std::string& locale) const;

  /// All that the word may mean in any language: the tags that it names, those that share an English or a
  /// Russian word with one of these, and the words of all of them. A word of another thing that people tag
  /// ("Strand") means own tags with the words for it in the other languages ("Beach").
  TagMeaning MeaningOf(const QString& word) const;

 private:
  struct Entry {
    std::optional<Tag> tag;                    ///< None: words that mean the same, and no tag.
    std::map<std::string, QStringList> words;  ///< By locale; the first is the name.
    std::set<QString> forms;                   ///< Of all words and the key.
    std::set<QString> bridges;                 ///< Of the English and Russian words.

    /// The words of a language, separated by commas.
    void Take(const std::string& locale, const QString& list);
  };

  TagDictionary();
  void Read(TagType type, const QString& name);
  void LoadSynonyms();
  const Entry* Find(const Tag& tag) const;

  std::vector<Entry> entries_;
};

}  // namespace Zenvora::Lumidex::Host
