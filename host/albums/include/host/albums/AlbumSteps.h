#pragma once

#include <host/catalogue/AlbumRows.h>
#include <host/catalogue/Catalogue.h>
#include <host/journal/Journal.h>
#include <host/journal/StepKind.h>

#include <zenvora/lumidex/Album.h>

#include <QString>

#include <atomic>
#include <cstddef>
#include <vector>

namespace Zenvora::Lumidex::Host {

/// Accepted albums, which are in the catalogue only, as steps of the journal.
class AlbumSteps final : public StepKind {
 public:
  /// `journal` must outlive it.
  explicit AlbumSteps(Journal& journal) : journal_(journal), database_(journal.Database()) {}

  /// Accepts albums as one step: all or, when it throws, none (`Catalogue::AcceptAlbum`). Without a change
  /// there is no step. Undo takes out what they gained, with the albums that were made; redo brings it in
  /// again: ids, order and attributes are as before.
  std::vector<AcceptResult> Run(const QString& name, const std::vector<Album>& proposals);

  static constexpr KindFacts kFacts{StepType::Albums};
  const KindFacts& Facts() const override { return kFacts; }
  /// Never needed: a step is one transaction.
  void Recover(StepRow& /*step*/) override {}
  UndoResult Reverse(StepRow& step, bool redo, const std::atomic<bool>& cancelled,
                     const UndoProgress& progress) override;

 private:
  struct Change;

  std::vector<AcceptResult> Accept(qlonglong step, const std::vector<Album>& proposals) const;
  std::size_t ReverseRows(qlonglong step, bool redo, std::vector<FileFinding>& findings) const;
  std::vector<Change> ReadChanges(qlonglong step) const;
  void Note(qlonglong step, const Album& proposal, const AcceptedAlbum& accepted) const;
  std::size_t TakeOut(const Change& change, std::vector<FileFinding>& findings) const;
  std::size_t BringIn(const Change& change, std::vector<FileFinding>& findings) const;
  qlonglong Make(const Change& change) const;

  Journal& journal_;
  const CatalogueDatabase& database_;
};

}  // namespace Zenvora::Lumidex::Host
