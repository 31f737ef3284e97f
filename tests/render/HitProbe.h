// Points to press and the hit code expected there.
#pragma once

#include <gtest/gtest.h>

#include "layout/ItemSlots.h"
#include "render/HitTest.h"

struct Probe {
  gint X;
  gint Y;
  gint Code;
};

inline PTRNDATA TwoPoints(gint type, gint x1, gint y1, gint x2, gint y2) {
  PTRNDATA item{};
  item.Type = type;
  item.Point1 = {x1, y1};
  item.Point2 = {x2, y2};
  return item;
}

template <std::size_t Count>
void Check(const PTRNDATA& item, const Probe (&probes)[Count]) {
  for (const Probe& probe : probes) {
    const POINT point{probe.X, probe.Y};
    EXPECT_EQ(SearchPtrnData(&point, &item), probe.Code) << "at " << probe.X << ", " << probe.Y;
  }
}
