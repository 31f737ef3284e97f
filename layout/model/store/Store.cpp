#include "layout/Store.h"

#include <algorithm>
#include <cstring>
#include <vector>

#include "support/BareMemory.h"

namespace {

constexpr std::size_t FirstCapacity = 100;

using ItemArray = std::vector<PTRNDATA, BareMemory<PTRNDATA>>;

ItemArray PtrnArray;

bool IsStored(gint no) {
  return no >= 0 && static_cast<std::size_t>(no) < PtrnArray.size();
}

}  // namespace

void IntPtrnData() {
  PtrnArray.clear();
  PtrnArray.reserve(FirstCapacity);
}

void ExtPtrnData() {
  ItemArray().swap(PtrnArray);
}

gint GetPtrnCount() {
  return static_cast<gint>(PtrnArray.size());
}

gint GetPtrnData(gint no, PTRNDATA* out) {
  if (!IsStored(no)) {
    return 0;
  }
  *out = PtrnArray[static_cast<std::size_t>(no)];
  return 1;
}

gint SetPtrnData(gint no, const PTRNDATA* in) {
  if (!IsStored(no)) {
    return 0;
  }
  PtrnArray[static_cast<std::size_t>(no)] = *in;
  return 1;
}

void AddPtrnData(const PTRNDATA* in) {
  PtrnArray.push_back(*in);
}

PTRNDATA* AddEmptyPtrnData(gint count) {
  const std::size_t before = PtrnArray.size();
  PtrnArray.resize(before + static_cast<std::size_t>(count));
  PTRNDATA* first = PtrnArray.data() + before;
  std::memset(first, 0, static_cast<std::size_t>(count) * sizeof *first);
  return first;
}

void DropFirstPtrnData(gint count) {
  PtrnArray.erase(PtrnArray.begin(), PtrnArray.begin() + std::min(count, GetPtrnCount()));
}

void DropLastPtrnData(gint count) {
  PtrnArray.resize(PtrnArray.size() - std::min(PtrnArray.size(), static_cast<std::size_t>(count)));
}

void MakeRoomForPtrnData(gint count) {
  PtrnArray.reserve(PtrnArray.size() + static_cast<std::size_t>(count));
}

void DelPtrnData(gint no) {
  if (IsStored(no)) {
    PtrnArray.erase(PtrnArray.begin() + no);
  }
}

gint DelPtrnDataIf(bool (*chosen)(const PTRNDATA* item)) {
  return static_cast<gint>(
      std::erase_if(PtrnArray, [chosen](const PTRNDATA& item) { return chosen(&item); }));
}

const PTRNDATA* ViewPtrnData(gint no) {
  return IsStored(no) ? &PtrnArray[static_cast<std::size_t>(no)] : nullptr;
}
