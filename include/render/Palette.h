// The palette's file and the drawing colours made of it.
#pragma once

// Reads "PtrnColr" of the project folder, zeros when missing or short, and rebuilds the colours.
void LoadColrFile();
// Rebuilds the colours and writes "PtrnColr", except while the settings of a new project are shown.
void SaveColrFile();
// Rebuilds the drawing colours from ColrData.
void SetDrawColr();
