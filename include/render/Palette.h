// The drawing colours and the palette's file, of which most of them are made.
#pragma once

#include "Types.h"

// A colour as it is drawn.
struct DRAWCOLR {
  guint16 red;
  guint16 green;
  guint16 blue;
  guint32 pixel;  // 0xRRGGBB, high bytes of the channels
};

extern DRAWCOLR DrawColr[103];
enum { ColourWhite = 100, ColourBlack = 101, ColourRed = 102 };
// Foreground and background of the mouse cursors, from the profile.
extern DRAWCOLR CusrColr[2];

// 0xRRGGBB of 16-bit channels.
guint32 PixelOf(gint red, gint green, gint blue);

// Reads "PtrnColr" of the project folder, zeros when missing or short, and rebuilds the colours.
void LoadColrFile();
// Rebuilds the colours and writes "PtrnColr", except while the settings of a new project are shown.
void SaveColrFile();
// Rebuilds the drawing colours from ColrData.
void SetDrawColr();
