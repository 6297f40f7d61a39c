#include <support/LeftOut.h>
#include <support/TempTree.h>

#include <zenvora/core/ioPath.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <sstream>
#include <string>
#include <unordered_set>
#include <vector>

namespace Zenvora {
namespace {

using Test::Slashes;
using namespace std::string_literals;  // NOLINT(google-build-using-namespace): names with NUL need their
                                       // length

const std::string kNotUtf8 = "caf\xE9\xFF.jpg";

TEST(PathName, IsEmptyByDefaultAndAfterClear) {
  ioPath path;
  EXPECT_TRUE(path.empty());
  EXPECT_EQ(path.utf8string(), "");
  path = ioPath("a/b");
  EXPECT_FALSE(path.empty());
  path.clear();
  EXPECT_TRUE(path.empty());
  EXPECT_EQ(path, ioPath());
}

TEST(PathName, KeepsEveryTextUnchanged) {
  for (const std::string& text :
       {""s, "/"s, "a"s, "a b"s, " "s, "."s, ".."s, "a/"s, "a//b"s, "/a/../b"s, "line\nfeed"s, "tab\t"s,
        "quote\"s"s, "nul\0inside"s, "gr\xC3\xBC\xC3\x9F.jpg"s, "e\xCC\x81"s, "\xE5\x86\x99\xE7\x9C\x9F"s,
        "\xF0\x9F\x93\xB7"s, std::string(255, 'n')}) {
    EXPECT_EQ(ioPath(text).utf8string(), text);
  }
}

TEST(PathName, GoesThroughQtTextUnchangedWhenItIsUtf8) {
  for (const std::string& text : {""s, "/a/gr\xC3\xBC\xC3\x9F.jpg"s, "\xF0\x9F\x93\xB7"s, "nul\0inside"s}) {
    EXPECT_EQ(ioPath(ioPath(text).qstring()).utf8string(), text);
  }
}

#ifndef _WIN32
TEST(PathName, KeepsBytesThatAreNotUtf8ButQtTextDoesNot) {
  const ioPath path(kNotUtf8);
  EXPECT_EQ(path.utf8string(), kNotUtf8);
  EXPECT_EQ(path.native().native(), kNotUtf8);
  EXPECT_EQ(path.qstring(), QString::fromUtf8("caf\xEF\xBF\xBD\xEF\xBF\xBD.jpg"));
  EXPECT_NE(ioPath(path.qstring()), path);
}

TEST(PathName, TellsBytesThatAreNotUtf8Apart) {
  EXPECT_NE(ioPath("x\xFE"), ioPath("x\xFF"));
  EXPECT_TRUE(ioPath("x\xFE") < ioPath("x\xFF"));
}

#else
LUMIDEX_LEFT_OUT_ON_WINDOWS(PathName, KeepsBytesThatAreNotUtf8ButQtTextDoesNot);
LUMIDEX_LEFT_OUT_ON_WINDOWS(PathName, TellsBytesThatAreNotUtf8Apart);
#endif

TEST(PathName, GivesWideTextByCodePoint) {
  EXPECT_EQ(ioPath("a\xC3\xBC\xF0\x9F\x93\xB7").wstring(), L"a\u00FC\U0001F4F7");
  EXPECT_EQ(ioPath("x\xFF").wstring(), L"x\uFFFD");
}

TEST(PathName, WritesItsTextUnquoted) {
  std::ostringstream stream;
  stream << ioPath("/a b/\"c\"");
  EXPECT_EQ(stream.str(), "/a b/\"c\"");
}

TEST(PathName, HasAFaultWhenItNamesNothing) {
  EXPECT_EQ(ioPath().name_fault(), "is empty");
  EXPECT_EQ(ioPath("nul\0inside"s).name_fault(), "holds a NUL character");
  EXPECT_EQ(ioPath("/a b/gr\xC3\xBC\xC3\x9F.jpg").name_fault(), "");
#ifdef _WIN32
  EXPECT_EQ(ioPath("C:a.jpg").name_fault(), "is relative to the current folder of a drive");
  EXPECT_EQ(ioPath("C:\\a\\NUL.txt").name_fault(), "names a device of Windows");
#else
  EXPECT_EQ(ioPath("/NUL.txt").name_fault(), "");
  EXPECT_EQ(ioPath("/a\xFF\n: *?").name_fault(), "");
#endif
}

TEST(PathName, IsHandedToTheSystemAsItIsUnlessItIsLongOnWindows) {
  for (const std::string& text : {""s, "a"s, "p/../a.jpg"s, "C:\\a.jpg"s, "\\\\server\\share\\a"s}) {
    EXPECT_EQ(ioPath(text).for_system(), ioPath(text).native());
  }
  const std::string element(50, 'x');
  ioPath path("C:/p/..");
  for (int i = 0; i < 8; ++i) {
    path /= element;
  }
#ifdef _WIN32
  const std::string expected = ioPath(path.for_system()).utf8string();
  EXPECT_EQ(expected.substr(0, 8), "\\\\?\\C:\\x"s) << expected;
  EXPECT_EQ(expected.find('/'), std::string::npos);
#else
  EXPECT_EQ(path.for_system(), path.native());
#endif
}

#ifndef _WIN32
TEST(PathName, IsMadeAbsoluteWithoutCleaning) {
  EXPECT_EQ(ioPath("/a/../b").absolute().utf8string(), "/a/../b");
  EXPECT_TRUE(ioPath("a").absolute().is_absolute());
  EXPECT_FALSE(ioPath("a").is_absolute());
}
#else

struct WindowsParts {
  std::string path, parent, rootName, root, filename;
};

class WindowsPathParts : public testing::TestWithParam<WindowsParts> {};

TEST_P(WindowsPathParts, AreTakenFromTheText) {
  const WindowsParts& expected = GetParam();
  const ioPath path(expected.path);
  EXPECT_EQ(path.parent_path().utf8string(), expected.parent);
  EXPECT_EQ(path.root_name().utf8string(), expected.rootName);
  EXPECT_EQ(path.root_path().utf8string(), expected.root);
  EXPECT_EQ(path.filename().utf8string(), expected.filename);
}

INSTANTIATE_TEST_SUITE_P(
    Table, WindowsPathParts,
    testing::Values(
        WindowsParts{"C:\\p\\a.jpg", "C:\\p", "C:", "C:\\", "a.jpg"},
        WindowsParts{"C:/p/a.jpg", "C:/p", "C:", "C:/", "a.jpg"},
        WindowsParts{"C:\\a.jpg", "C:\\", "C:", "C:\\", "a.jpg"},
        WindowsParts{"C:\\", "C:\\", "C:", "C:\\", ""}, WindowsParts{"C:", "C:", "C:", "C:", ""},
        WindowsParts{"p\\a.jpg", "p", "", "", "a.jpg"},
        WindowsParts{"\\\\srv\\sh\\p\\a.jpg", "\\\\srv\\sh\\p", "\\\\srv\\sh", "\\\\srv\\sh\\", "a.jpg"},
        WindowsParts{"\\\\srv\\sh\\a.jpg", "\\\\srv\\sh\\", "\\\\srv\\sh", "\\\\srv\\sh\\", "a.jpg"},
        WindowsParts{"//srv/sh/p/a.jpg", "//srv/sh/p", "//srv/sh", "//srv/sh/", "a.jpg"},
        WindowsParts{"\\\\srv\\sh\\", "\\\\srv\\sh\\", "\\\\srv\\sh", "\\\\srv\\sh\\", ""},
        WindowsParts{"\\\\srv\\sh", "\\\\srv\\sh", "\\\\srv\\sh", "\\\\srv\\sh\\", ""},
        WindowsParts{"\\\\?\\C:\\a.jpg", "\\\\?\\C:\\", "\\\\?\\C:", "\\\\?\\C:\\", "a.jpg"}));

TEST(PathName, IsAbsoluteWithAVolumeAndARoot) {
  for (const char* text : {"C:\\a", "C:/a", "\\\\srv\\sh\\a", "\\\\?\\C:\\a"}) {
    EXPECT_TRUE(ioPath(text).is_absolute()) << text;
  }
  for (const char* text : {"", "a", "\\a", "C:a", "C:"}) {
    EXPECT_FALSE(ioPath(text).is_absolute()) << text;
  }
}

TEST(PathName, KeepsItsVolumeWhenItIsMadeAbsolute) {
  EXPECT_EQ(ioPath("C:/a/../b/./c").absolute().utf8string(), "C:\\b\\c");
  EXPECT_EQ(ioPath("\\\\srv\\sh\\a\\..\\b").absolute().utf8string(), "\\\\srv\\sh\\b");
  EXPECT_EQ(ioPath("\\\\?\\C:\\a").absolute().utf8string(), "\\\\?\\C:\\a");
  EXPECT_TRUE(ioPath("a").absolute().is_absolute());
}

TEST(PathName, OfAShareReplacesWhatItIsJoinedTo) {
  EXPECT_EQ((ioPath("C:\\a") / ioPath("\\\\srv\\sh\\b")).utf8string(), "\\\\srv\\sh\\b");
  EXPECT_EQ((ioPath("\\\\srv\\sh") / ioPath("b")).utf8string(), "\\\\srv\\sh\\b");
}
#endif

struct Parts {
  std::string path, parent, root, filename, extension;
};

class PathParts : public testing::TestWithParam<Parts> {};

TEST_P(PathParts, AreTakenFromTheText) {
  const Parts& expected = GetParam();
  const ioPath path(expected.path);
  EXPECT_EQ(path.parent_path().utf8string(), expected.parent);
  EXPECT_EQ(path.root_path().utf8string(), expected.root);
  EXPECT_EQ(path.filename().utf8string(), expected.filename);
  EXPECT_EQ(path.extension().utf8string(), expected.extension);
#ifndef _WIN32
  EXPECT_EQ(path.root_name().utf8string(), "");
#endif
}

INSTANTIATE_TEST_SUITE_P(
    Table, PathParts,
    testing::Values(Parts{"", "", "", "", ""}, Parts{"/", "/", "/", "", ""},
                    Parts{"a.jpg", "", "", "a.jpg", ".jpg"}, Parts{"/a.jpg", "/", "/", "a.jpg", ".jpg"},
                    Parts{"/p/a.jpg", "/p", "/", "a.jpg", ".jpg"}, Parts{"p/q/a", "p/q", "", "a", ""},
                    Parts{"p/", "p", "", "", ""}, Parts{"/p/q/", "/p/q", "/", "", ""},
                    Parts{"p//a.jpg", "p", "", "a.jpg", ".jpg"}, Parts{".", "", "", ".", ""},
                    Parts{"..", "", "", "..", ""}, Parts{"p/..", "p", "", "..", ""},
                    Parts{".jpg", "", "", ".jpg", ""}, Parts{"p/.jpg", "p", "", ".jpg", ""},
                    Parts{".a.jpg", "", "", ".a.jpg", ".jpg"}, Parts{"a.tar.gz", "", "", "a.tar.gz", ".gz"},
                    Parts{"name.", "", "", "name.", "."}, Parts{"p.d/name", "p.d", "", "name", ""},
                    Parts{"a.JPG", "", "", "a.JPG", ".JPG"},
                    Parts{"a.j\xC3\xBC", "", "", "a.j\xC3\xBC", ".j\xC3\xBC"},
                    Parts{"a\nb.jpg", "", "", "a\nb.jpg", ".jpg"}, Parts{"a. b", "", "", "a. b", ". b"}));

#ifndef _WIN32
TEST(PathName, FindsPartsAmongBytesThatAreNotUtf8) {
  const ioPath path("/\xFE/" + kNotUtf8);
  EXPECT_EQ(path.filename().utf8string(), kNotUtf8);
  EXPECT_EQ(path.parent_path().utf8string(), "/\xFE");
  EXPECT_EQ(path.extension().utf8string(), ".jpg");
}
#else
LUMIDEX_LEFT_OUT_ON_WINDOWS(PathName, FindsPartsAmongBytesThatAreNotUtf8);
#endif

struct Joined {
  std::string left, right, whole;
};

class PathJoin : public testing::TestWithParam<Joined> {};

TEST_P(PathJoin, PutsOneSeparatorBetween) {
  const auto& [left, right, whole] = GetParam();
  EXPECT_EQ(Slashes(ioPath(left) / ioPath(right)), whole);
  ioPath path(left);
  EXPECT_EQ(&(path /= ioPath(right)), &path);
  EXPECT_EQ(Slashes(path), whole);
}

INSTANTIATE_TEST_SUITE_P(Table, PathJoin,
                         testing::Values(Joined{"a", "b", "a/b"}, Joined{"a/", "b", "a/b"},
                                         Joined{"/", "b", "/b"}, Joined{"", "b", "b"}, Joined{"a", "", "a/"},
                                         Joined{"", "", ""}, Joined{"a", "b/c", "a/b/c"},
                                         Joined{"a", "/b", "/b"}, Joined{"/a", "/b/c", "/b/c"},
                                         Joined{"a", "..", "a/.."}, Joined{"a", ".", "a/."},
                                         Joined{"gr\xC3\xBC", "\xC3\x9F", "gr\xC3\xBC/\xC3\x9F"}));

TEST(PathName, JoinsWithItself) {
  ioPath path("a");
  const ioPath& itself = path;
  path /= itself;
  EXPECT_EQ(Slashes(path), "a/a");
}

struct Replaced {
  std::string path, extension, result;
};

class PathExtension : public testing::TestWithParam<Replaced> {};

TEST_P(PathExtension, IsReplaced) {
  const auto& [text, extension, result] = GetParam();
  ioPath path(text);
  EXPECT_EQ(&path.replace_extension(ioPath(extension)), &path);
  EXPECT_EQ(path.utf8string(), result);
}

INSTANTIATE_TEST_SUITE_P(Table, PathExtension,
                         testing::Values(Replaced{"a.jpg", ".png", "a.png"},
                                         Replaced{"a.jpg", "png", "a.png"}, Replaced{"a.jpg", "", "a"},
                                         Replaced{"a", "", "a"}, Replaced{"a", ".png", "a.png"},
                                         Replaced{"name.", ".png", "name.png"}, Replaced{"name.", "", "name"},
                                         Replaced{".jpg", ".png", ".jpg.png"}, Replaced{".jpg", "", ".jpg"},
                                         Replaced{"a.tar.gz", ".xz", "a.tar.xz"},
                                         Replaced{"p.d/a", ".x", "p.d/a.x"}));

TEST(PathName, RemovesItsExtensionByDefault) {
  EXPECT_EQ(ioPath("a.jpg").replace_extension().utf8string(), "a");
}

struct Pair {
  std::string left, right;
};

class EqualPaths : public testing::TestWithParam<Pair> {};

TEST_P(EqualPaths, AreEqualInEveryRespect) {
  const ioPath left(GetParam().left);
  const ioPath right(GetParam().right);
  EXPECT_TRUE(left == right);
  EXPECT_FALSE(left != right);
  EXPECT_FALSE(left < right);
  EXPECT_FALSE(right < left);
  EXPECT_EQ(std::hash<ioPath>()(left), std::hash<ioPath>()(right));
}

INSTANTIATE_TEST_SUITE_P(Table, EqualPaths,
                         testing::Values(Pair{"", ""}, Pair{"a", "a"}, Pair{"a/b", "a//b"},
                                         Pair{"/a/b", "/a///b"}, Pair{"/a", "//a"}, Pair{"a/", "a//"},
                                         Pair{"nul\0x"s, "nul\0x"s}));

class DifferentPaths : public testing::TestWithParam<Pair> {};

TEST_P(DifferentPaths, AreDifferentAndOrdered) {
  const ioPath left(GetParam().left);
  const ioPath right(GetParam().right);
  EXPECT_FALSE(left == right);
  EXPECT_TRUE(left != right);
  EXPECT_NE(left < right, right < left);
}

INSTANTIATE_TEST_SUITE_P(Table, DifferentPaths,
                         testing::Values(Pair{"", "a"}, Pair{"a", "A"}, Pair{"a", "a/"}, Pair{"a", "/a"},
                                         Pair{"a", "./a"}, Pair{"a", "b/../a"}, Pair{"\xC3\xA9", "e\xCC\x81"},
                                         Pair{"nul\0x"s, "nul\0y"s}, Pair{"nul"s, "nul\0"s}));

std::vector<ioPath> AssortedPaths() {
  std::vector<ioPath> paths;
  for (const std::string& text :
       {""s,   "/"s,    "."s,    ".."s,   "a"s,      "a/"s,       "a/b"s,      "a//b"s, "a.b"s,    "a-b"s,
        "/a"s, "//a"s,  "/a/b"s, "/a.b"s, "/a-b/c"s, "A"s,        "\xC3\xA9"s, "\xFF"s, "nul\0x"s, "nul\0"s,
        "z"s,  "a/b/"s, "a b"s,  "a\n"s,  "a/./b"s,  "a/../a/b"s, "/a/b/c/d"s, "\x01"s, "a0"s,     "0"s}) {
    paths.emplace_back(text);
  }
  return paths;
}

TEST(PathOrder, IsAStrictWeakOrder) {
  const auto paths = AssortedPaths();
  const auto equivalent = [](const ioPath& a, const ioPath& b) { return !(a < b) && !(b < a); };
  for (const ioPath& a : paths) {
    EXPECT_FALSE(a < a);
    for (const ioPath& b : paths) {
      EXPECT_FALSE(a < b && b < a) << a << " and " << b;
      EXPECT_EQ(equivalent(a, b), a == b) << a << " and " << b;
      for (const ioPath& c : paths) {
        EXPECT_FALSE(a < b && b < c && !(a < c)) << a << ", " << b << ", " << c;
        EXPECT_FALSE(equivalent(a, b) && equivalent(b, c) && !equivalent(a, c))
            << a << ", " << b << ", " << c;
      }
    }
  }
}

TEST(PathOrder, KeepsTheFilesOfAFolderTogether) {
  std::vector<ioPath> paths = {ioPath("p-q/1"), ioPath("p/2"), ioPath("p.q"), ioPath("p/1"), ioPath("p")};
  std::sort(paths.begin(), paths.end());
  EXPECT_EQ(paths,
            (std::vector<ioPath>{ioPath("p"), ioPath("p/1"), ioPath("p/2"), ioPath("p-q/1"), ioPath("p.q")}));
}

TEST(PathOrder, ServesMapsAndHashedSets) {
  std::map<ioPath, int> counts;
  std::unordered_set<ioPath> seen;
  for (const char* text : {"a/b", "a//b", "a", "b", "a/b"}) {
    ++counts[text];
    seen.insert(text);
  }
  EXPECT_EQ(counts, (std::map<ioPath, int>{{"a", 1}, {"a/b", 3}, {"b", 1}}));
  EXPECT_EQ(seen.size(), 3U);
  EXPECT_EQ(seen.count(ioPath("a///b")), 1U);
}

}  // namespace
}  // namespace Zenvora
