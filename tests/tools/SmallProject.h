// A small project built by the tool itself, for the commands that take a project.
#pragma once

#include "tests/common/TempFolder.h"
#include "tests/tools/Tool.h"

class SmallProject {
 public:
  SmallProject() {
    Build("project", "Plant.prj",
          R"({"Parm1":[0,1,1,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0],"PtrnStart":"日本",)"
          R"("ProgPath":")" +
              folder_.Path("program") + "\"}");
    // Colour 1 red, 2 green, 3 blue; colour 0 black.
    Build("palette", "PtrnColr", "[[0,0,0],[65535,0,0],[0,65535,0],[0,0,65535]]");
    Build("layout", "日本.ptn",
          R"({"Parm1":{"Kind":2,"Width":40,"Height":30,"WorkAreaColour":1},
              "Parm2":{"GridX":5,"GridY":5,"GridColour":3},"PtrnName1":"日本",
              "Items":[
                {"Type":"Rectangle","Parm":{"X1":10,"Y1":10,"X2":30,"Y2":20,"FillColour":2,
                                            "LineColour":2,"Filled":1}},
                {"Type":"Button","ID_Code":"GO","ID_No":4,"ID_Type":1,"UndfFlag":1,
                 "Parm":{"X1":10,"Y1":10,"X2":30,"Y2":20,"FaceColour":3}}]})");
    Build("layout", "empty.ptn",
          R"({"Parm1":{"Kind":1,"Width":12,"Height":10,"WorkAreaColour":3}})");
  }

  const TempFolder& Folder() const { return folder_; }
  std::string File() const { return folder_.Path("Plant.prj"); }

 private:
  void Build(const char* source, const char* file, const std::string& json) {
    const std::string path = folder_.Write(std::string(source) + ".json", json);
    const ToolRun run = RunTool({"build", "--euc-name", path, folder_.Path(file)});
    if (run.Code != 0) throw std::runtime_error(run.Err);
  }

  TempFolder folder_;
};
