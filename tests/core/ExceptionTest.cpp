#include <zenvora/core/Exception.h>

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

namespace Zenvora {
namespace {

template <class Thrown>
Thrown Described(const std::string& text) {
  Thrown failure;
  failure << TagDescription(text);
  return failure;
}

TEST(ExceptionText, IsTheDescriptionElseTheParseErrorElseTheName) {
  Exception failure;
  EXPECT_STREQ(failure.what(), "Zenvora::Exception");
  failure << TagFilename("a.json") << TagCallStack("0# main");
  EXPECT_STREQ(failure.what(), "Zenvora::Exception");
  failure << TagParseError("line 1");
  EXPECT_STREQ(failure.what(), "line 1");
  failure << TagDescription("gr\xC3\xBC\xC3\x9F");
  EXPECT_STREQ(failure.what(), "gr\xC3\xBC\xC3\x9F");
}

TEST(ExceptionTags, ComeBackAsTheyWerePut) {
  Exception failure;
  failure << TagFilename("f") << TagDescription("d") << TagCallStack("c") << TagParseError("p");
  EXPECT_EQ(*boost::get_error_info<TagFilename>(failure), "f");
  EXPECT_EQ(*boost::get_error_info<TagDescription>(failure), "d");
  EXPECT_EQ(*boost::get_error_info<TagCallStack>(failure), "c");
  EXPECT_EQ(*boost::get_error_info<TagParseError>(failure), "p");
}

TEST(ExceptionTags, AreAbsentUntilPutAndReplacedWhenPutAgain) {
  Exception failure;
  EXPECT_EQ(boost::get_error_info<TagFilename>(failure), nullptr);
  failure << TagFilename("one");
  failure << TagFilename("two");
  EXPECT_EQ(*boost::get_error_info<TagFilename>(failure), "two");
}

TEST(ExceptionTags, SurviveCopyAndAssignment) {
  const auto failure = Described<Core::JsonException>("d");
  // The copy is the matter
  const Core::JsonException copy(failure);
  EXPECT_STREQ(copy.what(), "d");
  Core::JsonException assigned;
  assigned = failure;
  EXPECT_STREQ(assigned.what(), "d");
}

template <class Thrown, class Caught>
bool IsCaughtAs() {
  try {
    BOOST_THROW_EXCEPTION(Described<Thrown>("d"));
  } catch (const Caught&) {
    return true;
  } catch (...) {
    return false;
  }
}

TEST(ExceptionFamily, IsCaughtByEveryBase) {
  EXPECT_TRUE((IsCaughtAs<Core::JsonException, Core::JsonException>()));
  EXPECT_TRUE((IsCaughtAs<Core::JsonException, Core::CoreException>()));
  EXPECT_TRUE((IsCaughtAs<Core::JsonException, Exception>()));
  EXPECT_TRUE((IsCaughtAs<Core::JsonException, boost::exception>()));
  EXPECT_TRUE((IsCaughtAs<Core::JsonException, std::exception>()));
  EXPECT_TRUE((IsCaughtAs<Core::CoreException, Exception>()));
  EXPECT_FALSE((IsCaughtAs<Core::CoreException, Core::JsonException>()));
  EXPECT_FALSE((IsCaughtAs<Exception, Core::CoreException>()));
}

TEST(ExceptionFamily, GivesItsTextThroughStdException) {
  try {
    BOOST_THROW_EXCEPTION(Described<Core::JsonException>("broken"));
  } catch (const std::exception& failure) {
    EXPECT_STREQ(failure.what(), "broken");
    return;
  }
  FAIL() << "nothing was thrown";
}

/// Reaches both bases once more: only virtual ones are then unambiguous.
class Twofold : public Core::CoreException, public virtual std::exception, public virtual boost::exception {
 public:
  const char* what() const noexcept override { return Core::CoreException::what(); }
};

TEST(ExceptionFamily, HasOneStdAndOneBoostBaseHoweverItIsMixed) {
  EXPECT_TRUE((std::is_convertible_v<Twofold*, std::exception*>));
  EXPECT_TRUE((std::is_convertible_v<Twofold*, boost::exception*>));
}

TEST(ExceptionFamily, HoldsTheStdBaseBeforeTheBoostBase) {
  const Exception failure;
  const auto* whole = reinterpret_cast<const char*>(&failure);
  const auto* std = reinterpret_cast<const char*>(static_cast<const std::exception*>(&failure));
  const auto* boost = reinterpret_cast<const char*>(static_cast<const boost::exception*>(&failure));
  EXPECT_EQ(std, whole);
  EXPECT_LT(std, boost);
}

TEST(ThrowSite, IsRecorded) {
  int line = 0;
  try {
    line = __LINE__ + 1;
    BOOST_THROW_EXCEPTION(Exception());
  } catch (const boost::exception& failure) {
    EXPECT_EQ(std::string(*boost::get_error_info<boost::throw_file>(failure)), __FILE__);
    EXPECT_EQ(*boost::get_error_info<boost::throw_line>(failure), line);
    EXPECT_NE(
        std::string(*boost::get_error_info<boost::throw_function>(failure)).find("ThrowSite_IsRecorded"),
        std::string::npos);
    return;
  }
  FAIL() << "nothing was thrown";
}

TEST(Diagnostics, NameTagsTextAndThrowSite) {
  try {
    BOOST_THROW_EXCEPTION(Described<Core::JsonException>("d") << TagFilename("calendar.json"));
  } catch (const boost::exception& failure) {
    const std::string text = boost::diagnostic_information(failure);
    EXPECT_NE(text.find("calendar.json"), std::string::npos) << text;
    EXPECT_NE(text.find("ExceptionTest.cpp"), std::string::npos) << text;
    EXPECT_NE(text.find("JsonException"), std::string::npos) << text;
    return;
  }
  FAIL() << "nothing was thrown";
}

}  // namespace
}  // namespace Zenvora
