#pragma once

#include <QString>

class QWidget;

// A widget carries the numbers of its texts as the dynamic property "tag", with spaces between several: "Caption:150"
// (an EmptyState's is its headline), "ToolTip:642", "Hint:863" for the placeholder of a field or the second line of an
// EmptyState, "Name:863" for what assistive technology calls it. This walk over a window puts the texts of the live
// language in place; what tags cannot reach each window sets afterwards. A dialog's close button says "Close". Also
// settles the layout direction (right to left in language 14), the desk's font and the toolkit's own words and calendar
// for the language.
void ApplyLanguage(QWidget* window);

// Puts a caption in a label, button or box. Where the control is narrower than the text it is cut by the rule of
// CutText, again at each change of its width; the tool tip is always the whole text.
void CutString(QWidget* control, const QString& text, bool rightToLeft);
