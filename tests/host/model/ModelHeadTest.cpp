#include "ModelFault.h"
#include "ModelHead.h"

#include <support/TinyModel.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace Zenvora::Lumidex::Host {
namespace {

using Test::TinyModel;
using Test::WireWriter;
using testing::HasSubstr;

/// Why the bytes are refused; empty: they are not.
std::string Refusal(const std::string& bytes) {
  try {
    ReadModelHead(bytes);
    return {};
  } catch (const ModelFault& fault) {
    return fault.what();
  }
}

std::string Refusal(const TinyModel& model) {
  return Refusal(model.Bytes());
}

TEST(ReadModelHead, FindsWhatTheModelTakesAndGives) {
  TinyModel model;
  model.shape = {1, 3, 20, 28};
  const ModelHead head = ReadModelHead(model.Bytes());
  EXPECT_EQ(head.channels, 3);
  EXPECT_EQ(head.height, 20);
  EXPECT_EQ(head.width, 28);
  EXPECT_EQ(head.output, "vector");
  EXPECT_EQ(head.range, ModelHead::Range::ByMeans);
  EXPECT_FALSE(head.blueFirst);
}

TEST(ReadModelHead, TakesPicturesOfFixedSizesOnly) {
  struct Case {
    std::vector<std::uint64_t> shape;
    const char* refusedAs;
  };
  // An open size is a 0 here.
  const Case cases[] = {
      {{1, 3, 16, 16}, nullptr},
      {{0, 3, 16, 16}, nullptr},
      {{1, 1, 1, 1}, nullptr},
      {{1, 3, 4096, 8}, nullptr},
      {{2, 3, 16, 16}, "[2, 3, 16, 16]"},
      {{1, 0, 16, 16}, "[1, ?, 16, 16]"},
      {{1, 3, 0, 16}, "[1, 3, ?, 16]"},
      {{1, 3, 16, 0}, "[1, 3, 16, ?]"},
      {{1, 4, 16, 16}, "[1, 4, 16, 16]"},
      {{1, 16, 16, 3}, "[1, 16, 16, 3]"},
      {{3, 16, 16}, "[3, 16, 16]"},
      {{}, "[]"},
      {{1, 3, 4097, 8}, "[1, 3, 4097, 8]"},
      {{1, 3, 16, UINT64_MAX}, "18446744073709551615]"},
      {{1, 1, 3, 16, 16}, "[1, 1, 3, 16, 16]"},
  };
  for (const Case& c : cases) {
    TinyModel model;
    model.shape = c.shape;
    if (c.refusedAs == nullptr) {
      EXPECT_EQ(Refusal(model), "");
    } else {
      EXPECT_THAT(Refusal(model), HasSubstr(c.refusedAs));
      EXPECT_THAT(Refusal(model), HasSubstr("needed is [1, 3 or 1, height, width]"));
    }
  }
}

TEST(ReadModelHead, TakesOneInputOfFloats) {
  TinyModel model;
  model.inputs = 2;
  EXPECT_EQ(Refusal(model), "it has 2 inputs, and a photo is one");
  model.inputs = 0;
  EXPECT_EQ(Refusal(model), "nothing in it makes \"picture\" before it is needed");
  model.inputs = 1;
  model.weightsAsInput = true;
  EXPECT_EQ(Refusal(model), "") << "weights are no input";
  model.elementType = 2;
  EXPECT_EQ(Refusal(model), "its input takes no floats of 32 bits");
}

TEST(ReadModelHead, TakesTheFirstOutput) {
  TinyModel model;
  model.outputs = {"cells", "vector"};
  EXPECT_EQ(ReadModelHead(model.Bytes()).output, "cells");
  model.outputs = {};
  EXPECT_EQ(Refusal(model), "it has no output");
  model.outputs = {""};
  EXPECT_EQ(Refusal(model), "it has no output");
}

TEST(ReadModelHead, ObeysWhatTheModelSaysOfPixels) {
  using Range = ModelHead::Range;
  struct Case {
    const char* key;
    const char* value;
    std::optional<Range> range;
    bool blueFirst;
  };
  const Case cases[] = {
      {"author", "somebody", Range::ByMeans, false},
      {"Image.NominalPixelRange", "NominalRange_0_255", Range::Bytes, false},
      {"Image.NominalPixelRange", "Normalized_0_1", Range::ToOne, false},
      {"Image.NominalPixelRange", "Normalized_1_1", Range::AroundZero, false},
      {"Image.NominalPixelRange", "NominalRange_16_235", std::nullopt, false},
      {"Image.BitmapPixelFormat", "Rgb8", Range::ByMeans, false},
      {"Image.BitmapPixelFormat", "Bgr8", Range::ByMeans, true},
      {"Image.BitmapPixelFormat", "Gray8", Range::ByMeans, false},
      {"Image.BitmapPixelFormat", "Rgba8", std::nullopt, false},
      {"Image.ColorSpaceGamma", "SRGB", Range::ByMeans, false},
      {"Image.ColorSpaceGamma", "Linear", std::nullopt, false},
  };
  for (const Case& c : cases) {
    TinyModel model;
    model.metadata[c.key] = c.value;
    if (c.range) {
      const ModelHead head = ReadModelHead(model.Bytes());
      EXPECT_EQ(head.range, *c.range) << c.value;
      EXPECT_EQ(head.blueFirst, c.blueFirst) << c.value;
    } else {
      EXPECT_EQ(Refusal(model),
                std::string("it wants \"") + c.value + "\" for " + c.key + ", which cannot be given");
    }
  }
}

TEST(ReadModelHead, WantsAllWeightsInTheFile) {
  TinyModel model;
  model.listedWeights = true;
  EXPECT_EQ(Refusal(model), "");
  model.weightsElsewhere = true;
  EXPECT_EQ(Refusal(model), "its weights lie in other files");
}

/// A model with nothing but this tensor, once among the weights and once in a node.
std::string Refusal(const WireWriter& tensor, bool inNode) {
  WireWriter graph;
  if (inNode) {
    graph.Message(1, WireWriter().Message(5, WireWriter().Bytes(1, "value").Message(5, tensor)));
  } else {
    graph.Message(5, tensor);
  }
  // What is left out comes after the weights.
  const std::string cause = Refusal(WireWriter().Number(1, 7).Message(7, graph).Written());
  return cause == "it has 0 inputs, and a photo is one" ? "" : cause;
}

TEST(ReadModelHead, WantsAsManyWeightsAsTheirShapeSays) {
  const std::uint64_t vast = std::uint64_t{1} << 33U;
  struct Case {
    WireWriter tensor;
    const char* refusedAs;
  };
  const std::string two("\1\2", 2);
  const Case cases[] = {
      {WireWriter().Number(2, 1).Bytes(9, std::string(4, '\0')), ""},
      {WireWriter().Number(1, 2).Number(2, 1).Bytes(9, std::string(8, '\0')), ""},
      {WireWriter().Number(1, 2).Number(2, 1).Bytes(9, std::string(7, '\0')), "are 1 numbers instead of 2"},
      {WireWriter().Number(1, 2).Number(2, 1).Bytes(9, std::string(9, '\0')), "are 2 numbers instead of 2"},
      {WireWriter().Number(1, 2).Number(2, 1).Bytes(4, std::string(8, '\0')), ""},
      {WireWriter().Number(1, 3).Number(2, 1).Bytes(4, std::string(8, '\0')), "are 2 numbers instead of 3"},
      {WireWriter().Number(1, 0).Number(2, 1), ""},
      {WireWriter().Number(1, 2).Number(2, 1), "are 0 numbers instead of 2"},
      // Sizes in one field, and numbers of other kinds.
      {WireWriter().Bytes(1, two).Number(2, 10).Bytes(9, std::string(4, '\0')), ""},
      {WireWriter().Bytes(1, two).Number(2, 7).Bytes(7, two), ""},
      {WireWriter().Bytes(1, two).Number(2, 6).Number(5, 300).Number(5, 4), ""},
      {WireWriter().Bytes(1, two).Number(2, 6).Number(5, 300), "are 1 numbers instead of 2"},
      {WireWriter().Number(1, 2).Number(2, 11).Bytes(10, std::string(16, '\0')), ""},
      {WireWriter().Number(1, 2).Number(2, 8), ""},
      {WireWriter().Number(1, 2).Number(2, 12).Bytes(11, two), ""},
      {WireWriter().Number(1, 2).Number(2, 99), "are of an unknown kind"},
      {WireWriter().Number(1, 2).Number(2, std::uint64_t{1} << 32U | 1U), "are of an unknown kind"},
      // Lists are read for numbers of their own kind only.
      {WireWriter().Number(1, 2).Number(2, 1).Bytes(5, two), "are 0 numbers instead of 2"},
      {WireWriter().Number(1, 2).Number(2, 1).Bytes(7, two), "are 0 numbers instead of 2"},
      {WireWriter().Number(1, 2).Number(2, 1).Bytes(10, std::string(16, '\0')), "are 0 numbers instead of 2"},
      {WireWriter().Number(1, 2).Number(2, 7).Bytes(4, std::string(8, '\0')), "are 0 numbers instead of 2"},
      {WireWriter().Number(1, 2).Number(2, 1).Bytes(9, std::string(8, '\0')).Bytes(7, two), ""},
      {WireWriter().Number(1, vast).Number(1, vast).Number(2, 1), "are of an impossible size"},
      {WireWriter().Number(1, UINT64_MAX).Number(2, 1), "are of an impossible size"},
  };
  int row = 0;
  for (const Case& c : cases) {
    for (const bool inNode : {false, true}) {
      const std::string refusal = Refusal(c.tensor, inNode);
      EXPECT_EQ(refusal.empty(), *c.refusedAs == '\0') << row << ": " << refusal;
      EXPECT_THAT(refusal, HasSubstr(c.refusedAs)) << row;
    }
    ++row;
  }
}

TEST(ReadModelHead, SeesNothingThatOtherReadersPassBy) {
  const std::string damaged = "it is not an ONNX model, or it is damaged";
  const std::string eight(8, '\1');
  const auto weights = [] { return WireWriter().Number(1, 2).Number(2, 1); };
  const WireWriter tensors[] = {
      weights().Eight(9, eight),
      weights().Number(4, 2).Bytes(9, eight),
      weights().Eight(7, eight).Bytes(9, eight),
      weights().Eight(1, eight).Bytes(9, eight),
      weights().Bytes(2, "").Bytes(9, "few"),
      weights().Bytes(9, eight).Number(8, 1),
      // A tag of more than 32 bits.
      weights().Number(std::uint64_t{1} << 32U | 1U, 9).Bytes(9, eight),
  };
  int row = 0;
  for (const WireWriter& tensor : tensors) {
    EXPECT_EQ(Refusal(tensor, false), damaged) << row;
    EXPECT_EQ(Refusal(tensor, true), damaged) << row;
    ++row;
  }
  const auto refusal = [](const WireWriter& graph) {
    return Refusal(WireWriter().Number(1, 7).Message(7, graph).Written());
  };
  EXPECT_EQ(refusal(WireWriter().Message(1, WireWriter().Eight(2, "new name"))), damaged);
  EXPECT_EQ(refusal(WireWriter().Eight(5, eight)), damaged);
  EXPECT_EQ(refusal(WireWriter().Number(11, 1)), damaged);
}

TEST(ReadModelHead, RefusesWhatOtherReadersWouldPutTogether) {
  const WireWriter tensor = WireWriter().Number(1, 2).Number(2, 1).Bytes(9, std::string(8, '\0'));
  const WireWriter twice = WireWriter().Bytes(1, "value").Message(5, tensor).Message(5, tensor);
  const WireWriter several = WireWriter().Bytes(1, "value").Message(10, tensor).Message(10, tensor);
  const auto refusal = [](const WireWriter& attribute) {
    const WireWriter graph = WireWriter().Message(1, WireWriter().Message(5, attribute));
    return Refusal(WireWriter().Number(1, 7).Message(7, graph).Written());
  };
  EXPECT_EQ(refusal(twice), "it has two values for \"value\"");
  EXPECT_EQ(refusal(several), "it has 0 inputs, and a photo is one");
  const std::string bytes = TinyModel().Bytes();
  EXPECT_EQ(Refusal(bytes + WireWriter().Message(7, WireWriter()).Written()), "it has two graphs");
}

TEST(ReadModelHead, RefusesNodesOfNoGroups) {
  TinyModel model;
  EXPECT_EQ(Refusal(model), "");
  for (const std::uint64_t none : {std::uint64_t{0}, std::uint64_t{1} << 32U}) {
    model.groups = none;
    EXPECT_EQ(Refusal(model), "it has a node of no groups");
  }
}

TEST(ReadModelHead, FollowsNamesThroughTheModel) {
  const auto node = [](const std::string& from, const std::string& to) {
    return WireWriter().Bytes(1, from).Bytes(2, to);
  };
  const auto refusal = [](const std::vector<WireWriter>& nodes) {
    WireWriter graph;
    for (const WireWriter& one : nodes) {
      graph.Message(1, one);
    }
    // Weights may come behind the nodes.
    graph.Message(5, WireWriter().Number(1, 0).Number(2, 1).Bytes(8, "weights"));
    const std::string cause = Refusal(WireWriter().Number(1, 7).Message(7, graph).Written());
    return cause == "it has 0 inputs, and a photo is one" ? "" : cause;
  };
  EXPECT_EQ(refusal({node("weights", "a"), node("a", "b")}), "");
  EXPECT_EQ(refusal({node("", "a")}), "") << "left out";
  EXPECT_EQ(refusal({node("a", "b"), node("weights", "a")}), "nothing in it makes \"a\" before it is needed");
  EXPECT_EQ(refusal({node("a", "a")}), "nothing in it makes \"a\" before it is needed");
}

TEST(ReadModelHead, RefusesWhatIsNoModel) {
  const std::string none = "it is not an ONNX model, or it is damaged";
  const std::string cases[] = {"",
                               "This is a letter, not a model.",
                               std::string(5000, '\0'),
                               std::string(5000, '\xFF'),
                               "\xFF\xD8\xFF\xE0",
                               WireWriter().Number(1, 7).Written(),
                               WireWriter().Message(7, WireWriter()).Written()};
  for (const std::string& bytes : cases) {
    EXPECT_EQ(Refusal(bytes), none) << bytes.substr(0, 30);
  }
}

TEST(ReadModelHead, SaysNamesInOneLine) {
  TinyModel model;
  model.metadata["Image.ColorSpaceGamma"] = "a\nb\x1B\xE9" + std::string(300, 'c');
  EXPECT_EQ(Refusal(model), "it wants \"a?b??" + std::string(195, 'c') +
                                "...\" for Image.ColorSpaceGamma, which cannot be given");
}

TEST(ReadModelHead, RefusesModelsThatAreCutShort) {
  const std::string whole = TinyModel().Bytes();
  for (std::size_t size = 0; size < whole.size(); ++size) {
    EXPECT_NE(Refusal(whole.substr(0, size)), "") << size;
  }
}

TEST(ReadModelHead, SurvivesDamageAnywhere) {
  std::string bytes = TinyModel().Bytes();
  int refused = 0;
  for (char& byte : bytes) {
    for (const unsigned bit : {1U, 8U, 128U}) {
      const char former = byte;
      byte = static_cast<char>(static_cast<unsigned char>(byte) ^ bit);
      refused += Refusal(bytes).empty() ? 0 : 1;
      byte = former;
    }
  }
  EXPECT_GT(refused, 100);
  EXPECT_EQ(Refusal(bytes), "");
}

}  // namespace
}  // namespace Zenvora::Lumidex::Host
