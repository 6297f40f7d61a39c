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

ScriptedAlerts::~ScriptedAlerts() {
  EXPECT_GE(shown.size(), answers_.size()) << "alerts that were expected were not shown";
}

App::AlertButton ScriptedAlerts::Show(const App::Alert& alert) {
  shown.push_back(alert);
  if (onShow) {
    onShow();
  }
  if (shown.size() > answers_.size()) {
    ADD_FAILURE() << "unexpected alert: " << alert.text.toStdString();
    return App::UnansweredButton(alert.buttons);
  }
  const App::AlertButton answer = answers_[shown.size() - 1];
  if (answer != App::AlertButton::Ok || alert.buttons) {
    EXPECT_TRUE(alert.buttons.testFlag(answer))
        << "the alert has no such button: " << static_cast<int>(answer);
  }
  return answer;
}

ScriptedFolderDialog::~ScriptedFolderDialog() {
  EXPECT_GE(asked.size(), answers_.size()) << "folder dialogs that were expected were not shown";
}

QString ScriptedFolderDialog::Ask(const App::FolderQuestion& question) {
  asked.push_back(question);
  if (asked.size() > answers_.size()) {
    ADD_FAILURE() << "unexpected folder dialog: " << question.caption.toStdString();
    return QString();
  }
  return answers_[asked.size() - 1];
}

std::vector<ioPath> FakeRemovableStorage::Removable(const std::vector<ioPath>& folders) const {
  asked.push_back(folders);
  std::vector<ioPath> removable;
  for (const ioPath& folder : folders) {
    for (const ioPath& root : roots) {
      // By elements: "/media/stick2" is not in "/media/stick".
      const auto [rest, ignored] = std::mismatch(root.native().begin(), root.native().end(),
                                                 folder.native().begin(), folder.native().end());
      if (rest == root.native().end()) {
        removable.push_back(folder);
        break;
      }
    }
  }
  return removable;
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
