// The open layout and its file.
#include "layout/Store.h"

LayoutReading ReadPtrnFile(const gchar* path, const gchar* name) {
  Layout layout;
  layout.Header = PtrnHedr;
  SwapPtrnData(layout.Items);
  const LayoutReading reading = ReadLayoutFile(path, name, layout);
  SwapPtrnData(layout.Items);
  PtrnHedr = layout.Header;
  return reading;
}

gint PtrnFileRead(const gchar* path, const gchar* name) {
  return ReadPtrnFile(path, name) == LayoutReading::Whole ? 1 : 0;
}

bool WritePtrnFile(const gchar* path, const gchar* name) {
  return WriteLayoutFile(path, name, PtrnHedr, ViewAllPtrnData());
}

void PtrnFileWrite(const gchar* path, const gchar* name) {
  WritePtrnFile(path, name);
}
