// Each code of `check` found by the real tool in a project on disk that has this one fault, with
// the layout, item and field that a reader is sent to.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <utility>
#include <vector>

#include "tests/common/TempFolder.h"
#include "tests/tools/Tool.h"

namespace {

using nlohmann::json;

// A layout of kind "other" with a white work area; each item of the list is put in as it is.
std::string Layout(const std::string& items, const std::string& header = "") {
  return R"({"Parm1":{"Kind":2,"Width":200,"Height":100,"WorkAreaColour":1)" + header +
         R"(},"PtrnName1":"Main","PtrnName2":"Main","Items":[)" + items + "]}";
}

// A parent window that looks as the project asks for.
std::string ParentWindow(const std::string& changes) {
  return R"({"Parm1":{"Kind":0,"Width":800,"Height":600,"TitleHeight":40,"TitleColour":0,
                      "TitleAreaColour":1,"WorkAreaColour":1)" +
         changes + "}";
}

const std::string Titles = R"(,"PtrnName1":"Main","PtrnName2":"Main"})";
const std::string Number = R"({"Type":"Numeric","ID_Code":"TEMP",
    "Parm":{"X1":10,"Y1":10,"Length":3,"BackColour":1}})";
const std::string TenDots = R"("X1":10,"Y1":10,"X2":30,"Y2":20)";

// Two languages, two colour systems; colour 0 is black, 1 white, 2 grey; mark 3 has a dot.
const std::vector<std::pair<std::string, std::string>> PlainProject = {
    {"Plant.prj", R"({"Parm1":[0,1,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0],
                      "Parm2":[40,0,1,0,0,0,0,0,0,0,0,1,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0],
                      "PtrnStart":"Main","PtrnStop":"Main"})"},
    {"PtrnColr", "[[0,0,0],[65535,65535,65535],[30000,30000,30000]]"},
    {"PtrnMark", R"([{"No":3,"Rows":["#"]}])"},
    {"PtrnCode", R"([{"ID_Code":"SYSTEM","DataCount":100},{"ID_Code":"TE MP","DataCount":1},
                     {"ID_Code":"TEMP","DataCount":2},{"ID_Code":"while","DataCount":1}])"},
    {"Main.ptn", Layout(Number)},
};

struct Case {
  const char* Code;
  const char* Fault;  // tells cases of one code apart
  const char* File;   // built from Source, in place of the plain one
  std::string Source;
  json Layout;
  json Item;
  const char* Field;
  bool Raw = false;  // Source is the file itself
};

void PrintTo(const Case& one, std::ostream* out) {
  *out << one.Code << " " << one.Fault;
}

std::string Project(const char* field, const std::string& value) {
  json project = json::parse(PlainProject[0].second);
  project[field] = value;
  return project.dump();
}

