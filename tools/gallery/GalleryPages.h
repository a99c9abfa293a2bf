#pragma once

class QWidget;

// The gallery's pages; `german` takes longer labels, to see that nothing is cut. Each is a new widget without parent.
QWidget* MakeTablePage(bool german);
QWidget* MakeRightsPage(bool german);
QWidget* MakeFormPage(bool german);
QWidget* MakeControlsPage(bool german);
QWidget* MakeEmptyPage(bool german);
QWidget* MakePicturesPage();
// Dialogs of every kind, index from 0; nullptr past the last.
class DialogFrame;
DialogFrame* MakeDialog(int index, bool german, QWidget* parent);
