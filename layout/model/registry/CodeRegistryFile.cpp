#include "layout/ProjectRecord.h"
#include "layout/Registry.h"
#include "layout/model/registry/RecordFile.h"

std::optional<std::vector<PTRNCODE>> LoadPtrnCode() {
  auto registry = ReadRecords<PTRNCODE>(ProjPath, CodeRegistryName);
  if (registry) {
    for (PTRNCODE& record : *registry) record.ID_Code[sizeof record.ID_Code - 1] = '\0';
  }
  return registry;
}

std::vector<PTRNCODE> ReadPtrnCode() {
  return LoadPtrnCode().value_or(std::vector<PTRNCODE>());
}

gint WritePtrnCode(const std::vector<PTRNCODE>& registry) {
  return WriteRecords(ProjPath, CodeRegistryName, registry);
}

void RegstPtrnCode(const gchar* code, gint no) {
  std::optional<std::vector<PTRNCODE>> registry = LoadPtrnCode();
  if (!registry) return;
  bool changed = false;
  if (registry->empty()) {
    registry->push_back(SystemCode());
    changed = true;
  }
  if (RegisterCode(*registry, code, no)) changed = true;
  if (changed) WritePtrnCode(*registry);
}
