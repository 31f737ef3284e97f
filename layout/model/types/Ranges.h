// What the numbers of parameters stand for, in the words of their tables.
#pragma once

#include "layout/Parameters.h"
#include "support/ConstantLists.h"
#include "support/Resource.h"

namespace Ranges {

// Any of the texts of a list that ends with "".
template <std::size_t Size>
constexpr ValueRange ChoiceOf(const gchar* const (&values)[Size]) {
  return {Unit::Choice, 0, static_cast<gint>(Size) - 2, values};
}

inline constexpr const gchar* SwitchTexts[] = {"オフ", "オン", ""};

inline constexpr ValueRange Switch = ChoiceOf(SwitchTexts);
inline constexpr ValueRange Colour{Unit::Colour, 0, ColrCount - 1};
inline constexpr ValueRange Font{Unit::Font, 0, FontCount - 1};
inline constexpr ValueRange Mark{Unit::Mark, 0, MarkCount - 1};
inline constexpr ValueRange Thickness{Unit::Dots, 0, 99};

// What layouts and the common look of a project have alike.
inline constexpr const gchar* TitlePositionTexts[] = {"左端", "中央", ""};
inline constexpr const gchar* MouseCursorTexts[] = {"矢印", "十字", "砂時計", ""};
inline constexpr ValueRange TitlePosition = ChoiceOf(TitlePositionTexts);
inline constexpr ValueRange MouseCursor = ChoiceOf(MouseCursorTexts);
inline constexpr ValueRange GridInterval = ChoiceOf(GridIntvList);
inline constexpr ValueRange LayoutDots{Unit::Dots, 10, 9999};

}  // namespace Ranges