const Case Cases[] = {
    {"layout-unreadable", "CutShort", "Cut.ptn", "short", "Cut", nullptr, "", true},
    {"type-unknown", "SixteenthType", "Odd.ptn", "", "Odd", nullptr, "Type", true},
    {"screen-missing", "NoSuchLayout", "Main.ptn",
     Layout(R"({"Type":"Button","ID_Type":8,"ID_Name":"Gone","Parm":{"BorderWidth":1,)" + TenDots +
            "}}"),
     "Main", 0, "ID_Name"},
    {"screen-missing", "NoName", "Main.ptn",
     Layout(R"({"Type":"Button","ID_Type":5,"Parm":{"BorderWidth":1,)" + TenDots + "}}"), "Main", 0,
     "ID_Name"},
    {"start-missing", "NoSuchLayout", "Plant.prj", Project("PtrnStart", "Gone"), nullptr, nullptr,
     "PtrnStart"},
    {"start-missing", "NoneSet", "Plant.prj", Project("PtrnStart", ""), nullptr, nullptr,
     "PtrnStart"},
    {"stop-missing", "NoSuchLayout", "Plant.prj", Project("PtrnStop", "Gone"), nullptr, nullptr,
     "PtrnStop"},
    {"item-incomplete", "Marked", "Main.ptn",
     Layout(R"({"Type":"Rectangle","UndfFlag":1,"Parm":{"Width":1,)" + TenDots + "}}"), "Main", 0,
     "UndfFlag"},
    {"item-invalid", "WidthZero", "Main.ptn",
     Layout(R"({"Type":"Rectangle","Parm":{"Width":0,)" + TenDots + "}}"), "Main", 0, "Width"},
    {"item-invalid", "CornersShareACoordinate", "Main.ptn",
     Layout(R"({"Type":"Rectangle","Parm":{"Width":1,"X1":10,"Y1":10,"X2":10,"Y2":20}})"), "Main",
     0, "Point2"},
    {"item-outside", "FirstPoint", "Main.ptn",
     Layout(R"({"Type":"Numeric","ID_Code":"TEMP","Parm":{"X1":-10,"Y1":10,"Length":3}})"), "Main",
     0, "Point1"},
    {"item-outside", "SecondPoint", "Main.ptn",
     Layout(R"({"Type":"Rectangle","Parm":{"Width":1,"X1":10,"Y1":10,"X2":201,"Y2":20}})"), "Main",
     0, "Point2"},
    {"code-missing", "NumberWithout", "Main.ptn",
     Layout(R"({"Type":"Numeric","Parm":{"X1":10,"Y1":10,"Length":3,"BackColour":1}})"), "Main", 0,
     "ID_Code"},
    {"code-malformed", "Blank", "Main.ptn",
     Layout(R"({"Type":"Numeric","ID_Code":"TE MP","Parm":{"X1":10,"Y1":10,"Length":3}})"), "Main",
     0, "ID_Code"},
    {"code-reserved", "Keyword", "Main.ptn",
     Layout(R"({"Type":"Numeric","ID_Code":"while","Parm":{"X1":10,"Y1":10,"Length":3}})"), "Main",
     0, "ID_Code"},
    {"code-kind-mixed", "NumberAndCommand", "Main.ptn",
     Layout(Number + R"(,{"Type":"Button","ID_Type":1,"ID_Code":"TEMP",
                 "Parm":{"X1":60,"Y1":60,"X2":90,"Y2":90,"BorderWidth":1,"FaceColour":2}})"),
     "Main", 1, "ID_Code"},
    {"radio-number-double", "SameNumber", "Main.ptn",
     Layout(R"({"Type":"RadioButton","ID_Code":"TEMP","Parm":{"X1":10,"Y1":10,"Number":1}},
               {"Type":"RadioButton","ID_Code":"TEMP","Parm":{"X1":10,"Y1":40,"Number":1}})"),
     "Main", 1, "Number"},
    {"registry-behind", "CodeNotThere", "PtrnCode", R"([{"ID_Code":"SYSTEM","DataCount":100}])",
     "Main", 0, "ID_Code"},
    {"registry-behind", "TooFewSlots", "Main.ptn",
     Layout(R"({"Type":"Numeric","ID_Code":"TEMP","ID_No":2,
                "Parm":{"X1":10,"Y1":10,"Length":3}})"),
     "Main", 0, "ID_Code"},
    {"name-breaks-source", "Quote", "Say\"so.ptn", Layout(""), "Say\"so", nullptr, "PtrnName"},
    {"text-missing", "SecondLanguage", "Main.ptn",
     Layout(R"({"Type":"FixedString","Text1":"a","Parm":{"X1":10,"Y1":10,"Length":1}})"), "Main", 0,
     "Text2"},
    {"text-missing", "TitleInSecondLanguage", "Main.ptn",
     ParentWindow("") + R"(,"PtrnName1":"Main"})", "Main", nullptr, "PtrnName2"},
    {"text-unreadable", "NotEucJp", "Main.ptn", "", "Main", 0, "Text2", true},
    {"font-missing", "NoSuchNumber", "Main.ptn",
     Layout(R"({"Type":"Numeric","ID_Code":"TEMP","Parm":{"X1":10,"Y1":10,"Length":3,"Font":20}})"),
     "Main", 0, "Font"},
    {"text-overruns", "Layout", "Main.ptn",
     Layout(R"({"Type":"FixedString","Text1":"a","Text2":"thirty-five letters will not fit in",
                "Parm":{"X1":10,"Y1":10,"Length":1}})"),
     "Main", 0, "Text2"},
    {"text-overruns", "Button", "Main.ptn",
     Layout(R"({"Type":"Button","Text1":"too long a caption","Text2":"ok",
                "Parm":{"X1":10,"Y1":10,"X2":60,"Y2":40,"BorderWidth":1,"FaceColour":1}})"),
     "Main", 0, "Text1"},
    {"text-overruns", "TitleArea", "Main.ptn",
     Layout("", R"(,"TitleHeight":8,"TitleAreaColour":1)"), "Main", nullptr, "PtrnName1"},
    {"bitmap-missing", "NoFile", "Main.ptn",
     Layout(R"({"Type":"Bitmap","Text1":"gone.png","Parm":{)" + TenDots + "}}"), "Main", 0,
     "Text1"},
    {"bitmap-missing", "Background", "Main.ptn",
     R"({"Parm1":{"Kind":2,"Width":200,"Height":100,"WorkAreaColour":1},"PtrnName1":"Main",
         "BmapName":"gone.png"})",
     "Main", nullptr, "BmapName"},
    {"bitmap-unreadable", "NoPicture", "Main.ptn",
     Layout(R"({"Type":"Bitmap","Text1":"broken.png","Parm":{)" + TenDots + "}}"), "Main", 0,
     "Text1"},
    {"mark-empty", "NoDots", "Main.ptn",
     Layout(R"({"Type":"Mark","Parm":{"Mark":[3,4,4,4],"BackColour":1,)" + TenDots + "}}"), "Main",
     0, "Mark"},
    {"colour-vanishes", "TextOnWhite", "Main.ptn", Layout(R"({"Type":"Numeric","ID_Code":"TEMP",
                "Parm":{"X1":10,"Y1":10,"Length":3,"TextColour":1}})"),
     "Main", 0, "TextColour"},
    {"colour-vanishes", "Title", "Main.ptn",
     Layout("", R"(,"TitleHeight":40,"TitleColour":1,"TitleAreaColour":1)"), "Main", nullptr,
     "TitleColour"},
    {"look-differs", "TitleHeight", "Main.ptn", ParentWindow(R"(,"TitleHeight":41)") + Titles,
     "Main", nullptr, "TitleHeight"},
};

