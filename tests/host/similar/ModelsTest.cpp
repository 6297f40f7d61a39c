#include <host/base/HostError.h>
#include <host/similar/Models.h>

#include <gtest/gtest.h>

namespace Zenvora::Lumidex::Host {
namespace {

TEST(OpenModel, SaysWhatStandsAgainstAModel) {
  const std::string cause = ModelRuntime().empty() ? "this build runs no models" : "there is no such file";
  try {
    OpenModel(ioPath("/nowhere/tiny.onnx"));
    ADD_FAILURE();
  } catch (const HostError& error) {
    EXPECT_EQ(error.what(), "Cannot use the model /nowhere/tiny.onnx: " + cause);
  }
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
