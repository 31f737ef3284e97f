// A program folder with its profile, and a project in a folder of its own.
#pragma once

#include <gtest/gtest.h>

#include <cstring>

#include "ProjData.h"
#include "PtrnMisc.h"
#include "layout/Store.h"
#include "tests/common/Bytes.h"
#include "tests/common/TempFolder.h"

class ProjectFixture : public testing::Test {
 protected:
  void SetUp() override {
    for (const char* folder : {"program", "project", "source"}) {
      std::filesystem::create_directory(folder_.Path(folder));
    }
    std::strcpy(PathName, folder_.Path("program").c_str());
    std::strcpy(ProjPath, folder_.Path("project").c_str());
    std::strcpy(ProjName, "Plant");
    ProjData = PROJDATA{};
    std::strcpy(ProjData.ProgPath, folder_.Path("source").c_str());
    PtrnHedr = PTRNHEDR{};
    ExtPtrnData();
  }
  void TearDown() override {
    PathName[0] = ProjPath[0] = ProjName[0] = '\0';
    ProjData = EditData = PROJDATA{};
    PtrnHedr = PTRNHEDR{};
    ExtPtrnData();
  }

  void WriteProfile(std::string_view text) const {
    folder_.Write("program/VarnixMaster.ini", text);
  }
  std::string Profile() const { return folder_.Read("program/VarnixMaster.ini"); }
  std::string ProjectFolder() const { return folder_.Path("project"); }

  // A layout of the project with this header and items of type 1 with these codes and numbers.
  static void WriteLayout(const gchar* name, const PTRNHEDR& header,
                          std::initializer_list<std::pair<const char*, gint>> items) {
    PtrnHedr = header;
    IntPtrnData();
    for (const auto& [code, number] : items) {
      PTRNDATA item{};
      item.Type = 1;
      std::strcpy(item.ID_Code, code);
      item.ID_No = number;
      AddPtrnData(&item);
    }
    ASSERT_TRUE(WritePtrnFile(ProjPath, name));
    ExtPtrnData();
    PtrnHedr = PTRNHEDR{};
  }

  TempFolder folder_;
};
