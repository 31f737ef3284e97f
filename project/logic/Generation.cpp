#include "project/logic/Generation.h"

#include <iterator>

LogicProducts GenerateLogic() {
  LogicProducts products;
  for (const auto step : {GenerateCodes, GenerateCodeHeader, GenerateSources, GenerateProfile}) {
    LogicProducts made = step();
    products.insert(products.end(), std::make_move_iterator(made.begin()),
                    std::make_move_iterator(made.end()));
  }
  return products;
}
