#pragma once

namespace Zenvora::Lumidex::Cli {

/// What a system wants to be told before a program writes anything; undone with the object.
class ProcessSetup {
 public:
  ProcessSetup();
  ~ProcessSetup();
  ProcessSetup(const ProcessSetup&) = delete;
  ProcessSetup& operator=(const ProcessSetup&) = delete;

 private:
  unsigned int formerCodePage_ = 0;  ///< Windows only.
};

}  // namespace Zenvora::Lumidex::Cli
