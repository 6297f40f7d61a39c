#include <zenvora/app/RealServices.h>

namespace Zenvora::App {

namespace {

class SystemClock : public IClock {
 public:
  QDateTime Now() const override { return QDateTime::currentDateTime(); }
};

}  // namespace

std::shared_ptr<IClock> MakeSystemClock() {
  return std::make_shared<SystemClock>();
}

}  // namespace Zenvora::App
