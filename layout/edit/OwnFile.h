// Which file the open layout came from. Its save replaces that one without more; see SaveLayout.
#pragma once

// A layout begins that came from no file.
void ForgetOwnFile();
// The layout named by ProjPath and PtrnName is about to be read; one that is missing is no file.
void TakeOwnFile();
