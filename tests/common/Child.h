// Runs part of a test in a process of its own, which may change its limits or its user.
#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <functional>

// True when `part` returned true there; false, too, when the child was killed by a signal.
inline bool HoldsInChild(const std::function<bool()>& part) {
  const pid_t child = fork();
  if (child == 0) _exit(part() ? 0 : 1);
  int status = 0;
  return child > 0 && waitpid(child, &status, 0) == child && WIFEXITED(status) &&
         WEXITSTATUS(status) == 0;
}

// The same under a user whom file permissions bind, which root is not.
inline bool HoldsForPlainUser(const std::function<bool()>& part) {
  constexpr id_t Nobody = 65534;
  return HoldsInChild([&part] {
    if (geteuid() == 0 && (setgid(Nobody) != 0 || setuid(Nobody) != 0)) return false;
    return part();
  });
}
