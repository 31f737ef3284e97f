// The texts of a record by language: 0 and 1 select the first and the second, any other value the
// third.
#pragma once

#include <string_view>

#include "layout/Records.h"

std::string_view TextOf(const PTRNDATA& item, gint language);
std::string_view TitleOf(const PTRNHEDR& header, gint language);
