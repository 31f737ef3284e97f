#include "layout/Store.h"

#include <vector>

namespace {

constexpr std::size_t FirstCapacity = 100;

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
  if (!IsStored(no)) return 0;
  *out = PtrnArray[static_cast<std::size_t>(no)];
  return 1;
}

gint SetPtrnData(gint no, const PTRNDATA* in) {
  if (!IsStored(no)) return 0;
  PtrnArray[static_cast<std::size_t>(no)] = *in;
  return 1;
}

void AddPtrnData(const PTRNDATA* in) {
  PtrnArray.push_back(*in);
}

void DelPtrnData(gint no) {
  if (IsStored(no)) PtrnArray.erase(PtrnArray.begin() + no);
}

gint DelPtrnDataIf(bool (*chosen)(const PTRNDATA* item)) {
  return static_cast<gint>(
      std::erase_if(PtrnArray, [chosen](const PTRNDATA& item) { return chosen(&item); }));
}

const PTRNDATA* ViewPtrnData(gint no) {
  return IsStored(no) ? &PtrnArray[static_cast<std::size_t>(no)] : nullptr;
}

std::span<const PTRNDATA> ViewAllPtrnData() {
  return PtrnArray;
}

std::span<PTRNDATA> ReachAllPtrnData() {
  return PtrnArray;
}

void SwapPtrnData(ItemArray& items) {
  PtrnArray.swap(items);
}
