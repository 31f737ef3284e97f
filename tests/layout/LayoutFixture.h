// An empty layout, and a folder for its file. Numbers behind the texts of a record lie at odd
// addresses, so tests compare them by value: "+item.ID_No".
#pragma once

#include <gtest/gtest.h>

#include <cstring>

#include "layout/Store.h"
#include "tests/common/Bytes.h"
#include "tests/common/TempFolder.h"

class LayoutFixture : public testing::Test {
 protected:
  void SetUp() override { Clear(); }
  void TearDown() override { Clear(); }

  static void Clear() {
    PtrnHedr = PTRNHEDR{};
    IntPtrnData();
  }
  static PTRNDATA ItemOfType(gint type) {
    PTRNDATA item{};
    item.Type = type;
    return item;
  }
  static PTRNDATA Item(gint no) {
    PTRNDATA item{};
    EXPECT_EQ(GetPtrnData(no, &item), 1) << "item " << no;
    return item;
  }
  gint Read() const { return PtrnFileRead(folder_.Path().c_str(), "Main"); }
  gint Read(std::string_view bytes) {
    Clear();
    folder_.Write("Main.ptn", bytes);
    return Read();
  }
  std::string Written() const {
    PtrnFileWrite(folder_.Path().c_str(), "Main");
    return folder_.Read("Main.ptn");
  }

  TempFolder folder_;
};

// A header with nothing in it but its counts.
inline Bytes HeaderWithCounts(gint items, gint texts, gint incomplete) {
  return Bytes().Int(1001).Zeros(450).Ints({items, texts, incomplete});
}
