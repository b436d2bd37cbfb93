// The names of the record, its slices and what follows from it, for headers that hand them on without a look inside.
#pragma once

namespace quilm {

struct DesignRecord;
struct Identity;
struct Entries;
struct Prototype;
struct Network;
struct Stage;
struct SweepSettings;
struct PlotScales;
struct LimitsAndMarkers;

struct Responses;
struct Configuration;

}  // namespace quilm
