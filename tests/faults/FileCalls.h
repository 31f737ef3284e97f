// The file calls of this process. They stand before the C library's own, so that a test can have
// any of them fail, and see which there are. Nothing is passed on to a device: flushing does
// nothing.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace FileCalls {

// What becomes of the calls from the chosen one on.
enum class Fault {
  Once,     // that call fails
  Lasting,  // that call and all later ones fail
  Short,    // that call, if it writes, writes half, and there is no room any more
};

// The call of that number, counted from 1, is to go wrong with that error.
void GoWrong(int call, int error, Fault fault = Fault::Once);
// The same for calls of one name alone.
void GoWrong(const std::string& name, int call, int error, Fault fault = Fault::Once);
// A disk with room for that many more bytes.
void LeaveRoom(std::size_t bytes);
// A write takes at most that many bytes.
void WriteInPieces(std::size_t longest);
// The process is killed when that many calls that change a folder or a file have succeeded.
void KillBehind(int changes);
// No new file can be made, as in a folder that is write-protected; this fails no call that counts,
// and Heal leaves it.
void RefuseNewFiles(bool refuse);
// Is told each call that succeeded, with the path that it was about.
using Watcher = std::function<void(const std::string& name, const std::string& path)>;
void Watch(Watcher watcher);
// Meanwhile calls neither count nor go wrong.
void Pause(bool pause);
// Everything as usual again. The name of the first call that went wrong, "" when none did.
std::string Heal();
// Calls since something was arranged or the last Heal, and those of them that changed something.
int Count();
int Changes();

}  // namespace FileCalls
