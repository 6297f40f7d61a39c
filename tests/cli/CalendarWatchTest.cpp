#include <cli/session/CalendarWatch.h>

#include <zenvora/core/Exception.h>

#include <boost/exception/diagnostic_information.hpp>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Zenvora::Lumidex::Cli {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

std::string LogTextOf(const std::string& file) {
  Core::JsonException failure;
  failure << TagParseError("cause");
  if (!file.empty()) {
    failure << TagFilename(file);
  }
  return boost::diagnostic_information(failure);
}

TEST(CalendarWatch, NamesTheFileAndWhatMayHelp) {
  const auto fault = CalendarFaultOf(LogTextOf("/some where/HolidayEvents.json"));
  ASSERT_TRUE(fault);
  EXPECT_THAT(*fault, HasSubstr("calendar /some where/HolidayEvents.json could not be read"));
  EXPECT_THAT(*fault, HasSubstr("lumidex calendar check"));
  EXPECT_THAT(*fault, Not(HasSubstr("\n")));
}

TEST(CalendarWatch, DoesWithoutTheFilesName) {
  EXPECT_THAT(CalendarFaultOf(LogTextOf("")).value_or(""),
              HasSubstr("The holiday calendar could not be read"));
}

TEST(CalendarWatch, TakesNoOtherErrorForIt) {
  for (const char* const text : {"", "The disk is full.", "TagFilenameName*] = /x\n"}) {
    EXPECT_FALSE(CalendarFaultOf(text)) << text;
  }
}

TEST(CalendarWatch, SeesErrorsWhileItLives) {
  const std::string text = LogTextOf("/a");
  const CalendarWatch watch;
  LOG(WARNING) << text;
  EXPECT_FALSE(watch.Fault());
  LOG(ERROR) << text;
  LOG(ERROR) << LogTextOf("/b");
  EXPECT_THAT(watch.Fault().value_or(""), HasSubstr("calendar /a could"));
}

}  // namespace
}  // namespace Zenvora::Lumidex::Cli
