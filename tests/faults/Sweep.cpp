#include "tests/faults/Sweep.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <string_view>
#include <utility>

namespace {

struct NamedError {
  int Number;
  const char* Name;
};
constexpr NamedError Errors[] = {{ENOSPC, "ENOSPC"}, {EIO, "EIO"},       {EROFS, "EROFS"},
                                 {EINTR, "EINTR"},   {EDQUOT, "EDQUOT"}, {EACCES, "EACCES"},
                                 {EMFILE, "EMFILE"}, {ENOMEM, "ENOMEM"}};

std::string NameOf(int error) {
  for (const NamedError& named : Errors) {
    if (named.Number == error) return named.Name;
  }
  return std::to_string(error);
}

const std::string* Find(const FolderImage& image, const std::string& name) {
  const auto found = image.find(name);
  return found == image.end() ? nullptr : &found->second;
}

bool Same(const std::string* one, const std::string* other) {
  return one == nullptr || other == nullptr ? one == other : *one == *other;
}

}  // namespace

bool IsTemporary(const std::string& name) {
  return name.find(".varnix-") != std::string::npos;
}

FolderImage WithoutSnapshots(FolderImage image) {
  std::erase_if(image, [](const auto& file) {
    return file.first.find("save/PtrnSave") != std::string::npos;
  });
  return image;
}

Sweep::Sweep(SweptWriter writer) : writer_(std::move(writer)) {
  writer_.Begin();
  before_ = writer_.Image();
  memoryBefore_ = writer_.Memory();
  FileCalls::Watch([this](const std::string& name, const std::string& path) {
    if (name == "open to write" && !writer_.InPlace) {
      EXPECT_TRUE(IsTemporary(path)) << path << " is written directly";
    }
    if (name == "rename") committed_.insert(BytesOf(path));
  });
  EXPECT_TRUE(writer_.Write());
  calls_ = FileCalls::Count();
  FileCalls::Heal();
  after_ = writer_.Image();
  memoryAfter_ = writer_.Memory();
  EXPECT_NE(before_, after_) << "a writer that changes nothing proves nothing";
}

void Sweep::FailEachCall(int error) {
  int call = 1;
  while (Run("call " + std::to_string(call) + " fails with " + NameOf(error), false,
             [&] { FileCalls::GoWrong(call, error); })) {
    ++call;
  }
}

void Sweep::FailFromEachCall(int error) {
  int call = 1;
  while (Run("from call " + std::to_string(call) + " on all fail with " + NameOf(error), true,
             [&] { FileCalls::GoWrong(call, error, FileCalls::Fault::Lasting); })) {
    ++call;
  }
}

void Sweep::CutEachWrite() {
  int write = 1;
  while (Run("write " + std::to_string(write) + " is cut short", false,
             [&] { FileCalls::GoWrong("pwrite", write, ENOSPC, FileCalls::Fault::Short); })) {
    ++write;
  }
}

void Sweep::FailWithEveryError() {
  for (const NamedError& error : Errors) FailEachCall(error.Number);
}

void Sweep::GoThroughDiskErrors() {
  for (const int error : {ENOSPC, EIO, EROFS, EINTR}) FailEachCall(error);
  CutEachWrite();
  FailFromEachCall(EIO);
}

bool Sweep::Run(const std::string& what, bool lasting, const std::function<void()>& arrange) {
  SCOPED_TRACE(what);
  writer_.Begin();
  arrange();
  const bool reported = writer_.Write();
  failed_ = FileCalls::Heal();
  SCOPED_TRACE("it was " + failed_);
  const FolderImage found = writer_.Image();
  ++runs_;
  CheckFiles(found, lasting);
  if (writer_.Reports) CheckReport(Accountable(found), reported);
  CheckMemory();
  if (failed_.empty()) {
    EXPECT_EQ(found, after_);
  } else if (writer_.Repeats) {
    writer_.Write();
    const FolderImage repeated = writer_.Image();
    for (const auto& [name, bytes] : after_) {
      EXPECT_TRUE(Same(Find(repeated, name), &bytes)) << name << " is not written later, either";
    }
  }
  return !failed_.empty() && !testing::Test::HasFailure();
}

void Sweep::CheckFiles(const FolderImage& found, bool temporary_may_stay) const {
  std::set<std::string_view> names;
  for (const FolderImage* image : {&before_, &after_, &found}) {
    for (const auto& [name, bytes] : *image) names.insert(name);
  }
  for (const std::string_view view : names) {
    const std::string name(view);
    if (IsTemporary(name)) {
      EXPECT_TRUE(temporary_may_stay) << name << " is left";
      continue;
    }
    const std::string* bytes = Find(found, name);
    const bool known = Same(bytes, Find(before_, name)) || Same(bytes, Find(after_, name)) ||
                       Same(bytes, Find(writer_.AlsoWhole, name)) ||
                       (bytes != nullptr && committed_.count(*bytes) > 0);
    EXPECT_TRUE(known) << name << " is neither old nor new";
    EXPECT_FALSE(bytes == nullptr && Find(before_, name) != nullptr &&
                 Find(after_, name) != nullptr)
        << name << " is gone";
  }
}

FolderImage Sweep::Accountable(FolderImage image) const {
  std::erase_if(image, [this](const auto& file) {
    return IsTemporary(file.first) || writer_.AlsoWhole.count(file.first) > 0;
  });
  return image;
}

void Sweep::CheckReport(const FolderImage& found, bool reported) const {
  if (reported) {
    EXPECT_EQ(found, Accountable(after_)) << "reported as written";
  } else if (failed_ != "fsync of the folder") {
    EXPECT_EQ(found, Accountable(before_)) << "reported as not written";
  }
}

void Sweep::CheckMemory() const {
  const std::string memory = writer_.Memory();
  EXPECT_TRUE(memory == memoryBefore_ || memory == memoryAfter_)
      << "the program holds something between";
}
