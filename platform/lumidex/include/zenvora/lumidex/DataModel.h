#pragma once

#include <zenvora/core/ioPath.h>
#include <zenvora/lumidex/Export.h>
#include <zenvora/lumidex/ItemType.h>

#include <QDateTime>
#include <QString>

#include <cstdint>

namespace Zenvora::Lumidex {

/// The record of one library item: a photo, an album, a tag, a place or a person.
///
/// A plain value: copying is cheap (Qt's texts are shared), distinct objects may be used from any thread. It
/// knows nothing of the disk: path and size are what its owner last put there.
class ZENVORA_LUMIDEX_EXPORT DataModel {
 public:
  DataModel() = default;
  /// `name`: what people see; `id`: unique among the items of a catalogue.
  DataModel(const QString& name, const QString& id, ItemType type);

  const QString& GetId() const { return id_; }
  const QString& GetName() const { return name_; }
  ItemType GetType() const { return type_; }

  /// The item's file; empty for items without one.
  const ioPath& GetPath() const { return path_; }
  void SetPath(const ioPath& path) { path_ = path; }

  /// Size of the item's file in bytes; 0: none or unknown.
  std::uint64_t GetSize() const { return size_; }
  void SetSize(std::uint64_t bytes) { size_ = bytes; }

  /// Photos: when the picture was taken, local time of the camera. Albums: when the first day begins.
  /// Invalid: unknown.
  const QDateTime& GetDateTime() const { return dateTime_; }
  void SetDateTime(const QDateTime& dateTime) { dateTime_ = dateTime; }

  /// True when the item's file was missing the last time its owner looked.
  bool IsLost() const { return lost_; }
  void SetLost(bool lost) { lost_ = lost; }

 private:
  QString id_;
  QString name_;
  ItemType type_ = ItemType::Photo;
  ioPath path_;
  std::uint64_t size_ = 0;
  QDateTime dateTime_;
  bool lost_ = false;
};

}  // namespace Zenvora::Lumidex
