#include "StagingFile.h"

#include "EditRefusal.h"

#include <zenvora/core/ErrorText.h>
#include <zenvora/core/NewFile.h>

#include <system_error>

namespace Zenvora::Strandel {

void WriteStagingFile(const ioPath& staging, const ioPath& original, std::int64_t modifiedNs,
                      const std::string& bytes) {
  const auto check = [&staging](const std::error_code& error) {
    if (error) {
      throw EditRefusal("cannot write " + staging.utf8string() + ": " + ErrorText(error));
    }
  };
  NewFile file;
  check(file.Create(staging));
  file.CopyRightsOf(original);
  check(file.Write(bytes.data(), bytes.size()));
  check(file.SetModified(modifiedNs));
  check(file.Close(true));
  file.Release();
}

}  // namespace Zenvora::Strandel
