#include "layout/ItemSlots.h"

#include <array>

namespace {

constexpr ParmSlot X1{"X1", 0, 1};
constexpr ParmSlot Y1{"Y1", 1, 1};
constexpr ParmSlot X2{"X2", 2, 1};
constexpr ParmSlot Y2{"Y2", 3, 1};
constexpr ParmSlot Top{"TopLayer", ItemSlot::TopLayer, 1};
constexpr ParmSlot Erase{"EraseColour", ItemSlot::EraseColour, 1};

constexpr ParmSlot FrameSlots[] = {X1,
                                   Y1,
                                   X2,
                                   Y2,
                                   {"AreaColour", FrameSlot::AreaColour, 4},
                                   {"TopColour", FrameSlot::TopColour, 4},
                                   {"BottomColour", FrameSlot::BottomColour, 4},
                                   {"LeftColour", FrameSlot::LeftColour, 4},
                                   {"RightColour", FrameSlot::RightColour, 4},
                                   {"TopWidth", FrameSlot::TopWidth, 1},
                                   {"BottomWidth", FrameSlot::BottomWidth, 1},
                                   {"LeftWidth", FrameSlot::LeftWidth, 1},
                                   {"RightWidth", FrameSlot::RightWidth, 1},
                                   Top,
                                   Erase};
constexpr ParmSlot LineSlots[] = {X1,
                                  Y1,
                                  X2,
                                  Y2,
                                  {"Colour", LineSlot::Colour, 4},
                                  {"Position", LineSlot::Position, 1},
                                  {"Style", LineSlot::Style, 1},
                                  {"Width", LineSlot::Width, 1},
                                  Top,
                                  Erase};
constexpr ParmSlot ShapeSlots[] = {X1,
                                   Y1,
                                   X2,
                                   Y2,
                                   {"LineColour", ShapeSlot::LineColour, 4},
                                   {"FillColour", ShapeSlot::FillColour, 4},
                                   {"Filled", ShapeSlot::Filled, 1},
                                   {"Position", ShapeSlot::Position, 1},
                                   {"Width", ShapeSlot::Width, 1},
                                   Top,
                                   Erase};
constexpr ParmSlot BarSlots[] = {X1,
                                 Y1,
                                 X2,
                                 Y2,
                                 {"BarColour", BarSlot::BarColour, 4},
                                 {"BackColour", BarSlot::BackColour, 4},
                                 {"OutlineColour", BarSlot::OutlineColour, 1},
                                 {"Direction", BarSlot::Direction, 1},
                                 {"BarWidth", BarSlot::BarWidth, 1},
                                 {"OutlineWidth", BarSlot::OutlineWidth, 1},
                                 {"LowerLimit", BarSlot::LowerLimit, 1},
                                 {"UpperLimit", BarSlot::UpperLimit, 1},
                                 Top,
                                 Erase};
constexpr ParmSlot FixedStringSlots[] = {X1,
                                         Y1,
                                         {"TextColour", TextSlot::TextColour, 4},
                                         {"BackColour", TextSlot::BackColour, 4},
                                         {"BackEnabled", TextSlot::BackEnabled, 1},
                                         {"Blinking", TextSlot::Blinking, 1},
                                         {"Font", TextSlot::Font, 1},
                                         {"Length", TextSlot::Length, 1},
                                         Top,
                                         Erase};
constexpr ParmSlot VariableStringSlots[] = {X1,
                                            Y1,
                                            {"TextColour", TextSlot::TextColour, 4},
                                            {"BackColour", TextSlot::BackColour, 4},
                                            {"BackEnabled", TextSlot::BackEnabled, 1},
                                            {"Blinking", TextSlot::Blinking, 1},
                                            {"Font", TextSlot::Font, 1},
                                            {"Length", TextSlot::Length, 1},
                                            {"InputAllowed", TextSlot::InputAllowed, 1},
                                            {"JapaneseInput", TextSlot::JapaneseInput, 1},
                                            {"CursorKeys", TextSlot::CursorKeys, 1},
                                            Top,
                                            Erase};
constexpr ParmSlot NumericSlots[] = {X1,
                                     Y1,
                                     {"TextColour", TextSlot::TextColour, 4},
                                     {"BackColour", TextSlot::BackColour, 4},
                                     {"BackEnabled", TextSlot::BackEnabled, 1},
                                     {"Blinking", TextSlot::Blinking, 1},
                                     {"Font", TextSlot::Font, 1},
                                     {"Length", TextSlot::Length, 1},
                                     {"Decimals", TextSlot::Decimals, 1},
                                     {"InputAllowed", TextSlot::InputAllowed, 1},
                                     {"KeepZeros", TextSlot::KeepZeros, 1},
                                     {"Grouping", TextSlot::Grouping, 1},
                                     {"Hexadecimal", TextSlot::Hexadecimal, 1},
                                     {"CursorKeys", TextSlot::CursorKeys, 1},
                                     Top,
                                     Erase};
constexpr ParmSlot ButtonSlots[] = {X1,
                                    Y1,
                                    X2,
                                    Y2,
                                    {"TopLeftColour", ButtonSlot::TopLeftColour, 1},
                                    {"BottomRightColour", ButtonSlot::BottomRightColour, 1},
                                    {"FaceColour", ButtonSlot::FaceColour, 1},
                                    {"TextColour", ButtonSlot::TextColour, 2},
                                    {"TextPlacement", ButtonSlot::TextPlacement, 1},
                                    {"TextOffset", ButtonSlot::TextOffset, 1},
                                    {"Font", ButtonSlot::Font, 1},
                                    {"BorderWidth", ButtonSlot::BorderWidth, 1},
                                    Top,
                                    Erase};
constexpr ParmSlot ChoiceSlots[] = {X1,
                                    Y1,
                                    {"TextColour", ChoiceSlot::TextColour, 2},
                                    {"BackColour", ChoiceSlot::BackColour, 2},
                                    {"BackEnabled", ChoiceSlot::BackEnabled, 1},
                                    {"Font", ChoiceSlot::Font, 1},
                                    {"Length", ChoiceSlot::Length, 1},
                                    {"Number", ChoiceSlot::Number, 1},
                                    Top,
                                    Erase};
constexpr ParmSlot BitmapSlots[] = {X1,
                                    Y1,
                                    X2,
                                    Y2,
                                    {"TransparentColour", BitmapSlot::TransparentColour, 1},
                                    {"Transparent", BitmapSlot::Transparent, 1},
                                    Top,
                                    Erase};
constexpr ParmSlot MarkSlots[] = {X1,
                                  Y1,
                                  X2,
                                  Y2,
                                  {"MarkColour", MarkSlot::MarkColour, 4},
                                  {"BackColour", MarkSlot::BackColour, 4},
                                  {"BackEnabled", MarkSlot::BackEnabled, 1},
                                  {"Blinking", MarkSlot::Blinking, 1},
                                  {"Mark", MarkSlot::Mark, 4},
                                  Top,
                                  Erase};
constexpr ParmSlot ScrollSlots[] = {X1,
                                    Y1,
                                    X2,
                                    Y2,
                                    {"TopLeftColour", ScrollSlot::TopLeftColour, 1},
                                    {"BottomRightColour", ScrollSlot::BottomRightColour, 1},
                                    {"TroughColour", ScrollSlot::TroughColour, 1},
                                    {"ThumbColour", ScrollSlot::ThumbColour, 1},
                                    {"SingleArrows", ScrollSlot::SingleArrows, 1},
                                    {"DoubleArrows", ScrollSlot::DoubleArrows, 1},
                                    {"Direction", ScrollSlot::Direction, 1},
                                    {"FrameWidth", ScrollSlot::FrameWidth, 1},
                                    {"DisplayAmount", ScrollSlot::DisplayAmount, 1},
                                    {"DataAmount", ScrollSlot::DataAmount, 1},
                                    {"SingleStep", ScrollSlot::SingleStep, 1},
                                    {"DoubleStep", ScrollSlot::DoubleStep, 1},
                                    {"PageStep", ScrollSlot::PageStep, 1},
                                    {"MouseWheel", ScrollSlot::MouseWheel, 1},
                                    {"FunctionKeys", ScrollSlot::FunctionKeys, 1},
                                    Top,
                                    Erase};
constexpr ParmSlot SpinSlots[] = {X1,
                                  Y1,
                                  X2,
                                  Y2,
                                  {"LowerLimit", SpinSlot::LowerLimit, 1},
                                  {"UpperLimit", SpinSlot::UpperLimit, 1},
                                  Top,
                                  Erase};

constexpr ParmSlot Parm1Slots[] = {{"Kind", HedrSlot::Kind, 1},
                                   {"Width", HedrSlot::Width, 1},
                                   {"Height", HedrSlot::Height, 1},
                                   {"DisplaySize", HedrSlot::DisplaySize, 1},
                                   {"TitlePosition", HedrSlot::TitlePosition, 1},
                                   {"WindowX", HedrSlot::WindowX, 1},
                                   {"WindowY", HedrSlot::WindowY, 1},
                                   {"Fixed", HedrSlot::Fixed, 1},
                                   {"TitleHeight", HedrSlot::TitleHeight, 1},
                                   {"TitleColour", HedrSlot::TitleColour, 1},
                                   {"TitleAreaColour", HedrSlot::TitleAreaColour, 1},
                                   {"TitleFont", HedrSlot::TitleFont, 1},
                                   {"TitleCentred", HedrSlot::TitleCentred, 1},
                                   {"LogoShown", HedrSlot::LogoShown, 1},
                                   {"HardCopyShown", HedrSlot::HardCopyShown, 1},
                                   {"VersionScreen", HedrSlot::VersionScreen, 1},
                                   {"DebugScreen", HedrSlot::DebugScreen, 1},
                                   {"DateFormat", HedrSlot::DateFormat, 1},
                                   {"DateFont", HedrSlot::DateFont, 1},
                                   {"WorkAreaColour", HedrSlot::WorkAreaColour, 1},
                                   {"Gradation", HedrSlot::Gradation, 1},
                                   {"ButtonAreaHeight", HedrSlot::ButtonAreaHeight, 1},
                                   {"ButtonAreaColour", HedrSlot::ButtonAreaColour, 1},
                                   {"FrameWidth", HedrSlot::FrameWidth, 1},
                                   {"FrameColour", HedrSlot::FrameColour, 1},
                                   {"MouseCursor", HedrSlot::MouseCursor, 1},
                                   {"ParentInput", HedrSlot::ParentInput, 1},
                                   {"KeyColour", HedrSlot::KeyColour, 1},
                                   {"KeyBackColour", HedrSlot::KeyBackColour, 1},
                                   {"KeepAsIs", HedrSlot::KeepAsIs, 1}};
constexpr ParmSlot Parm2Slots[] = {{"Zoom", ViewSlot::Zoom, 1},
                                   {"GridShown", ViewSlot::GridShown, 1},
                                   {"GridX", ViewSlot::GridX, 1},
                                   {"GridY", ViewSlot::GridY, 1},
                                   {"GridColour", ViewSlot::GridColour, 1},
                                   {"StartScreen", ViewSlot::StartScreen, 1},
                                   {"StopScreen", ViewSlot::StopScreen, 1}};

using Slots = std::span<const ParmSlot>;
const std::array<Slots, ItemTypeCount + 1> SlotsOfType = {
    Slots{},          FrameSlots,          LineSlots,    ShapeSlots,  ShapeSlots,  BarSlots,
    FixedStringSlots, VariableStringSlots, NumericSlots, ButtonSlots, ChoiceSlots, ChoiceSlots,
    BitmapSlots,      MarkSlots,           ScrollSlots,  SpinSlots};

}  // namespace

std::span<const ParmSlot> ItemParmSlots(gint type) {
  return type >= 1 && type <= ItemTypeCount ? SlotsOfType[static_cast<gsize>(type)] : Slots{};
}

std::span<const ParmSlot> HedrParm1Slots() {
  return Parm1Slots;
}

std::span<const ParmSlot> HedrParm2Slots() {
  return Parm2Slots;
}
