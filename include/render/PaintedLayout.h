// The picture of the open layout, kept up to date at the cost of what changed.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "layout/Records.h"
#include "render/ShownPictures.h"
#include "render/Surface.h"

class PaintedLayout {
 public:
  // Paints the open layout into `picture`, which must be the same picture each time, and tells
  // which boxes were painted. When nothing but a few items changed since the last call, these are
  // the boxes that their old and new looks take, and that of the clock where it has moved on. A
  // picture file that is shown and has changed on disk has the whole painted, and so has a call
  // without any change.
  std::vector<DrawnBox> Paint(Drawable& picture);

 private:
  // What the title area shows of the time, and where.
  struct Clock {
    std::string Text;
    DrawnBox Box;
  };
  static Clock PresentClock(const Drawable& picture);

  // None: the whole.
  std::optional<std::vector<DrawnBox>> ChangedBoxes(const Drawable& picture,
                                                    const std::string& look,
                                                    const Clock& clock) const;
  void Remember(std::string look, Clock clock);

  bool painted_ = false;
  std::string look_;  // all that the picture shows besides the items and what is on disk
  ShownPictures pictures_;
  Clock clock_;
  std::vector<PTRNDATA> items_;
};
