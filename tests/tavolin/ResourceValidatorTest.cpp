#include "DownloadLimits.h"
#include "ResourceValidator.h"

#include <zenvora/quillet/config/Config.h>

#include <gtest/gtest.h>

#include <string>

namespace Zenvora::Tavolin {

namespace {

constexpr int kDepthLimit = static_cast<int>(Quillet::Config::BaseConfig::kDepthLimit);

struct Case {
  const char* body;
  const char* fault;  // Part of the text; empty: valid.
};

std::string FaultOf(const QByteArray& body, const char* format, const char* section) {
  return FindBodyFault(body, QString::fromUtf8(format), QString::fromUtf8(section)).toStdString();
}

void Check(const Case& given, const char* format, const char* section) {
  const std::string fault = FaultOf(given.body, format, section);
  if (*given.fault == '\0') {
    EXPECT_EQ(fault, "") << given.body;
  } else {
    EXPECT_NE(fault.find(given.fault), std::string::npos) << given.body << ": " << fault;
  }
}

// Root object and `levels - 1` arrays or objects inside.
QByteArray NestedArrays(int levels) {
  return R"({"events": {}, "a": )" + QByteArray(levels - 1, '[') + QByteArray(levels - 1, ']') + "}";
}

QByteArray NestedObjects(int levels) {
  return QByteArray(R"({"events": {}, "a": )") + QByteArray(R"({"a": )").repeated(levels - 1) + "1" +
         QByteArray(levels, '}');
}

}  // namespace

TEST(ResourceValidator, TakesJsonObjectsOnly) {
  const Case cases[] = {
      {"{}", ""},
      {"{\"a\": 1}", ""},
      {" \r\n\t{} \n", ""},
      {"{\"a\": \"\xc3\xa4\"}", ""},
      {"", "empty"},
      {" ", "not JSON"},
      {"[]", "root is not an object"},
      {"[{}]", "root is not an object"},
      {"null", "not JSON"},
      {"\"text\"", "not JSON"},
      {"1", "not JSON"},
      {"{", "not JSON"},
      {"{}}", "not JSON"},
      {"{} {}", "not JSON"},
      {"{\"a\": }", "not JSON"},
      {"{\"a\": 1,}", "not JSON"},
      {"{'a': 1}", "not JSON"},
      {"{\"a\": \"\xff\"}", "not JSON"},
      {"{\"a\": 1", "not JSON"},
      {"<!DOCTYPE html><html></html>", "not JSON"},
  };
  for (const Case& given : cases) {
    Check(given, "json", "anything");
  }
}

TEST(ResourceValidator, WantsAnEventsObjectOfACalendar) {
  const Case cases[] = {
      {R"({"events": {}})", ""},
      {R"({"events": {"en_US": []}, "more": [1]})", ""},
      {"{}", "no object \"events\""},
      {R"({"Events": {}})", "no object \"events\""},
      {R"({"events": []})", "no object \"events\""},
      {R"({"events": null})", "no object \"events\""},
      {R"({"events": "text"})", "no object \"events\""},
      {R"({"inner": {"events": {}}})", "no object \"events\""},
  };
  for (const Case& given : cases) {
    Check(given, "json", "holidayEvents");
  }
}

TEST(ResourceValidator, LeavesOtherSectionsTheirMembers) {
  Check({"{}", ""}, "json", "holidayevents");
}

TEST(ResourceValidator, TakesAnyContentOfOtherFormats) {
  Check({"not JSON at all", ""}, "txt", "holidayEvents");
  Check({"not JSON at all", ""}, "JSON", "holidayEvents");
  Check({"", "empty"}, "txt", "holidayEvents");
}

TEST(ResourceValidator, AcceptsTheReadersDepthAndRefusesMore) {
  for (const auto& nest : {NestedArrays, NestedObjects}) {
    EXPECT_EQ(FaultOf(nest(kDepthLimit), "json", "holidayEvents"), "");
    EXPECT_EQ(FaultOf(nest(kDepthLimit + 1), "json", "holidayEvents"), "it is nested too deep");
    EXPECT_EQ(FaultOf(nest(5000), "json", "holidayEvents"), "it is nested too deep");
  }
}

TEST(ResourceValidator, SurvivesABodyOfOpeningBrackets) {
  EXPECT_NE(FaultOf(QByteArray(static_cast<int>(kSizeLimit), '['), "json", "holidayEvents"), "");
}

TEST(ResourceValidator, IgnoresBracketsInsideTexts) {
  EXPECT_EQ(FaultOf(R"({"events": {}, "a": ")" + QByteArray(200, '[') + "\"}", "json", "holidayEvents"), "");
}

}  // namespace Zenvora::Tavolin
