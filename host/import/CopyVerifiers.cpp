#include "CopyVerifiers.h"

#include <exception>
#include <utility>

namespace Zenvora::Lumidex::Host {

void CopyVerifiers::Submit(Task task) {
  bytes_ += task.copied.size;
  threads_.Submit(std::move(task));
}

std::vector<CopyVerifiers::Result> CopyVerifiers::Collect(bool wait) {
  std::vector<Result> results = threads_.Collect(wait);
  for (const Result& result : results) {
    bytes_ -= result.task.copied.size;
  }
  return results;
}

CopyVerifiers::Result CopyVerifiers::Verify(Task& task) {
  Result result;
  result.task = std::move(task);
  try {
    result.verified = VerifyCopy(result.task.copy, result.task.copied);
    if (result.verified.status == CopyOutcome::Status::Copied) {
      result.state = QueryFile(result.task.copy);
      result.isRead = result.task.isPhoto && ReadPhoto(result.task.copy, result.record, result.finding);
    }
  } catch (const std::exception& error) {
    result.verified.status = CopyOutcome::Status::NotWritten;
    result.verified.cause = error.what();
  }
  return result;
}

}  // namespace Zenvora::Lumidex::Host
