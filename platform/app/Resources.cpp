#include <zenvora/app/RealServices.h>

#include <QCoreApplication>

namespace Zenvora::App {

namespace {

class ProgramEnvironment : public IHostEnvironment {
 public:
  ioPath ResourceFolder() const override {
    const ioPath program(QCoreApplication::instance() ? QCoreApplication::applicationDirPath() : QString());
    const ioPath beside = program / "share" / "lumidex";
    if (beside.exists()) {
      return beside;
    }
    return program.parent_path() / "share" / "lumidex";
  }

  QWidget* MainWindow() const override { return nullptr; }
};

}  // namespace

std::shared_ptr<IHostEnvironment> MakeProgramEnvironment() { return std::make_shared<ProgramEnvironment>(); }

}  // namespace Zenvora::App
