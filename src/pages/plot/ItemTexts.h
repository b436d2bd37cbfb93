// What the dialogs that walk the values of a network say of the one in hand.
#pragma once

#include <vector>

#include "network/TuneList.h"
#include "schematic/ItemPicture.h"

namespace quilm {

// Where the item's symbol stands.
ItemPlace PlaceOf(const TuneItem& item);

// In the words of tuning: "L2:  15.9155uH". A pair has two lines.
std::vector<ItemLine> TuneLines(const Network& network, const TuneItem& item);

// In the words of the entry of step sizes: "L: 15.9155uH". `item` is one of a stage, and no pair.
std::vector<ItemLine> StepsizeLines(const Network& network, const TuneItem& item);

// What is tuned, for undo and assistive tools: "Tune L2", "Tune load".
std::string NameOfStep(const TuneItem& item);

// The lines as one text, for assistive tools.
std::string Spoken(const std::vector<ItemLine>& lines);

}  // namespace quilm
