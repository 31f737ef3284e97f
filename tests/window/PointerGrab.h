// The pointer in the hands of another program.
#pragma once

#include <memory>

class PointerGrab {
 public:
  PointerGrab();
  ~PointerGrab();
  PointerGrab(const PointerGrab&) = delete;
  PointerGrab& operator=(const PointerGrab&) = delete;
  // Whether the display let it have the pointer.
  bool Holds() const { return holds_; }

 private:
  struct Connection;
  std::unique_ptr<Connection> other_;
  bool holds_;
};
