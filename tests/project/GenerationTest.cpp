// What generation tells of the files that it makes.
#include <gtest/gtest.h>

#include "project/check/Check.h"
#include "project/logic/Generation.h"
#include "tests/project/ProjectFixture.h"

namespace {

using enum ProductState;

class GenerationTest : public ProjectFixture {
 protected:
  void ExpectStates(const std::vector<ProductState>& states) const {
    const char* const files[] = {"project/PtrnCode", "project/PtrnFlag", "source/VarnixCode.h",
                                 "source/Plant.h",   "source/Plant.cpp", "source/Plant.ini"};
    const LogicProducts products = GenerateLogic();
    ASSERT_EQ(products.size(), std::size(files));
    for (std::size_t no = 0; no < products.size(); ++no) {
      EXPECT_EQ(products[no].Path, folder_.Path(files[no]));
      EXPECT_EQ(products[no].State, states[no]) << files[no];
    }
  }
};

TEST_F(GenerationTest, OwnSourcesAreKeptUntilALayoutComes) {
  WriteLayout("One", PTRNHEDR{}, {{"TEMP", 4}});
  ExpectStates({Written, Written, Written, Written, Written, Written});
  ExpectStates({Written, Written, Written, Kept, Kept, Written});
  WriteLayout("Two", PTRNHEDR{}, {});
  ExpectStates({Written, Written, Written, Kept, Written, Written});
}

TEST_F(GenerationTest, ASourceThatCannotBeReadHasFailed) {
  std::filesystem::create_directory(folder_.Path("source/Plant.cpp"));
  ExpectStates({Written, Written, Written, Written, Failed, Written});
}

TEST_F(GenerationTest, WithoutAProgramFolderItsFilesHaveFailed) {
  std::filesystem::remove(folder_.Path("source"));
  ExpectStates({Written, Written, Failed, Failed, Failed, Failed});
}

TEST_F(GenerationTest, WithoutARegistryThereAreNoFlags) {
  std::filesystem::create_directory(folder_.Path("project/PtrnCode"));
  ExpectStates({Failed, Failed, Failed, Written, Written, Written});
}

TEST_F(GenerationTest, FlagsThatCannotBeWrittenHaveFailed) {
  std::filesystem::create_directory(folder_.Path("project/PtrnFlag"));
  ExpectStates({Written, Failed, Written, Written, Written, Written});
}

TEST_F(GenerationTest, AnOpenLayoutStaysAsItIs) {
  WriteLayout("One", PTRNHEDR{}, {{"TEMP", 4}});
  PTRNDATA item{};
  item.ID_No = 77;
  AddPtrnData(&item);
  PtrnHedr.Parm1[1] = 640;
  GenerateLogic();
  ProjFileRenew(ProjPath);
  EXPECT_EQ(LoadCheckedProject().Layouts.size(), 1u);
  ASSERT_EQ(GetPtrnCount(), 1);
  EXPECT_EQ(+ViewPtrnData(0)->ID_No, 77);
  EXPECT_EQ(PtrnHedr.Parm1[1], 640);
}

}  // namespace
