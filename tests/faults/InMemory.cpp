// The folders of these tests lie in memory where there is some: a sweep lays out a whole project
// thousands of times, and a disk would take most of the run for making and removing its files.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

namespace {

class InMemory : public testing::Environment {
 public:
  void SetUp() override {
    if (std::filesystem::is_directory("/dev/shm")) setenv("TMPDIR", "/dev/shm", 0);
  }
};

const testing::Environment* const Memory = testing::AddGlobalTestEnvironment(new InMemory);

}  // namespace
