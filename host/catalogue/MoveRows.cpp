#include <host/catalogue/MoveRows.h>

#include <QDataStream>

namespace Zenvora::Lumidex::Host {

QByteArray PackMoves(const std::vector<FileMove>& moves) {
  QByteArray bytes;
  QDataStream stream(&bytes, QIODevice::WriteOnly);
  stream.setVersion(QDataStream::Qt_5_15);
  stream << static_cast<quint32>(moves.size());
  for (const FileMove& move : moves) {
    for (const ioPath* const path : {&move.from, &move.to}) {
      const std::string name = path->utf8string();
      stream.writeBytes(name.data(), static_cast<uint>(name.size()));
    }
    stream << quint64{move.device} << quint64{move.inode} << quint64{move.size} << qint64{move.modifiedNs};
  }
  return bytes;
}

std::vector<FileMove> UnpackMoves(const QByteArray& bytes) {
  QDataStream stream(bytes);
  stream.setVersion(QDataStream::Qt_5_15);
  quint32 count = 0;
  stream >> count;
  std::vector<FileMove> moves;
  for (quint32 i = 0; i < count && stream.status() == QDataStream::Ok; ++i) {
    QByteArray from;
    QByteArray to;
    quint64 device = 0;
    quint64 inode = 0;
    quint64 size = 0;
    qint64 modified = 0;
    stream >> from >> to >> device >> inode >> size >> modified;
    if (stream.status() != QDataStream::Ok) {
      break;
    }
    moves.push_back({from.toStdString(), to.toStdString(), device, inode, size, modified});
  }
  return moves;
}

}  // namespace Zenvora::Lumidex::Host
