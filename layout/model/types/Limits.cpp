#include "layout/Parameters.h"

namespace {

bool Counts(const Condition& condition, std::span<const gint> values) {
  return condition.Slot == NoSlot ||
         (values[static_cast<gsize>(condition.Slot)] != 0) == condition.Set;
}

bool IsOutside(const Parameter& parameter, const Limit& limit, std::span<const gint> values) {
  for (gint slot = parameter.Slot; parameter.Holds(slot); ++slot) {
    if (const gint value = values[static_cast<gsize>(slot)];
        value < limit.Least || value > limit.Most) {
      return true;
    }
  }
  return false;
}

}  // namespace

BrokenLimit FindBrokenLimit(std::span<const Parameter> parameters, std::span<const gint> values) {
  BrokenLimit first;
  for (const Parameter& parameter : parameters) {
    for (const Limit& limit : parameter.Limits) {
      if (limit.IsSet() && (first.By == nullptr || limit.Message < first.By->Message) &&
          IsOutside(parameter, limit, values) && Counts(limit.Counts, values)) {
        first = {&parameter, &limit};
      }
    }
  }
  return first;
}
