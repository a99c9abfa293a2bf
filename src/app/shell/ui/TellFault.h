#pragma once

#include "app/shell/Boxes.h"

class QWidget;

// Tells in a warning what is wrong with a field, then outlines the field and gives it the focus.
void TellFault(QWidget* field, int message, int title = Message::kInformation);
