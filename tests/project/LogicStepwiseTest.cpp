// Code generation against a plain one that works step by step on the files: each code and each
// layout is entered by reading a file, changing one place and writing the file again.
#include <gtest/gtest.h>

#include <fstream>
#include <random>

#include "tests/project/ProjectFixture.h"

namespace {

namespace fs = std::filesystem;

using Entry = std::pair<std::string, gint>;  // a code, and its highest number + 1

// The step-by-step generation of one project folder into a program folder.
class Stepwise {
 public:
  Stepwise(std::string project, std::string program)
      : project_(std::move(project)), program_(std::move(program)) {}

  void Run() {
    WriteRegistry({{"SYSTEM", 100}});
    WriteFile(program_ + "/Plant.h", "#include\t<VarnixPack.h>\n#include\t\"VarnixCode.h\"\n");
    for (const fs::directory_entry& file : fs::directory_iterator(project_)) {
      if (file.path().extension() != ".ptn") continue;
      EnterCodes(ReadFile(file.path()));
      EnterLayout(file.path().stem());
    }
    WriteResults();
  }
  std::string Registry() const { return ReadFile(project_ + "/StepCode"); }
  std::string Flags() const { return ReadFile(project_ + "/StepFlag"); }

 private:
  static std::string ReadFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }
  static void WriteFile(const std::string& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
  }
  static gint IntAt(const std::string& bytes, std::size_t at) {
    gint value;
    std::memcpy(&value, bytes.data() + at, sizeof value);
    return value;
  }

  void WriteRegistry(const std::vector<Entry>& entries) const {
    Bytes bytes;
    for (const auto& [code, slots] : entries) bytes.Field(code, 22).Ints({slots, 0, 0});
    WriteFile(project_ + "/StepCode", bytes.Str());
  }
  std::vector<Entry> ReadRegistry() const {
    const std::string bytes = Registry();
    std::vector<Entry> entries;
    for (std::size_t at = 0; at < bytes.size(); at += 34) {
      entries.emplace_back(bytes.data() + at, IntAt(bytes, at + 22));
    }
    return entries;
  }
  void EnterCode(const std::string& code, gint number) const {
    if (code.empty()) return;
    std::vector<Entry> entries = ReadRegistry();
    for (Entry& entry : entries) {
      if (entry.first != code) continue;
      if (entry.second < number + 1) {
        entry.second = number + 1;
        WriteRegistry(entries);
      }
      return;
    }
    std::size_t place = 1;
    while (place < entries.size() && entries[place].first < code) ++place;
    entries.emplace(entries.begin() + static_cast<std::ptrdiff_t>(place), code, number + 1);
    WriteRegistry(entries);
  }
  // The codes of a layout file: the fifth text of each item, and the number in its record.
  void EnterCodes(const std::string& layout) const {
    const gint count = IntAt(layout, 454);
    std::size_t text = 466 + 136 * static_cast<std::size_t>(count);
    for (gint item = 0; item < count; ++item) {
      std::string code;
      for (gint skipped = 0; skipped < 5; ++skipped) {
        code = layout.c_str() + text;
        text += code.size() + 1;
      }
      EnterCode(code, IntAt(layout, 466 + 136 * static_cast<std::size_t>(item) + 128));
    }
  }
  void EnterLayout(const std::string& layout) const {
    const std::string path = program_ + "/Plant.cpp";
    std::istringstream source(ReadFile(path));
    std::string edited;
    int state = 0;
    for (std::string line; std::getline(source, line);) {
      if (state == 0 && line.find("GetPtrnWnd") != std::string::npos) {
        state = 1;
      } else if (state == 1 && line.find(layout) != std::string::npos) {
        state = 2;
      } else if (state == 1 && line.find("return NULL;") != std::string::npos) {
        state = 2;
        std::string added = "\tif (strcmp(name, \"" + layout + "\")";
        added.append(added.size() <= 52 ? 52 - added.size() : 2, ' ');
        edited += added + " == 0) return (new CPtrnDisp());\n";
      }
      edited += line + "\n";
    }
    WriteFile(path, edited);
  }
  void WriteResults() const {
    Bytes registry;
    std::string header;
    gint first = 0;
    for (const auto& [code, slots] : ReadRegistry()) {
      registry.Field(code, 22).Ints({slots, first, 0});
      header +=
          "#define     " + code + std::string(24 - code.size(), ' ') + std::to_string(first) + "\n";
      first += slots;
    }
    WriteFile(project_ + "/StepCode", registry.Str());
    WriteFile(project_ + "/StepFlag", std::string(static_cast<std::size_t>(first), '\0'));
    WriteFile(program_ + "/VarnixCode.h", header);
  }

