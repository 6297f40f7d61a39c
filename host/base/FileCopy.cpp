#include "SystemFiles.h"

#include <host/base/FileCopy.h>

#include <zenvora/core/ErrorText.h>
#include <zenvora/core/FileReader.h>

#include <algorithm>
#include <system_error>

namespace Zenvora::Lumidex::Host {

namespace {

using Status = CopyOutcome::Status;

/// Once: a file that is still being written is finished as a rule by then, one that never rests is not waited
/// for.
constexpr int kReadings = 2;
/// Shorter runs of zeros are cheaper written than left out.
constexpr std::size_t kHole = std::size_t{64} * 1024;

CopyOutcome Failed(Status status, const std::string& cause) {
  CopyOutcome outcome;
  outcome.status = status;
  outcome.cause = cause;
  return outcome;
}

/// Whether what stopped one file will stop all.
Status StatusOfWriting(const std::error_code& error) {
  for (const std::errc hopeless :
       {std::errc::no_space_on_device, std::errc::read_only_file_system, std::errc::io_error,
        std::errc::no_such_device, std::errc::no_such_file_or_directory}) {
    if (error == hopeless) {
      return Status::NoRoom;
    }
  }
#ifdef EDQUOT
  if (error.category() == std::generic_category() && error.value() == EDQUOT) {
    return Status::NoRoom;
  }
#endif
  return Status::NotWritten;
}

CopyOutcome NotWritten(const std::error_code& error) {
  return Failed(StatusOfWriting(error), "the copy cannot be written: " + ErrorText(error));
}

bool IsSameState(const FileState& left, const FileState& right) {
  return left.kind == right.kind && left.identity == right.identity && left.size == right.size &&
         left.modifiedNs == right.modifiedNs;
}

bool IsAllZero(std::string_view bytes) {
  // Compared with itself one byte on: as quick as memory.
  return bytes.front() == '\0' && std::equal(bytes.begin() + 1, bytes.end(), bytes.begin());
}

std::error_code WriteSparsely(std::string_view piece, NewFile& copy) {
  while (!piece.empty()) {
    const std::string_view part = piece.substr(0, kHole);
    const bool hole = part.size() == kHole && IsAllZero(part);
    if (const std::error_code error = hole ? copy.Skip(part.size()) : copy.Write(part.data(), part.size())) {
      return error;
    }
    piece.remove_prefix(part.size());
  }
  return {};
}

/// A piece without a zero at either end is written in one go.
std::error_code WritePiece(std::string_view piece, NewFile& copy) {
  for (std::size_t at = 0; at < piece.size(); at += kHole) {
    if (piece[at] == '\0' && IsAllZero(piece.substr(at, kHole))) {
      return WriteSparsely(piece, copy);
    }
  }
  return copy.Write(piece.data(), piece.size());
}

CopyOutcome CopyContent(FileReader& reader, std::uint64_t size, NewFile& copy, const KeepGoing& keepGoing) {
  CopyOutcome outcome;
  ContentHash hash;
  for (;;) {
    std::string_view piece;
    if (const std::error_code error = reader.Next(piece)) {
      return Failed(Status::Unreadable, ErrorText(error));
    }
    if (piece.empty()) {
      break;
    }
    hash.Add(piece);
    if (const std::error_code error = WritePiece(piece, copy)) {
      return NotWritten(error);
    }
    outcome.size += piece.size();
    // A file that grows as fast as it is read would have no end.
    if (outcome.size > size) {
      return outcome;
    }
    if (keepGoing && !keepGoing(outcome.size)) {
      return Failed(Status::GivenUp, "given up");
    }
  }
  outcome.sha256 = hash.Finish().toHex().toStdString();
  return outcome;
}

CopyOutcome CopyOnce(const ioPath& source, const ioPath& copy, FileState& expected,
                     const KeepGoing& keepGoing) {
  FileReader reader;
  if (const std::error_code error = reader.Open(source)) {
    return Failed(Status::Unreadable,
                  error == std::errc::not_supported ? "it is not a regular file any more" : ErrorText(error));
  }
  const FileState before = reader.State();
  if (!IsSameState(before, expected)) {
    expected = before;
    return Failed(Status::Changed, "it was changed while it was read");
  }
  NewFile written;
  if (const std::error_code error = written.Create(copy)) {
    return Failed(Status::NoRoom, "no file can be created in the target folder: " + ErrorText(error));
  }
  CopyOutcome outcome = CopyContent(reader, before.size, written, keepGoing);
  if (outcome.status != Status::Copied) {
    return outcome;
  }
  expected = reader.State();
  // Also by its name: whoever replaced it meant the new one.
  if (!IsSameState(before, expected) || !IsSameState(before, QueryFile(source)) ||
      outcome.size != before.size) {
    expected = QueryFile(source);
    return Failed(Status::Changed, "it was changed while it was copied");
  }
  written.CopyRightsOf(source);
  std::error_code error = written.SetModified(before.modifiedNs);
  if (!error) {
    error = written.Close(false);
  }
  if (error) {
    return NotWritten(error);
  }
  CopyTimeMade(source, copy);
  outcome.modifiedNs = before.modifiedNs;
  written.Release();
  return outcome;
}

}  // namespace

CopyOutcome CopyToNew(const ioPath& source, const FileState& expected, const ioPath& copy,
                      const KeepGoing& keepGoing) {
  FileState state = expected;
  CopyOutcome outcome;
  for (int reading = 0; reading < kReadings; ++reading) {
    outcome = CopyOnce(source, copy, state, keepGoing);
    if (outcome.status != Status::Changed) {
      break;
    }
  }
  return outcome;
}

CopyOutcome VerifyCopy(const ioPath& copy, const CopyOutcome& copied) {
  if (const std::error_code error = SyncFile(copy)) {
    return NotWritten(error);
  }
  FileReader reader;
  if (const std::error_code error = reader.Open(copy, FileReader::From::Device)) {
    return Failed(Status::Different, "the copy cannot be read back: " + ErrorText(error));
  }
  ContentHash hash;
  if (const std::error_code error = hash.Add(reader)) {
    return Failed(Status::Different, "the copy cannot be read back: " + ErrorText(error));
  }
  if (hash.Finish().toHex().toStdString() != copied.sha256) {
    return Failed(Status::Different, "the copy differs from the original");
  }
  return copied;
}

std::string SketchOf(const ioPath& file) {
  constexpr std::size_t kPlace = std::size_t{16} * 1024;
  FileReader reader;
  if (reader.Open(file)) {
    return {};
  }
  const std::uint64_t size = reader.State().size;
  const std::uint64_t last = size > kPlace ? size - kPlace : 0;
  ContentHash hash;
  for (const std::uint64_t place : {std::uint64_t{0}, last / 2, last}) {
    std::string_view bytes;
    if (reader.At(place, kPlace, bytes)) {
      return {};
    }
    hash.Add(bytes);
  }
  return std::to_string(size) + '-' + hash.Finish().toHex().toStdString();
}

bool SameContent(const ioPath& left, const ioPath& right, const KeepGoing& keepGoing) {
  FileReader one;
  FileReader other;
  if (one.Open(left) || other.Open(right)) {
    return false;
  }
  std::uint64_t done = 0;
  for (;;) {
    std::string_view first;
    std::string_view second;
    // Files of one kind come in equal pieces; what does not is worth another copy.
    if (one.Next(first) || other.Next(second) || first != second) {
      return false;
    }
    if (first.empty()) {
      return true;
    }
    done += first.size();
    if (keepGoing && !keepGoing(done)) {
      return false;
    }
  }
}

}  // namespace Zenvora::Lumidex::Host
