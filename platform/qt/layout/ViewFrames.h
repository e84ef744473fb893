#pragma once

#include <QList>
#include <QWidget>

#include "platform/toolkit/View.h"

// The views of a panel as they are noted on its widgets: frames in points, origin bottom left.

namespace tavrin {

// Notes the frames of a whole panel from its geometry, as the interface file has it. The root and
// what lies in it become views.
void noteDesign(QWidget& root);

bool isView(const QWidget& widget);
// The views that lie in a view itself, not in one of its views.
QList<QWidget*> viewsIn(const QWidget& parent);
// Only plain views hold further views; what a control is made of is the toolkit's.
bool holdsViews(const QWidget& widget);
// The view's own flag, whatever its parents are.
bool isFlaggedHidden(const QWidget& widget);

// A view's frame; an empty one where none is noted.
Rect frameOf(const QWidget& widget);
// Notes the frame and lays the panel out anew before it is next drawn.
void noteFrame(QWidget& widget, const Rect& frame);
// The same after a text, a flag or anything else that a frame does not show.
void layoutChanged(QWidget& widget);

}  // namespace tavrin