  std::string project_;
  std::string program_;
};

class LogicStepwiseTest : public ProjectFixture {
 protected:
  gint Below(gint limit) { return static_cast<gint>(random_() % static_cast<unsigned>(limit)); }

  std::string SomeCode(gint codes) {
    const gint number = Below(codes + 2);
    if (number == codes) return "";
    if (number == codes + 1) return "SYSTEM";
    // Codes of several lengths, some the beginnings of others, up to what the field holds.
    return std::string(1, static_cast<char>('A' + number % 3 * 16)) +
           std::string(static_cast<std::size_t>(number % 14), '_') + std::to_string(number);
  }
  // Names that are parts of others count as entered already.
  std::string SomeName() {
    static const char* const parts[] = {"Pump",   "Tank", "Alarm",
                                        "1",      "2",    " of all waterworks",
                                        "return", "NULL", "\xA5\xDD\xA5\xF3\xA5\xD7"};
    std::string name;
    for (gint count = 1 + Below(3); count > 0; --count) name += parts[Below(8)];
    return name;
  }
  void WriteSomeLayout(gint items, gint codes) {
    IntPtrnData();
    for (gint item = 0; item < items; ++item) {
      PTRNDATA data{};
      data.Type = 1 + Below(15);
      CopyText(data.Text1, std::string(static_cast<std::size_t>(Below(100)), 't'));
      CopyText(data.ID_Name, std::string(static_cast<std::size_t>(Below(80)), 'n'));
      CopyText(data.ID_Code, SomeCode(codes));
      data.ID_No = Below(6) == 0 ? Below(10000) : Below(12);
      AddPtrnData(&data);
    }
    ASSERT_TRUE(WritePtrnFile(ProjPath, SomeName().c_str()));
    ExtPtrnData();
  }
  void Generate() {
    LogicDataEdit1();
    LogicDataEdit2();
    LogicDataEdit3();
  }
  // Both ways give the same bytes; a source that is there is the beginning of both.
  void ExpectSame() {
    const std::string source =
        folder_.Exists("source/Plant.cpp") ? folder_.Read("source/Plant.cpp") : EmptySource;
    Generate();
    folder_.Write("step/Plant.cpp", source);
    Stepwise plain(ProjectFolder(), folder_.Path("step"));
    plain.Run();
    EXPECT_EQ(folder_.Read("project/PtrnCode"), plain.Registry());
    EXPECT_EQ(folder_.Read("project/PtrnFlag"), plain.Flags());
    for (const char* file : {"VarnixCode.h", "Plant.h", "Plant.cpp"}) {
      EXPECT_EQ(folder_.Read(std::string("source/") + file),
                folder_.Read(std::string("step/") + file));
    }
  }

  static constexpr const char* EmptySource =
      "#include\t\"Plant.h\"\n#include\t<string.h>\n\n\n"
      "BOOL  UserInit ()\n{\n\treturn TRUE;\n}\n\n\n"
      "void  UserExit ()\n{\n}\n\n\n"
      "void  UserTimr ()\n{\n}\n\n\n"
      "CPtrnDisp*  GetPtrnWnd (const char* name)\n{\n\treturn NULL;\n}\n";

  std::mt19937 random_{340};
};

TEST_F(LogicStepwiseTest, RandomProjectsAreTheSameToTheByte) {
  for (gint project = 0; project < 20; ++project) {
    SCOPED_TRACE(project);
    fs::remove_all(folder_.Path("project"));
    fs::create_directory(folder_.Path("project"));
    fs::remove_all(folder_.Path("source"));
    fs::create_directory(folder_.Path("source"));
    const gint codes = 1 + Below(80);
    for (gint layout = Below(12); layout > 0; --layout) WriteSomeLayout(1 + Below(40), codes);
    ASSERT_NO_FATAL_FAILURE(ExpectSame());
    // Layouts that come later are entered into the source that is there.
    for (gint layout = Below(4); layout > 0; --layout) WriteSomeLayout(1 + Below(20), codes + 10);
    ASSERT_NO_FATAL_FAILURE(ExpectSame());
    if (HasFailure()) return;
  }
}

}  // namespace
