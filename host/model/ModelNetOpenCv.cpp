#include "ModelFault.h"
#include "ModelNet.h"

#include <host/model/OnnxModel.h>

#include <algorithm>
#include <exception>
#include <mutex>
#include <new>
#include <opencv2/core/utils/logger.hpp>
#include <opencv2/dnn.hpp>
#include <sstream>
#include <string>
#include <utility>

namespace Zenvora::Lumidex::Host {

namespace {

/// The library has one state for the whole process.
void PrepareLibrary() {
  static std::once_flag once;
  std::call_once(once, [] {
    // It would print what is thrown, too.
    cv::redirectError([](int, const char*, const char*, const char*, int, void*) { return 0; });
    cv::utils::logging::setLogLevel(cv::utils::logging::LOG_LEVEL_SILENT);
    // Photos are looked at side by side; each of them on one thread.
    cv::setNumThreads(1);
  });
}

/// The library's words in one line, without the places in its sources. Of an error within an error the inner
/// one, which says more.
std::string CauseOf(const cv::Exception& error) {
  std::string text = error.err;
  const std::size_t inner = text.rfind("error: (");
  const std::size_t code = inner == std::string::npos ? inner : text.find(") ", inner);
  if (code != std::string::npos) {
    text.erase(0, code + 2);
  }
  text.erase(std::min(text.find(" in function '"), text.size()));
  // Longer texts come in lines that begin with a mark.
  std::string cause;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    const std::size_t words = line.find_first_not_of("> ");
    if (words != std::string::npos) {
      cause += (cause.empty() ? "" : " ") + line.substr(words);
    }
  }
  while (!cause.empty() && cause.back() == ' ') {
    cause.pop_back();
  }
  return WordsOf(cause);
}

/// Runs `work` and turns what the library throws into our own.
template <class Work>
auto Guarded(const char* failure, const Work& work) {
  try {
    return work();
  } catch (const cv::Exception& error) {
    if (error.code == cv::Error::StsNoMem) {
      throw std::bad_alloc();
    }
    throw ModelFault(std::string(failure) + ": " + CauseOf(error));
  } catch (const ModelFault&) {
    throw;
  } catch (const std::bad_alloc&) {
    throw;
  } catch (const std::exception& error) {
    throw ModelFault(std::string(failure) + ": " + WordsOf(error.what()));
  }
}

class OpenCvNet : public ModelNet {
 public:
  OpenCvNet(std::string_view model, const ModelHead& head)
      : head_(head), net_(Guarded("OpenCV cannot read the model", [model] {
          return cv::dnn::readNetFromONNX(model.data(), model.size());
        })) {
    // Whatever the surroundings say: the same numbers on every run.
    net_.setPreferableBackend(cv::dnn::DNN_BACKEND_OPENCV);
    net_.setPreferableTarget(cv::dnn::DNN_TARGET_CPU);
  }

  std::vector<float> Run(std::vector<float> pixels) override {
    return Guarded("OpenCV cannot run the model", [&] {
      const std::vector<int> shape{1, head_.channels, head_.height, head_.width};
      const cv::Mat input(shape, CV_32F, pixels.data());
      net_.setInput(input);
      const cv::Mat output = net_.forward(head_.output);
      if (output.type() != CV_32F || !output.isContinuous()) {
        throw ModelFault("the model's output has no floats of 32 bits");
      }
      const auto* const first = output.ptr<float>();
      return std::vector<float>(first, first + output.total());
    });
  }

 private:
  const ModelHead head_;
  cv::dnn::Net net_;
};

}  // namespace

std::string OnnxRuntime() {
  return "OpenCV " + cv::getVersionString();
}

std::unique_ptr<ModelNet> MakeModelNet(std::string_view model, const ModelHead& head) {
  PrepareLibrary();
  return std::make_unique<OpenCvNet>(model, head);
}

}  // namespace Zenvora::Lumidex::Host
