#include <support/Doubles.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

namespace Zenvora::Test {

std::string FakeSettings::GetString(const std::string& key, const std::string& defaultValue) const {
  const std::lock_guard<std::mutex> lock(mutex_);
  const auto found = values_.find(key);
  return found == values_.end() ? defaultValue : found->second;
}

void FakeSettings::SetString(const std::string& key, const std::string& value) {
  const std::lock_guard<std::mutex> lock(mutex_);
  values_[key] = value;
}

class ScriptedDownloads::Request : public App::IDownloads::Pending {
 public:
  explicit Request(ScriptedDownloads& owner) : owner_(owner) {}
  ~Request() override {
    auto& open = owner_.open_;
    open.erase(
        std::remove_if(open.begin(), open.end(), [this](const auto& entry) { return entry.first == this; }),
        open.end());
  }

 private:
  ScriptedDownloads& owner_;
};

std::unique_ptr<App::IDownloads::Pending> ScriptedDownloads::Fetch(const App::DownloadRequest& request,
                                                                   Done done) {
  requests.push_back(request);
  auto pending = std::make_unique<Request>(*this);
  if (answerAtOnce) {
    done(reply);
  } else {
    open_.emplace_back(pending.get(), std::move(done));
  }
  return pending;
}

bool ScriptedDownloads::Answer(const App::DownloadReply& given) {
  if (open_.empty()) {
    return false;
  }
  const Done done = std::move(open_.front().second);
  open_.erase(open_.begin());
  done(given);
  return true;
}

std::unique_ptr<App::IDownloads::Pending> ForbiddenDownloads::Fetch(const App::DownloadRequest& request,
                                                                    Done) {
  ADD_FAILURE() << "unexpected download of " << request.url.toString().toStdString();
  return std::make_unique<Pending>();
}

}  // namespace Zenvora::Test
