// All marks as swatches in a scrolled window, as the mark dialogs show them.
#pragma once

#include <array>
#include <functional>

#include "dialogs/Editors.h"
#include "dialogs/frame/DialogWindow.h"

using MarkBoxes = std::array<MARKBOX, MarkCount>;

// Working copies of the project's marks, without swatches.
void CopyMarks(MarkBoxes* boxes);

// Called for a press of `button` on the swatch of mark `number`.
using MarkPress = std::function<void(GtkWidget* swatch, gint number, guint button)>;

// Makes a dialog one of 600 x 400 dots that can grow, with a swatch of every mark in `marks`. The
// swatches paint from there. The keyboard begins at mark `first`, in view.
void AddMarkSet(const DialogWindow& window, const MARKBOX* marks, const MarkPress& press,
                gint first = 0);
