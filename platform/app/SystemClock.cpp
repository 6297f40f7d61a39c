#include <zenvora/app/RealServices.h>

#include <thread>

namespace Zenvora::App {

namespace {

class SystemClock : public IClock {
 public:
  QDateTime Now() const override { return QDateTime::currentDateTime(); }
  void SleepFor(std::chrono::milliseconds pause) const override { std::this_thread::sleep_for(pause); }
};

}  // namespace

std::shared_ptr<IClock> MakeSystemClock() {
  return std::make_shared<SystemClock>();
}

}  // namespace Zenvora::App
