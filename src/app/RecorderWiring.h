#pragma once

struct Station;

// Subscribes what the station keeps of recorders and users beside their own records, in the order in which it follows
// them. The station must outlive its events.
void WireRecorderEvents(Station& station);
