#include "Pictures.h"

#include <host/base/HostError.h>
#include <host/model/OnnxModel.h>
#include <host/similar/SimilarUpdate.h>
#include <support/Obstacles.h>
#include <support/StrangeName.h>
#include <support/TempTree.h>
#include <support/TinyModel.h>

#include <zenvora/core/FileState.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <QImage>

#include <algorithm>
#include <atomic>
#include <filesystem>
#include <limits>
#include <string>
#include <utility>
#include <vector>

namespace Zenvora::Lumidex::Host {
namespace {

using Test::Closed;
using Test::IsSuperuser;
using Test::Pipe;
using Test::TempTree;
using Test::TinyModel;
using testing::FloatNear;
using testing::IsEmpty;
using testing::Pointwise;
using testing::SizeIs;
using TestPictures::Encoded;
using TestPictures::Scene;

class ModelAnalyserTest : public testing::Test {
 protected:
  ioPath Model(const TinyModel& model = {}, const std::string& name = "tiny.onnx") const {
    return tree_.Write(name, model.Bytes());
  }
  /// Why the file cannot be used; empty: it can.
  static std::string Refusal(const ioPath& file) {
    try {
      OpenOnnxModel(file);
      return {};
    } catch (const HostError& error) {
      const std::string text = error.what();
      const std::string start = "Cannot use the model " + file.utf8string() + ": ";
      EXPECT_EQ(text.substr(0, start.size()), start);
      EXPECT_EQ(text.find('\n'), std::string::npos) << text;
      return text.substr(std::min(start.size(), text.size()));
    }
  }
  std::string RefusalOf(const TinyModel& model) const { return Refusal(Model(model)); }

  const TempTree tree_;
};

/// Another number in every pixel and channel.
QImage Colourful() {
  QImage picture(16, 16, QImage::Format_RGB32);
  for (int y = 0; y < 16; ++y) {
    for (int x = 0; x < 16; ++x) {
      picture.setPixel(x, y, qRgb((x * 37 + y * 11) % 256, (x * 5 + y * 71) % 256, (x * y * 13) % 256));
    }
  }
  return picture;
}

/// What a model is fed with for a picture of its size, by the usual means.
std::vector<double> UsualInput(const QImage& picture) {
  const double mean[] = {0.485, 0.456, 0.406};
  const double deviation[] = {0.229, 0.224, 0.225};
  std::vector<double> input;
  for (int channel = 0; channel < 3; ++channel) {
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) {
        const QColor colour(picture.pixel(x, y));
        const double sample[] = {colour.redF(), colour.greenF(), colour.blueF()};
        input.push_back((sample[channel] - mean[channel]) / deviation[channel]);
      }
    }
  }
  return input;
}

TEST_F(ModelAnalyserTest, GivesTheVectorThatTheModelWorksOut) {
  const TinyModel model;
  const auto analyser = OpenOnnxModel(Model(model));
  EXPECT_EQ(analyser->Size(), 64);
  EXPECT_EQ(analyser->LongerSide(), 32);
  const std::vector<float> vector = analyser->Describe(Colourful());
  EXPECT_THAT(vector, Pointwise(FloatNear(1e-4F), model.VectorOf(UsualInput(Colourful()))));
  EXPECT_EQ(analyser->Describe(Colourful()), vector);
  EXPECT_THAT(analyser->Describe(QImage()), IsEmpty());
}

TEST_F(ModelAnalyserTest, RunsModelsOfOtherShapes) {
  TinyModel wide;
  wide.shape = {1, 3, 16, 32};
  EXPECT_EQ(OpenOnnxModel(Model(wide))->Size(), 128);
  TinyModel open;
  open.shape = {0, 3, 16, 16};
  EXPECT_EQ(OpenOnnxModel(Model(open))->Describe(Colourful()), OpenOnnxModel(Model())->Describe(Colourful()));
  TinyModel grey;
  grey.shape = {1, 1, 16, 16};
  grey.channels = 1;
  EXPECT_EQ(OpenOnnxModel(Model(grey))->Size(), 192);
  TinyModel listed;
  listed.listedWeights = true;
  listed.weightsAsInput = true;
  EXPECT_EQ(OpenOnnxModel(Model(listed))->Describe(Colourful()),
            OpenOnnxModel(Model())->Describe(Colourful()));
}

