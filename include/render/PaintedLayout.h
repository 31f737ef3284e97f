// The picture of the open layout, kept up to date at the cost of what changed.
#pragma once

#include <string>
#include <vector>

#include "layout/Records.h"
#include "render/Surface.h"

class PaintedLayout {
 public:
  // Paints the open layout into `picture`, which must be the same picture each time, and tells
  // which boxes were painted. When nothing but a few items changed since the last call, these are
  // the boxes that their old and new looks take, and that of the clock where it has moved on. A
  // call without any change paints the whole: it is how picture files that changed on disk are
  // brought up to date.
  std::vector<DrawnBox> Paint(Drawable& picture);

 private:
  // What the title area shows of the time, and where.
  struct Clock {
    std::string Text;
    DrawnBox Box;
  };
  static Clock PresentClock(const Drawable& picture);

  std::vector<DrawnBox> ChangedBoxes(const Drawable& picture, const std::string& look,
                                     const Clock& clock) const;
  void Remember(std::string look, Clock clock);

  bool painted_ = false;
  std::string look_;  // all that the picture shows besides the items and what is on disk
  Clock clock_;
  std::vector<PTRNDATA> items_;
};
