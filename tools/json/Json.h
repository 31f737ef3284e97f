// JSON as this library prints and reads it.
#pragma once

#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string>

// What is printed keeps the order in which it was filled in.
using Json = nlohmann::ordered_json;
// What is read is looked up by key, so that a source with very many keys stays quick.
using JsonSource = nlohmann::json;

// What is wrong with a file or a source. Thrown inside this library only; Convert.h catches it.
struct SourceError : std::runtime_error {
  using std::runtime_error::runtime_error;
  SourceError(const std::string& place, const std::string& reason)
      : std::runtime_error(place + ": " + reason) {}
};

// Lists of numbers stand on one line; of other lists each entry, of objects each key on its own.
std::string PrintJson(const Json& json);
