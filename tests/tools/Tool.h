// Runs the real tool.
#pragma once

#include <glib.h>
#include <sys/wait.h>

#include <stdexcept>
#include <string>
#include <vector>

struct ToolRun {
  int Code = -1;  // exit code, -1 when it crashed
  std::string Out;
  std::string Err;
};

// Runs `varnixtool ARGUMENTS...` in `folder`.
inline ToolRun RunTool(std::vector<std::string> arguments, const std::string& folder = "/") {
  arguments.insert(arguments.begin(), TOOL_PATH);
  std::vector<gchar*> argv;
  for (std::string& argument : arguments) argv.push_back(argument.data());
  argv.push_back(nullptr);
  gchar* out = nullptr;
  gchar* err = nullptr;
  gint status = 0;
  if (!g_spawn_sync(folder.c_str(), argv.data(), nullptr, G_SPAWN_DEFAULT, nullptr, nullptr, &out,
                    &err, &status, nullptr)) {
    throw std::runtime_error("the tool does not start");
  }
  ToolRun run{WIFEXITED(status) ? WEXITSTATUS(status) : -1, out, err};
  g_free(out);
  g_free(err);
  return run;
}
