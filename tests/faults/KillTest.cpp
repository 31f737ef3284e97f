// A program that is killed in the middle of its work leaves every file whole: each is as it was
// before, or as some finished write of the same work left it.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <iostream>
#include <map>
#include <random>
#include <set>

#include "ProjData.h"
#include "PtrnData.h"
#include "PtrnMisc.h"
#include "tests/faults/ProjectAtHand.h"
#include "tests/faults/Sweep.h"

namespace {

using Microseconds = std::chrono::microseconds;

class KillTest : public ProjectAtHand {
 protected:
  // Edits, saves and generates, each time something else.
  void Work(int turns) const {
    for (int turn = 1; turn <= turns; ++turn) {
      OpenScreen();
      AddItem(turn % 2 == 0 ? "EVEN" : "ODD");
      AddItem(("CODE" + std::string(1, static_cast<char>('A' + turn))).c_str());
      PtrnDataSave(nullptr, nullptr);
      AddItem("DROPPED");
      PtrnEditBack(nullptr, nullptr);
      PtrnDataExit();
      ChangeProject(turn);
      LogicDataEdit(nullptr, nullptr);
    }
  }
  // What a file may hold: its content at first and after each time that it was replaced.
  std::map<std::string, std::set<std::string>> Expected(int turns, Microseconds* time) const {
    std::map<std::string, std::set<std::string>> contents;
    for (const auto& [name, bytes] : Laid) contents[name].insert(bytes);
    const std::string folder = Folder.Path() + "/";
    Start();
    FileCalls::Watch([&](const std::string& name, const std::string& path) {
      if (name == "rename" && path.starts_with(folder)) {
        const std::string file = path.substr(folder.size());
        contents[file].insert(Folder.Read(file));
      }
    });
    Work(turns);
    FileCalls::Heal();
    if (time != nullptr) {
      Start();
      const auto begin = std::chrono::steady_clock::now();
      Work(turns);
      *time = std::chrono::duration_cast<Microseconds>(std::chrono::steady_clock::now() - begin);
    }
    return contents;
  }
  void Start() const {
    Restore();
    Open();
    PtrnDataExit();
  }
  // Every file must be there and hold one of its contents. Besides there may be snapshots of
  // the undo history and the temporary file of the write that was cut off.
  void CheckFiles(const std::map<std::string, std::set<std::string>>& expected) {
    const FolderImage found = WithoutSnapshots(Image());
    for (const auto& [name, bytes] : Laid) EXPECT_EQ(found.count(name), 1u) << name << " is gone";
    int temporaries = 0;
    for (const auto& [name, bytes] : found) {
      if (IsTemporary(name)) {
        ++temporaries;
        continue;
      }
      const auto contents = expected.find(name);
      ASSERT_NE(contents, expected.end()) << name << " is none of the program's files";
      EXPECT_EQ(contents->second.count(bytes), 1u) << name << " is not whole";
      Found.insert(name + bytes);
    }
    EXPECT_LE(temporaries, 1);
    Temporaries += temporaries;
    for (const char* layout : {"Screen", "Other"}) {
      EXPECT_EQ(CheckPtrnFile(ProjectFolder.c_str(), layout), LayoutFileState::Whole);
    }
  }

  std::set<std::string> Found;  // states of files that came up
  int Temporaries = 0;

 private:
  static void ChangeProject(int turn) {
    ProjData.Parm2[0] = turn;
    ColrData[5] = {turn, turn, turn};
    MarkData[5].mark[0] = static_cast<guint8>(turn);
    ProjFileWrite(ProjPath, ProjName);
    SaveColrFile();
    SaveMarkFile();
  }
};

unsigned Number(const char* variable, unsigned otherwise) {
  const char* wanted = std::getenv(variable);
  return wanted == nullptr ? otherwise : static_cast<unsigned>(std::strtoul(wanted, nullptr, 10));
}

void WaitFor(pid_t worker) {
  int status = 0;
  ASSERT_EQ(waitpid(worker, &status, 0), worker);
  ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL);
}

TEST_F(KillTest, EveryFileIsWholeAtEveryMoment) {
  constexpr int Turns = 3;
  Microseconds time{};
  const auto expected = Expected(Turns, &time);
  const unsigned seed = Number("VARNIX_KILL_SEED", std::random_device()());
  const unsigned rounds = Number("VARNIX_KILL_ROUNDS", 60);
  std::cout << "seed " << seed << ", " << rounds << " rounds within " << time.count() << " us\n";
  std::mt19937 random(seed);
  for (unsigned round = 0; round < rounds && !HasFailure(); ++round) {
    SCOPED_TRACE("round " + std::to_string(round) + " of seed " + std::to_string(seed));
    Start();
    const pid_t worker = fork();
    ASSERT_GE(worker, 0);
    if (worker == 0) {
      Work(Turns);
      for (;;) pause();
    }
    usleep(static_cast<useconds_t>(random() % static_cast<unsigned>(time.count() * 11 / 10)));
    kill(worker, SIGKILL);
    WaitFor(worker);
    CheckFiles(expected);
  }
  std::cout << Found.size() << " states of files found, " << Temporaries
            << " temporary files left\n";
  EXPECT_GT(Found.size(), Laid.size()) << "no worker came as far as writing";
}

// Not at random moments, but behind each call that changes a file or a folder.
TEST_F(KillTest, EveryFileIsWholeBehindEveryChange) {
  const auto expected = Expected(1, nullptr);
  Start();
  FileCalls::Heal();
  Work(1);
  const int changes = FileCalls::Changes();
  for (int change = 1; change <= changes && !HasFailure(); ++change) {
    SCOPED_TRACE("change " + std::to_string(change));
    Start();
    const pid_t worker = fork();
    ASSERT_GE(worker, 0);
    if (worker == 0) {
      FileCalls::KillBehind(change);
      Work(1);
      _exit(0);
    }
    WaitFor(worker);
    CheckFiles(expected);
  }
  std::cout << changes << " changes, " << Found.size() << " states of files found\n";
  EXPECT_GT(Temporaries, 0) << "no kill fell between making and renaming a file";
}

}  // namespace
