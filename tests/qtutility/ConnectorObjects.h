#pragma once

#include <QObject>
#include <QString>

#include <thread>
#include <vector>

namespace Zenvora::Util {

class Emitter : public QObject {
  Q_OBJECT

 Q_SIGNALS:
  void asked(int question, QString& answer);
  void told(int number);
};

class Receiver : public QObject {
  Q_OBJECT

 public:
  explicit Receiver(const QString& name = QStringLiteral("a")) : name_(name) {}
  std::vector<int> heard;
  std::thread::id thread;

 public Q_SLOTS:
  void Answer(int question, QString& answer) {
    heard.push_back(question);
    answer += name_;
  }
  void Hear(int number) {
    heard.push_back(number);
    thread = std::this_thread::get_id();
  }

 Q_SIGNALS:
  void passedOn(int number);

 private:
  const QString name_;
};

}  // namespace Zenvora::Util
