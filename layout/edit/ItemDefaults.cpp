#include "layout/edit/ItemDefaults.h"

#include <array>
#include <utility>

#include "support/Profile.h"

namespace {

// Parm[0..3] are the points.
constexpr gsize FirstParm = 4;
constexpr gsize ParmCount = 26;
using Defaults = std::array<gint, ParmCount>;
using Indices = std::make_index_sequence<ParmCount>;

constexpr const gchar* Section = "PTRNDATA";
constexpr const gchar* Format = "iiiiiiiiiiiiiiiiiiiiiiiiii";

struct Key {
  gchar Name[16];
  explicit Key(gint type) { g_snprintf(Name, sizeof Name, "PTRN-%02d", type); }
};

template <gsize... Index>
void Read(const Key& key, Defaults& values, std::index_sequence<Index...> /*all*/) {
  ProfileRead1("", Section, key.Name, Format, &values[Index]...);
}

template <gsize... Index>
void Write(const Key& key, Defaults& values, std::index_sequence<Index...> /*all*/) {
  ProfileWrite1("", Section, key.Name, Format, &values[Index]...);
}

}  // namespace

void LoadItemDefaults(PTRNDATA* item) {
  Defaults values{};
  Read(Key(item->Type), values, Indices());
  for (gsize i = 0; i < ParmCount; ++i) item->Parm[FirstParm + i] = values[i];
}

void SaveItemDefaults(const PTRNDATA& item) {
  Defaults values{};
  for (gsize i = 0; i < ParmCount; ++i) values[i] = item.Parm[FirstParm + i];
  Write(Key(item.Type), values, Indices());
}
