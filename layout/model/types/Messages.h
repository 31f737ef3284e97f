// What the validation of an item finds wrong, as indexes into ErrorMessage.
#pragma once

enum Message {
  Valid = -1,
  PointError = 0,
  NumberRange = 1,
  CodeMissing = 2,
  LayoutNameMissing = 3,
  WidthRange = 4,
  LineWidthRange = 5,
  LimitsCrossed = 6,
  FixedTextMissing = 7,
  LengthRange = 8,
  TooManyDecimals = 9,
  OffsetRange = 10,
  GroupNumberRange = 11,
  BitmapMissing = 12,
  DisplayAmountRange = 13,
  DataAmountRange = 14,
  StepRange = 15,
  StepMissing = 16,
  CodeStart = 17,
};
