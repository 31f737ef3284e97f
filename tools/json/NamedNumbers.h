// Numbers of records under the names of their parameters, as `build` takes them.
#pragma once

#include "tools/json/Convert.h"
#include "tools/json/Json.h"

// Replaces the lists of parameters in what a file of this kind is shown as by objects of their
// names. A list stays when a number without a name in it is not 0.
void NameNumbers(FileKind kind, Json& shown);