TEST_F(ModelAnalyserTest, TakesTheFirstOfSeveralOutputs) {
  // Twice the numbers of the other output, so that they can be told apart.
  TinyModel model;
  model.operation = "Relu";
  model.outputs = {"cells", "vector"};
  const std::vector<float> cells = OpenOnnxModel(Model(model))->Describe(Colourful());
  EXPECT_LT(*std::min_element(cells.begin(), cells.end()), 0);
  model.outputs = {"vector", "cells"};
  const std::vector<float> positive = OpenOnnxModel(Model(model))->Describe(Colourful());
  EXPECT_EQ(*std::min_element(positive.begin(), positive.end()), 0);
}

TEST_F(ModelAnalyserTest, IsKnownByTheBytesOfItsFile) {
  const auto analyser = OpenOnnxModel(Model());
  const QByteArray bytes = QByteArray::fromStdString(TinyModel().Bytes());
  EXPECT_EQ(analyser->Name(),
            "onnx:" + QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex().toStdString());
  EXPECT_EQ(analyser->Version(), 1);
  EXPECT_EQ(OpenOnnxModel(Model({}, "copy.onnx"))->Name(), analyser->Name());
  TinyModel other;
  other.weights.front() *= 2;
  EXPECT_NE(OpenOnnxModel(Model(other))->Name(), analyser->Name());
}

TEST_F(ModelAnalyserTest, SaysWhyAModelCannotBeUsed) {
  const std::string bytes = TinyModel().Bytes();
  EXPECT_EQ(Refusal(tree_.Path("missing.onnx")), "there is no such file");
  EXPECT_EQ(Refusal(tree_.MakeFolder("folder.onnx")), "it is a folder");
  EXPECT_EQ(Refusal(tree_.Write("empty.onnx", "")), "the file is empty");
  EXPECT_EQ(Refusal(tree_.Write("text.onnx", "no model")), "it is not an ONNX model, or it is damaged");
  EXPECT_EQ(Refusal(tree_.Write("cut.onnx", bytes.substr(0, bytes.size() / 2))),
            "it is not an ONNX model, or it is damaged");
  EXPECT_EQ(Refusal(tree_.Write("photo.onnx", Encoded(Colourful()).toStdString())),
            "it is not an ONNX model, or it is damaged");
  const ioPath large = tree_.Write("large.onnx", bytes);
  std::filesystem::resize_file(large.for_system(), 513ULL * 1024 * 1024);
  EXPECT_EQ(Refusal(large), "the file is larger than 512 MiB");
  EXPECT_FALSE(Refusal(ioPath()).empty());
}

TEST_F(ModelAnalyserTest, DoesNotWaitOnPipes) {
  const Pipe pipe(tree_.Path("pipe.onnx"));
  EXPECT_EQ(Refusal(pipe.Path()), "it is not a regular file");
}

TEST_F(ModelAnalyserTest, SaysThatAModelCannotBeOpened) {
  if (IsSuperuser()) {
    GTEST_SKIP() << "this user may read every file";
  }
  const ioPath file = Model();
  const Closed closed(file);
  EXPECT_EQ(Refusal(file), "the file cannot be opened");
}

TEST_F(ModelAnalyserTest, OpensNamesThatAreNoUtf8) {
  EXPECT_EQ(Refusal(Model({}, std::string(Zenvora::Test::kStrangeName) + ".onnx")), "");
}

TEST_F(ModelAnalyserTest, SaysWhyAModelCannotBeRun) {
  TinyModel model;
  model.operation = "Frobnicate";
  EXPECT_THAT(RefusalOf(model), testing::MatchesRegex("OpenCV cannot read the model: .*Frobnicate.*[^ ]"));
  model = {};
  model.shape = {1, 1, 16, 16};
  EXPECT_THAT(RefusalOf(model), testing::MatchesRegex("OpenCV cannot read the model: .*channels.*[^ ]"));
  model = {};
  model.outputs = {"nothing of the kind"};
  EXPECT_THAT(RefusalOf(model),
              testing::MatchesRegex("OpenCV cannot run the model: .*\"nothing of the kind\".*"));
  model = {};
  // A number for every pixel and filter.
  model.shape = {1, 3, 128, 256};
  model.cell = 1;
  model.weights.resize(9);
  EXPECT_EQ(RefusalOf(model), "its output has 98304 numbers, and needed are 1 to 65536");
  model.weights.resize(6);
  EXPECT_EQ(RefusalOf(model), "") << "65536 numbers";
}

