// A program that is killed in the middle of its work leaves every file whole.
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <iostream>
#include <random>
#include <set>

#include "PtrnData.h"
#include "edit/EditFixture.h"

namespace {

class KillTest : public EditFixture {
 protected:
  static constexpr int MostItems = 8;

  // Registers one more line and saves the layout.
  static void EditAndSave(int turn) {
    PtrnData = MakeValidItem(TypeLine, 10, 20 + turn, 50, 60);
    PtrnNo = -1;
    ToolBoxButn(nullptr, Entry(0));
    PtrnDataSave(nullptr, nullptr);
  }
  // The same layouts over and over: one item, two, … and from the start again.
  static void WorkUntilKilled() {
    for (;;) {
      IntPtrnData();
      for (int turn = 0; turn < MostItems; ++turn) EditAndSave(turn);
    }
  }
};

int Rounds() {
  const char* wanted = std::getenv("VARNIX_KILL_ROUNDS");
  return wanted == nullptr ? 60 : std::atoi(wanted);
}

TEST_F(KillTest, TheLayoutIsAlwaysOneThatWasSaved) {
  IntPtrnData();
  std::set<std::string> saved;
  for (int turn = 0; turn < MostItems; ++turn) {
    EditAndSave(turn);
    saved.insert(Folder.Read("project/Screen.ptn"));
  }
  ASSERT_EQ(saved.size(), static_cast<std::size_t>(MostItems));
  const unsigned seed = std::random_device()();
  std::cout << "seed " << seed << std::endl;
  std::mt19937 random(seed);
  std::set<std::string> found;
  for (int round = 0; round < Rounds(); ++round) {
    const pid_t worker = fork();
    ASSERT_GE(worker, 0);
    if (worker == 0) {
      WorkUntilKilled();
    }
    usleep(random() % 20000);
    kill(worker, SIGKILL);
    waitpid(worker, nullptr, 0);
    const std::string layout = Folder.Read("project/Screen.ptn");
    ASSERT_EQ(saved.count(layout), 1u) << "round " << round;
    found.insert(layout);
  }
  EXPECT_GT(found.size(), 1u) << "no worker came as far as saving";
}

}  // namespace
