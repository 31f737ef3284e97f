#include "project/check/Rules.h"
#include "support/Text.h"

void FindingList::AddProject(std::string field, std::string message) {
  findings_.push_back({code_, "", -1, 0, std::move(field), std::move(message)});
}

void FindingList::AddLayout(const CheckedLayout& layout, std::string field, std::string message) {
  findings_.push_back(
      {code_, DisplayText(layout.Name), -1, 0, std::move(field), std::move(message)});
}

void FindingList::AddItem(const CheckedLayout& layout, const PTRNDATA& item, std::string field,
                          std::string message) {
  const auto no = static_cast<gint>(&item - layout.Items.data());
  findings_.push_back(
      {code_, DisplayText(layout.Name), no, item.Type, std::move(field), std::move(message)});
}

void FindingList::AddFile(const std::string& name, std::string message) {
  findings_.push_back({code_, DisplayText(name), -1, 0, "", std::move(message)});
}