TEST_F(ModelAnalyserTest, SurvivesDamageAnywhere) {
  // All but the weights, which may be any numbers.
  const std::string whole = TinyModel().Bytes();
  const std::size_t weights = TinyModel().weights.size() * sizeof(float);
  const std::size_t first = whole.find(std::string("\0\0\0", 3));
  int refused = 0;
  for (std::size_t i = 0; i < whole.size(); i += i == first ? weights - 8 : 1) {
    for (unsigned bit = 1; bit < 256; bit *= 2) {
      std::string damaged = whole;
      damaged[i] = static_cast<char>(static_cast<unsigned char>(damaged[i]) ^ bit);
      refused += Refusal(tree_.Write("damaged.onnx", damaged)).empty() ? 0 : 1;
    }
  }
  EXPECT_GT(refused, 400);
}

TEST_F(ModelAnalyserTest, HasNoVectorWhereTheModelSaysNothing) {
  const ioPath photo = tree_.Write("photo.png", Encoded(Colourful(), "PNG").toStdString());
  TinyModel model;
  model.weights.assign(model.weights.size(), std::numeric_limits<float>::quiet_NaN());
  PhotoDescription description = DescribePhoto(photo, *OpenOnnxModel(Model(model)));
  EXPECT_THAT(description.descriptor, IsEmpty());
  EXPECT_EQ(description.cause, "the model gives numbers for it that are not finite");
  EXPECT_TRUE(description.mayPass);
  model.weights.assign(model.weights.size(), 0);
  description = DescribePhoto(photo, *OpenOnnxModel(Model(model)));
  EXPECT_EQ(description.cause, "the model gives nothing but zeros for it");
}

TEST_F(ModelAnalyserTest, GivesTheSameBitsWhateverTheNumberOfThreads) {
  std::vector<ioPath> files;
  for (int i = 0; i < 40; ++i) {
    const QImage scene =
        Scene(static_cast<SceneKind>(i % kSceneKinds), static_cast<std::uint32_t>(i), {200, 150});
    files.push_back(tree_.Write(std::to_string(i) + ".jpg", Encoded(scene).toStdString()));
  }
  const auto analyser = OpenOnnxModel(Model());
  const auto all = [&](int threads) {
    AnalysisOptions options;
    options.threads = threads;
    std::vector<std::vector<float>> vectors;
    DescribePhotos(files, *analyser, options, [&](std::size_t, PhotoDescription&& description) {
      EXPECT_EQ(description.cause, "");
      vectors.push_back(std::move(description.descriptor));
    });
    return vectors;
  };
  const auto one = all(1);
  ASSERT_THAT(one, SizeIs(40));
  for (const int threads : {2, 4, 16}) {
    EXPECT_EQ(all(threads), one) << threads;
  }
}

