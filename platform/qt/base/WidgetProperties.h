#pragma once

#include <Qt>

namespace tavrin {

// What the toolkit notes on the widgets themselves, for tests and for programs that look at a panel
// from outside. The text on a widget may have been altered to be shown; these are as they were set.

// Dynamic properties.
inline constexpr char kRawText[] = "tavrinText";       // QByteArray, UTF-8: a button's or label's
inline constexpr char kTextColor[] = "tavrinColor";    // QString: "grey" or "black"; unset before
inline constexpr char kHiddenFlag[] = "tavrinHidden";  // bool: the view's own flag
inline constexpr char kFrame[] = "tavrinFrame";        // QRectF: points, origin bottom left
inline constexpr char kAction[] = "action";            // QString: the selector, from the file

// Item data of a pop-up.
inline constexpr int kRawTitleRole = Qt::UserRole + 1;  // QByteArray, UTF-8
inline constexpr int kValueRole = Qt::UserRole + 2;     // QByteArray, UTF-8

}  // namespace tavrin
