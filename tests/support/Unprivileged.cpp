#ifndef _WIN32
#include <support/TempTree.h>
#include <support/Unprivileged.h>

#include <gtest/gtest.h>

#include <cerrno>
#include <grp.h>
#include <iterator>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace Zenvora::Test {

bool AskAsNobody(const std::function<bool()>& question) {
  if (!IsSuperuser()) {
    return question();
  }
  constexpr int kYes = 40;
  constexpr int kNo = 41;
  constexpr int kNotDropped = 42;
  const pid_t child = fork();
  if (child == 0) {
    const bool dropped = setgroups(0, nullptr) == 0 && setgid(kNobody) == 0 && setuid(kNobody) == 0;
    // Nothing of the parent's is to be cleaned up here.
    _exit(!dropped ? kNotDropped : question() ? kYes : kNo);
  }
  int status = 0;
  while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
  }
  const int code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  EXPECT_TRUE(code == kYes || code == kNo) << "the process of the other user ended with " << status;
  return code == kYes;
}

void LetEverybodyIn(const ioPath& folder) {
  EXPECT_EQ(chmod(folder.native().c_str(), 0755), 0) << folder;
}

bool AddToAccessList(const ioPath& path, std::uint32_t user, unsigned int permissions, unsigned int others) {
  struct Entry {
    std::uint16_t tag;
    std::uint16_t permissions;
    std::uint32_t id;
  };
  // As acl(5) has it, in the form that the kernel takes.
  constexpr std::uint32_t kNoId = 0xFFFFFFFF;
  const struct {
    std::uint32_t version;
    Entry entries[5];
  } list = {2,
            {{0x01, 7, kNoId},
             {0x02, static_cast<std::uint16_t>(permissions), user},
             {0x04, 0, kNoId},
             {0x10, 7, kNoId},
             {0x20, static_cast<std::uint16_t>(others), kNoId}}};
  return setxattr(path.native().c_str(), "system.posix_acl_access", &list, sizeof list, 0) == 0;
}

}  // namespace Zenvora::Test
#endif
