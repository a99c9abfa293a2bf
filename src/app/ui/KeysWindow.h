#pragma once

class QWidget;

// The window that tells the keys of the desk (Form_Keys), modal over `parent`.
void ShowKeys(QWidget* parent);
