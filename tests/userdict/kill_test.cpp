// The user's words survive a process killed at any moment: a child adds and
// removes words writing through to the file, and is killed with SIGKILL at
// a random moment, again and again. After every kill the file must hold
// exactly the content before the operation under way or exactly the content
// after it, and load.
#ifndef _WIN32

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <map>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "support/test_files.h"
#include "tarvola/userdict/HiztegiPertsonala.h"

namespace tarvola {
namespace {

constexpr int kKills = 200;
constexpr int kOperations = 16;
constexpr int kMaxDelayMicroseconds = 15000;

const char kBase[] =
    "\netxe\t<ARR>\tbat\tbi\tHP"
    "\nlan\t<ARR>\t\t\tHP"
    "\nhartu\t<ADI>\t\t\tHP\n";

// Operation i of the sequence, writing through to the dictionary's file.
void operate(HiztegiPertsonala& hp, int i) {
  switch (i % 4) {
    case 0: hp.gehitu_sarrera(true, "kaixo", "<ARR>", "", "", "HP"); break;
    case 1: hp.gehitu_sarrera(true, "mendi", "<ARR>", "gain", "", "HP"); break;
    case 2: hp.kendu_sarrera(true, "kaixo", "<ARR>"); break;
    default: hp.kendu_sarrera(true, "mendi", "<ARR>"); break;
  }
}

// The file's content before operation 0 and after each operation, when the
// sequence starts from `start`.
std::vector<std::string> expected_contents(const std::string& start) {
  testing::TempDir dir;
  const std::string path = dir.write("hiztegia.txt", start);
  HiztegiPertsonala hp(path);
  std::vector<std::string> contents{start};
  for (int i = 0; i < kOperations; ++i) {
    operate(hp, i);
    contents.push_back(testing::read_file(path));
  }
  return contents;
}

// The child: runs the sequence, telling the parent through the pipe after
// each operation, then waits to be killed.
[[noreturn]] void run_child(const std::string& path, int done_fd) {
  HiztegiPertsonala hp(path);
  for (int i = 0; i < kOperations; ++i) {
    operate(hp, i);
    (void)!write(done_fd, "x", 1);
  }
  for (;;) pause();
}

TEST(KillTest, FileIsAlwaysTheOldOrTheNewContent) {
  testing::TempDir dir;
  const std::string path = dir.write("hiztegia.txt", kBase);
  std::map<std::string, std::vector<std::string>> sequences;  // by start content
  std::mt19937 rng(20261123);
  std::uniform_int_distribution<int> delay(0, kMaxDelayMicroseconds);
  int completed_somewhere = 0;

  for (int round = 0; round < kKills; ++round) {
    const std::string start = testing::read_file(path);
    auto found = sequences.find(start);
    if (found == sequences.end()) found = sequences.emplace(start, expected_contents(start)).first;
    const std::vector<std::string>& contents = found->second;

    int pipe_fds[2];
    ASSERT_EQ(pipe(pipe_fds), 0);
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      close(pipe_fds[0]);
      run_child(path, pipe_fds[1]);
    }
    close(pipe_fds[1]);
    std::this_thread::sleep_for(std::chrono::microseconds(delay(rng)));
    kill(child, SIGKILL);
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    ASSERT_TRUE(WIFSIGNALED(status));

    // Operations reported done; the next one may or may not have reached
    // the file.
    int done = 0;
    char buffer[kOperations + 1];
    for (ssize_t n; (n = read(pipe_fds[0], buffer, sizeof buffer)) > 0;) done += static_cast<int>(n);
    close(pipe_fds[0]);
    ASSERT_LE(done, kOperations);
    completed_somewhere += done > 0;

    const std::string now = testing::read_file(path);
    const bool old_content = now == contents[static_cast<std::size_t>(done)];
    const bool new_content = done < kOperations && now == contents[static_cast<std::size_t>(done) + 1];
    ASSERT_TRUE(old_content || new_content)
        << "kill " << round << " after " << done << " operations left:\n[" << now << "]";

    HiztegiPertsonala reloaded(path);
    std::size_t base_words = 0;
    for (const HPsarrera* e : reloaded.sarrerak)
      base_words += e->lema == "etxe" || e->lema == "lan" || e->lema == "hartu";
    ASSERT_EQ(base_words, 3u) << "kill " << round;
  }
  // The kills must land inside the sequence, not only before it starts.
  EXPECT_GT(completed_somewhere, kKills / 4);
}

}  // namespace
}  // namespace tarvola

#endif