class SpoiltProject {
 protected:
  void BuildPlain() const {
    for (const auto& [file, source] : PlainProject) Build(file, source);
    folder_.Write("Bitmap/broken.png", "no picture");
  }
  // Puts the one fault in.
  void Spoil(const Case& one) const {
    if (one.Raw) {
      folder_.Write(one.File, Bytes(one));
    } else {
      Build(one.File, one.Source);
    }
  }
  void Build(const std::string& file, const std::string& source) const {
    const ToolRun run =
        RunTool({"build", folder_.Write("source.json", source), folder_.Path(file)});
    ASSERT_EQ(run.Code, 0) << run.Err;
    std::filesystem::remove(folder_.Path("source.json"));
  }
  // The findings without their messages.
  std::vector<json> Check() const {
    const ToolRun run = RunTool({"check", folder_.Path("Plant.prj"), "--json"});
    std::vector<json> findings;
    for (json finding : json::parse(run.Out)) {
      EXPECT_NE(finding["Message"], "");
      finding.erase("Message");
      finding.erase("Type");
      findings.push_back(finding);
    }
    EXPECT_EQ(run.Code, findings.empty() ? 0 : 1);
    return findings;
  }
  // The bytes of faults that no source can be written for.
  std::string Bytes(const Case& one) const {
    const std::string code = one.Code;
    if (code == "layout-unreadable") return one.Source;
    Build("Other.ptn", Layout(R"({"Type":"FixedString","Text1":"a","Text2":"??",
                                  "Parm":{"X1":10,"Y1":10,"Length":1}})"));
    std::string bytes = folder_.Read("Other.ptn");
    std::filesystem::remove(folder_.Path("Other.ptn"));
    if (code == "type-unknown") bytes[466] = 16;
    if (code == "text-unreadable") bytes.replace(bytes.find("??"), 2, "\xff\xfe");
    return bytes;
  }

  TempFolder folder_;
};

std::vector<json> OfCode(const std::string& code, const std::vector<json>& findings) {
  std::vector<json> found;
  for (const json& finding : findings) {
    if (finding["Code"] == code) found.push_back(finding);
  }
  return found;
}

class EveryFinding : public SpoiltProject, public testing::TestWithParam<Case> {};

// A fault is found by its own rule alone; what another finds besides is named here and nowhere
// else.
class OneFault : public SpoiltProject, public testing::Test {};

TEST_F(OneFault, IsFoundByItsRuleAlone) {
  BuildPlain();
  EXPECT_THAT(Check(), testing::IsEmpty());
  for (const Case& one : Cases) {
    for (const auto& entry : std::filesystem::directory_iterator(folder_.Path())) {
      std::filesystem::remove_all(entry.path());
    }
    BuildPlain();
    Spoil(one);
    for (const json& finding : Check()) {
      EXPECT_EQ(finding["Code"], one.Code) << one.Fault << ": " << finding;
    }
  }
}

TEST_P(EveryFinding, IsToldWithItsPlace) {
  const Case& one = GetParam();
  BuildPlain();
  ASSERT_THAT(OfCode(one.Code, Check()), testing::IsEmpty());
  Spoil(one);
  const json expected = {
      {"Code", one.Code}, {"Layout", one.Layout}, {"Item", one.Item}, {"Field", one.Field}};
  // Some faults show once for each language.
  EXPECT_THAT(OfCode(one.Code, Check()),
              testing::AllOf(testing::SizeIs(testing::Ge(1)), testing::Each(expected)));
}

INSTANTIATE_TEST_SUITE_P(Codes, EveryFinding, testing::ValuesIn(Cases), [](const auto& one) {
  std::string name = std::string(one.param.Code) + "_" + one.param.Fault;
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
});

}  // namespace
