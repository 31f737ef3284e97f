// The marks' file and the pictures made of it.
#pragma once

// Reads "PtrnMark" of the project folder, zeros when missing or short, and rebuilds the pictures.
void LoadMarkFile();
// Rebuilds the pictures and writes "PtrnMark", except while the settings of a new project are
// shown.
void SaveMarkFile();
// Rebuilds the marks' pictures from MarkData.
void SetDrawMark();
