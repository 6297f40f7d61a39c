#pragma once

#include <QString>

#include <vector>

namespace Zenvora::Lumidex {

/// A text of which only the head shows, and what of its rest has an effect on the head. Qt lays out a whole
/// text before it gives the first line; this finds an end to which a text can be cut down so that nothing
/// before it changes:
///
/// - Shaping works on items of one script and direction with 4096 units at most: those that begin within the
///   head are left complete.
/// - Characters at the beginning that belong to no script take that of the first one that has one, wherever
///   it stands: it is put behind the cut (`Witness`).
/// - Directions: a text from left to right without anything else before the cut has none that the rest could
///   change. In any other the cut follows a letter that lies in no isolate, by which all before is settled.
///   Brackets among both directions can be settled by the very last character: such a text is not cut.
/// - Thai is broken into words as a whole: not cut either.
/// - Grapheme clusters, syllables and line breaks reach to the next letter at the most.
///
/// Not for several threads: it keeps what it found.
class LongText {
 public:
  explicit LongText(const QString& text);

  const QString& Text() const { return text_; }

  /// Where the text may be cut so that the text from `from` on has its first `sure` units right; the text's
  /// size when it may not. Looks at the text up to there, rarely further.
  int SafeEnd(int from, int sure);
  /// What is to stand behind that cut.
  QString Witness(int from, int end);

  /// Whether U+009C separates variants of the text, of which eliding chooses one.
  bool HasVariants() const { return hasVariants_; }
  /// The marks of direction from `position` on, which eliding keeps.
  QString ControlsBehind(int position) const;

 private:
  /// The next place that is asked for behind another, kept since finding it may take the whole text.
  struct Next {
    int from = -1;
    int found = -1;
  };

  int NextStrong(int from);
  int NextScripted(int from);

  const QString text_;
  bool hasVariants_ = false;
  std::vector<int> controls_;
  Next strong_;
  Next scripted_;
};

}  // namespace Zenvora::Lumidex
