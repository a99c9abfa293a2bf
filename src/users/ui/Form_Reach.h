#pragma once

#include "users/ChannelRights.h"

class QWidget;

// Shows the cameras that a user reaches and what the user may do with each, until the window is closed.
void Form_Reach(const UserRecord& user, const GroupSet& groups, const RecorderSet& recorders, QWidget* parent);
