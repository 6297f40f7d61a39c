#include <zenvora/app/Services.h>
#include <zenvora/qtutility/StandardDialogs.h>

#include <glog/logging.h>

#include <QApplication>

namespace Zenvora::Util {

namespace {

class FolderDialog : public App::IFolderDialog {
 public:
  QString Ask(const App::FolderQuestion& question) override {
    if (qobject_cast<QApplication*>(QCoreApplication::instance()) == nullptr) {
      LOG(WARNING) << "There is no window to ask for a folder: " << question.caption.toStdString();
      return QString();
    }
    return QFileDialog::getExistingDirectory(question.parent, question.caption, question.startFolder,
                                             QFileDialog::Options(QFlag(question.options)));
  }
};

}  // namespace

QString StandardDialogs::getExistingDirectory(QWidget* parent, const QString& caption,
                                              const QString& startFolder,
                                              QFlags<QFileDialog::Option> options) {
  auto service = App::Services::Current().Get<App::IFolderDialog>();
  if (service == nullptr) {
    service = MakeFolderDialog();
  }
  App::FolderQuestion question;
  question.parent = parent;
  question.caption = caption;
  question.startFolder = startFolder;
  question.options = static_cast<int>(options);
  return service->Ask(question);
}

std::shared_ptr<App::IFolderDialog> MakeFolderDialog() {
  return std::make_shared<FolderDialog>();
}

}  // namespace Zenvora::Util
