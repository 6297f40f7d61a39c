#include "SystemPlaces.h"

#include <zenvora/app/RealServices.h>

namespace Zenvora::App {

namespace {

class ProgramEnvironment : public IHostEnvironment {
 public:
  ioPath ResourceFolder() const override {
    const ioPath program = ProgramFile().parent_path();
    const ioPath beside = program / "share" / "lumidex";
    return beside.exists() ? beside : program.parent_path() / "share" / "lumidex";
  }

  QWidget* MainWindow() const override { return nullptr; }
};

}  // namespace

std::shared_ptr<IHostEnvironment> MakeProgramEnvironment() {
  return std::make_shared<ProgramEnvironment>();
}

}  // namespace Zenvora::App
