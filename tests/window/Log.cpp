#include "tests/window/Log.h"

#include <glib.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

std::vector<std::string> Complaints;

GLogWriterOutput Keep(GLogLevelFlags level, const GLogField* fields, gsize count,
                      gpointer /*data*/) {
  constexpr gint Bad = G_LOG_LEVEL_ERROR | G_LOG_LEVEL_CRITICAL | G_LOG_LEVEL_WARNING;
  if ((level & Bad) != 0) {
    gchar* text = g_log_writer_format_fields(level, fields, count, FALSE);
    Complaints.emplace_back(text);
    g_free(text);
  }
  return g_log_writer_default(level, fields, count, nullptr);
}

}  // namespace

void WatchLog() {
  g_log_set_writer_func(Keep, nullptr, nullptr);
}

void FailOnComplaints() {
  for (const std::string& text : Complaints) ADD_FAILURE() << "the toolkit complains: " << text;
  Complaints.clear();
}
