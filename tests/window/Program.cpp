#include "tests/window/Program.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>

#include "tests/window/Widgets.h"

namespace {

namespace fs = std::filesystem;

// The folder's name stands in the profile.
void ReplaceAll(std::string& text, const std::string& what, const std::string& with) {
  for (std::size_t at = text.find(what); at != std::string::npos;
       at = text.find(what, at + with.size())) {
    text.replace(at, what.size(), with);
  }
}

// The window that gets the keys, "" while none does. The manager's word alone does not tell: it may
// still name a window of a program that has ended, whose number the next program's window bears
// before it is shown.
std::string WindowWithKeyboard() {
  const std::string active = XDoTool({"getactivewindow"});
  return active == XDoTool({"getwindowfocus"}) ? active : "";
}

}  // namespace

ProgramFolder::ProgramFolder() {
  const fs::path built = fs::path(TEST_BUILD_DIR) / "VarnixMaster";
  fs::copy(built, folder_.Path(), fs::copy_options::recursive);
  std::string profile = folder_.Read("VarnixMaster.ini");
  ReplaceAll(profile, fs::canonical(built).string(), folder_.Path());
  folder_.Write("VarnixMaster.ini", profile);
}

RunningProgram::RunningProgram(const ProgramFolder& folder, const std::string& display) {
  const std::string errors = output_.Path("stderr");
  const std::string program = folder.Executable();
  pid_ = fork();
  if (pid_ > 0) setpgid(pid_, pid_);
  if (pid_ != 0) return;
  setpgid(0, 0);
  const int file = open(errors.c_str(), O_CREAT | O_WRONLY | O_TRUNC, 0600);
  dup2(file, STDERR_FILENO);
  if (!display.empty()) setenv("DISPLAY", display.c_str(), 1);
  execl(program.c_str(), program.c_str(), nullptr);
  _exit(127);
}

RunningProgram::~RunningProgram() {
  if (pid_ > 0 && !status_) {
    kill(pid_, SIGKILL);
    waitpid(pid_, nullptr, 0);
  }
  const std::string unexpected = asked_ ? "" : Complaints();
  EXPECT_EQ(unexpected, "");
}

bool RunningProgram::Activate(const std::string& title) const {
  // Asked for again: the manager gives the keyboard to a dialog above it as long as there is one.
  return WaitFor([&] {
    const std::string window = XDoTool({"search", "--all", "--onlyvisible", "--pid",
                                        std::to_string(pid_), "--name", "^" + title + "$"});
    if (window.empty()) return false;
    if (WindowWithKeyboard() == window) return true;
    XDoTool({"windowactivate", window});
    return false;
  });
}

std::optional<int> RunningProgram::Wait() {
  WaitFor([this] {
    int status = 0;
    if (!status_ && waitpid(pid_, &status, WNOHANG) == pid_) {
      status_ = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }
    return status_.has_value();
  });
  return status_;
}

std::string RunningProgram::Complaints() {
  asked_ = true;
  return output_.Exists("stderr") ? output_.Read("stderr") : "";
}

std::string XDoTool(const std::vector<std::string>& arguments) {
  std::vector<const gchar*> words = {"xdotool"};
  for (const std::string& argument : arguments) words.push_back(argument.c_str());
  words.push_back(nullptr);
  gchar* output = nullptr;
  g_spawn_sync(nullptr, const_cast<gchar**>(words.data()), nullptr,
               static_cast<GSpawnFlags>(G_SPAWN_SEARCH_PATH | G_SPAWN_STDERR_TO_DEV_NULL), nullptr,
               nullptr, &output, nullptr, nullptr, nullptr);
  std::string text = output != nullptr ? output : "";
  g_free(output);
  while (!text.empty() && text.back() == '\n') text.pop_back();
  return text;
}

bool WaitForTitle(const std::string& title) {
  return WaitFor([&] {
    const std::string window = WindowWithKeyboard();
    return !window.empty() && XDoTool({"getwindowname", window}) == title;
  });
}

void PressKeys(const std::vector<std::string>& keys) {
  for (const std::string& key : keys) XDoTool({"key", key});
}

void OpenFirstOfList() {
  // The row, and the third button after the list.
  PressKeys({"space", "Tab", "Tab", "Tab", "space"});
}
