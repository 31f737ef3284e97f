#include "ProjData.h"
#include "PtrnMisc.h"
#include "layout/Registry.h"
#include "layout/model/RecordFile.h"

namespace {

constexpr gchar RegistryName[] = "PtrnCode";

}  // namespace

std::vector<PTRNCODE> ReadPtrnCode() {
  std::vector<PTRNCODE> registry = ReadRecords<PTRNCODE>(ProjPath, RegistryName);
  for (PTRNCODE& record : registry) {
    record.ID_Code[sizeof record.ID_Code - 1] = '\0';
  }
  return registry;
}

gint WritePtrnCode(const std::vector<PTRNCODE>& registry) {
  return WriteRecords(ProjPath, RegistryName, registry);
}

void RegstPtrnCode(const gchar* code, gint no) {
  bool changed = false;
  std::vector<PTRNCODE> registry = ReadPtrnCode();
  if (registry.empty()) {
    if (HoldsRecords<PTRNCODE>(ProjPath, RegistryName)) {
      return;  // there, but it cannot be read: better no entry than a lost registry
    }
    registry.push_back(SystemCode());
    changed = true;
  }
  if (RegisterCode(registry, code, no)) {
    changed = true;
  }
  if (changed) {
    WritePtrnCode(registry);
  }
}