/// Photos in a catalogue, compared by models.
class PhotosByModel : public ModelAnalyserTest {
 protected:
  void AddPhoto(const std::string& name, const QImage& picture) const {
    const ioPath file = tree_.Write(name, Encoded(picture).toStdString());
    const FileState state = QueryFile(file);
    PhotoRecord photo;
    photo.path = file;
    photo.size = state.size;
    photo.modifiedNs = state.modifiedNs;
    Catalogue(catalogue_, Catalogue::Mode::ReadWrite).Store({photo});
  }
  void AddPhotos() const {
    for (const SceneKind kind : {SceneKind::City, SceneKind::Lake, SceneKind::Flowers}) {
      const std::string name = std::to_string(static_cast<int>(kind));
      const QImage scene = Scene(kind);
      AddPhoto(name + " as it is.jpg", scene);
      AddPhoto(name + " small.jpg", scene.scaledToWidth(320, Qt::SmoothTransformation));
    }
    AddPhoto("alone.jpg", Scene(SceneKind::Roses));
  }
  SimilarUpdateResult Update(const PhotoAnalyser& analyser) {
    SimilarPhotos similar(catalogue_, NameOf(analyser));
    AnalysisOptions options;
    options.cancel = &cancel_;
    return UpdateSimilar(similar, analyser, options, [this](const SimilarProgress& now) {
      cancel_ = now.step == SimilarProgress::Step::Analysing && now.done == cancelAfter_;
    });
  }
  std::vector<std::string> Groups(const PhotoAnalyser& analyser) const {
    std::vector<std::string> groups;
    for (const SimilarGroup& group : SimilarPhotos(catalogue_, NameOf(analyser)).Groups(2)) {
      std::string names;
      for (const SimilarMember& member : group.members) {
        names += (names.empty() ? "" : ", ") + member.photo.path.filename().utf8string();
      }
      groups.push_back(names);
    }
    std::sort(groups.begin(), groups.end());
    return groups;
  }
  std::vector<std::string> Check(const PhotoAnalyser& analyser) const {
    return SimilarPhotos(catalogue_, NameOf(analyser), Catalogue::Mode::ReadOnly).Check();
  }

  const ioPath catalogue_ = tree_.Path("catalogue.sqlite");
  std::atomic<bool> cancel_{false};
  std::size_t cancelAfter_ = 0;
};

TEST_F(PhotosByModel, AreGroupedWhereTheyAreNearlyTheSame) {
  AddPhotos();
  const auto analyser = OpenOnnxModel(Model());
  const SimilarUpdateResult result = Update(*analyser);
  EXPECT_EQ(result.analysed, 7U);
  EXPECT_EQ(result.clustered, 7U);
  EXPECT_THAT(result.unreadable, IsEmpty());
  std::vector<std::string> expected;
  for (const SceneKind kind : {SceneKind::City, SceneKind::Lake, SceneKind::Flowers}) {
    const std::string name = std::to_string(static_cast<int>(kind));
    expected.push_back(name + " as it is.jpg, " + name + " small.jpg");
  }
  std::sort(expected.begin(), expected.end());
  EXPECT_EQ(Groups(*analyser), expected);
  EXPECT_THAT(Check(*analyser), IsEmpty());
}

TEST_F(PhotosByModel, AreLookedAtOnFromWhereARunStopped) {
  AddPhotos();
  const auto analyser = OpenOnnxModel(Model());
  cancelAfter_ = 3;
  const SimilarUpdateResult stopped = Update(*analyser);
  EXPECT_TRUE(stopped.cancelled);
  EXPECT_EQ(stopped.analysed, 3U);
  cancel_ = false;
  cancelAfter_ = 0;
  EXPECT_EQ(Update(*analyser).analysed, 4U);
  EXPECT_EQ(Update(*analyser).analysed, 0U);
  EXPECT_THAT(Groups(*analyser), SizeIs(3));
}

TEST_F(PhotosByModel, AreNeverComparedByWhatAnotherModelSays) {
  AddPhotos();
  const LayoutAnalyser layout;
  const auto first = OpenOnnxModel(Model());
  // Sees light alone, so that more is alike to it.
  TinyModel light;
  light.weights.resize(light.weights.size() / 4);
  const auto second = OpenOnnxModel(Model(light, "light.onnx"));
  Update(layout);
  const std::vector<std::string> byLayout = Groups(layout);
  EXPECT_EQ(Update(*first).analysed, 7U);
  const std::vector<std::string> byFirst = Groups(*first);
  EXPECT_EQ(Update(*second).analysed, 7U);
  EXPECT_EQ(Update(*first).analysed, 0U) << "what it found out is still there";
  EXPECT_EQ(Update(layout).analysed, 0U);
  EXPECT_EQ(Groups(*first), byFirst);
  EXPECT_EQ(Groups(layout), byLayout);
  for (const PhotoAnalyser* const analyser :
       {static_cast<const PhotoAnalyser*>(&layout), static_cast<const PhotoAnalyser*>(first.get()),
        static_cast<const PhotoAnalyser*>(second.get())}) {
    EXPECT_THAT(Check(*analyser), IsEmpty());
  }
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
