#pragma once

#include <host/catalogue/Tags.h>
#include <host/journal/Journal.h>
#include <host/journal/StepKind.h>

#include <zenvora/core/ioPath.h>

#include <QString>

#include <atomic>
#include <cstddef>
#include <optional>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// Which tags photos are to get and to lose.
struct TagWishes {
  std::vector<ioPath> photos;  ///< By the paths that the catalogue has them under.
  std::vector<Tag> add;
  std::vector<Tag> remove;  ///< None that is to be added.
};

/// Changes of tags, which are in the catalogue only, as steps of the journal.
class TagSteps final : public StepKind {
 public:
  /// `journal` must outlive it.
  explicit TagSteps(Journal& journal) : journal_(journal), database_(journal.Database()) {}

  /// Gives photos tags and takes some from them, as one step: all or, when it throws, none. The files are not
  /// touched; what is in the catalogue under none of the paths is skipped. `files` of the result: photos
  /// that have other tags now; 0: there is no step.
  UndoResult Run(const QString& name, const TagWishes& wishes);

  static constexpr KindFacts kFacts{StepType::Tags};
  const KindFacts& Facts() const override { return kFacts; }
  /// Never needed: a step is one transaction.
  void Recover(StepRow& /*step*/) override {}
  UndoResult Reverse(StepRow& step, bool redo, const std::atomic<bool>& cancelled,
                     const UndoProgress& progress) override;

 private:
  std::size_t Apply(qlonglong step, const TagWishes& wishes) const;
  std::size_t ReverseRows(qlonglong step, bool redo) const;
  std::optional<qlonglong> FindNumber(const Tag& tag) const;
  qlonglong FindOrMake(const Tag& tag) const;
  bool Set(qlonglong photo, qlonglong tag, bool wanted) const;

  Journal& journal_;
  const CatalogueDatabase& database_;
};

}  // namespace Zenvora::Lumidex::Host
